// What differs between two chips: as a table, and in the drawings of both.

import {areOfOneFamily, bitsText, numberedName, rangesText} from "./catalogue.js";
import {changeOf, compareChips} from "./comparison.js";
import {diagramOf, numberedGroups} from "./diagram.js";
import {choice, grid, h, labelled} from "./elements.js";
import {formatState} from "./state.js";

export function compareView(page, state) {
  const names = page.catalogue.chips.map((chip) => chip.name);
  const [oldChip = names[0], newChip = page.chip === oldChip ? names[1] : page.chip, tableName = null] =
      state.parts;
  const go = (parts) => page.go({view: "compare", parts: parts.filter((part) => part)});
  const chips = Object.fromEntries(names.map((name) => [name, name]));
  const tables = {
    "": "all tables",
    ...Object.fromEntries(page.catalogue.tables.map(({name}) => [name, name]))
  };
  const rows = compareChips(page.catalogue, oldChip, newChip, tableName);
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
      rows.length === 0 ? null : differences(page.catalogue, rows, oldChip, newChip));
}

function differences(catalogue, rows, oldChip, newChip) {
  return h(
      "div", {class: "scroll"},
      grid(
          `From ${oldChip} to ${newChip}`, ["Table", "Part", oldChip, newChip, "Change"],
          joined(catalogue, rows)
              .map(
                  ({table, part, old, now, change}) => h(
                      "tr", {"data-change": change},
                      h("th", {scope: "row"},
                        h("a",
                          {href: formatState({view: "compare", parts: [oldChip, newChip, table]})},
                          table)),
                      h("td", {}, part), h("td", {class: "number"}, old),
                      h("td", {class: "number"}, now),
                      h("td", {}, h("span", {class: `change ${className(change)}`}, change))))));
}

function className(change) {
  return change.replaceAll(" ", "-");
}

/** The rows for people: members of a family that differ alike are one. */
function joined(catalogue, rows) {
  const groups = [];
  for (const row of rows) {
    const field = catalogue.table(row.table).fields.find((one) => one.accessor === row.part);
    const group = groups[groups.length - 1];
    if (field && group && goesOn(group, row, field))
      group.rows.push(row);
    else
      groups.push({field, rows: [row]});
    groups[groups.length - 1].last = field;
  }
  return groups.map(({rows: members}) => {
    const [first] = members;
    const numbers = members.map((row) => numberedName(row.part)?.number);
    const part =
        members.length === 1 ? first.part : numberedName(first.part).prefix + rangesText(numbers);
    return {
      table: first.table,
      part,
      change: first.change,
      old: cellOf(members, "old"),
      now: cellOf(members, "new")
    };
  });
}

function goesOn(group, row, field) {
  const last = group.rows[group.rows.length - 1];
  const shift = ({old, new: now}) => (old && now ? now.offset - old.offset : 0);
  return last.table === row.table && group.last && areOfOneFamily(group.last, field) &&
      last.change === row.change && last.old?.width === row.old?.width &&
      last.new?.width === row.new?.width && shift(last) === shift(row);
}

function cellOf(rows, side) {
  const values = rows.map((row) => row[side]);
  if (values[0] === null) return "–";
  if (typeof values[0] !== "object") return `${values[0]}`;
  const offset = Math.min(...values.map((value) => value.offset));
  return bitsText(offset, Math.max(...values.map((value) => value.offset + value.width)) - offset);
}

/** Both layouts, with the groups that differ coloured. */
function drawings(catalogue, tableName, oldChip, newChip) {
  const table = catalogue.table(tableName);
  const layouts = [oldChip, newChip].map(
      (chip) => (table.make.has(chip) ? catalogue.layout(tableName, chip) : null));
  const classFrom = (other, isOld) => (group) => {
    const changes = group.members.map((field) => {
      const place = other?.byName.get(field.accessor);
      return isOld ? changeOf(field, place) : changeOf(place, field);
    });
    return `differs-${className(changes.find((change) => change !== "") ?? "none")}`;
  };
  const legend = ["gone", "added", "moved", "resized"].map(
      (change) => h("span", {class: `change ${change}`}, change));
  return h(
      "div", {class: "pair"}, h("p", {class: "legend"}, legend),
      layouts.map(
          (layout, i) =>
              h("section", {"aria-label": i === 0 ? "Old" : "New"},
                h("h2", {}, i === 0 ? oldChip : newChip),
                layout ? drawing(layout, classFrom(layouts[1 - i], i === 0)) :
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
