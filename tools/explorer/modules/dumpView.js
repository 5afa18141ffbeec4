// The dumps of a table: which files, of which table and chip, and how they are read.

import {choice, h, labelled, messageOf, refusalPlace, remedyButtons} from "./elements.js";
import {identify, read, words} from "./engine.js";
import {EntryGrid} from "./entryGrid.js";
import {formatState} from "./state.js";

/** The view of a state; the dumps that were read stay with the page. */
export function dumpView(page, state) {
  return new DumpView(page, state).element;
}

class DumpView {
  constructor(page, state) {
    this.page = page;
    const [table, chip] = state.parts;
    const chips = table ? page.catalogue.table(table).chips : [];
    this.table = table ?? "";
    this.chip = chip ?? (chips.includes(page.chip) ? page.chip : chips[0]);
    this.layout = table ? page.catalogue.layout(table, this.chip) : null;
    this.options = state.options;
    this.element = h("article", {class: "dump-view"});
    this.element.addEventListener("dragover", (event) => event.preventDefault());
    this.element.addEventListener("drop", (event) => this.drop(event));
    this.element.addEventListener("paste", (event) => this.paste(event));
    this.build();
  }

  get files() {
    return this.page.dumps.files;
  }

  build() {
    const {catalogue} = this.page;
    const same = (names) => Object.fromEntries(names.map((name) => [name, name]));
    const tables = {"": "by its contents", ...same(catalogue.tables.map(({name}) => name))};
    this.problem = refusalPlace();
    this.content = h("div", {});
    const names = this.files.filter((file) => file).map((file) => file.name).join(" and ");
    const title = this.layout ? `${this.table} on ${this.chip}: ${names}` : names;
    this.element.replaceChildren(
        h("h1", {}, names ? title : "Look at dumps"),
        h("p", {class: "controls"},
          labelled("Table", choice(tables, this.table, (table) => this.choose(table))),
          this.layout ? labelled(
                            "Chip",
                            choice(
                                same(this.layout.table.chips), this.chip,
                                (chip) => this.choose(this.table, chip))) :
                        null),
        h("div", {class: "files"}, this.files.map((file, side) => this.slot(file, side))),
        this.problem, this.content);
    this.read();
  }

  choose(table, chip) {
    const chips = table ? this.page.catalogue.table(table).chips : [];
    const own = chip ?? (chips.includes(this.chip) ? this.chip : chips[0]);
    this.page.go({view: "dumps", parts: [table, own].filter(Boolean)});
  }

  /** Where a file is chosen, dropped or pasted, and what it is read as. */
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
      const count = `${file.bytes.length} byte${file.bytes.length === 1 ? "" : "s"}`;
      const given = Object.entries(file.options).filter(([option]) => option !== "input");
      parts.push(
          h("span", {}, `${file.name}, ${count}`),
          labelled(
              "read as",
              choice(
                  {"": "what it is", ...words.input}, file.options.input ?? "",
                  (value) => this.mend(file, "input", value))),
          given.map(
              ([option, value]) =>
                  h("button", {onclick: () => this.mend(file, option, "")},
                    `${words[option][value] ?? `${words[option]} ${value}`} ×`)),
          h("button", {onclick: () => this.remove(side)}, "Remove"));
    }
    return h("div", {class: "slot", "data-side": side}, parts);
  }

  /** Reads a file with an option, or without it. */
  mend(file, option, value) {
    if (value === "")
      delete file.options[option];
    else
      file.options[option] = value;
    this.build();
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
      await this.take(files[0], side ? Number(side) : Number(this.files[0] !== null));
    }
  }

  paste(event) {
    const text = event.clipboardData.getData("text/plain");
    if (text === "" || event.target.matches("input")) return;
    event.preventDefault();
    this.give("pasted text", new TextEncoder().encode(text), Number(this.files[0] !== null));
  }

  async take(file, side) {
    try {
      this.give(file.name, new Uint8Array(await file.arrayBuffer()), side);
    } catch (error) {
      this.problem.textContent = messageOf(error);
    }
  }

  give(name, bytes, side) {
    this.files[side] = {name, bytes, options: {}};
    this.build();
  }

  remove(side) {
    this.files[side] = null;
    this.build();
  }

  read() {
    const files = this.files.filter((file) => file);
    if (files.length === 0) {
      this.content.replaceChildren(h(
          "p", {class: "drop"},
          "Drop or paste one dump here, or two of one table to see what changed: raw bytes, text in " +
              "hexadecimal, output of xxd, hexdump, od or a debugger, a console log, JSON or CSV of velmar. " +
              "The files stay on this machine."));
      return;
    }
    if (!this.layout) {
      this.identify(files[0]);
      return;
    }
    const dumps = files.map((file) => this.readFile(file));
    if (dumps.some((dump) => !dump)) return;
    this.entries = new EntryGrid(this, dumps);
    const notes = dumps.flatMap((dump) => dump.notes.map((note) => h("p", {class: "note"}, note)));
    this.content.replaceChildren(...notes, this.entries.element);
  }

  /** The dump of a file; a refusal names the file, and has its remedies as buttons. */
  readFile(file) {
    try {
      return read(this.layout.own, file.bytes, file.options);
    } catch (error) {
      const buttons = remedyButtons(error, (option, value) => this.mend(file, option, value));
      this.problem.append(h("span", {}, `${file.name}: ${messageOf(error)}`), ...buttons);
      if (buttons.length === 0 && this.files.filter((one) => one).length === 1)
        this.offer(this.fitsOf(file));
      return null;
    }
  }

  fitsOf(file) {
    try {
      return identify(file.bytes, file.options);
    } catch {
      return [];
    }
  }

  /** Tables and chips as buttons, the likeliest first; chips of one layout are one. */
  offer(fits) {
    if (fits.length === 0) return;
    const button = ({table, chips, reason}) => {
      const [chip] = chips.includes(this.page.chip) ? [this.page.chip] : chips;
      const rest = chips.length > 1 ? ` and ${chips.length - 1} more of this layout` : "";
      return h(
          "p", {},
          h("button",
            {"data-table": table, "data-chip": chip, onclick: () => this.choose(table, chip)},
            `${table} on ${chip}`),
          `${rest}: ${reason}`);
    };
    this.content.replaceChildren(
        h("div", {class: "fits"}, h("p", {}, "It may be a dump of:"), fits.map(button)));
  }

  /** Finds the table and chip of a file: the only ones are taken, several are asked about. */
  identify(file) {
    try {
      const fits = identify(file.bytes, file.options);
      if (fits.length !== 1) {
        this.offer(fits);
        if (fits.length === 0)
          this.problem.textContent = `${file.name}: no table fits; choose one above`;
        return;
      }
      const [{table, chips}] = fits;
      const chip = chips.includes(this.page.chip) ? this.page.chip : chips[0];
      history.replaceState(null, "", formatState({view: "dumps", parts: [table, chip]}));
      Object.assign(this, {table, chip, layout: this.page.catalogue.layout(table, chip)});
      this.build();
    } catch (error) {
      this.problem.append(
          `${file.name}: ${messageOf(error)}`,
          ...remedyButtons(error, (option, value) => this.mend(file, option, value)));
    }
  }

  /** Keeps the options in the address. */
  remember(options) {
    this.options = {...this.options, ...options};
    this.page.replace({view: "dumps", parts: [this.table, this.chip], options: this.options});
  }
}
