// A table on a chip: its facts, its bits, its fields, and an entry that is decoded and changed.

import {addressText, blockText, entryText, familyRule, hexText, rangesText, refuse} from "./catalogue.js";
import {diagramOf, numberedGroups} from "./diagram.js";
import {attempt, grid, h, labelled, refusalPlace, roving} from "./elements.js";
import {read} from "./engine.js";
import {formatState} from "./state.js";

/** How the digits of an entry may be read. */
const orders = {
  bytes: "bytes, the first byte first",
  words: "32-bit words, the first word first",
  number: "one number, the highest digit first",
};
/** What a reading calls them. */
const hexOrders = {
  bytes: "bytes",
  words: "words",
  number: "int"
};

export class TableView {
  /** `page` has the catalogue, and `replace` for a state that the person reached by editing. */
  constructor(page, state) {
    const [table, chip, selected = ""] = state.parts;
    this.page = page;
    this.layout = page.catalogue.layout(table, chip);
    this.groups = numberedGroups(this.layout);
    this.options = state.options;
    this.order = Object.hasOwn(orders, state.options.order ?? "") ? state.options.order : null;
    this.bytes = null;
    this.selected = "";
    this.element = this.build();
    if (state.options.hex) {
      this.text.value = state.options.hex;
      this.readText();
    } else if (page.entry) {
      this.keepEntry(page.entry);
    }
    if (selected)
      attempt(
          this.refusal,
          () => this.select(this.groupOf(this.layout.find(selected).accessor).name, selected));
  }

  /** The entry that was shown before stays where its bits mean the same. */
  keepEntry({table, chip, key, bytes, order}) {
    if (table !== this.layout.table.name) return;
    this.order = order;
    if (key === this.layout.key)
      this.set(bytes);
    else
      this.problem.textContent =
          `the entry was of ${chip}, whose layout differs; paste one of ${this.layout.chip}`;
  }

  /** Brings the field of a link into view. */
  reveal() {
    if (this.selectedField)
      this.fieldElement(this.selectedField)?.scrollIntoView({block: "nearest"});
  }

  fieldElement(name) {
    return this.element.querySelector(`[data-field="${CSS.escape(name)}"]`);
  }

  build() {
    const layout = this.layout;
    this.drawing = diagramOf(layout, this.groups);
    this.refusal = refusalPlace();
    const element =
        h("article", {class: "table-view"},
          h("header", {}, h("h1", {}, layout.table.name),
            h("p", {}, `${layout.table.purpose}, on ${layout.chip}`)),
          this.facts(), this.entrySection(),
          h("section", {class: "wide", "aria-label": "Bits"}, h("h2", {}, "Bits"),
            h("div", {class: "scroll"}, this.drawing)),
          h("section", {class: "wide", "aria-label": "Fields"}, h("h2", {}, "Fields"), this.refusal,
            this.fieldTable()));
    this.connect(element);
    return element;
  }

  facts() {
    const layout = this.layout;
    const others = this.page.catalogue.chipGroups(layout.table)
                       .find((group) => group.includes(layout.chip))
                       .filter((chip) => chip !== layout.chip);
    const count =
        layout.isRegisterArray ? `${layout.elements} elements` : `${layout.entries} entries`;
    const facts = {
      "Entry": `${layout.entryBytes} bytes, ${layout.words} word${layout.words === 1 ? "" : "s"}`,
      "Size": `${count}${layout.isRegisterArray ? " of a register array" : ""}`,
      "Address": this.addressRule(),
      "Access code, block": `${layout.accessType}, ${blockText(layout.block)}`,
      "Variants": layout.variants === "any" ? "any" : "0 only",
      "Same layout on": others.join(", ") || "no other chip",
    };
    return h(
        "section", {class: "facts", "aria-label": "Facts"},
        h("dl", {},
          Object.entries(facts).map(
              ([name, text]) => h("div", {}, h("dt", {}, name), h("dd", {}, text)))),
        this.calculator());
  }

