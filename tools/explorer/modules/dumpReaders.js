// The notations in which dumps are read. What cannot be told for sure is asked for or refused.

import {addressText, refuse} from "./catalogue.js";
import {Dump} from "./dumps.js";
import {parseEntry} from "./entryText.js";
import {encodeEntry, valueOfJson} from "./values.js";

function refuseLine(number, text) {
  refuse(`line ${number}: ${text}`);
}

/** The largest file that is read. */
const largestFile = 64 * 1024 * 1024;

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

/** The formats that a file may have: one where it is sure, several where a person has to choose. */
export function formatsOf(file) {
  if (file.length > largestFile) {
    refuse(`the file has ${file.length} bytes; the largest that is read has ${largestFile}`);
  }
  if (file.length === 0) refuse("the file is empty");
  const mark = (file[0] === 0xff && file[1] === 0xfe) || (file[0] === 0xfe && file[1] === 0xff) || file[0] === 0xef;
  if (mark) return ["raw", "json", "bytes", "words", "number"];
  if (file.some((byte) => byte > 126 || (byte < 32 && byte !== 9 && byte !== 10 && byte !== 13))) return ["raw"];
  const first = (textOf(file.subarray(0, 4096)).match(/\S[^\n]*/) ?? [""])[0].trimEnd();
  if (/^[[{]/.test(first)) return ["json"];
  if (/^[0-9a-f]{8,}: [0-9a-f]{2}/i.test(first) && /  /.test(first)) return ["xxd"];
  if (/^[0-9a-f]{8,} {2}([0-9a-f]{2} {1,2}){1,16} *\|.*\|$/i.test(first)) return ["hexdump"];
  const groups = first.replace(/^[0-9]+:\s/, "").split(/[\s,:]+/).filter((group) => group !== "");
  if (groups.length > 1 && groups.every((group) => /^[0-9a-f]{2}$/i.test(group))) return ["bytes"];
  return groups.every((group) => /^(0x)?[0-9a-f]+$/i.test(group)) ? ["bytes", "words", "number", "raw"] :
                                                                      Object.keys(formats);
}

function textOf(file) {
  return new TextDecoder("utf-8", {fatal: false}).decode(file);
}

/** Reads a dump in a format; `layout` is that of the table and chip which a person chose. */
export function readDump(file, format, layout) {
  if (format === "raw") return streamOf(layout, file);
  const text = textOf(file);
  if (format === "json") return readJson(text, layout);
  if (format === "xxd" || format === "hexdump") return streamOf(layout, readOffsetDump(text, format, layout));
  return readHexText(text, format, layout);
}

function checkIndex(layout, index) {
  if (Number.isInteger(index) && index >= 0 && index < layout.indexCount) return index;
  return refuse(`${index} is no index of ${layout.table.name}; on ${layout.chip} it has ` +
      `${layout.indexCount} entries; check table and chip`);
}

function streamOf(layout, bytes) {
  const count = bytes.length / layout.entryBytes;
  if (!Number.isInteger(count)) {
    refuse(`${bytes.length} bytes are no whole number of entries: an entry of ${layout.table.name} has ` +
        `${layout.entryBytes} bytes on ${layout.chip}; check table and chip, or the end of the file`);
  }
  if (count === 0) refuse("the dump has no entry");
  checkIndex(layout, count - 1);
  return new Dump(layout, Uint32Array.from({length: count}, (_, i) => i), Uint8Array.from(bytes));
}

/** One entry on each line, optionally after its index and a colon. */
function readHexText(text, order, layout) {
  const [indexes, parts] = [[], []];
  const seen = new Set();
  text.split("\n").forEach((line, i) => {
    if (line.trim() === "") return;
    const match = /^\s*([0-9]+):\s(.*)$/.exec(line);
    try {
      const index = checkIndex(layout, match ? Number(match[1]) : (indexes[indexes.length - 1] ?? -1) + 1);
      if (seen.has(index)) refuse(`entry ${index} is given twice; give it once`);
      seen.add(index);
      indexes.push(index);
      parts.push(parseEntry(match ? match[2] : line, order, layout.entryBytes));
    } catch (error) {
      refuseLine(i + 1, error.message);
    }
  });
  if (indexes.length === 0) refuse("the dump has no entry");
  return dumpOf(layout, indexes, parts);
}

function dumpOf(layout, indexes, parts) {
  const rows = indexes.map((index, i) => ({index, bytes: parts[i]})).sort((a, b) => a.index - b.index);
  const bytes = new Uint8Array(rows.length * layout.entryBytes);
  rows.forEach((row, i) => bytes.set(row.bytes, i * layout.entryBytes));
  return new Dump(layout, Uint32Array.from(rows, (row) => row.index), bytes);
}

/** Lines of an offset, hexadecimal bytes, and the printable ones as text, to which they are held. */
function readOffsetDump(text, format, layout) {
  const limit = layout.indexCount * layout.entryBytes;
  const bytes = [];
  let [first, last, repeats, isEnded] = [null, null, false, false];
  text.split("\n").forEach((line, i) => {
    const fail = (reason) => refuseLine(i + 1, reason);
    line = line.replace(/\r$/, "");
    if (line.trim() === "") return;
    if (isEnded) fail("data after the last offset; give one dump");
    if (line === "*") {
      if (!last || repeats) fail("nothing to repeat");
      repeats = true;
      return;
    }
    const row = (format === "xxd" ? xxdLine(line) : hexdumpLine(line)) ?? fail(`not ${formats[format]}`);
    if (row.offset > limit) fail(`offset 0x${row.offset.toString(16)} lies beyond the table of ${limit} bytes`);
    if (repeats && (row.offset - bytes.length) % last.length !== 0) fail("the offset does not fit the lines before *");
    while (repeats && bytes.length < row.offset) bytes.push(...last);
    repeats = false;
    if (row.offset !== bytes.length) {
      fail(`offset 0x${row.offset.toString(16)}, but 0x${bytes.length.toString(16)} is due; give the whole dump`);
    }
    isEnded = row.bytes.length === 0;
    if (last && !isEnded && (last.length < first.length || row.bytes.length > first.length)) {
      fail("lines of different length; digits may be lost");
    }
    if (row.text !== null && row.text !== printable(row.bytes)) {
      fail(`the text "${row.text}" is not that of the bytes; they may be words: give the output of hexdump -C`);
    }
    if (isEnded) return;
    first ??= row.bytes;
    last = row.bytes;
    bytes.push(...row.bytes);
    if (bytes.length > limit) fail(`the table has ${limit} bytes only; check table and chip`);
  });
  if (repeats || (format === "hexdump" && !isEnded)) refuse("the dump does not end with its length; lines are lost");
  return Uint8Array.from(bytes);
}

function xxdLine(line) {
  const match = /^([0-9a-f]{8,}): ((?:[0-9a-f]{2,} )+) /i.exec(line);
  if (!match) return null;
  const groups = match[2].trim().split(" ");
  if (groups.some((group) => group.length > 4)) {
    refuse("groups of more than 4 digits may be bytes or words; give the output of xxd without -e and -g");
  }
  const bytes = pairsOf(groups.join(""));
  const text = line.slice(-bytes.length);
  const isWhole = /^ *$/.test(line.slice(match[0].length, line.length - text.length));
  return isWhole ? {offset: parseInt(match[1], 16), bytes, text} : null;
}

function hexdumpLine(line) {
  const match = /^([0-9a-f]{8,})(?: {2}([0-9a-f ]+?) *\|(.*)\|)?$/i.exec(line);
  if (!match) return null;
  const pairs = (match[2] ?? "").split(/ +/).filter((pair) => pair !== "");
  if (pairs.some((pair) => pair.length !== 2)) return null;
  return {offset: parseInt(match[1], 16), bytes: pairsOf(pairs.join("")), text: match[3] ?? null};
}

function pairsOf(digits) {
  return (digits.match(/../g) ?? []).map((pair) => parseInt(pair, 16));
}

function printable(bytes) {
  return bytes.map((byte) => (byte >= 32 && byte <= 126 ? String.fromCharCode(byte) : ".")).join("");
}

/** The table and chip that a JSON dump names; null for another file. */
export function sourceOfJson(file) {
  const text = textOf(file.subarray(0, 4096));
  const name = (key) => (new RegExp(`"${key}"\\s*:\\s*"(\\w+)"`).exec(text) ?? [])[1];
  return name("table") && name("chip") ? {table: name("table"), chip: name("chip")} : null;
}

function readJson(text, layout) {
  const documents = parseJson(text);
  const entries = documents.flatMap((document) => {
    checkHeader(document, layout);
    return document.entries ?? [document];
  });
  const [indexes, parts] = [[], []];
  const seen = new Set();
  for (const entry of entries) {
    const index = checkIndex(layout, entry.index);
    if (seen.has(index)) refuse(`entry ${index} is given twice; give it once`);
    seen.add(index);
    indexes.push(index);
    parts.push(entryOfJson(layout, entry));
  }
  if (indexes.length === 0) refuse("the document has no entry");
  return dumpOf(layout, indexes, parts);
}

/** The document of the file, or one for each line. */
function parseJson(text) {
  try {
    checkMembers(text);
    return [JSON.parse(text)].flat();
  } catch (error) {
    const lines = text.split("\n");
    if (lines.filter((line) => line.trim() !== "").length < 2 || error.isOfMembers) refuse(`no JSON: ${error.message}`);
    return lines.flatMap((line, i) => {
      if (line.trim() === "") return [];
      try {
        checkMembers(line);
        return [JSON.parse(line)];
      } catch (one) {
        return refuseLine(i + 1, `no JSON: ${one.message}`);
      }
    });
  }
}

/** JSON.parse keeps the last of two members of one name; which one is meant nobody can tell. */
function checkMembers(text) {
  const open = [];
  for (const [token] of text.matchAll(/"(?:[^"\\]|\\.)*"\s*:?|[{}]/g)) {
    if (token === "{") open.push(new Set());
    else if (token === "}") open.pop();
    else if (token.endsWith(":") && open.length > 0) {
      const names = open[open.length - 1];
      if (names.has(token)) throw Object.assign(new Error(`${token} is given twice; give it once`), {isOfMembers: true});
      names.add(token);
    }
  }
}

function checkHeader(document, layout) {
  if (document === null || typeof document !== "object" || Array.isArray(document)) {
    refuse("not a document of velmar decode --format json");
  }
  const expected = {table: layout.table.name, chip: layout.chip, entryBytes: layout.entryBytes};
  for (const [key, value] of Object.entries(expected)) {
    if (key in document ? document[key] === value : key === "entryBytes") continue;
    refuse(`"${key}" is ${JSON.stringify(document[key])}, not ${JSON.stringify(value)}; choose that table and chip`);
  }
  if ("entries" in document && !Array.isArray(document.entries)) refuse('"entries" is not a list');
  if ("format" in document && (document.format !== "velmar-entries" || document.version !== 1)) {
    refuse(`format ${JSON.stringify(document.format)}, version ${JSON.stringify(document.version)}; ` +
        "give the entries that velmar decode prints");
  }
  for (const [name, place] of Object.entries(document.layout ?? {})) {
    const field = layout.find(name);
    if (place.offset !== field.offset || place.width !== field.width) {
      refuse(`${name} lies elsewhere in this document; it is from another version`);
    }
  }
}

function entryOfJson(layout, entry) {
  const what = `entry ${entry.index}`;
  if (entry.fields === null || typeof entry.fields !== "object") refuse(`${what} has no fields`);
  for (const field of layout.fields) {
    if (!Object.hasOwn(entry.fields, field.accessor)) {
      refuse(`${what} has no ${field.accessor}; give all fields of an entry`);
    }
  }
  const addresses = Array.from({length: layout.identifiers}, (_, i) => addressText(layout.addressOf(entry.index, i)));
  if (typeof entry.address === "string" && !addresses.includes(entry.address)) {
    refuse(`${what} has the address ${entry.address}, which is that of another; check table and chip`);
  }
  const bytes = encodeEntry(layout, entry.fields);
  const whole = {accessor: "outsideFields", width: 8 * layout.entryBytes};
  const outside = valueOfJson(whole, entry.outsideFields ?? "0x0");
  if ((outside & ~layout.reservedMask) !== 0n) refuse(`${what}: outsideFields has bits of fields`);
  for (let i = 0; i < bytes.length; ++i) bytes[i] |= Number((outside >> BigInt(8 * i)) & 255n);
  return bytes;
}
