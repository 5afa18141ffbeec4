// The entries of one dump, or of two by their indexes: a grid, one in detail, a map of the table.

import {addressText, entryText, familyText, hexText} from "./catalogue.js";
import {attempt, choice, h, labelled, refusalPlace} from "./elements.js";
import {drawMap, mapLegend} from "./map.js";
import {formatState} from "./state.js";

const entryHeight = 24;
const visibleRows = 22;
const mostPrinted = 1000;
/** Fields that are columns at first. */
const firstColumns = 8;
export class EntryGrid {
  constructor(view, dumps) {
    this.view = view;
    this.page = view.page;
    this.layout = view.layout;
    this.dumps = dumps;
    this.now = dumps[dumps.length - 1];
    this.isPair = dumps.length === 2;
    this.rows = rowsOf(dumps);
    this.values = new Map();
    const {options} = view;
    const names = this.layout.groups.map((group) => group.name);
    this.columns = options.columns ?
        options.columns.split(" ").filter((name) => names.includes(name)) :
        names.slice(0, firstColumns);
    this.sortBy = options.sort ?? "";
    const colors = [...(this.isPair ? ["(changed)"] : []), ...names];
    this.colorBy = colors.includes(options.color) ? options.color : colors[0];
    this.shown = [];
    this.element = this.build();
    this.filter();
    if (options.index)
      this.open(this.shown.findIndex((row) => row.index === Number(options.index)));
  }

  build() {
    this.problem = refusalPlace();
    this.filterText = h("input", {
      value: this.view.options.filter ?? "",
      size: 40,
      spellcheck: "false",
      oninput: () => this.filter(),
      placeholder: this.exampleFilter(),
    });
    this.onlyChanged = h("input", {
      type: "checkbox",
      checked: this.view.options.all !== "yes",
      onchange: () => this.filter()
    });
    this.status = h("p", {role: "status"});
    this.canvas =
        h("canvas", {role: "img", tabindex: -1, onclick: (event) => this.openCell(event)});
    this.legend = h("div", {class: "legend"});
    this.scroller = h("div", {
      class: "entries",
      tabindex: 0,
      role: "region",
      "aria-label": "Entries",
      onscroll: () => this.draw(),
      onkeydown: (event) => this.key(event)
    });
    this.detail = h("section", {class: "detail", "aria-label": "Entry"});
    const names = this.layout.groups.map((group) => group.name);
    const colors = {
      ...(this.isPair ? {"(changed)": "what changed"} : {}),
      ...Object.fromEntries(names.map((name) => [name, name]))
    };
    return h(
        "div", {},
        h("p", {class: "controls"}, labelled("Filter", this.filterText),
          this.isPair ? labelled("Only what changed", this.onlyChanged) : null,
          h("button", {onclick: () => this.save("json")}, "Save as JSON"),
          h("button", {onclick: () => this.save("csv")}, "Save as CSV"), this.columnChoice(names)),
        this.problem, this.status, this.scroller, this.detail,
        h("section", {class: "map", "aria-label": "Map"}, h("h2", {}, "Map of the table"),
          labelled("Coloured by", choice(colors, this.colorBy, (name) => {
                     this.colorBy = name;
                     this.view.remember({color: name});
                     this.drawMap();
                   })), this.canvas, this.legend));
  }

  exampleFilter() {
    const bitmap = this.layout.fields.find((field) => field.isBitmap);
    const number = this.layout.fields.find((field) => !field.isBitmap);
    const parts = [number && `${number.accessor}=1`, bitmap && `${bitmap.accessor}~21`].filter(
        (part) => part);
    return `such as ${parts.join(" and ")}, index<100, nonzero`;
  }

  columnChoice(names) {
    return h("details", {class: "columns"}, h("summary", {}, "Columns"), names.map((name) => {
      const box = h("input", {
        type: "checkbox",
        checked: this.columns.includes(name),
        onchange: () => {
          this.columns =
              names.filter((one) => (one === name ? box.checked : this.columns.includes(one)));
          this.view.remember({columns: this.columns.join(" ")});
          this.drawHead();
          this.draw();
        }
      });
      return h("label", {}, box, " ", name);
    }));
  }

  group(name) {
    return this.layout.groups.find((group) => group.name === name);
  }

