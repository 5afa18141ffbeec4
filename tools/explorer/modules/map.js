// The map of a table: one cell for each entry, coloured by a value, so that patterns show.

import {h} from "./elements.js";

const colors = [
  "#3b75af", "#e0812b", "#519e3e", "#c53a32", "#8d69b8", "#84584e", "#d57dbe", "#bcbd45", "#57b8cc",
  "#a8c6e5"
];
const otherColor = "#8a8a8a";

/** Draws cells {index, key, isShown}; returns the colour and the number of each key. */
export function drawMap(canvas, cells, count) {
  const columns = [128, 64, 32, 16].find((number) => number * 8 <= count) ?? 16;
  const size = Math.max(3, Math.min(14, Math.floor(Math.min(900, innerWidth - 60) / columns)));
  canvas.width = columns * size;
  canvas.height = Math.ceil(count / columns) * size;
  const style = getComputedStyle(document.documentElement);
  const [zero, absent] =
      [style.getPropertyValue("--map-zero"), style.getPropertyValue("--map-absent")];
  const keys = ranked(cells);
  const colorOf =
      new Map(keys.map(({key}, i) => [key, isZero(key) ? zero : colors[i] ?? otherColor]));
  const context = canvas.getContext("2d");
  context.fillStyle = absent;
  context.fillRect(0, 0, canvas.width, canvas.height);
  const gap = size > 5 ? 1 : 0;
  for (const {index, key, isShown} of cells) {
    context.globalAlpha = isShown ? 1 : 0.25;
    context.fillStyle = colorOf.get(key);
    context.fillRect(
        (index % columns) * size, Math.floor(index / columns) * size, size - gap, size - gap);
  }
  return {keys, colorOf, indexAt: (x, y) => Math.floor(y / size) * columns + Math.floor(x / size)};
}

function isZero(key) {
  return key === 0 || key === 0n;
}

/** The keys {key, count}: the most frequent first, zero last. */
function ranked(cells) {
  const counts = new Map();
  for (const {key} of cells) counts.set(key, (counts.get(key) ?? 0) + 1);
  const keys = [...counts].map(([key, count]) => ({key, count}));
  return keys.sort((a, b) => isZero(a.key) - isZero(b.key) || b.count - a.count);
}

/** The colours and what they stand for. */
export function mapLegend({keys, colorOf}, textOf) {
  const named = keys.filter(({key}, i) => isZero(key) || i < colors.length);
  const rest = keys.filter((one) => !named.includes(one)).reduce((sum, {count}) => sum + count, 0);
  const item = (color, text, count) =>
      h("span", {}, h("span", {class: "swatch", style: `background: ${color}`}),
        `${text} (${count})`);
  return [
    ...named.map(({key, count}) => item(colorOf.get(key), textOf(key), count)),
    ...(rest > 0 ? [item(otherColor, "others", rest)] : [])
  ];
}
