// What differs between two chips, as `velmar compare --format json` says it.

import {addressText} from "./catalogue.js";

/** Rows {table, part, change, old, new}; of one table, or of all where none is named. */
export function compareChips(catalogue, oldChip, newChip, tableName = null) {
  for (const chip of [oldChip, newChip]) catalogue.checkChip(chip);
  const tables = tableName === null ? catalogue.tables : [catalogue.table(tableName)];
  return tables.flatMap((table) => compareTable(catalogue, table, oldChip, newChip));
}

function compareTable(catalogue, table, oldChip, newChip) {
  const [wasThere, isThere] = [table.make.has(oldChip), table.make.has(newChip)];
  const layout = (chip) => catalogue.layout(table.name, chip);
  if (!wasThere && !isThere) return [];
  if (!wasThere || !isThere) {
    return [{
      table: table.name,
      part: "(table)",
      change: isThere ? "added" : "gone",
      old: wasThere ? sizeText(layout(oldChip)) : null,
      new: isThere ? sizeText(layout(newChip)) : null,
    }];
  }
  const [before, after] = [layout(oldChip), layout(newChip)];
  return [...compareGeometry(table, before, after), ...compareFields(table, before, after)];
}

function sizeText(layout) {
  return `${layout.indexCount} x ${layout.entryBytes} bytes at ${addressText(layout.base)}`;
}

function compareGeometry(table, before, after) {
  const parts = [
    ["(entry bytes)", (layout) => layout.entryBytes],
    ["(entries)", (layout) => layout.entries],
    ["(elements)", (layout) => layout.arrayElements],
    ["(address)", (layout) => addressText(layout.base)],
    ["(element stride)", (layout) => layout.addrStride],
    ["(identifiers)", (layout) => layout.identifiers],
    ["(identifier term)", (layout) => layout.identifierTerm],
    ["(access)", (layout) => layout.accessType],
    ["(block)", (layout) => layout.block],
    ["(variants)", (layout) => (layout.variants === "any" ? "any" : "0 only")],
  ];
  return parts
      .map(
          ([part, of]) =>
              ({table: table.name, part, change: "changed", old: of(before), new: of(after)}))
      .filter((row) => row.old !== row.new);
}

function compareFields(table, before, after) {
  const rows = [];
  for (const {accessor} of table.fields) {
    const [old, now] = [placeOf(before, accessor), placeOf(after, accessor)];
    const change = changeOf(old, now);
    if (change) rows.push({table: table.name, part: accessor, change, old, new: now});
  }
  return rows;
}

function placeOf(layout, accessor) {
  const field = layout.byName.get(accessor);
  return field ? {offset: field.offset, width: field.width} : null;
}

/** How a place differs from another; "" where it does not. */
export function changeOf(old, now) {
  if (!old) return now ? "added" : "";
  if (!now) return "gone";
  if (old.offset === now.offset) return old.width === now.width ? "" : "resized";
  return old.width === now.width ? "moved" : "moved and resized";
}
