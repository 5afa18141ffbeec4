// The page: search, choice of the chip, the views, and what scripts may call.

import {Catalogue, Refusal} from "./catalogue.js";
import {compareChips} from "./comparison.js";
import {compareView} from "./compareView.js";
import {dumpView} from "./dumpView.js";
import {choice, h, roving} from "./elements.js";
import {homeView, resultsOf} from "./homeView.js";
import {readDump} from "./dumpReaders.js";
import {diffOf} from "./dumps.js";
import {searchItems} from "./search.js";
import {formatState, parseState} from "./state.js";
import {TableView} from "./tableView.js";
import {decodeEntry, encodeEntry} from "./values.js";

const byId = (id) => document.getElementById(id);
const catalogue = new Catalogue(JSON.parse(byId("catalogue").textContent));

const page = {
  catalogue,
  items: searchItems(catalogue),
  chip: catalogue.chips[catalogue.chips.length - 1].name,
  dumps: {files: [null, null]},

  go(state) {
    location.hash = formatState(state);
  },

  /** The state was reached by editing: the address follows, without a step back for each letter. */
  replace(state) {
    clearTimeout(this.timer);
    const show = () => history.replaceState(null, "", formatState(state));
    this.timer = setTimeout(show, 100);
  },
};

function showState() {
  clearTimeout(page.timer);
  const state = parseState(location.hash);
  closeResults();
  let view;
  try {
    if (state.view === "table") {
      if (state.parts.length === 1) state.parts.push(catalogue.table(state.parts[0]).chips.includes(page.chip) ?
        page.chip : catalogue.table(state.parts[0]).chips[0]);
      view = new TableView(page, state).element;
      page.chip = state.parts[1];
    } else {
      view = {home: homeView, compare: compareView, dumps: dumpView}[state.view](page, state);
    }
  } catch (error) {
    if (!(error instanceof Refusal)) throw error;
    view = h("article", {}, h("h1", {}, "Not found"), h("p", {class: "refusal", role: "alert"}, error.message));
  }
  byId("view").replaceChildren(view);
  showChips(state);
  for (const link of document.querySelectorAll("nav a")) {
    link.toggleAttribute("aria-current", link.dataset.view === state.view);
  }
  document.title = `${[...state.parts].slice(0, 2).join(" on ") || "Velmar"} – layout explorer`;
  scrollTo(0, 0);
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
    const others = catalogue.chips.map((chip) => chip.name).filter((chip) => !table.chips.includes(chip));
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
  if (state.view === "table") {
    const {hex, order} = state.options;
    const [table, old] = state.parts;
    const same = catalogue.chipGroups(catalogue.table(table)).some(
        (chips) => chips.includes(old) && chips.includes(page.chip));
    // An entry's bytes stay only where they mean the same.
    page.go({view: "table", parts: [table, page.chip], options: same ? {hex, order} : {}});
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
roving(byId("results"), "a", {ArrowDown: 1, ArrowUp: -1});
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

/** For scripts; the comment at the top of the page describes it. */
window.velmar = {
  chips: () => catalogue.chips.map((chip) => chip.name),
  tables: (chip) => catalogue.layoutsOn(chip).map((layout) => layout.table.name),
  decode: (table, chip, bytes) => decodeEntry(catalogue.layout(table, chip), Uint8Array.from(bytes)),
  encode: (table, chip, values, base) => encodeEntry(
      catalogue.layout(table, chip), values, base === undefined ? undefined : Uint8Array.from(base)),
  compare: (oldChip, newChip, table) => compareChips(catalogue, oldChip, newChip, table ?? null),
  diff: (table, chip, old, now) => {
    const layout = catalogue.layout(table, chip);
    const [before, after] = [old, now].map((bytes) => readDump(Uint8Array.from(bytes), "raw", layout));
    return diffOf(before, after);
  },
};

showState();
