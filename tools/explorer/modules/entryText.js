// The digits of one entry, as people paste and copy them.

import {refuse} from "./catalogue.js";

/** How the digits of an entry may be read; the first is the one that a new page begins with. */
export const orders = {
  bytes: "bytes, the first byte first",
  words: "32-bit words, the first word first",
  number: "one number, the highest digit first",
};

/** The bytes of one entry from the digits that a person pasted. */
export function parseEntry(text, order, entryBytes) {
  const groups = text.trim().split(/[\s,:;_]+/).filter((group) => group !== "");
  if (groups.length === 0) refuse("no digits; paste the bytes of an entry in hexadecimal");
  const digits = groups.map((group) => {
    const match = /^(0x)?([0-9a-f]+)$/i.exec(group);
    if (!match) refuse(`"${group}" is not a hexadecimal number; remove what is not data`);
    return {text: match[2], isMarked: match[1] !== undefined};
  });
  const bytes = {bytes: fromBytes, words: fromWords, number: fromNumber}[order](digits, entryBytes);
  if (bytes.length === entryBytes) return bytes;
  return refuse(`${bytes.length} bytes, but an entry has ${entryBytes}; check table and chip, and the digits`);
}

function fromBytes(groups) {
  const bytes = [];
  for (const {text, isMarked} of groups) {
    if (text.length % 2 !== 0 || (isMarked && text.length !== 2)) {
      refuse(`"${text}" is no whole number of bytes of two digits; choose words, or check the digits`);
    }
    for (let i = 0; i < text.length; i += 2) bytes.push(parseInt(text.slice(i, i + 2), 16));
  }
  return Uint8Array.from(bytes);
}

function fromWords(groups) {
  const bytes = [];
  for (const {text, isMarked} of groups) {
    const isRun = !isMarked && text.length % 8 === 0;
    if (!isRun && !(isMarked && text.length <= 8)) {
      refuse(`"${text}" is no 32-bit word; a word has 8 digits, or begins with 0x`);
    }
    for (let i = 0; i < text.length; i += 8) {
      const word = parseInt(text.slice(i, i + 8), 16);
      for (let shift = 0; shift < 32; shift += 8) bytes.push((word >>> shift) & 255);
    }
  }
  return Uint8Array.from(bytes);
}

function fromNumber(groups, entryBytes) {
  const text = groups.map((group) => group.text).join("");
  if (groups.slice(1).some((group) => group.isMarked)) refuse("more than one number after 0x; give one");
  if (text.length > 2 * entryBytes) refuse(`${text.length} digits, but an entry has ${2 * entryBytes}`);
  if (!groups[0].isMarked && text.length < 2 * entryBytes) {
    refuse(`${text.length} digits, but an entry has ${2 * entryBytes}; a shorter number begins with 0x`);
  }
  const digits = text.padStart(2 * entryBytes, "0");
  const bytes = new Uint8Array(entryBytes);
  for (let i = 0; i < entryBytes; ++i) {
    bytes[entryBytes - 1 - i] = parseInt(digits.slice(2 * i, 2 * i + 2), 16);
  }
  return bytes;
}

/** An entry as text, in the order in which it was read. */
export function entryText(bytes, order) {
  const pairs = Array.from(bytes, (byte) => byte.toString(16).padStart(2, "0"));
  if (order === "number") return "0x" + pairs.reverse().join("");
  if (order === "bytes") return pairs.join(" ");
  const words = [];
  for (let i = 0; i < pairs.length; i += 4) words.push(pairs.slice(i, i + 4).reverse().join(""));
  return words.join(" ");
}