  addressRule() {
    const layout = this.layout;
    const step = layout.isRegisterArray ? ` + ${layout.elementStep} × element` : " + index";
    const identifier = layout.identifierStep === 0 || layout.identifiers === 1 ?
        "" :
        ` + ${layout.identifierStep} × instance identifier`;
    return addressText(layout.base) + step + identifier;
  }

  /** Index and identifier to address. */
  calculator() {
    const layout = this.layout;
    const result = h("output", {}, "");
    const problem = refusalPlace();
    const number = (input, count, name) => {
      const text = input.value.trim();
      const value = /^(0x[0-9a-f]+|[0-9]+)$/i.test(text) ? Number(text) : NaN;
      if (value >= 0 && value < count) return value;
      problem.textContent = `${name}: give a number from 0 to ${count - 1}`;
      return null;
    };
    const compute = () => {
      problem.textContent = "";
      result.textContent = "";
      const at = number(index, layout.indexCount, indexName);
      const id = number(identifier, layout.identifiers, "Instance identifier");
      if (at === null || id === null) return;
      Object.assign(
          this.options, {index: at === 0 ? "" : `${at}`, identifier: id === 0 ? "" : `${id}`});
      if (this.cells) this.remember();
      result.textContent =
          `${addressText(layout.addressOf(at, id))}, access code ${layout.accessType}, ` +
          `block ${blockText(layout.block)}`;
    };
    const indexName = layout.isRegisterArray ? "Element" : "Index";
    const index =
        h("input", {value: this.options.index ?? "0", size: 7, oninput: compute, class: "index"});
    const identifier =
        h("input", {value: this.options.identifier ?? "0", size: 3, oninput: compute});
    compute();
    return h(
        "p", {class: "calculator"}, labelled(indexName, index),
        layout.identifiers > 1 ?
            labelled(`Instance identifier (0 to ${layout.identifiers - 1})`, identifier) :
            null,
        "→", result,
        layout.identifiers > 1 && layout.identifierStep === 0 ?
            h("span", {class: "note"}, "All instances have the same address.") :
            null,
        problem);
  }

  entrySection() {
    this.text = h("textarea", {
      rows: 3,
      spellcheck: "false",
      autocomplete: "off",
      oninput: () => this.readText(),
      placeholder:
          `${this.layout.entryBytes} byte${this.layout.entryBytes === 1 ? "" : "s"} in hexadecimal`,
    });
    this.problem = refusalPlace();
    this.strip = h("p", {class: "bytes", role: "group", "aria-label": "Bytes of the entry"});
    this.outside = h("p", {class: "note"});
    this.radios = Object.keys(orders).map((order) => h("input", {
                                            type: "radio",
                                            name: "order",
                                            value: order,
                                            checked: order === this.order,
                                            onchange: () => this.reorder(order)
                                          }));
    const radios = this.radios.map((radio) => h("label", {}, radio, " ", orders[radio.value]));
    return h(
        "section", {class: "entry", "aria-label": "Entry"}, h("h2", {}, "Entry"),
        h("fieldset", {}, h("legend", {}, "The digits are"), radios),
        h("div", {class: "paste"}, labelled("Paste an entry", this.text),
          h("button", {onclick: () => this.set(new Uint8Array(this.layout.entryBytes))},
            "All zero"),
          h("button", {onclick: () => this.clear()}, "Clear"),
          h("button", {onclick: (event) => this.copyLink(event.target)}, "Copy link")),
        this.problem, this.strip, this.outside);
  }

  /** Digits that a person pasted are read anew; those that the page wrote are written anew. */
  reorder(order) {
    this.order = order;
    if (this.bytes && !this.isPasted)
      this.set(this.bytes);
    else if (this.text.value.trim() !== "")
      this.readText();
  }

  readText() {
    if (this.text.value.trim() === "") return this.clear();
    this.isPasted = true;
    const bytes = attempt(this.problem, () => this.entryOf(this.text.value), (option, value) => {
      this.setOrder(
          Object.keys(hexOrders).find((order) => hexOrders[order] === value) ?? this.order);
      this.readText();
    });
    return this.show(bytes ?? null);
  }

