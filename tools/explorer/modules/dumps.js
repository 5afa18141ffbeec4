// Dumps: the entries of a table, what differs between two of them, and their documents.

import {readBits, sameBytes} from "./bits.js";
import {addressText} from "./catalogue.js";
import {changesOf, csvText, decodeEntry, hexText, valueJson} from "./values.js";

/** A dump: the entries `indexes` of a layout, one after another in `bytes`. */
export class Dump {
  constructor(layout, indexes, bytes) {
    Object.assign(this, {layout, indexes, bytes});
    this.rows = new Map(Array.from(indexes, (index, row) => [index, row]));
  }

  entry(row) {
    return this.bytes.subarray(row * this.layout.entryBytes, (row + 1) * this.layout.entryBytes);
  }
}

/** Entries as a document of `velmar decode --format json`. */
export function jsonOf(dump, rows) {
  const layout = dump.layout;
  const head = {
    format: "velmar-entries",
    version: 1,
    table: layout.table.name,
    chip: layout.chip,
    variant: 0,
    entryBytes: layout.entryBytes,
    layout: Object.fromEntries(
        layout.fields.map(({accessor, offset, width}) => [accessor, {offset, width}])),
  };
  const entries = rows.map((row) => {
    const bytes = dump.entry(row);
    const entry = {
      index: dump.indexes[row],
      address: addressText(layout.addressOf(dump.indexes[row])),
      accessType: layout.accessType,
      block: layout.block,
      fields: decodeEntry(layout, bytes),
    };
    const outside = layout.outsideFields(bytes);
    return JSON.stringify(outside === 0n ? entry : {...entry, outsideFields: hexText(outside)});
  });
  return `${JSON.stringify(head).slice(0, -1)},"entries":[\n${entries.join(",\n")}\n]}\n`;
}

function csvQuoted(text) {
  return /[",\n]/.test(text) ? `"${text.replaceAll("\"", "\"\"")}"` : text;
}

/** Entries as CSV, with the columns of `velmar decode --format csv`. */
export function csvOf(dump, rows) {
  const layout = dump.layout;
  const fields = layout.fields.map((field) => field.accessor);
  const head = ["index", "address", "accessType", "block", ...fields, "outsideFields"];
  const lines = rows.map((row) => {
    const bytes = dump.entry(row);
    const outside = layout.outsideFields(bytes);
    const values =
        layout.fields.map((field) => csvText(field, readBits(bytes, field.offset, field.width)));
    return [
      dump.indexes[row], addressText(layout.addressOf(dump.indexes[row])), layout.accessType,
      layout.block, ...values.map(csvQuoted), outside === 0n ? "" : hexText(outside)
    ].join(",");
  });
  return [head.join(","), ...lines].join("\n") + "\n";
}

/** The entries of two dumps by index: [{index, old, now}], rows or -1. */
export function joinDumps(old, now) {
  const indexes = [...new Set([...old.indexes, ...now.indexes])].sort((a, b) => a - b);
  return indexes.map((index) => {
    const [before, after] = [old.rows.get(index) ?? -1, now.rows.get(index) ?? -1];
    const differs = before < 0 || after < 0 || !sameBytes(old.entry(before), now.entry(after));
    return {index, old: before, now: after, differs};
  });
}

/** What differs between two dumps, as `velmar diff --format json` has it under "entries". */
export function diffOf(old, now) {
  return joinDumps(old, now).filter((row) => row.differs).map((row) => {
    if (row.old < 0 || row.now < 0)
      return {index: row.index, change: row.old < 0 ? "only in NEW" : "only in OLD"};
    const fields = changesOf(old.layout, old.entry(row.old), now.entry(row.now))
                       .map(({field, old: before, now: after}) => [field.accessor, {
                              old: valueJson(field, before),
                              new: valueJson(field, after)
                            }]);
    return {index: row.index, change: "changed", fields: Object.fromEntries(fields)};
  });
}

/** Differences as a document of `velmar diff --format json`. */
export function diffJsonOf(layout, changes) {
  const head =
      {format: "velmar-diff", version: 1, table: layout.table.name, chip: layout.chip, variant: 0};
  const rows = changes.map((row) => `  ${JSON.stringify(row)}`).join(",\n");
  return `${JSON.stringify(head).slice(0, -1)},"entries":[\n${rows}\n]}\n`;
}

/** Differences as CSV, with the columns of `velmar diff --format csv`: a row for each field. */
export function diffCsvOf(layout, changes) {
  const text = (name, value) => {
    const field = layout.byName.get(name);
    return csvQuoted(field ? csvText(field, BigInt(value.hex)) : value.hex);
  };
  const lines = changes.flatMap(
      ({index, change, fields}) =>
          (fields ?
               Object.entries(fields).map(
                   ([name,
                     {old, new: now}]) => [index, change, name, text(name, old), text(name, now)]) :
               [[index, change, "", "", ""]]));
  return [["index", "change", "field", "old", "new"], ...lines]
             .map((line) => line.join(","))
             .join("\n") +
      "\n";
}
