// The tables, and the results of the search.

import {addressText, chipsText, quoted} from "./catalogue.js";
import {grid, h} from "./elements.js";
import {addressIn, chipsIn, findAddress, search} from "./search.js";
import {formatState} from "./state.js";

/** All tables, with what they are on the chosen chip. */
export function homeView(page) {
  const rows = page.catalogue.tables.map((table) => {
    const isThere = table.chips.includes(page.chip);
    const layout = isThere ? page.catalogue.layout(table.name, page.chip) : null;
    const link =
        formatState({view: "table", parts: [table.name, isThere ? page.chip : table.chips[0]]});
    return h(
        "tr", {class: isThere ? "" : "absent"},
        h("th", {scope: "row"}, h("a", {href: link}, table.name),
          isThere ? null : h("small", {}, ` on ${table.chips[0]}`)),
        h("td", {}, table.purpose),
        h("td", {class: "number"}, layout ? `${layout.indexCount}` : "–"),
        h("td", {class: "number"}, layout ? `${layout.entryBytes}` : "–"),
        h("td", {class: "number"}, layout ? `${layout.fields.length}` : "–"),
        h("td", {class: "number"}, layout ? addressText(layout.base) : "–"),
        h("td", {}, chipsText(page.catalogue, table.chips)));
  });
  return h(
      "article", {}, h("h1", {}, "Tables"),
      h("p", {},
        `Where every field lies on every chip. Sizes and addresses are those of ${page.chip}; ` +
            "choose another chip above. Press / to search."),
      h("div", {class: "scroll"},
        grid(
            "Tables", ["Table", "Contents", "Entries", "Bytes", "Fields", "Address", "Chips"],
            rows)));
}

/** How many results are shown. */
const mostResults = 40;

/** The results of a query, as links. */
export function resultsOf(page, query) {
  const address = addressIn(query);
  if (address !== null) return addressResults(page, address, chipsIn(page.catalogue, query));
  const {items, chips} = search(page.catalogue, page.items, query);
  if (items.length === 0) return [h("p", {}, notFoundText(page.catalogue, query))];
  const rest = items.length - mostResults;
  return [
    h("p", {role: "status"},
      `${items.length} found${rest > 0 ? `; the first ${mostResults} are shown` : ""}`),
    ...items.slice(0, mostResults).map((item) => resultOf(page, item, chips)),
  ];
}

/** What can be looked for, with examples of the first table. */
function notFoundText(catalogue, query) {
  const [table] = catalogue.tables;
  const {base, fields: [field]} = catalogue.layout(table.name, table.chips[0]);
  return `Nothing is called ${quoted(query.trim())}. Try a table (${table.name}), a field (${
      field.accessor}), a hardware name (${field.hardwareName}), an identifier (${
      field.id}), words of a meaning (${field.meaning}), or an address (${addressText(base)}).`;
}

/** Opens on a chip that the query names, on the chosen one, or on the first that has it. */
function resultOf(page, item, chips) {
  const chip = [...chips, page.chip].find((one) => item.chips.includes(one)) ?? item.chips[0];
  const parts = [item.table.name, chip, ...(item.field ? [item.field.name] : [])];
  return h(
      "a", {href: formatState({view: "table", parts}), class: "result"}, h("b", {}, item.name),
      h("span", {}, item.detail),
      h("small", {},
        `on ${chipsText(page.catalogue, item.chips)}${
            chip === page.chip ? "" : `; opens ${chip}`}`));
}

/** What has an address, on the chips that the query names or on the chosen one; if nothing, on others. */
function addressResults(page, address, named) {
  const chips = named.length > 0 ? named : [page.chip];
  const found = findAddress(page.catalogue, address, chips);
  if (found.length > 0) {
    const shared = found.length > 1 && chips.length === 1 ? `; ${found.length} share it` : "";
    return [
      h("p", {role: "status"}, `At ${addressText(address)} on ${chips.join(", ")}${shared}:`),
      ...found.map((one) => addressResult(one, address))
    ];
  }
  const others =
      page.catalogue.chips.map((chip) => chip.name).filter((chip) => !chips.includes(chip));
  const elsewhere = findAddress(page.catalogue, address, others);
  const text = `No table of ${chips.join(", ")} has an entry at ${addressText(address)}`;
  return [
    h("p", {role: "status"},
      elsewhere.length > 0 ? `${text}; on other chips:` : `${text}, nor has any other chip.`),
    ...elsewhere.map((one) => addressResult(one, address))
  ];
}

function addressResult({layout, index, identifier}, address) {
  const what = layout.isRegisterArray ? "element" : "entry";
  const options = {index: `${index}`, identifier: identifier > 0 ? `${identifier}` : ""};
  return h(
      "a", {
        href: formatState({view: "table", parts: [layout.table.name, layout.chip], options}),
        class: "result"
      },
      h("b", {}, `${layout.table.name} ${what} ${index}`),
      h("span", {}, `${addressText(address)} on ${layout.chip}, access code ${layout.accessType}`),
      h("small", {},
        layout.identifiers > 1 ? `instance identifier ${identifier}` : layout.table.purpose));
}