  /** The bytes of the one entry of a text. */
  entryOf(text) {
    const options = this.order ? {hexOrder: hexOrders[this.order]} : {};
    const dump = read(this.layout.own, text, options);
    if (dump.count !== 1) refuse(`the text has ${dump.count} entries; paste one, or look at dumps`);
    const entry = dump.entry(0).slice();
    dump.free();
    return entry;
  }

  setOrder(order) {
    this.order = order;
    for (const radio of this.radios) radio.checked = radio.value === order;
  }

  set(bytes) {
    this.problem.textContent = "";
    this.isPasted = false;
    this.setOrder(this.order ?? Object.keys(orders)[0]);
    this.text.value = entryText(bytes, this.order);
    this.show(bytes);
  }

  clear() {
    this.text.value = "";
    this.problem.textContent = "";
    this.page.entry = null;
    this.show(null);
  }

  async copyLink(button) {
    const link = location.href.replace(/#.*|$/, formatState(this.state()));
    await navigator.clipboard.writeText(link);
    button.textContent = "Copied";
    setTimeout(() => {
      button.textContent = "Copy link";
    }, 1500);
  }

  /** Shows an entry's values, or none. */
  show(bytes) {
    this.bytes = bytes;
    const {table, chip, key} = this.layout;
    if (bytes) this.page.entry = {table: table.name, chip, key, bytes, order: this.order};
    for (const cell of this.cells.values()) cell.show(bytes);
    this.strip.replaceChildren(...(
        bytes ? Array.from(
                    bytes,
                    (byte, i) =>
                        h("span", {"data-byte": i, title: `byte ${i}, bits ${8 * i + 7}:${8 * i}`},
                          byte.toString(16).padStart(2, "0"))) :
                []));
    const outside = bytes ? this.layout.outsideBits(bytes) : [];
    this.outside.textContent =
        outside.length === 0 ? "" : `Bits set outside all fields: ${rangesText(outside)}`;
    this.light(this.selected, "selected");
    this.remember();
  }

  /** Writes a field of the entry, a number or what a person typed; without an entry, of one that is all
   * zero. */
  write(field, value) {
    this.set(this.layout.encode({[field.accessor]: value}, this.bytes));
  }

  state() {
    const {table, chip} = this.layout;
    const {index, identifier} = this.options;
    // Text that is refused stays too: whoever gets the link sees why.
    const text = this.isPasted && !this.bytes ? this.text.value.slice(0, 2000) : "";
    const entry = this.bytes ?
        {hex: entryText(this.bytes, this.order).replaceAll(" ", ""), order: this.order} :
        {hex: text, order: text && this.order};
    return {
      view: "table",
      parts: [table.name, chip, ...(this.selectedField ? [this.selectedField] : [])],
      options: {...entry, index, identifier},
    };
  }

  remember() {
    this.page.replace(this.state());
  }

  fieldTable() {
    this.cells = new Map();
    const rows = this.groups.flatMap(
        (group) => (group.isFamily ? this.familyRows(group) : this.fieldRows(group)));
    const table = grid(
        "Fields in order of bits",
        ["No.", "Bits", "Field", "Value", "Hardware name", "Identifier", "Type", "Meaning"], rows);
    roving(table, "tr[data-group]", {ArrowDown: 1, ArrowUp: -1});
    table.querySelector("tr[data-group]").tabIndex = 0;
    return h("div", {class: "scroll"}, table);
  }

  rowCells(group, value, ids, type) {
    const field = group.members[0];
    const shares = group.members.length === 1 ? this.layout.overlapsOf(field) : [];
    return [
      h("td", {class: "number"}, `${group.number}`),
      h("td", {class: "number bits"}, group.bits),
      h("th", {scope: "row"}, group.name),
      h("td", {class: "value"}, value),
      h("td", {}, group.hardwareName),
      h("td", {class: "number"}, ids),
      h("td", {}, type),
      h("td", {}, field.meaning,
        shares.length > 0 ?
            h("span", {class: "note"},
              ` Shares bits with ${shares.map((other) => other.accessor).join(", ")}.`) :
            null),
    ];
  }

  fieldRows(group) {
    const [field] = group.members;
    const cell = field.isBitmap ? new BitmapCell(this, field) : new ValueCell(this, field);
    const row =
        h("tr", {
          "data-group": group.name,
          "data-field": field.accessor,
          "data-bits": field.bits,
          tabindex: -1
        },
          this.rowCells(group, cell.element, `${field.id}`, field.type));
    cell.row = row;
    this.cells.set(field.accessor, cell);
    if (!cell.detail) return [row];
    return [row, h("tr", {class: "detail"}, h("td", {colspan: 8}, cell.detail))];
  }

  familyRows(group) {
    const ids = group.members.map((field) => field.id);
    const parts = group.members.map((field) => {
      const cell = new PortCell(this, field);
      this.cells.set(field.accessor, cell);
      return cell.element;
    });
    const ports = h("div", {class: "ports", role: "group", "aria-label": group.name}, parts);
    roving(ports, "button");
    parts[0].tabIndex = 0;
    const row =
        h("tr", {"data-group": group.name, tabindex: -1},
          this.rowCells(group, familyRule(group), rangesText(ids), group.members[0].type));
    return [row, h("tr", {class: "detail", "data-of": group.name}, h("td", {colspan: 8}, ports))];
  }

  groupOf(accessor) {
    return this.groups.find((group) => group.members.some((field) => field.accessor === accessor));
  }

  /** Drawing, table and bytes light up together: under the pointer, and for the selected field. */
  connect(element) {
    const groupAt = (target) => target.closest?.("[data-group]")?.dataset.group ??
        this.groupOfByte(target) ?? target.closest?.("[data-of]")?.dataset.of;
    element.addEventListener(
        "pointerover", (event) => this.light(groupAt(event.target) ?? "", "lit"));
    element.addEventListener("pointerleave", () => this.light("", "lit"));
    for (const kind of ["focusin", "click"]) {
      element.addEventListener(kind, (event) => {
        const name = groupAt(event.target);
        if (!name || (kind === "click" && event.target.closest("button, input"))) return;
        const field = event.target.closest("[data-field]")?.dataset.field;
        this.select(
            name, field ?? this.groups.find((group) => group.name === name).members[0].accessor);
      });
    }
  }

  groupOfByte(target) {
    if (target.dataset?.byte === undefined) return undefined;
    const byte = {offset: 8 * Number(target.dataset.byte), width: 8};
    return this.groups
        .find((group) => group.offset < byte.offset + 8 && byte.offset < group.offset + group.width)
        ?.name;
  }

  select(name, field) {
    if (this.selected === name && this.selectedField === field) return;
    this.selected = name;
    this.selectedField = field;
    this.light(name, "selected");
    this.remember();
  }

  light(name, className) {
    const group = this.groups.find((one) => one.name === name);
    for (const one of this.element?.querySelectorAll("." + className) ?? [])
      one.classList.remove(className);
    if (!group || !this.element) return;
    for (const one of this.element.querySelectorAll("[data-group]")) {
      one.classList.toggle(className, one.dataset.group === name);
    }
    if (group.isFamily && className === "selected")
      this.fieldElement(this.selectedField)?.classList.add(className);
    for (const one of this.strip.children) {
      const bit = 8 * Number(one.dataset.byte);
      one.classList.toggle(className, bit + 7 >= group.offset && bit < group.offset + group.width);
    }
  }
}

/** The value of a field as text that can be changed. */
class ValueCell {
  constructor(view, field) {
    this.view = view;
    this.field = field;
    this.input = h("input", {
      size: field.isBitmap ? 24 : Math.min(40, Math.max(6, Math.ceil(field.width / 4) + 3)),
      "aria-label": field.accessor,
      spellcheck: "false",
      autocomplete: "off",
      onchange: () => this.change(),
      onkeydown: (event) => this.key(event),
    });
    this.hex = h("span", {class: "hex"});
    this.problem = refusalPlace();
    this.element = h("span", {}, this.input, " ", this.hex, this.problem);
  }

