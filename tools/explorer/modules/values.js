// Values of fields: as text that people read and type, and as the command's JSON has them.

import {largestOf, readBits, sameBytes, setBits, shareBits, writeBits} from "./bits.js";
import {numberedName, quoted, rangesText, refuse} from "./catalogue.js";

export function hexText(value) {
  return "0x" + value.toString(16);
}

/** A value for people: "6 (0x6)", a bitmap as ranges of ports, a wide value in hexadecimal. */
export function valueText(field, value) {
  if (field.isBitmap) return rangesText(setBits(value));
  return field.width > 64 ? hexText(value) : value.toString();
}

/** The longest text of a value: each port of a bitmap by its number. */
const longestValue = 4096;

/** Fields of up to so many bits are numbers in JSON and CSV: every reader takes them exactly. */
const exactWidth = 53;

/** A value as the command's JSON has it. */
export function valueJson(field, value) {
  const json = {hex: hexText(value)};
  if (field.isBitmap)
    json.ports = setBits(value);
  else if (field.width <= exactWidth && !field.isOutside)
    json.decimal = Number(value);
  return json;
}

/** A value as the command's CSV has it. */
export function csvText(field, value) {
  return field.isBitmap || field.width <= exactWidth ? valueText(field, value) : hexText(value);
}

/** The values of a family: which ports have which, such as "0: 2-7; 3: 0-1". */
export function familyText(group, bytes) {
  const ports = new Map();
  for (const field of group.members) {
    const value = readBits(bytes, field.offset, field.width);
    ports.set(value, [...(ports.get(value) ?? []), numberedName(field.accessor).number]);
  }
  return [...ports].map(([value, numbers]) => `${value}: ${rangesText(numbers)}`).join("; ");
}

/** Reads what is typed: decimal, hexadecimal after 0x, or for a bitmap ports such as "0-3,17". */
export function parseValue(field, text) {
  text = text.trim();
  if (text.length > longestValue)
    refuse(`${field.accessor}: ${quoted(text)} is too long for a value`);
  if (/^0x[0-9a-f]+$/i.test(text)) return checked(field, BigInt(text));
  if (field.isBitmap) return parsePorts(field, text);
  if (/^[0-9]+$/.test(text)) return checked(field, BigInt(text));
  return refuse(`${field.accessor}: ${
      quoted(text)} is not a number; give it in decimal, or in hexadecimal after 0x`);
}

/** Refuses a value that does not fit the field. */
export function checked(field, value) {
  if (value >= 0n && value <= largestOf(field.width)) return value;
  const largest = largestOf(field.width);
  return refuse(
      `${field.accessor}: value ${value} does not fit; the field has ${field.width} ` +
      `bit${field.width === 1 ? "" : "s"}, its largest value is ` +
      (field.width > 64 ? hexText(largest) : `${largest} (${hexText(largest)})`));
}

function parsePorts(field, text) {
  let value = 0n;
  if (text === "none") return value;
  for (const part of text.split(",")) {
    const match = /^\s*([0-9]+)(?:\s*-\s*([0-9]+))?\s*$/.exec(part);
    if (!match) {
      refuse(
          `${field.accessor}: ${
              quoted(part.trim())} is not a port; give ports such as 0-3,17, "none", ` +
          "or a hexadecimal number");
    }
    const [first, last] = [Number(match[1]), Number(match[2] ?? match[1])];
    if (last < first) {
      refuse(`${field.accessor}: port range ${
          quoted(part.trim())} runs backwards; give the lower port first`);
    }
    if (last >= field.width) {
      refuse(`${field.accessor}: there is no port ${last}; the field has ports 0 to ${
          field.width - 1}`);
    }
    value |= largestOf(last - first + 1) << BigInt(first);
  }
  return value;
}

/** A value as JSON has it, in any form that the command writes. */
export function valueOfJson(field, json) {
  const wrong = () =>
      refuse(`${field.accessor}: ${quoted(String(JSON.stringify(json)))} is not a value`);
  if (json === null || json === undefined || typeof json === "boolean") wrong();
  if (typeof json === "bigint") return checked(field, json);
  if (typeof json === "number")
    return Number.isSafeInteger(json) ? checked(field, BigInt(json)) : wrong();
  if (typeof json === "string") return parseValue(field, json);
  if (Array.isArray(json)) {
    if (!field.isBitmap || !json.every((port) => Number.isInteger(port) && port >= 0)) wrong();
    return json.length === 0 ? 0n : parsePorts(field, json.join(","));
  }
  const forms = ["hex", "decimal", "ports"].filter((key) => key in json);
  if (forms.length === 0 || forms.length !== Object.keys(json).length) wrong();
  if (forms.some(
          (key) =>
              json[key] !== null && typeof json[key] === "object" && !Array.isArray(json[key])))
    wrong();
  const values = forms.map((key) => valueOfJson(field, json[key]));
  if (values.some((value) => value !== values[0])) {
    refuse(`${field.accessor}: ${quoted(JSON.stringify(json))} has two values; give one`);
  }
  return values[0];
}

/** The fields of an entry, in declaration order, as `velmar decode` has them under "fields". */
export function decodeEntry(layout, bytes) {
  checkSize(layout, bytes);
  return Object.fromEntries(layout.fields.map(
      (field) => [field.accessor, valueJson(field, readBits(bytes, field.offset, field.width))]));
}

/** The bytes of an entry: those of `base`, or zero, with the given fields set. */
export function encodeEntry(layout, values, base = new Uint8Array(layout.entryBytes)) {
  checkSize(layout, base);
  const bytes = Uint8Array.from(base);
  const set = Object.entries(values).map(([name, json]) => {
    const field = layout.find(name);
    return {field, value: valueOfJson(field, json)};
  });
  for (const {field, value} of set) writeBits(bytes, field.offset, field.width, value);
  for (const {field, value} of set) {
    if (readBits(bytes, field.offset, field.width) === value) continue;
    const other = set.find((one) => one.field !== field && shareBits(one.field, field));
    refuse(
        `${field.accessor} and ${other.field.accessor} share bits and their values disagree; ` +
        "give one of them, or values that agree");
  }
  return bytes;
}

/** Bytes as a script gives them: a Uint8Array, or a list of numbers. */
export function bytesFrom(value) {
  const isBytes = value instanceof Uint8Array ||
      (Array.isArray(value) &&
       value.every((byte) => Number.isInteger(byte) && byte >= 0 && byte <= 255));
  return isBytes ? Uint8Array.from(value) :
                   refuse("bytes are a Uint8Array, or a list of numbers from 0 to 255");
}

function checkSize(layout, bytes) {
  if (bytes.length === layout.entryBytes) return;
  refuse(
      `${bytes.length} bytes, but an entry of ${layout.table.name} has ${layout.entryBytes} ` +
      `on ${layout.chip}`);
}

/** What differs between two entries: [{field, old, now}]; reserved bits count as "outsideFields". */
export function changesOf(layout, old, now) {
  if (sameBytes(old, now)) return [];
  const changes = [];
  for (const field of layout.fields) {
    const before = readBits(old, field.offset, field.width);
    const after = readBits(now, field.offset, field.width);
    if (before !== after) changes.push({field, old: before, now: after});
  }
  const [before, after] = [layout.outsideFields(old), layout.outsideFields(now)];
  if (before !== after) changes.push({field: outsideField(layout), old: before, now: after});
  return changes;
}

function outsideField(layout) {
  const width = 8 * layout.entryBytes;
  return {accessor: "outsideFields", isBitmap: false, offset: 0, width, bits: "", isOutside: true};
}
