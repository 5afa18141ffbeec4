// The search over tables, fields and addresses.

import {chipsText} from "./catalogue.js";

/** Lower case, without underscores and hyphens. */
function simplified(text) {
  return text.toLowerCase().replace(/[_-]/g, "");
}

/** What can be found: the tables, and their fields with families as one. */
export function searchItems(catalogue) {
  const items = [];
  for (const table of catalogue.tables) {
    items.push({
      table, name: table.name, chips: table.chips, detail: table.purpose, names: [simplified(table.name)],
      text: simplified(`${table.name} ${table.purpose}`),
    });
    for (const field of table.fields) items.push(fieldItem(catalogue, table, field));
  }
  return items;
}

function fieldItem(catalogue, table, field) {
  const at = table.fields.indexOf(field);
  const chips = table.chips.filter((chip) => table.make.get(chip).row.widths[at] !== 0);
  return {
    table, field, chips, name: `${table.name}.${field.accessor}`,
    detail: `${field.hardwareName}, identifier ${field.id}: ${field.meaning}`,
    names: [simplified(field.accessor), simplified(field.hardwareName), String(field.id)],
    text: simplified(`${table.name} ${field.accessor} ${field.hardwareName} ${field.id} ${field.meaning}`),
  };
}

/** The items that have all words of the query, the best first. Chips among the words narrow it. */
export function search(catalogue, items, query) {
  const all = query.trim().split(/[\s.,]+/).map(simplified).filter((word) => word !== "");
  const isChip = (word) => /^(bcm)?\d{5}[a-z]?\d?$/.test(word);
  const chips = catalogue.chips.map((chip) => chip.name).filter(
      (chip) => all.filter(isChip).some((word) => simplified(chip).includes(word)));
  const words = all.filter((word) => !isChip(word) || chips.length === 0);
  if (words.length === 0) return [];
  const found = [];
  for (const item of items) {
    if (chips.length > 0 && !item.chips.some((chip) => chips.includes(chip))) continue;
    if (words.every((word) => item.text.includes(word))) found.push({item, score: scoreOf(item, words)});
  }
  return found.sort((a, b) => b.score - a.score).map((one) => one.item);
}

function scoreOf(item, words) {
  let score = item.field ? 0 : 1;
  for (const word of words) {
    if (item.names.includes(word)) score += 8;
    else if (item.names.some((name) => name.startsWith(word))) score += 4;
    else if (item.names.some((name) => name.includes(word))) score += 2;
  }
  return score;
}

/** The address that a query is; null for any other query. */
export function addressIn(query) {
  const match = /^0x([0-9a-f]{1,8})$/i.exec(query.trim());
  return match ? parseInt(match[1], 16) : null;
}

/** Every entry that has an address: [{layout, index, identifier}], on one chip or on all. */
export function findAddress(catalogue, address, chips) {
  return chips.flatMap((chip) => catalogue.layoutsOn(chip).flatMap(
      (layout) => layout.entriesAt(address).map((entry) => ({layout, ...entry}))));
}

export function chipsOfItem(catalogue, item) {
  return chipsText(catalogue, item.chips);
}