  key(event) {
    if (event.key === "Enter") this.change();
    if (event.key === "Escape") this.show(this.view.bytes);
    if (["ArrowLeft", "ArrowRight", "Home", "End"].includes(event.key)) event.stopPropagation();
  }

  change() {
    const text = this.input.value.trim();
    if (text === "" && !this.view.bytes) return;
    const {layout, bytes} = this.view;
    const entry = attempt(this.problem, () => layout.encode({[this.field.accessor]: text}, bytes));
    this.input.setAttribute("aria-invalid", entry === undefined);
    if (entry && !(bytes && layout.value(this.field, entry) === this.value)) this.view.set(entry);
  }

  show(bytes) {
    const field = this.field;
    this.value = bytes ? this.view.layout.value(field, bytes) : null;
    this.problem.textContent = "";
    this.input.removeAttribute("aria-invalid");
    this.input.value = bytes ? this.view.layout.text(field, bytes) : "";
    this.hex.textContent = bytes && field.width <= 64 ? hexText(this.value) : "";
    if (bytes)
      this.row.dataset.value = hexText(this.value);
    else
      delete this.row.dataset.value;
  }
}

/** A bitmap: its ports as ranges, and as a grid of ports to flip. */
class BitmapCell extends ValueCell {
  constructor(view, field) {
    super(view, field);
    this.ports =
        h("div", {class: "ports", role: "group", "aria-label": `ports of ${field.accessor}`});
    this.detail =
        h("details", {ontoggle: () => this.fill()},
          h("summary", {}, `Ports 0 to ${field.width - 1} of ${field.accessor}`), this.ports);
    roving(this.ports, "button");
  }