  /** The values of a group for all rows, to sort and to colour by; -1 for an entry that is missing. */
  valuesOf(name) {
    if (!this.values.has(name)) {
      const {members} = this.group(name);
      const columns = Object.values(
          this.layout.own.columns(this.now.bytes, members.map((field) => field.accessor)));
      const digits = Math.ceil(members[0].width / 4);
      const valueAt = members.length === 1 ?
          (at) => columns[0][at] :
          (at) => BigInt(
              "0x" +
              columns.map((one) => one[at].toString(16).padStart(digits, "0")).reverse().join(""));
      this.values.set(name, this.rows.map((row) => (row.now < 0 ? -1 : valueAt(row.now))));
    }
    return this.values.get(name);
  }

  filter() {
    const text = this.filterText.value;
    const conditions = text.trim() === "" ? [] : [text];
    const found =
        attempt(this.problem, () => this.dumps.map((dump) => new Set(dump.select(conditions))));
    this.isRefused = !found;
    const changed = this.isPair && this.onlyChanged.checked;
    const isFound = ({old, now}) => found[0].has(old) || found[found.length - 1].has(now);
    this.shown = this.rows.filter((row) => found && (!changed || row.differs) && isFound(row));
    const differing = this.rows.filter((row) => row.differs).length;
    this.status.textContent =
        (this.isPair ? `${differing} of ${this.rows.length} entries differ; ` : "") +
        `${this.shown.length} of ${this.rows.length} entries shown; the table has ${
            this.layout.indexCount}${this.outsideText()}`;
    this.view.remember({filter: text, all: changed || !this.isPair ? "" : "yes"});
    this.sort();
    this.drawHead();
    this.draw();
    setTimeout(() => this.drawMap());
  }

  /** Bits outside all fields are the sign of a wrong table or chip. */
  outsideText() {
    const count = this.now.select(["reserved"]).length;
    return count === 0 ? "" : `; ${count} with bits set outside all fields: check table and chip`;
  }

  sort() {
    const [name, direction] = this.sortBy.split(":");
    if (!name || !this.group(name)) {
      this.shown.sort((a, b) => (direction === "down" ? b.index - a.index : a.index - b.index));
      return;
    }
    const values = this.valuesOf(name);
    const sign = direction === "down" ? -1 : 1;
    const at = new Map(this.rows.map((row, i) => [row, values[i]]));
    this.shown.sort((a, b) => {
      const [first, second] = [at.get(a), at.get(b)];
      return first === second ? a.index - b.index : (first < second ? -sign : sign);
    });
  }

  /** A click on a head sorts by it, the next one the other way round. */
  sortByColumn(name) {
    this.sortBy = this.sortBy === `${name}:up` ? `${name}:down` : `${name}:up`;
    this.view.remember({sort: this.sortBy});
    this.sort();
    this.drawHead();
    this.draw();
  }

  drawHead() {
    const head = (name, text, characters) =>
        h("th", {
          scope: "col",
          style: `width: ${characters}ch`,
          "aria-sort": this.sortBy === `${name}:up` ? "ascending" :
              this.sortBy === `${name}:down` ? "descending" :
                                               null,
        },
          h("button", {onclick: () => this.sortByColumn(name)}, text));
    this.body = h("tbody", {});
    this.above = h("div", {});
    this.below = h("div", {});
    const cells = this.columns.map(
        (name) => head(name, name, Math.min(44, Math.max(name.length + 3, this.digitsOf(name)))));
    this.scroller.replaceChildren(
        this.above,
        h("table", {"aria-rowcount": this.shown.length + 1},
          h("caption", {class: "hidden"}, "Entries"),
          h("thead", {},
            h("tr", {}, head("", "index", 9),
              h("th", {scope: "col", style: "width: 12ch"}, "address"),
              this.isPair ? h("th", {scope: "col", style: "width: 48ch"}, "change") : null, cells)),
          this.body),
        this.below);
    this.first = -1;
    this.page.printed = (isPrinting) => this.print(isPrinting);
  }

  /** On paper the rows follow each other; of a long dump the first ones. */
  print(isPrinting) {
    this.first = -1;
    if (!isPrinting) return this.draw();
    const rest = this.shown.length - mostPrinted;
    for (const one of [this.above, this.below]) one.style.height = "0";
    this.body.replaceChildren(
        ...this.shown.slice(0, mostPrinted).map((row, at) => this.rowOf(row, at)));
    if (rest > 0) this.body.append(h("tr", {}, h("td", {}, `… ${rest} more`)));
    return undefined;
  }

