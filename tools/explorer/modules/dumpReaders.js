// The notations in which dumps are read. What cannot be told for sure is asked for or refused.

import {bytesOf} from "./bits.js";
import {addressText, quoted, refuse} from "./catalogue.js";
import {Dump} from "./dumps.js";
import {parseEntry} from "./entryText.js";
import {readJsonValues} from "./json.js";
import {encodeEntry, valueOfJson} from "./values.js";

/** The largest file, and the longest line of a text, that are read. */
const largestFile = 32 * 1024 * 1024;
const longestLine = 65536;

/** The formats of dumps, and what they are called. */
export const formats = {
  raw: "raw bytes",
  bytes: "hex text, bytes",
  words: "hex text, 32-bit words",
  number: "hex text, one number a line",
  xxd: "output of xxd",
  hexdump: "output of hexdump -C",
  json: "JSON of velmar",
};

/** The format of a file where it is sure; "" where a person has to choose. */
export function formatOf(file) {
  if (file.length > largestFile) {
    refuse(`the file has ${file.length} bytes; the largest that is read has ${largestFile}`);
  }
  if (file.length === 0) refuse("the file is empty");
  if (!isText(file)) return mayBeText(file) ? "" : "raw";
  const first = (textOf(file.subarray(0, 4096)).match(/\S[^\n]*/) ?? [""])[0].trimEnd();
  if (/^[[{]/.test(first)) return "json";
  if (/^[0-9a-f]{8,}:/i.test(first)) return "xxd";
  if (/^[0-9a-f]{8,} {2}[0-9a-f ]+\|/i.test(first)) return "hexdump";
  const digits = indexed(first)?.digits ?? first;
  return /^[0-9a-f]{2}( +[0-9a-f]{2})+$/i.test(digits) ? "bytes" : "";
}

function isPrintable(byte) {
  return (byte >= 32 && byte <= 126) || byte === 9 || byte === 10 || byte === 13;
}

function isText(file) {
  return file.every(isPrintable);
}

/** Text with a mark, in 16-bit letters, with colours or padding. */
function mayBeText(file) {
  // The first two bytes may be the mark of 16-bit letters.
  const start = file.subarray(2, 65536);
  const printable = start.filter(isPrintable).length;
  const isWide = start.length > 3 &&
      [0, 1].some((odd) => start.every((byte, i) => (i % 2 === odd) === (byte === 0)));
  return isWide || 10 * printable > 7 * start.length;
}

function textOf(file) {
  return new TextDecoder("utf-8").decode(file);
}

/** The lines [number, text] that are not blank. */
function* linesOf(text) {
  for (let begin = 0, number = 1; begin < text.length; ++number) {
    const end = text.indexOf("\n", begin) < 0 ? text.length : text.indexOf("\n", begin);
    if (end - begin > longestLine)
      refuse(`line ${number} has ${end - begin} letters; check the format`);
    const line = text.slice(begin, end).trimEnd();
    if (line !== "") yield [number, line];
    begin = end + 1;
  }
}

/** Reads a dump in a format; `layout` is that of the table and chip which a person chose. */
export function readDump(file, format, layout) {
  if (format === "raw") return streamOf(layout, file);
  const text = textOf(file);
  if (format === "json") return readJson(text, layout);
  if (format === "xxd" || format === "hexdump")
    return streamOf(layout, new OffsetDump(format, layout).read(text));
  return readHexText(text, format, layout);
}

function streamOf(layout, bytes) {
  const count = bytes.length / layout.entryBytes;
  if (!Number.isInteger(count)) {
    refuse(
        `${bytes.length} bytes are no whole number of entries: an entry of ${
            layout.table.name} has ` +
        `${layout.entryBytes} bytes on ${
            layout.chip}; check table and chip, or the end of the file`);
  }
  if (count === 0) refuse("the dump has no entry");
  if (count > layout.indexCount) {
    refuse(`${count} entries, but ${layout.table.name} has ${layout.indexCount} on ${
        layout.chip}; check table and chip`);
  }
  return new Dump(layout, Uint32Array.from({length: count}, (_, i) => i), Uint8Array.from(bytes));
}

/** Collects entries that name their indexes. */
class EntryCollector {
  constructor(layout) {
    this.layout = layout;
    this.entries = new Map();
  }

  add(index, bytes) {
    const {layout} = this;
    if (!Number.isInteger(index) || index < 0 || index >= layout.indexCount) {
      refuse(
          `${quoted(String(index))} is no index of ${layout.table.name}; on ${
              layout.chip} it has ` +
          `${layout.indexCount} entries; check table and chip`);
    }
    if (this.entries.has(index)) refuse(`entry ${index} is given twice; give it once`);
    this.entries.set(index, bytes);
  }

  dump() {
    if (this.entries.size === 0) refuse("the dump has no entry");
    const indexes = Uint32Array.from(this.entries.keys()).sort();
    const bytes = new Uint8Array(indexes.length * this.layout.entryBytes);
    indexes.forEach(
        (index, row) => bytes.set(this.entries.get(index), row * this.layout.entryBytes));
    return new Dump(this.layout, indexes, bytes);
  }
}

/** An index and a colon before digits; null without. */
function indexed(line) {
  const match = /^\s*(0x[0-9a-f]{1,8}|0|[1-9][0-9]{0,9}):\s(.*)$/i.exec(line);
  return match && {index: Number(match[1]), digits: match[2].trim()};
}

/** One entry on each line, optionally after its index and a colon. */
function readHexText(text, order, layout) {
  const collector = new EntryCollector(layout);
  let last = -1;
  for (const [number, line] of linesOf(text)) {
    const {index, digits} = indexed(line) ?? {index: last + 1, digits: line};
    last = index;
    atLine(number, () => collector.add(index, parseEntry(digits, order, layout.entryBytes)));
  }
  return collector.dump();
}

/** Runs an action; a refusal names the line. */
function atLine(number, action) {
  try {
    return action();
  } catch (error) {
    error.message = `line ${number}: ${error.message}`;
    throw error;
  }
}

/** Lines of an offset, bytes in hexadecimal, and the same as text, to which they are held. */
class OffsetDump {
  constructor(format, layout) {
    this.lineOf = format === "xxd" ? xxdLine : hexdumpLine;
    this.needsEnd = format === "hexdump";
    this.limit = layout.indexCount * layout.entryBytes;
    this.bytes = [];
    this.first = this.last = null;
    this.repeats = this.isEnded = false;
  }

  read(text) {
    for (const [number, line] of linesOf(text)) atLine(number, () => this.take(line));
    if (this.repeats || (this.needsEnd && !this.isEnded))
      refuse("the dump does not end with its length; lines are lost");
    if (this.isOrderOpen && !this.isOrderShown) {
      refuse(
          "pairs of bytes, or 16-bit words: nothing tells; give the output of xxd -g1 or hexdump -C");
    }
    return this.bytes;
  }

  take(line) {
    if (this.isEnded) refuse("data after the last offset; give one dump");
    if (line === "*") {
      if (!this.last || this.repeats) refuse("nothing to repeat");
      this.repeats = true;
      return;
    }
    const row = this.lineOf(line);
    this.checkOffset(row.offset);
    this.isEnded = row.bytes.length === 0;
    if (this.isEnded) return;
    if (this.last &&
        (this.last.length < this.first.length || row.bytes.length > this.first.length)) {
      refuse("lines of different length; digits may be lost");
    }
    this.checkText(row);
    this.first ??= row.bytes;
    this.last = row.bytes;
    for (const byte of row.bytes) this.bytes.push(byte);
    if (this.bytes.length > this.limit)
      refuse(`the table has ${this.limit} bytes only; check table and chip`);
  }

  /** An offset goes on where the line before it ends, or behind repeats of that line. */
  checkOffset(offset) {
    const text = (number) => `0x${number.toString(16)}`;
    if (offset > this.limit)
      refuse(`offset ${text(offset)} lies beyond the table of ${this.limit} bytes`);
    if (this.repeats && (offset - this.bytes.length) % this.last.length !== 0) {
      refuse("the offset does not fit the lines before *");
    }
    while (this.repeats && this.bytes.length < offset) this.bytes.push(...this.last);
    this.repeats = false;
    if (offset !== this.bytes.length) {
      refuse(`offset ${text(offset)}, but ${text(this.bytes.length)} is due; give the whole dump`);
    }
  }

  /** The text shows that the bytes stand in order; of pairs only letters that differ show it. */
  checkText({bytes, text, pairs}) {
    const letters =
        bytes.map((byte) => (byte >= 32 && byte <= 126 ? String.fromCharCode(byte) : "."));
    if (text !== letters.join("")) {
      refuse(`the text ${
          quoted(
              text)} is not that of the bytes; they may be words: give the output of hexdump -C`);
    }
    if (!pairs) return;
    for (let i = 0; i + 1 < bytes.length; i += 2) {
      this.isOrderOpen ||= bytes[i] !== bytes[i + 1];
      this.isOrderShown ||= letters[i] !== letters[i + 1];
    }
  }
}

function pairsOfDigits(digits) {
  return (digits.match(/../g) ?? []).map((pair) => parseInt(pair, 16));
}

function xxdLine(line) {
  const match = /^([0-9a-f]{8,12}): ((?:[0-9a-f]{2,512} )+) /i.exec(line) ??
      refuse("not a whole line of xxd; its text at the end must be there");
  const groups = match[2].trim().split(" ");
  if (groups.some((group) => group.length > 4)) {
    refuse(
        "groups of over 4 digits may be bytes or words; give the output of xxd -g1 or hexdump -C");
  }
  const bytes = pairsOfDigits(groups.join(""));
  const text = line.padEnd(match[0].length + bytes.length).slice(-bytes.length);
  if (line.slice(match[0].length, line.length - text.length).trim() !== "")
    refuse("not a line of xxd");
  return {offset: parseInt(match[1], 16), bytes, text, pairs: groups[0].length === 4};
}

function hexdumpLine(line) {
  const [head, ...rest] = line.split("|");
  const [offset, ...pairs] = head.trim().split(/ +/);
  const text = rest.join("|").replace(/\|$/, "");
  const isData = pairs.length > 0 && line.endsWith("|") && rest.length > 1;
  const isLine = /^[0-9a-f]{8,12}$/i.test(offset) &&
      pairs.every((pair) => /^[0-9a-f]{2}$/i.test(pair)) && (isData || line === offset);
  if (!isLine) refuse("not a line of hexdump -C");
  return {offset: parseInt(offset, 16), bytes: pairsOfDigits(pairs.join("")), text};
}

/** The table and chip that a JSON dump names; null for another file. */
export function sourceOfJson(file) {
  const text = textOf(file.subarray(0, 4096));
  const name = (key) => (new RegExp(`"${key}"\\s*:\\s*"(\\w+)"`).exec(text) ?? [])[1];
  return name("table") && name("chip") ? {table: name("table"), chip: name("chip")} : null;
}

const headMembers = ["format", "version", "table", "chip", "variant", "entryBytes", "layout"];
const entryMembers = ["index", "address", "accessType", "block", "fields", "outsideFields"];

function readJson(text, layout) {
  const collector = new EntryCollector(layout);
  for (const document of readJsonValues(text).flat()) {
    const isWhole = isObject(document) && "entries" in document;
    checkMembers(document, [...headMembers, ...(isWhole ? ["entries"] : entryMembers)]);
    checkHead(document, layout);
    if (isWhole && !Array.isArray(document.entries)) refuse("\"entries\" is not a list");
    for (const entry of isWhole ? document.entries : [document]) {
      if (isWhole) checkMembers(entry, entryMembers);
      collector.add(entry.index, entryOfJson(layout, entry));
    }
  }
  return collector.dump();
}

function isObject(value) {
  return value !== null && typeof value === "object" && !Array.isArray(value);
}

function checkMembers(value, names) {
  if (!isObject(value))
    refuse(`${quoted(JSON.stringify(value))} is no entry of velmar decode --format json`);
  const unknown = Object.keys(value).find((name) => !names.includes(name));
  if (unknown !== undefined)
    refuse(`${quoted(unknown)} is unknown; give what velmar decode prints`);
}

function checkHead(document, layout) {
  const {table, chip, variant, entryBytes, format, version} = document;
  const check = (isRight, name, value, right) => isRight ||
      refuse(`"${name}" is ${quoted(JSON.stringify(value) ?? "missing")}, not ${
          JSON.stringify(right)}; check table and chip`);
  check(table === layout.table.name, "table", table, layout.table.name);
  check(chip === layout.chip, "chip", chip, layout.chip);
  check(variant === undefined || variant === 0, "variant", variant, 0);
  check(
      entryBytes === undefined || entryBytes === layout.entryBytes, "entryBytes", entryBytes,
      layout.entryBytes);
  check(format === undefined || format === "velmar-entries", "format", format, "velmar-entries");
  check(version === undefined || version === 1, "version", version, 1);
  if (document.layout === undefined) return;
  if (!isObject(document.layout)) refuse("\"layout\" is not what velmar decode prints");
  for (const [name, place] of Object.entries(document.layout)) {
    const field = layout.find(name);
    if (place?.offset !== field.offset || place.width !== field.width) {
      refuse(`${name} lies elsewhere in this document; it is from another version`);
    }
  }
}

function entryOfJson(layout, entry) {
  const what = `entry ${entry.index}`;
  if (!isObject(entry.fields)) refuse(`${what} has no fields`);
  for (const field of layout.fields) {
    if (!Object.hasOwn(entry.fields, field.accessor)) {
      refuse(`${what} has no ${field.accessor}; give all fields of an entry`);
    }
  }
  const addresses = Array.from(
      {length: layout.identifiers}, (_, i) => addressText(layout.addressOf(entry.index, i)));
  if (entry.address !== undefined && !addresses.includes(entry.address)) {
    refuse(`${what} has the address ${
        quoted(String(entry.address))}, which is that of another; check table and chip`);
  }
  const bytes = encodeEntry(layout, entry.fields);
  if (entry.outsideFields === undefined) return bytes;
  const outside = valueOfJson(
      {accessor: `${what}: outsideFields`, width: 8 * layout.entryBytes}, entry.outsideFields);
  if ((outside & ~layout.reservedMask) !== 0n) refuse(`${what}: outsideFields has bits of fields`);
  return bytesOf(outside, bytes.length).map((byte, i) => byte | bytes[i]);
}
