// The page: search, choice of the chip, the views, and what scripts may call.

import {Catalogue} from "./catalogue.js";
import {compareView} from "./compareView.js";
import {dumpView} from "./dumpView.js";
import {choice, h, messageOf, roving} from "./elements.js";
import * as engine from "./engine.js";
import {homeView, resultsOf} from "./homeView.js";
import {searchItems} from "./search.js";
import {formatState, parseState} from "./state.js";
import {TableView} from "./tableView.js";

const byId = (id) => document.getElementById(id);
const catalogue = new Catalogue();

const page = {
  catalogue,
  get items() {
    return this.found ??= searchItems(catalogue);
  },
  chip: catalogue.chips[catalogue.chips.length - 1].name,
  /** The entry that was shown last, to be kept where the table stays. */
  entry: null,
  dumps: {files: [null, null]},
  shown: null,

  go(state) {
    this.flush();
    location.hash = formatState(state);
  },

  /** The state was reached by editing: the address follows, without a step back for each letter. */
  replace(state) {
    const shown = location.hash;
    this.pending = () => {
      // Somebody may have gone elsewhere meanwhile.
      if (location.hash === shown) history.replaceState(null, "", formatState(state));
    };
    clearTimeout(this.timer);
    this.timer = setTimeout(() => this.flush(), 100);
  },

  flush() {
    clearTimeout(this.timer);
    this.pending?.();
    this.pending = null;
  },
};

function showState() {
  clearTimeout(page.timer);
  page.pending = null;
  const state = parseState(location.hash);
  const isByKey = byId("results").contains(document.activeElement);
  closeResults();
  byId("search").value = "";
  page.printed = null;
  let view, reveal = () => {};
  try {
    if (state.view === "table") {
      if (state.parts.length === 1)
        state.parts.push(
            catalogue.table(state.parts[0]).chips.includes(page.chip) ?
                page.chip :
                catalogue.table(state.parts[0]).chips[0]);
      const shown = new TableView(page, state);
      view = shown.element;
      reveal = () => shown.reveal();
      page.chip = state.parts[1];
    } else {
      view = {home: homeView, compare: compareView, dumps: dumpView}[state.view](page, state);
    }
  } catch (error) {
    view =
        h("article", {}, h("h1", {}, "Not found"),
          h("p", {class: "refusal", role: "alert"}, messageOf(error)));
  }
  byId("view").replaceChildren(view);
  showChips(state);
  for (const link of document.querySelectorAll("nav a")) {
    if (link.dataset.view === state.view)
      link.setAttribute("aria-current", "page");
    else
      link.removeAttribute("aria-current");
  }
  document.title = `${[...state.parts].slice(0, 2).join(" on ") || "Velmar"} – layout explorer`;
  scrollTo(0, 0);
  reveal();
  if (isByKey) byId("view").focus({preventScroll: true});
}

/** The chips; with a table, those of one layout together. */
function showChips(state) {
  const table = state.view === "table" ? catalogue.byName.get(state.parts[0]) : null;
  const named = (chips) => Object.fromEntries(chips.map((chip) => [chip, chip]));
  const options = {};
  if (table) {
    catalogue.chipGroups(table).forEach((chips, i) => {
      const {entryBytes} = catalogue.layout(table.name, chips[0]);
      options[`Layout ${i + 1}: ${entryBytes} bytes`] = named(chips);
    });
    const others =
        catalogue.chips.map((chip) => chip.name).filter((chip) => !table.chips.includes(chip));
    if (others.length > 0) options[`Without ${table.name}`] = named(others);
  } else {
    Object.assign(options, named(catalogue.chips.map((chip) => chip.name)));
  }
  byId("chip").replaceChildren(...choice(options, page.chip, () => {}).children);
  byId("chip").value = page.chip;
  byId("chip").parentElement.hidden = state.view === "compare" || state.view === "dumps";
}

