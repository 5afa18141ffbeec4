// The digits of one entry, as people paste and copy them.

import {quoted, refuse} from "./catalogue.js";

/** How the digits of an entry may be read. */
export const orders = {
  bytes: "bytes, the first byte first",
  words: "32-bit words, the first word first",
  number: "one number, the highest digit first",
};

const longestText = 65536;

/** The order of digits that tell it: those of bytes one by one. Any other has to be chosen. */
export function orderOf(text) {
  if (/^\s*[0-9a-f]{2}([\s,:]+[0-9a-f]{2})+\s*$/i.test(text.slice(0, longestText))) return "bytes";
  return refuse(
      "choose above how the digits are to be read: they may be bytes, words or one number");
}

/** The bytes of one entry from the digits that a person pasted. */
export function parseEntry(text, order, entryBytes) {
  if (text.length > longestText)
    refuse(`${text.length} letters are no entry; it has ${2 * entryBytes} digits`);
  const trimmed = text.trim();
  const isPairs = /^[0-9a-f]{2}(:[0-9a-f]{2})+$/i.test(trimmed);
  if (trimmed.includes(":") && !isPairs)
    refuse("a colon ends a label or an index; paste the digits alone");
  const groups = trimmed.split(/[\s,:]+/).filter((group) => group !== "");
  if (groups.length === 0) refuse("no digits; paste the bytes of an entry in hexadecimal");
  const digits = groups.map((group) => {
    const match = /^(?:0x)?([0-9a-f]+)$/i.exec(group);
    return match ? match[1] :
                   refuse(`${quoted(group)} is not a hexadecimal number; remove what is not data`);
  });
  const bytes = {bytes: fromBytes, words: fromWords, number: fromNumber}[order](digits, entryBytes);
  if (bytes.length === entryBytes) return Uint8Array.from(bytes);
  return refuse(`${bytes.length} bytes, but an entry has ${
      entryBytes}; check table and chip, and the digits`);
}

function pairsOf(digits) {
  return (digits.match(/../g) ?? []).map((pair) => parseInt(pair, 16));
}

function fromBytes(groups) {
  if (groups.length > 1 && groups.some((group) => group.length !== 2)) {
    refuse("bytes have two digits each, or stand in one run; choose words, or check the digits");
  }
  if (groups[0].length % 2 !== 0)
    refuse(`${quoted(groups[0])} is no whole number of bytes of two digits`);
  return groups.flatMap(pairsOf);
}

function fromWords(groups) {
  const wrong =
      groups.find((group) => (groups.length > 1 ? group.length !== 8 : group.length % 8 !== 0));
  if (wrong !== undefined) refuse(`${quoted(wrong)} is no 32-bit word; a word has 8 digits`);
  return groups.join("").match(/.{8}/g).flatMap((word) => pairsOf(word).reverse());
}

function fromNumber(groups, entryBytes) {
  if (groups.length > 1) refuse("more than one number; give one");
  const [digits] = groups;
  if (digits.length === 2 * entryBytes) return pairsOf(digits).reverse();
  return refuse(`${digits.length} digits, but the number of an entry has ${
      2 * entryBytes}; check the digits`);
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
