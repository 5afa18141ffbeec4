// The dumps of a table: which files, of which table and chip, and in which format.

import {formatOf, formats, readDump, sourceOfJson} from "./dumpReaders.js";
import {choice, h, labelled, messageOf, refusalPlace} from "./elements.js";
import {EntryGrid} from "./entryGrid.js";

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
    const names =
        this.page.dumps.files.filter((file) => file).map((file) => file.name).join(" and ");
    this.element.replaceChildren(
        h("h1", {},
          names ? `${this.layout.table.name} on ${this.chip}: ${names}` : "Look at dumps"),
        h("p", {class: "controls"},
          labelled(
              "Table", choice(tables, this.layout.table.name, (table) => this.choose(table, null))),
          labelled(
              "Chip",
              choice(
                  same(this.layout.table.chips), this.chip,
                  (chip) => this.choose(this.layout.table.name, chip)))),
        h("div", {class: "files"},
          this.page.dumps.files.map((file, side) => this.slot(file, side))),
        this.problem, this.content);
    this.read();
  }

  choose(table, chip) {
    const chips = this.page.catalogue.table(table).chips;
    this.page.go({
      view: "dumps",
      parts: [table, chip ?? (chips.includes(this.chip) ? this.chip : chips[0])]
    });
  }

  /** Where a file is chosen or dropped, and what it is read as. */
  slot(file, side) {
    const input = h("input", {
      type: "file",
      class: "hidden",
      onchange: () => input.files[0] && this.take(input.files[0], side)
    });
    const parts =
        [h("label", {class: "button"},
           side === 0 ? "Choose a dump" : "Choose a second dump, to see what changed", input)];
    if (file) {
      const options = {...(file.format === "" ? {"": "choose what it is"} : {}), ...formats};
      parts.push(
          h("span", {},
            `${file.name}, ${file.bytes.length} byte${file.bytes.length === 1 ? "" : "s"}`),
          labelled("read as", choice(options, file.format, (format) => {
                     file.format = format;
                     this.build();
                   })), h("button", {onclick: () => this.remove(side)}, "Remove"));
    }
    return h("div", {class: "slot", "data-side": side}, parts);
  }

  async drop(event) {
    event.preventDefault();
    const files = [...event.dataTransfer.files];
    const side = event.target.closest("[data-side]")?.dataset.side;
    if (files.length > 2) {
      this.problem.textContent = `${files.length} files; drop one or two`;
    } else if (files.length === 2) {
      this.page.dumps.files = [null, null];
      for (const i of [0, 1]) await this.take(files[i], i);
    } else if (files.length === 1) {
      await this.take(files[0], side ? Number(side) : Number(this.page.dumps.files[0] !== null));
    }
  }

  async take(file, side) {
    try {
      const bytes = new Uint8Array(await file.arrayBuffer());
      const {files} = this.page.dumps;
      files[side] = {name: file.name, bytes, format: named(file.name, () => formatOf(bytes))};
      const source = files[side].format === "json" ? sourceOfJson(bytes) : null;
      const isOther =
          source && (source.table !== this.layout.table.name || source.chip !== this.chip);
      // With another dump shown, that table and chip hold: reading refuses this one.
      if (isOther && !files[1 - side]) {
        this.page.catalogue.layout(source.table, source.chip);
        this.page.go({view: "dumps", parts: [source.table, source.chip]});
      } else {
        this.build();
      }
    } catch (error) {
      this.problem.textContent = messageOf(error);
    }
  }

  remove(side) {
    this.page.dumps.files[side] = null;
    this.build();
  }

  read() {
    const files = this.page.dumps.files.filter((file) => file);
    const asked = files.find((file) => file.format === "");
    if (files.length === 0) {
      this.content.replaceChildren(
          h("p", {class: "drop"},
            "Drop one dump of this table here, or two to see what changed: " +
                `${Object.values(formats).join("; ")}. The files stay on this machine.`));
      return;
    }
    if (asked) {
      this.content.replaceChildren(
          h("p", {class: "drop"},
            `Choose above what ${asked.name} is: it can be read in several ways.`));
      return;
    }
    const problems = [];
    const dumps = files.map((file) => {
      try {
        return named(file.name, () => readDump(file.bytes, file.format, this.layout));
      } catch (error) {
        return void problems.push(messageOf(error));
      }
    });
    this.problem.textContent = problems.join("; ");
    if (problems.length > 0) return;
    this.entries = new EntryGrid(this, dumps);
    this.content.replaceChildren(this.entries.element);
  }

  /** Keeps the options in the address. */
  remember(options) {
    this.options = {...this.options, ...options};
    this.page.replace(
        {view: "dumps", parts: [this.layout.table.name, this.chip], options: this.options});
  }
}

/** Runs an action; a refusal names the file. */
function named(name, action) {
  try {
    return action();
  } catch (error) {
    error.message = `${name}: ${error.message}`;
    throw error;
  }
}
