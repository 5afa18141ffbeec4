// Dumps of a table: a grid of entries, a map of the whole table, and what changed from one to another.

import {readBits, readNumber} from "./bits.js";
import {addressText} from "./catalogue.js";
import {parseFilter} from "./condition.js";
import {formats, formatsOf, readDump, sourceOfJson} from "./dumpReaders.js";
import {csvOf, joinDumps, jsonOf} from "./dumps.js";
import {attempt, choice, h, labelled, refusalPlace} from "./elements.js";
import {entryText} from "./entryText.js";
import {drawMap, mapLegend} from "./map.js";
import {formatState} from "./state.js";
import {changesOf, familyText, hexText, valueText} from "./values.js";

const entryHeight = 24;
const visibleRows = 22;
/** Fields that are columns at first. */
const firstColumns = 8;

/** The view of a state; the dumps that were read stay with the page. */
export function dumpView(page, state) {
  return new DumpView(page, state).element;
}

class DumpView {
  constructor(page, state) {
    this.page = page;
    const [table = page.catalogue.tables[0].name, chip] = state.parts;
    const chips = page.catalogue.table(table).chips;
    this.chip = chip ?? (chips.includes(page.chip) ? page.chip : chips[0]);
    this.layout = page.catalogue.layout(table, this.chip);
    this.options = state.options;
    this.element = h("article", {class: "dump-view"});
    this.element.addEventListener("dragover", (event) => event.preventDefault());
    this.element.addEventListener("drop", (event) => this.drop(event));
    this.build();
  }

  build() {
    const {catalogue} = this.page;
    const same = (names) => Object.fromEntries(names.map((name) => [name, name]));
    const tables = same(catalogue.tables.map(({name}) => name));
    this.problem = refusalPlace();
    this.content = h("div", {});
    this.element.replaceChildren(h("h1", {}, "Look at dumps"),
        h("p", {class: "controls"},
            labelled("Table", choice(tables, this.layout.table.name, (table) => this.choose(table, null))),
            labelled("Chip", choice(same(this.layout.table.chips), this.chip,
                (chip) => this.choose(this.layout.table.name, chip)))),
        h("div", {class: "files"}, this.page.dumps.files.map((file, side) => this.slot(file, side))),
        this.problem, this.content);
    this.read();
  }

  choose(table, chip) {
    const chips = this.page.catalogue.table(table).chips;
    this.page.go({view: "dumps", parts: [table, chip ?? (chips.includes(this.chip) ? this.chip : chips[0])]});
  }

  /** Where a file is chosen or dropped, and what it is read as. */
  slot(file, side) {
    const input = h("input", {type: "file", class: "hidden", onchange: () => input.files[0] && this.take(input.files[0], side)});
    const parts = [h("label", {class: "button"}, side === 0 ? "Choose a dump" : "Choose a second dump, to see what changed", input)];
    if (file) {
      const options = Object.fromEntries(file.formats.map((format) => [format, formats[format]]));
      const asked = {"": "choose what it is", ...options};
      parts.push(h("span", {}, `${file.name}, ${file.bytes.length} bytes`),
          file.formats.length === 1 ? h("span", {class: "note"}, `read as ${formats[file.format]}`) :
              labelled("Read as", choice(asked, file.format, (format) => {
                file.format = format;
                this.build();
              })),
          h("button", {onclick: () => this.remove(side)}, "Remove"));
    }
    return h("div", {class: "slot", "data-side": side}, parts);
  }

  drop(event) {
    event.preventDefault();
    const files = [...event.dataTransfer.files].slice(0, 2);
    const first = files.length === 2 || !this.page.dumps.files[0] ? 0 : 1;
    const side = event.target.closest("[data-side]")?.dataset.side;
    files.forEach((file, i) => this.take(file, files.length === 1 && side ? Number(side) : first + i));
  }

