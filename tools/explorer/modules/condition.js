// The filter over entries: conditions such as "stg==5", "portBitmap has 21" or "nonzero".

import {readBits} from "./bits.js";
import {quoted, refuse} from "./catalogue.js";
import {parseValue} from "./values.js";

const relations = {
  "==": (a, b) => b.includes(a),
  "=": (a, b) => b.includes(a),
  "!=": (a, b) => !b.includes(a),
  "<": (a, [b]) => a < b,
  "<=": (a, [b]) => a <= b,
  ">": (a, [b]) => a > b,
  ">=": (a, [b]) => a >= b,
  "~": (a, [b]) => (a & b) === b,
  "!~": (a, [b]) => (a & b) === 0n,
};
const words = {
  has: "~",
  "has not": "!~",
  "has no": "!~"
};
const ofBitmaps = ["~", "!~"];
const ofBoth = ["==", "=", "!="];

/** A function that says whether the bytes and index of an entry meet all conditions of a text. */
export function parseFilter(layout, text) {
  if (text.length > 1000) refuse("the filter is too long; give a shorter one");
  const conditions = text.split(/\s+and\s+|&&/)
                         .map((part) => part.trim())
                         .filter((part) => part !== "")
                         .map((part) => parseCondition(layout, part));
  return (bytes, index) => conditions.every((holds) => holds(bytes, index));
}

function parseCondition(layout, text) {
  if (text === "nonzero") return (bytes) => bytes.some((byte) => byte !== 0);
  const match = /^(\w+)\s*(==|!=|!~|<=|>=|=|<|>|~|\s(?:has not|has no|has)\s)\s*(.+)$/.exec(text);
  if (!match)
    refuse(`${quoted(text)} is no condition; give such as stg==5, portBitmap has 21, or nonzero`);
  const isIndex = match[1] === "index";
  const field = isIndex ? {accessor: "index", width: 32} : fieldNamed(layout, match[1]);
  const relation = words[match[2].trim()] ?? match[2];
  if (ofBitmaps.includes(relation) !== Boolean(field.isBitmap) && !ofBoth.includes(relation)) {
    refuse(`${field.accessor} is ${
        field.isBitmap ? "a bitmap; give has, has not, == or !=" :
                         "a number; give one of == != < <= > >="}`);
  }
  const isList = !field.isBitmap && ofBoth.includes(relation);
  const values =
      (isList ? match[3].split(",") : [match[3]]).map((value) => parseValue(field, value));
  if (ofBitmaps.includes(relation) && values[0] === 0n) {
    refuse(`every bitmap has no ports; for an empty one give ${field.accessor}==none`);
  }
  const holds = relations[relation];
  if (isIndex) return (bytes, index) => holds(BigInt(index), values);
  return (bytes) => holds(readBits(bytes, field.offset, field.width), values);
}

/** A field by its accessor or hardware name, in any case and with or without underscores. */
function fieldNamed(layout, name) {
  const simple = (text) => text.toLowerCase().replaceAll("_", "");
  return layout.byName.get(name) ??
      layout.fields.find(
          (field) => simple(field.accessor) === simple(name) ||
              simple(field.hardwareName) === simple(name)) ??
      refuse(`${layout.table.name} has no field ${quoted(name)} on ${layout.chip}`);
}