  /** The grid is made when it is opened first. */
  fill() {
    if (!this.detail.open || this.ports.children.length > 0) return;
    for (let port = 0; port < this.field.width; ++port) {
      this.ports.append(
          h("button", {
            tabindex: port === 0 ? 0 : -1,
            "data-port": port,
            "aria-pressed": "false",
            onclick: () => this.view.write(this.field, (this.value ?? 0n) ^ (1n << BigInt(port))),
          },
            `${port}`));
    }
    this.showPorts();
  }

  show(bytes) {
    super.show(bytes);
    this.showPorts();
  }

  showPorts() {
    const value = this.value ?? 0n;
    [...this.ports.children].forEach((button, port) => {
      button.setAttribute("aria-pressed", ((value >> BigInt(port)) & 1n) === 1n);
    });
  }
}

/** A member of a port family: a click adds one to its value, a digit sets it. */
class PortCell {
  constructor(view, field) {
    this.view = view;
    this.field = field;
    this.element = h("button", {
      "data-field": field.accessor,
      "data-bits": field.bits,
      tabindex: -1,
      onclick: () => view.write(field, ((this.value ?? 0n) + 1n) % (1n << BigInt(field.width))),
      onkeydown: (event) => this.key(event),
    });
    this.port = field.familyNumber;
    this.show(null);
  }

  key(event) {
    if (!/^[0-9]$/.test(event.key) || event.ctrlKey || event.metaKey || event.altKey) return;
    attempt(this.view.refusal, () => this.view.write(this.field, BigInt(event.key)));
  }

  show(bytes) {
    const field = this.field;
    this.value = bytes ? this.view.layout.value(field, bytes) : null;
    this.element.replaceChildren(`${this.port} `, ...(bytes ? [h("b", {}, `${this.value}`)] : []));
    this.element.title = `${field.accessor}, bits ${field.bits}${bytes ? `: ${this.value}` : ""}`;
    if (bytes)
      this.element.dataset.value = hexText(this.value);
    else
      delete this.element.dataset.value;
  }
}