  async take(file, side) {
    const bytes = new Uint8Array(await file.arrayBuffer());
    attempt(this.problem, () => {
      const found = formatsOf(bytes);
      this.page.dumps.files[side] = {name: file.name, bytes, formats: found, format: found.length === 1 ? found[0] : ""};
      const source = found[0] === "json" && found.length === 1 ? sourceOfJson(bytes) : null;
      if (source && (source.table !== this.layout.table.name || source.chip !== this.chip)) {
        return this.page.go({view: "dumps", parts: [source.table, source.chip]});
      }
      return this.build();
    });
  }

  remove(side) {
    this.page.dumps.files[side] = null;
    this.build();
  }

  read() {
    const files = this.page.dumps.files.filter((file) => file);
    const asked = files.find((file) => file.format === "");
    if (files.length === 0) {
      this.content.replaceChildren(h("p", {class: "drop"}, "Drop one dump of this table here, or two to see what changed: " +
          `${Object.values(formats).join(", ")}. The files stay on this machine.`));
      return;
    }
    if (asked) {
      this.content.replaceChildren(h("p", {class: "drop"}, `Choose what ${asked.name} is: it can be read in several ways.`));
      return;
    }
    const dumps = files.map((file) => attempt(this.problem, () => {
      try {
        return readDump(file.bytes, file.format, this.layout);
      } catch (error) {
        error.message = `${file.name}: ${error.message}`;
        throw error;
      }
    }));
    if (dumps.includes(undefined)) return;
    this.entries = new Entries(this, dumps);
    this.content.replaceChildren(this.entries.element);
  }

  /** Keeps the options in the address. */
  remember(options) {
    this.options = {...this.options, ...options};
    this.page.replace({view: "dumps", parts: [this.layout.table.name, this.chip], options: this.options});
  }
}

/** The entries of one dump, or of two by their indexes. */
class Entries {
  constructor(view, dumps) {
    this.view = view;
    this.layout = view.layout;
    this.dumps = dumps;
    this.now = dumps[dumps.length - 1];
    this.isPair = dumps.length === 2;
    this.rows = this.isPair ? joinDumps(...dumps) :
        Array.from(this.now.indexes, (index, row) => ({index, old: row, now: row, differs: false}));
    this.values = new Map();
    const {options} = view;
    const names = this.layout.groups.map((group) => group.name);
    this.columns = options.columns ? options.columns.split(" ").filter((name) => names.includes(name)) :
        names.slice(0, firstColumns);
    this.sortBy = options.sort ?? "";
    this.colorBy = options.color ?? (this.isPair ? "(changed)" : names[0]);
    this.element = this.build();
    this.filter();
    if (options.index) this.open(this.shown.findIndex((row) => row.index === Number(options.index)));
  }