  digitsOf(name) {
    const {width} = this.group(name);
    return width > 64 ? Math.ceil(width / 4) + 4 : Math.ceil(width / 3.3) + 3;
  }

  /** Draws the rows that can be seen. */
  draw() {
    const top = Math.floor(this.scroller.scrollTop / entryHeight) - 5;
    const first = Math.max(0, Math.min(top, this.shown.length - visibleRows - 10));
    if (first === this.first) return;
    this.first = first;
    const last = Math.min(this.shown.length, first + visibleRows + 10);
    this.above.style.height = `${first * entryHeight}px`;
    this.below.style.height = `${(this.shown.length - last) * entryHeight}px`;
    this.body.replaceChildren(
        ...this.shown.slice(first, last).map((row, i) => this.rowOf(row, first + i)));
  }

  rowOf(row, at) {
    const cells = this.columns.map(
        (name) => h("td", {class: "number"}, this.cellText(row, this.group(name))));
    return h(
        "tr", {
          "data-index": row.index,
          "aria-rowindex": at + 2,
          class: row === this.opened ? "selected" : "",
          onclick: () => this.open(at),
        },
        h("th", {scope: "row", class: "number"}, `${row.index}`),
        h("td", {class: "number"}, addressText(this.layout.addressOf(row.index))),
        this.isPair ? h("td", {class: "changes"}, this.changeText(row)) : null, cells);
  }

  cellText(row, group) {
    const [dump, at] = row.now >= 0 ? [this.now, row.now] : [this.dumps[0], row.old];
    const entry = dump.entry(at);
    return group.isFamily ? familyText(this.layout, group, entry) :
                            this.layout.text(group.members[0], entry);
  }

  changeText(row) {
    if (!row.differs) return "";
    if (row.old < 0 || row.now < 0) return row.old < 0 ? "only in the second" : "only in the first";
    const [old, now] = [this.dumps[0].entry(row.old), this.now.entry(row.now)];
    const changes = this.layout.changes(old, now);
    const texts = changes.slice(0, 3).map(
        (change) => `${change.name} ${this.textOf(change, old, change.old)} → ${
            this.textOf(change, now, change.now)}`);
    return texts.join("; ") + (changes.length > 3 ? `; ${changes.length - 3} more` : "");
  }

  /** A value of what changed: of a field, or of the bits outside all fields. */
  textOf({name}, entry, hex) {
    const field = this.layout.byName.get(name);
    return field ? this.layout.text(field, entry) : hex;
  }

  key(event) {
    const steps = {
      ArrowDown: 1,
      ArrowUp: -1,
      PageDown: visibleRows,
      PageUp: -visibleRows,
      Home: -1e9,
      End: 1e9
    };
    if (!(event.key in steps) || event.target !== this.scroller) return;
    event.preventDefault();
    const at = this.opened ? this.shown.indexOf(this.opened) : -1;
    this.open(Math.min(this.shown.length - 1, Math.max(0, at + steps[event.key])));
    this.scroller.focus();
  }

  /** Shows an entry of the grid in detail. */
  open(at) {
    const row = this.shown[at];
    if (!row) return;
    this.opened = row;
    const top = at * entryHeight;
    const height = entryHeight * (visibleRows - 2);
    if (top < this.scroller.scrollTop || top > this.scroller.scrollTop + height)
      this.scroller.scrollTop = top - height / 2;
    this.first = -1;
    this.draw();
    this.view.remember({index: `${row.index}`});
    this.detail.replaceChildren(...this.detailOf(row));
  }

