// What differs between two chips: as a table, and in the drawings of both.

import {diagramOf, numberedGroups} from "./diagram.js";
import {choice, grid, h, labelled} from "./elements.js";
import {compare, compareRows} from "./engine.js";
import {formatState} from "./state.js";

export function compareView(page, state) {
  const names = page.catalogue.chips.map((chip) => chip.name);
  const [oldChip = names[0], newChip = page.chip === oldChip ? names[1] : page.chip, tableName = null] =
      state.parts;
  for (const chip of [oldChip, newChip]) page.catalogue.checkChip(chip);
  if (tableName) page.catalogue.table(tableName);
  const go = (parts) => page.go({view: "compare", parts: parts.filter((part) => part)});
  const chips = Object.fromEntries(names.map((name) => [name, name]));
  const tables = {
    "": "all tables",
    ...Object.fromEntries(page.catalogue.tables.map(({name}) => [name, name]))
  };
  const rows = compareRows(oldChip, newChip, tableName ?? undefined);
  return h(
      "article", {},
      h("h1", {}, `From ${oldChip} to ${newChip}${tableName ? `: ${tableName}` : ""}`),
      h("p", {class: "controls"},
        labelled("Old", choice(chips, oldChip, (chip) => go([chip, newChip, tableName]))),
        labelled("New", choice(chips, newChip, (chip) => go([oldChip, chip, tableName]))),
        labelled(
            "Table", choice(tables, tableName ?? "", (table) => go([oldChip, newChip, table]))),
        h("button", {onclick: () => go([newChip, oldChip, tableName])}, "Swap")),
      tableName ? drawings(page.catalogue, tableName, oldChip, newChip) : null,
      h("p", {role: "status"},
        rows.length === 0 ?
            "There is no difference." :
            `${rows.length} difference${
                rows.length === 1 ? "" : "s"}; ports that differ alike share a row.`),
      rows.length === 0 ? null : differences(rows, oldChip, newChip));
}

function differences(rows, oldChip, newChip) {
  return h(
      "div", {class: "scroll"},
      grid(
          `From ${oldChip} to ${newChip}`, ["Table", "Part", oldChip, newChip, "Change"],
          rows.map(
              ([table, part, old, now, change]) => h(
                  "tr", {"data-change": change},
                  h("th", {scope: "row"},
                    h("a", {href: formatState({view: "compare", parts: [oldChip, newChip, table]})},
                      table)),
                  h("td", {}, part), h("td", {class: "number"}, old),
                  h("td", {class: "number"}, now),
                  h("td", {}, h("span", {class: `change ${className(change)}`}, change))))));
}

function className(change) {
  return change.replaceAll(" ", "-");
}

/** Both layouts, with the groups that differ coloured. */
function drawings(catalogue, tableName, oldChip, newChip) {
  const table = catalogue.table(tableName);
  const layouts = [oldChip, newChip].map(
      (chip) => (table.chips.includes(chip) ? catalogue.layout(tableName, chip) : null));
  const changes =
      new Map(compare(oldChip, newChip, tableName).map(({part, change}) => [part, change]));
  const changeOf = ({accessor}) => changes.get("(table)") ?? changes.get(accessor);
  const classOf = (group) =>
      `differs-${className(group.members.map(changeOf).find((change) => change) ?? "none")}`;
  const legend = ["gone", "added", "moved", "resized"].map(
      (change) => h("span", {class: `change ${change}`}, change));
  return h(
      "div", {class: "pair"}, h("p", {class: "legend"}, legend),
      layouts.map(
          (layout, i) =>
              h("section", {"aria-label": i === 0 ? "Old" : "New"},
                h("h2", {}, i === 0 ? oldChip : newChip),
                layout ? drawing(layout, classOf) :
                         h("p", {}, `${tableName} does not exist here.`))));
}

/** A layout with the names that its numbers stand for. */
function drawing(layout, classOf) {
  const groups = numberedGroups(layout);
  return [
    h("div", {class: "scroll"}, diagramOf(layout, groups, classOf)),
    h("p", {class: "note"}, groups.map((group) => `${group.number} ${group.name}`).join(", "))
  ];
}