function chooseChip() {
  page.chip = byId("chip").value;
  const state = parseState(location.hash);
  if (state.view === "table" && catalogue.byName.has(state.parts[0])) {
    page.go({view: "table", parts: [state.parts[0], page.chip]});
  } else {
    showState();
  }
}

function showResults() {
  const query = byId("search").value;
  if (query.trim() === "") return closeResults();
  byId("results").replaceChildren(...resultsOf(page, query));
  byId("results").hidden = false;
}

function closeResults() {
  byId("results").hidden = true;
}

function searchKey(event) {
  const first = byId("results").querySelector("a");
  if (event.key === "Enter" && first && !byId("results").hidden) first.click();
  if (event.key === "ArrowDown" && first && !byId("results").hidden) {
    event.preventDefault();
    first.focus();
  }
}

function pageKey(event) {
  const isTyping = event.target.closest("input, textarea, select");
  if (event.key === "/" && !isTyping && !event.ctrlKey && !event.metaKey) {
    event.preventDefault();
    byId("search").focus();
    byId("search").select();
  }
  if (event.key === "Escape" && !byId("results").hidden) {
    closeResults();
    byId("search").focus();
  }
}

byId("search").addEventListener("input", showResults);
byId("search").addEventListener("focus", showResults);
byId("search").addEventListener("keydown", searchKey);
byId("results").addEventListener("keydown", (event) => {
  if (event.key === "ArrowUp" && !document.activeElement.previousElementSibling?.matches("a"))
    byId("search").focus();
}, true);
roving(byId("results"), "a", {ArrowDown: 1, ArrowUp: -1});
addEventListener("focusin", (event) => {
  if (!event.target.closest("[role=search]")) closeResults();
});
byId("results").addEventListener("click", (event) => {
  const link = event.target.closest("a");
  if (link && link.hash === location.hash) closeResults();
});
byId("chip").addEventListener("change", chooseChip);
byId("version").textContent = catalogue.version;
addEventListener("keydown", pageKey);
addEventListener("pointerdown", (event) => {
  if (!event.target.closest("search, [role=search]")) closeResults();
});
addEventListener("hashchange", showState);
addEventListener("pagehide", () => page.flush());
addEventListener("click", (event) => event.target.closest("a") && page.flush(), true);
addEventListener("beforeprint", () => page.printed?.(true));
addEventListener("afterprint", () => page.printed?.(false));

const layoutOf = (table, chip) => catalogue.layout(table, chip).own;

/** What a drop of files with a table and a chip does. */
async function open(files, {table, chip} = {}) {
  page.dumps.files = [files[0], files[1]].map(
      (file) => file ? {name: file.name, bytes: file.bytes, options: {}} : null);
  history.pushState(
      null, "", formatState({view: "dumps", parts: table ? [table, chip].filter(Boolean) : []}));
  showState();
  const shown = byId("view");
  if (shown.querySelector(".entries")) return;
  throw new Error(shown.querySelector(".refusal:not(:empty)")?.textContent ?? shown.textContent);
}

/** For scripts; the comment at the top of the page describes it. */
window.velmar = {
  chips: () => catalogue.chips.map((chip) => chip.name),
  tables: (chip) =>
      catalogue.tables.filter((table) => table.chips.includes(chip)).map(({name}) => name),
  decode: (table, chip, bytes) =>
      JSON.parse(engine.dumpOf(layoutOf(table, chip), bytes).json()).entries[0].fields,
  encode: (table, chip, values, base) => layoutOf(table, chip).encode(values, base),
  compare: (oldChip, newChip, table) => engine.compare(oldChip, newChip, table ?? undefined),
  diff: (table, chip, old, now) => {
    const [before, after] = [old, now].map((bytes) => engine.dumpOf(layoutOf(table, chip), bytes));
    return JSON.parse(before.diff(after)).entries;
  },
  open,
};

showState();
// The first search finds what it needs.
requestIdleCallback(() => page.items);