  detailOf(row) {
    const {table, chip} = this.layout;
    const entries = [[this.dumps[0], row.old, "Old"], [this.now, row.now, "New"]]
                        .slice(this.isPair ? 0 : 1)
                        .filter(([, at]) => at >= 0)
                        .map(([dump, at, side]) => ({bytes: dump.entry(at), side}));
    const link = ({bytes, side}) =>
        h("a", {
          href: formatState({
            view: "table",
            parts: [table.name, chip],
            options: {
              hex: entryText(bytes, "bytes").replaceAll(" ", ""),
              order: "bytes",
              index: `${row.index}`
            }
          }),
        },
          this.isPair ? `${side}: open with its bits` : "Open with its bits");
    const [old, now] = [entries[0].bytes, entries[entries.length - 1].bytes];
    const changes = this.layout.changes(old, now);
    const changed = new Map(changes.map((change) => [change.name, change]));
    const outside = changes.filter(({name}) => !this.layout.byName.has(name));
    const rows = [
      ...this.layout.fields, ...outside.map(({name}) => ({accessor: name, bits: ""}))
    ].map((field) => this.fieldRow(field, old, now, changed.get(field.accessor)));
    const missing = this.isPair && entries.length === 1 ? h("p", {}, this.changeText(row)) : null;
    return [
      h("h2", {}, `Entry ${row.index}, ${addressText(this.layout.addressOf(row.index))}`), missing,
      ...entries.map(
          (entry) => h("p", {class: "bytes"}, entryText(entry.bytes, "bytes"), " ", link(entry))),
      h("div", {class: "scroll"}, h("table", {}, h("tbody", {}, rows)))
    ].filter((one) => one);
  }

  fieldRow(field, old, now, change) {
    const value = change ? change.now : hexText(this.layout.value(field, now));
    return h(
        "tr", {
          "data-field": field.accessor,
          "data-bits": field.bits,
          "data-value": value,
          "data-old": change ? change.old : null,
          class: change ? "differs" : "",
        },
        h("th", {scope: "row"}, field.accessor), h("td", {class: "number"}, field.bits),
        h("td", {},
          change ?
              [
                h("del", {}, this.textOf(change, old, change.old)), " → ",
                h("ins", {}, this.textOf(change, now, change.now))
              ] :
              this.layout.text(field, now)));
  }

  drawMap() {
    const isShown = new Set(this.shown);
    const keys = this.colorBy === "(changed)" ? this.rows.map((row) => (row.differs ? 1 : 0)) :
                                                this.valuesOf(this.colorBy);
    const group = this.group(this.colorBy);
    const textOf = (value) =>
        (!group             ? ["the same", "differs"][value] :
             value === -1   ? "missing" :
             group.isFamily ? hexText(value) :
                              this.textOfValue(group.members[0], value));
    const cells =
        this.rows.map((row, i) => ({index: row.index, key: keys[i], isShown: isShown.has(row)}));
    this.map = drawMap(this.canvas, cells, this.layout.indexCount);
    this.canvas.setAttribute("aria-label", `One cell for each entry, coloured by ${this.colorBy}`);
    this.legend.replaceChildren(...mapLegend(this.map, textOf));
  }

  textOfValue(field, value) {
    return this.layout.text(field, this.layout.encode({[field.accessor]: BigInt(value)}));
  }

  openCell(event) {
    const index = this.map.indexAt(event.offsetX, event.offsetY);
    const at = this.shown.findIndex((row) => row.index === index);
    if (at >= 0) this.open(at);
  }

  /** Saves what is shown: the entries of a dump, or what changed from one to the other. */
  save(kind) {
    if (this.isRefused) return;
    const positions = this.shown.map((row) => row.now).sort((a, b) => a - b);
    const where = this.filterText.value.trim() === "" ? [] : [this.filterText.value];
    const text = this.isPair ? this.dumps[0].diff(this.now, {where, csv: kind === "csv"}) :
                               this.now[kind]({positions});
    const url = URL.createObjectURL(
        new Blob([text], {type: kind === "json" ? "application/json" : "text/csv"}));
    h("a", {
      href: url,
      download:
          `${this.layout.table.name}-${this.layout.chip}${this.isPair ? "-changes" : ""}.${kind}`
    }).click();
    setTimeout(() => URL.revokeObjectURL(url), 10000);
  }
}

/** The entries of one dump, or of two by their indexes: {index, old, now, differs}, positions or -1. */
function rowsOf(dumps) {
  const positions =
      dumps.map((dump) => new Map(Array.from(dump.indexes, (index, at) => [index, at])));
  const differing = new Set(dumps.length === 2 ? dumps[0].differing(dumps[1]) : []);
  const indexes = [...new Set(dumps.flatMap((dump) => [...dump.indexes]))].sort((a, b) => a - b);
  return indexes.map((index) => {
    const [old, now = old] = positions.map((of) => of.get(index) ?? -1);
    return {index, old, now, differs: differing.has(index)};
  });
}