  build() {
    this.problem = refusalPlace();
    this.filterText = h("input", {
      value: this.view.options.filter ?? "", size: 40, spellcheck: "false", oninput: () => this.filter(),
      placeholder: "stg==5 and portBitmap has 21, or nonzero",
    });
    this.onlyChanged = h("input", {type: "checkbox", checked: this.view.options.all !== "yes", onchange: () => this.filter()});
    this.status = h("p", {role: "status"});
    this.canvas = h("canvas", {role: "img", tabindex: -1, onclick: (event) => this.openCell(event)});
    this.legend = h("div", {class: "legend"});
    this.scroller = h("div", {class: "entries", tabindex: 0, role: "region", "aria-label": "Entries",
      onscroll: () => this.draw(), onkeydown: (event) => this.key(event)});
    this.detail = h("section", {class: "detail", "aria-label": "Entry"});
    const names = this.layout.groups.map((group) => group.name);
    const colors = {...(this.isPair ? {"(changed)": "what changed"} : {}),
      ...Object.fromEntries(names.map((name) => [name, name]))};
    return h("div", {},
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

  columnChoice(names) {
    return h("details", {class: "columns"}, h("summary", {}, "Columns"), names.map((name) => {
      const box = h("input", {type: "checkbox", checked: this.columns.includes(name), onchange: () => {
        this.columns = names.filter((one) => (one === name ? box.checked : this.columns.includes(one)));
        this.view.remember({columns: this.columns.join(" ")});
        this.drawHead();
        this.draw();
      }});
      return h("span", {}, labelled(name, box));
    }));
  }

  group(name) {
    return this.layout.groups.find((group) => group.name === name);
  }

  /** The value of a group in a row of a dump; a family's is that of all its bits. */
  valueOf(dump, row, group) {
    return readBits(dump.entry(row), group.offset, group.width);
  }

  /** The values of a group for all rows, to sort and to colour by. */
  valuesOf(name) {
    if (!this.values.has(name)) {
      const group = this.group(name);
      const {bytes, layout} = this.now;
      const read = group.width <= 46 ? (row) => readNumber(bytes, row * layout.entryBytes, group.offset, group.width) :
                                       (row) => this.valueOf(this.now, row, group);
      this.values.set(name, this.rows.map((row) => (row.now < 0 ? -1 : read(row.now))));
    }
    return this.values.get(name);
  }

  filter() {
    const text = this.filterText.value;
    const holds = attempt(this.problem, () => parseFilter(this.layout, text));
    if (!holds) return;
    const changed = this.isPair && this.onlyChanged.checked;
    this.shown = this.rows.filter((row) => (!changed || row.differs) &&
        [[this.dumps[0], row.old], [this.now, row.now]].some(([dump, at]) => at >= 0 && holds(dump.entry(at))));
    const differing = this.rows.filter((row) => row.differs).length;
    this.status.textContent = (this.isPair ? `${differing} of ${this.rows.length} entries differ; ` : "") +
        `${this.shown.length} of ${this.rows.length} entries shown; the table has ${this.layout.indexCount}`;
    this.view.remember({filter: text, all: changed || !this.isPair ? "" : "yes"});
    this.sort();
    this.drawHead();
    this.draw();
    this.drawMap();
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
    const head = (name, text, characters) => h("th", {
      scope: "col", style: `width: ${characters}ch`,
      "aria-sort": this.sortBy === `${name}:up` ? "ascending" : this.sortBy === `${name}:down` ? "descending" : null,
    }, h("button", {onclick: () => this.sortByColumn(name)}, text));
    this.body = h("tbody", {});
    this.above = h("div", {});
    this.below = h("div", {});
    const cells = this.columns.map((name) => head(name, name, Math.min(44, Math.max(name.length + 3, this.digitsOf(name)))));
    this.scroller.replaceChildren(this.above, h("table", {"aria-rowcount": this.shown.length + 1},
        h("caption", {class: "hidden"}, "Entries"),
        h("thead", {}, h("tr", {}, head("", "index", 9), h("th", {scope: "col", style: "width: 12ch"}, "address"),
            this.isPair ? h("th", {scope: "col", style: "width: 48ch"}, "change") : null, cells)), this.body), this.below);
    this.first = -1;
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
    this.body.replaceChildren(...this.shown.slice(first, last).map((row, i) => this.rowOf(row, first + i)));
  }

  rowOf(row, at) {
    const cells = this.columns.map((name) => h("td", {class: "number"}, this.cellText(row, this.group(name))));
    return h("tr", {
      "data-index": row.index, "aria-rowindex": at + 2, class: row === this.opened ? "selected" : "",
      onclick: () => this.open(at),
    }, h("th", {scope: "row", class: "number"}, `${row.index}`),
    h("td", {class: "number"}, addressText(this.layout.addressOf(row.index))),
    this.isPair ? h("td", {class: "changes"}, this.changeText(row)) : null, cells);
  }

  cellText(row, group) {
    const [dump, at] = row.now >= 0 ? [this.now, row.now] : [this.dumps[0], row.old];
    return group.isFamily ? familyText(group, dump.entry(at)) : valueText(group.members[0], this.valueOf(dump, at, group));
  }

  changeText(row) {
    if (!row.differs) return "";
    if (row.old < 0 || row.now < 0) return row.old < 0 ? "only in the second" : "only in the first";
    const changes = changesOf(this.layout, this.dumps[0].entry(row.old), this.now.entry(row.now));
    const texts = changes.slice(0, 3).map(({field, old, now}) =>
      `${field.accessor} ${valueText(field, old)} → ${valueText(field, now)}`);
    return texts.join("; ") + (changes.length > 3 ? `; ${changes.length - 3} more` : "");
  }

  key(event) {
    const steps = {ArrowDown: 1, ArrowUp: -1, PageDown: visibleRows, PageUp: -visibleRows, Home: -1e9, End: 1e9};
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
    if (top < this.scroller.scrollTop || top > this.scroller.scrollTop + height) this.scroller.scrollTop = top - height / 2;
    this.first = -1;
    this.draw();
    this.view.remember({index: `${row.index}`});
    this.detail.replaceChildren(...this.detailOf(row));
  }

  detailOf(row) {
    const {table, chip} = this.layout;
    const entries = [[this.dumps[0], row.old, "Old"], [this.now, row.now, "New"]].slice(this.isPair ? 0 : 1)
        .filter(([, at]) => at >= 0).map(([dump, at, side]) => ({bytes: dump.entry(at), side}));
    const link = ({bytes, side}) => h("a", {
      href: formatState({view: "table", parts: [table.name, chip],
        options: {hex: entryText(bytes, "bytes").replaceAll(" ", ""), order: "bytes"}}),
    }, this.isPair ? `${side}: open with its bits` : "Open with its bits");
    const [old, now] = [entries[0].bytes, entries[entries.length - 1].bytes];
    const changed = new Map(changesOf(this.layout, old, now).map((change) => [change.field.accessor, change]));
    const rows = [...this.layout.fields, ...[...changed.values()].map(({field}) => field).filter((field) => field.isOutside)]
        .map((field) => this.fieldRow(field, old, now, changed.get(field.accessor)));
    const missing = this.isPair && entries.length === 1 ? h("p", {}, this.changeText(row)) : null;
    return [h("h2", {}, `Entry ${row.index}, ${addressText(this.layout.addressOf(row.index))}`), missing,
      ...entries.map((entry) => h("p", {class: "bytes"}, entryText(entry.bytes, "bytes"), " ", link(entry))),
      h("div", {class: "scroll"}, h("table", {}, h("tbody", {}, rows)))].filter((one) => one);
  }

  fieldRow(field, old, now, change) {
    const value = change ? change.now : readBits(now, field.offset, field.width);
    return h("tr", {
      "data-field": field.accessor, "data-bits": field.bits, "data-value": hexText(value),
      "data-old": change ? hexText(change.old) : null, class: change ? "differs" : "",
    }, h("th", {scope: "row"}, field.accessor), h("td", {class: "number"}, field.bits),
    h("td", {}, change ? [h("del", {}, valueText(field, change.old)), " → ", h("ins", {}, valueText(field, change.now))] :
                         valueText(field, value)));
  }

  drawMap() {
    const isShown = new Set(this.shown);
    const keys = this.colorBy === "(changed)" ? this.rows.map((row) => (row.differs ? 1 : 0)) : this.valuesOf(this.colorBy);
    const group = this.group(this.colorBy);
    const textOf = (value) => (!group ? ["the same", "differs"][value] : value === -1 ? "missing" :
        group.isFamily ? hexText(value) : valueText(group.members[0], BigInt(value)));
    const cells = this.rows.map((row, i) => ({index: row.index, key: keys[i], isShown: isShown.has(row)}));
    this.map = drawMap(this.canvas, cells, this.layout.indexCount);
    this.canvas.setAttribute("aria-label", `One cell for each entry, coloured by ${this.colorBy}`);
    this.legend.replaceChildren(...mapLegend(this.map, textOf));
  }

  openCell(event) {
    const index = this.map.indexAt(event.offsetX, event.offsetY);
    const at = this.shown.findIndex((row) => row.index === index);
    if (at >= 0) this.open(at);
  }

  save(kind) {
    const rows = this.shown.filter((row) => row.now >= 0).map((row) => row.now);
    const text = kind === "json" ? jsonOf(this.now, rows) : csvOf(this.now, rows);
    const url = URL.createObjectURL(new Blob([text], {type: kind === "json" ? "application/json" : "text/csv"}));
    h("a", {href: url, download: `${this.layout.table.name}-${this.layout.chip}.${kind}`}).click();
    setTimeout(() => URL.revokeObjectURL(url), 10000);
  }
}
