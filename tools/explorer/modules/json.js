// JSON as dumps have it: each member is named once, and numbers are whole. JSON.parse keeps the last
// of two members of one name, and rounds numbers; which one is meant nobody can tell.

import {refuse} from "./catalogue.js";

const deepest = 8;
const token =
    /\s*(?:([{}[\]:,])|("(?:[^"\\]|\\.){0,10000}")|(-?[0-9]{1,17}(?![0-9.eE]))|(true|false|null))/y;

/** The values of a text, one after another, as the lines of JSON lines. */
export function readJsonValues(text) {
  const reader = new JsonReader(text);
  const values = [];
  while (!reader.isAtEnd()) values.push(reader.value(0));
  return values;
}

class JsonReader {
  constructor(text) {
    this.text = text;
    this.at = 0;
  }

  isAtEnd() {
    const rest = /\S/g;
    rest.lastIndex = this.at;
    return !rest.test(this.text);
  }

  refuse(reason) {
    refuse(`line ${this.text.slice(0, this.at).split("\n").length}: no JSON of velmar: ${reason}`);
  }

  /** The next sign, string, number or word: {sign} or {value}. */
  next() {
    token.lastIndex = this.at;
    const match = token.exec(this.text);
    if (!match) this.refuse("a value, a name or a whole number is missing or cut off");
    this.at = token.lastIndex;
    if (match[1]) return {sign: match[1]};
    const value = JSON.parse(match[0]);
    if (match[3] && !Number.isSafeInteger(value))
      this.refuse(`${match[3]} is too large for a number; give it as text`);
    return {value};
  }

  expect(...signs) {
    const {sign} = this.next();
    return signs.includes(sign) ? sign : this.refuse(`${signs.join(" or ")} is missing`);
  }

  value(depth, first = this.next()) {
    if (!first.sign) return first.value;
    if (depth === deepest) this.refuse("values inside others, deeper than a dump has them");
    if (first.sign === "[") return this.list(depth);
    return first.sign === "{" ? this.object(depth) : this.refuse(`${first.sign} is out of place`);
  }

  list(depth) {
    const values = [];
    for (let next = this.next(); next.sign !== "]" || values.length > 0; next = this.next()) {
      values.push(this.value(depth + 1, next));
      if (this.expect(",", "]") === "]") break;
    }
    return values;
  }

  object(depth) {
    const members = new Map();
    for (let next = this.next(); next.sign !== "}" || members.size > 0; next = this.next()) {
      if (typeof next.value !== "string") this.refuse("a name is missing");
      if (members.has(next.value)) this.refuse(`"${next.value}" is given twice; give it once`);
      this.expect(":");
      members.set(next.value, this.value(depth + 1));
      if (this.expect(",", "}") === "}") break;
    }
    return Object.fromEntries(members);
  }
}
