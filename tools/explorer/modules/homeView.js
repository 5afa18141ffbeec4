// The tables, and the results of the search.

import {addressText, chipsText} from "./catalogue.js";
import {grid, h} from "./elements.js";
import {formatState} from "./state.js";
import {addressIn, findAddress, search} from "./search.js";

/** All tables, with what they are on the chosen chip. */
export function homeView(page) {
  const rows = page.catalogue.tables.map((table) => {
    const isThere = table.chips.includes(page.chip);
    const layout = isThere ? page.catalogue.layout(table.name, page.chip) : null;
    const link = formatState({view: "table", parts: [table.name, isThere ? page.chip : table.chips[0]]});
    return h("tr", {class: isThere ? "" : "absent"},
        h("th", {scope: "row"}, h("a", {href: link}, table.name)), h("td", {}, table.purpose),
        h("td", {class: "number"}, layout ? `${layout.indexCount}` : "–"),
        h("td", {class: "number"}, layout ? `${layout.entryBytes}` : "–"),
        h("td", {class: "number"}, layout ? `${layout.fields.length}` : "–"),
        h("td", {class: "number"}, layout ? addressText(layout.base) : "–"),
        h("td", {}, chipsText(page.catalogue, table.chips)));
  });
  return h("article", {}, h("h1", {}, "Tables"),
      h("p", {}, `Where every field lies on every chip. Sizes and addresses are those of ${page.chip}; ` +
          "choose another chip above. Press / to search."),
      h("div", {class: "scroll"},
          grid("Tables", ["Table", "Contents", "Entries", "Bytes", "Fields", "Address", "Chips"], rows)));
}

/** How many results are shown. */
const mostResults = 60;

/** The results of a query, as links. */
export function resultsOf(page, query) {
  const address = addressIn(query);
  if (address !== null) return addressResults(page, address);
  const items = search(page.catalogue, page.items, query);
  if (items.length === 0) {
    return [h("p", {}, `Nothing is called "${query.trim()}". Try a table (VlanEntry), a field (stg), a hardware name ` +
        "(BC_IDX), an identifier (616), a word of a meaning (spanning), or an address (0x0c7c0064).")];
  }
  const rest = items.length - mostResults;
  return [
    h("p", {role: "status"}, `${items.length} found${rest > 0 ? `; the first ${mostResults} are shown` : ""}`),
    ...items.slice(0, mostResults).map((item) => resultOf(page, item)),
  ];
}

function resultOf(page, item) {
  const chip = item.chips.includes(page.chip) ? page.chip : item.chips[0];
  const parts = [item.table.name, chip, ...(item.field ? [item.field.accessor] : [])];
  const isHere = chip === page.chip;
  return h("a", {href: formatState({view: "table", parts}), class: "result"},
      h("b", {}, item.name), h("span", {}, item.detail),
      h("small", {}, item.chips.length === 0 ? "on no chip" :
          `on ${chipsText(page.catalogue, item.chips)}${isHere ? "" : `; not on ${page.chip}, opens ${chip}`}`));
}

function addressResults(page, address) {
  const found = findAddress(page.catalogue, address, [page.chip]);
  if (found.length > 0) return found.map((one) => addressResult(one, address));
  const others = page.catalogue.chips.map((chip) => chip.name).filter((chip) => chip !== page.chip);
  const elsewhere = findAddress(page.catalogue, address, others);
  const text = `No table of ${page.chip} has an entry at ${addressText(address)}`;
  return [h("p", {role: "status"}, elsewhere.length > 0 ? `${text}; on other chips:` : `${text}, nor has any other chip.`),
    ...elsewhere.map((one) => addressResult(one, address))];
}

function addressResult({layout, index, identifier}, address) {
  const what = layout.isRegisterArray ? "element" : "entry";
  return h("a", {href: formatState({view: "table", parts: [layout.table.name, layout.chip]}), class: "result"},
      h("b", {}, `${layout.table.name} ${what} ${index}`),
      h("span", {}, `${addressText(address)} on ${layout.chip}, access code ${layout.accessType}`),
      h("small", {}, layout.identifiers > 1 ? `identifier ${identifier}` : layout.table.purpose));
}
