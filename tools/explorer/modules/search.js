// The search over tables, fields and addresses.

import {entriesAt} from "./engine.js";

/** Lower case, without underscores and hyphens. */
function simplified(text) {
  return text.toLowerCase().replace(/[_-]/g, "");
}

/** What can be found: the tables, and their fields with families as one. */
export function searchItems(catalogue) {
  const items = [];
  for (const table of catalogue.tables) {
    items.push({
      table,
      name: table.name,
      chips: table.chips,
      detail: table.purpose,
      names: [simplified(table.name)],
      text: simplified(`${table.name} ${table.purpose}`),
    });
    for (const {field, chips} of catalogue.fieldsOf(table))
      items.push(fieldItem(table, field, chips));
  }
  return items.filter((item) => item.chips.length > 0);
}

function fieldItem(table, field, chips) {
  return {
    table,
    field,
    chips,
    name: `${table.name}.${field.name}`,
    detail: `${field.hardwareName}, identifier ${field.id}: ${field.meaning}`,
    names: [simplified(field.name), simplified(field.hardwareName), String(field.id)],
    text: simplified(`${table.name} ${field.name} ${field.hardwareName} identifier ${field.id} ${
        field.meaning}`),
  };
}

function wordsOf(query) {
  return query.trim().split(/[\s.,]+/).map(simplified).filter((word) => word !== "");
}

function isChip(word) {
  return /^(bcm)?\d{5}[a-z]?\d?$/.test(word);
}

/** The chips that a query names. */
export function chipsIn(catalogue, query) {
  const words = wordsOf(query).filter(isChip);
  return catalogue.chips.map((chip) => chip.name)
      .filter((chip) => words.some((word) => simplified(chip).includes(word)));
}

function isOnOne(item, chips) {
  return item.chips.some((chip) => chips.includes(chip));
}

/** {items, chips}: the items that have all words of the query, the best first, and the chips among
 * the words, which narrow it. */
export function search(catalogue, items, query) {
  const all = wordsOf(query);
  const chips = chipsIn(catalogue, query);
  const words = all.filter((word) => !isChip(word) || chips.length === 0);
  // Chips alone: their tables.
  if (words.length === 0)
    return {items: items.filter((item) => !item.field && isOnOne(item, chips)), chips};
  const found = [];
  for (const item of items) {
    if (chips.length > 0 && !isOnOne(item, chips)) continue;
    if (words.every((word) => item.text.includes(word)))
      found.push({item, score: scoreOf(item, words)});
  }
  return {items: found.sort((a, b) => b.score - a.score).map((one) => one.item), chips};
}

function scoreOf(item, words) {
  let score = item.field ? 0 : 1;
  for (const word of words) {
    if (item.names.includes(word))
      score += 8;
    else if (item.names.some((name) => name.startsWith(word)))
      score += 4;
    else if (item.names.some((name) => name.includes(word)))
      score += 2;
  }
  return score;
}

/** The address that a query begins with: after 0x, or of 8 digits; null for any other query. */
export function addressIn(query) {
  const match = /^\s*(?:0x([0-9a-f]{1,8})|([0-9a-f]{8}))(?:\s|$)/i.exec(query);
  return match ? parseInt(match[1] ?? match[2], 16) : null;
}

/** Every entry that has an address: [{layout, index, identifier}], on one chip or on all. */
export function findAddress(catalogue, address, chips) {
  const placeOf = (chip) => ({table, index, identifier}) =>
      ({layout: catalogue.layout(table, chip), index, identifier});
  return chips.flatMap((chip) => entriesAt(chip, address).map(placeOf(chip)));
}
