// Elements of the page. Texts are always text nodes: nothing from a file becomes markup.

import {Refusal} from "./catalogue.js";
import {remedyOf, VelmarError, words} from "./engine.js";

/** An HTML element; properties that begin with "on" are listeners, null ones are left out. */
export function h(tag, properties = {}, ...children) {
  return filled(document.createElement(tag), properties, children);
}

/** An SVG element. */
export function svg(tag, properties = {}, ...children) {
  return filled(document.createElementNS("http://www.w3.org/2000/svg", tag), properties, children);
}

function filled(element, properties, children) {
  for (const [name, value] of Object.entries(properties)) {
    if (value === null || value === undefined || value === false) continue;
    if (name.startsWith("on"))
      element.addEventListener(name.slice(2), value);
    else
      element.setAttribute(name, value === true ? "" : value);
  }
  element.append(
      ...children.flat(Infinity).filter((child) => child !== null && child !== undefined));
  return element;
}

let labels = 0;

/** A control with its label before it. */
export function labelled(text, control) {
  control.id ||= `control-${++labels}`;
  return h("span", {class: "labelled"}, h("label", {for: control.id
           }, text), control);
}

/** A choice of one of several: {value: text}, with groups as {label: {value: text}}. */
export function choice(options, chosen, onchange) {
  const option = ([value, text]) => h("option", {value, selected: value === chosen}, text);
  const select =
      h("select", {onchange: () => onchange(select.value)},
        Object.entries(options).map(
            ([value, text]) =>
                (typeof text === "string" ?
                     option([value, text]) :
                     h("optgroup", {label: value}, Object.entries(text).map(option)))));
  return select;
}

/** A table with a head; cells are texts or elements. */
export function grid(caption, columns, rows) {
  return h(
      "table", {}, h("caption", {class: "hidden"}, caption),
      h("thead", {}, h("tr", {}, columns.map((column) => h("th", {scope: "col"}, column)))),
      h("tbody", {}, rows));
}

/** What to tell a person of an error: the refusal, or that the page is at fault. */
export function messageOf(error) {
  if (error instanceof Refusal) return error.message;
  if (!(error instanceof VelmarError))
    return `this page is at fault (${error.message}); please report it`;
  const remedy = remedyOf(error);
  return `${error.line ? `line ${error.line}: ` : ""}${error.text}${remedy ? `; ${remedy}` : ""}`;
}

/** Runs an action of a person; a refusal becomes the text of `place`, and what mends it, by calling `mend`
 * with an option and a value, its buttons. */
export function attempt(place, action, mend) {
  try {
    place.textContent = "";
    return action();
  } catch (error) {
    place.replaceChildren(messageOf(error), ...(mend ? remedyButtons(error, mend) : []));
    return undefined;
  }
}

/** A button for each choice of a refusal, and a field for a value that may be any. */
export function remedyButtons(error, mend) {
  const named =
      Object.entries(error.choices ?? {}).filter(([option]) => Object.hasOwn(words, option));
  const buttons = named.flatMap(([option, values]) => {
    const button = (value) =>
        h("button", {"data-remedy": option, value, onclick: () => mend(option, value)},
          words[option][value] ?? value);
    if (typeof words[option] !== "string") return values.map(button);
    const input = h("input", {size: 12, onchange: () => mend(option, input.value)});
    return [labelled(words[option], input)];
  });
  return buttons.length > 0 ? [h("span", {class: "remedies"}, "Read it as: ", buttons)] : [];
}

/** A place for refusals, which a screen reader reads out. */
export function refusalPlace() {
  return h("p", {class: "refusal", role: "alert"});
}

/** The arrow keys move the focus among the elements of a list; the tab key meets one of them. */
export function roving(container, selector, step = {
  ArrowDown: 1,
  ArrowUp: -1,
  ArrowRight: 1,
  ArrowLeft: -1
}) {
  container.addEventListener("keydown", (event) => {
    const all =
        [...container.querySelectorAll(selector)].filter((one) => one.offsetParent !== null);
    const at = all.indexOf(document.activeElement);
    const to = {...step, Home: -all.length, End: all.length}[event.key];
    if (at < 0 || to === undefined) return;
    event.preventDefault();
    const next = all[Math.min(all.length - 1, Math.max(0, at + to))];
    all[at].tabIndex = -1;
    next.tabIndex = 0;
    next.focus();
  });
}
