// The bits of an entry as a drawing: rows of 32 bits, the highest bit on the left.

import {bitsText, shareBits} from "./catalogue.js";
import {svg} from "./elements.js";

const bitWidth = 27;
const rowHeight = 34;
const barHeight = 17;
const left = 84;
const letterWidth = 6.3;

/** A layout's groups in order of bits, numbered as the drawing and the field table number them. */
export function numberedGroups(layout) {
  const sorted = [...layout.groups].sort((a, b) => a.offset - b.offset || a.width - b.width);
  return sorted.map((group, i) => ({...group, number: i + 1}));
}

/** Draws a layout; `classOf` names a class for a group: how it differs from another chip. */
export function diagramOf(layout, groups, classOf = () => "") {
  const lanes = lanesOf(groups);
  const rows = foldedRows(layout, lanes);
  const parts = [];
  let y = 4;
  for (const row of rows) {
    parts.push(rowOf(row, y, classOf));
    y += row.height + 4;
  }
  const width = left + 32 * bitWidth + 4;
  const label = `The bits of an entry of ${layout.table.name} on ${layout.chip}: ` +
      groups.map((group) => `${group.name} ${group.bits}`).join(", ");
  return svg(
      "svg", {class: "diagram", viewBox: `0 0 ${width} ${y}`, role: "img", "aria-label": label},
      parts);
}

/** Puts each group in the first lane where it shares no bit: narrow ones first, wide ones below. */
function lanesOf(groups) {
  const lanes = [[]];
  for (const group of [...groups].sort((a, b) => a.width - b.width || a.offset - b.offset)) {
    let lane = lanes.find((others) => !others.some((other) => shareBits(group, other)));
    if (!lane) lanes.push(lane = []);
    lane.push(group);
  }
  return lanes;
}

/** The rows that are drawn: words, with runs of empty words and of one long field folded. */
function foldedRows(layout, lanes) {
  const rows = [];
  for (let word = 0; word < layout.words; ++word) {
    const row = {first: word, last: word, segments: segmentsOf(lanes, word)};
    const before = rows[rows.length - 1];
    const whole = wholeOf(row);
    if (before && whole !== undefined && whole === wholeOf(before))
      before.last = word;
    else
      rows.push(row);
  }
  for (const row of rows) {
    // Lanes that are empty in this row take no place.
    const used =
        [...new Set([0, ...row.segments.map((segment) => segment.lane)])].sort((a, b) => a - b);
    for (const segment of row.segments) segment.lane = used.indexOf(segment.lane);
    row.height = rowHeight + (used.length - 1) * barHeight;
  }
  return rows;
}

/** What fills a row alone: a group, null for nothing; undefined where it has parts. */
function wholeOf(row) {
  if (row.segments.length === 0) return null;
  const [segment] = row.segments;
  return row.segments.length === 1 && segment.width === 32 ? segment.group : undefined;
}

function segmentsOf(lanes, word) {
  const segments = [];
  lanes.forEach((groups, lane) => {
    for (const group of groups) {
      const low = Math.max(group.offset, 32 * word);
      const high = Math.min(group.offset + group.width, 32 * word + 32);
      if (low < high) segments.push({group, lane, low, width: high - low});
    }
  });
  return segments;
}

function rowOf(row, y, classOf) {
  const words = row.first === row.last ? `word ${row.first}` : `words ${row.first}–${row.last}`;
  const parts = [
    svg("text", {class: "word", x: left - 6, y: y + 21, "text-anchor": "end"}, words),
    svg("rect", {class: "reserved", x: left, y, width: 32 * bitWidth, height: rowHeight}),
  ];
  const isFolded = row.first !== row.last;
  if (row.segments.length === 0) {
    parts.push(
        svg("text", {class: "empty", x: left + 16 * bitWidth, y: y + 21, "text-anchor": "middle"},
            `bits ${bitsText(32 * row.first, 32 * (row.last - row.first + 1))} reserved`));
  }
  for (const segment of row.segments) parts.push(segmentOf(segment, row, y, isFolded, classOf));
  return parts;
}

function segmentOf({group, lane, low, width}, row, y, isFolded, classOf) {
  const high = isFolded ? 32 * row.last + 31 : low + width - 1;
  const x = left + (32 * row.first + 32 - low - width) * bitWidth;
  const top = lane === 0 ? y : y + rowHeight + (lane - 1) * barHeight;
  const size = {width: width * bitWidth, height: lane === 0 ? rowHeight : barHeight};
  const text = group.name.length * letterWidth + 8 <= size.width ? group.name : `${group.number}`;
  const parts = [
    svg("title", {}, `${group.name} ${group.bits} (${group.hardwareName})`),
    svg("rect", {x, y: top, ...size}),
    svg("text", {
      class: "name",
      x: x + size.width / 2,
      y: top + (lane === 0 ? 26 : 13),
      "text-anchor": "middle"
    },
        text),
  ];
  if (lane === 0) {
    const number = (at, anchor, bit) =>
        svg("text", {class: "bit", x: at, y: top + 11, "text-anchor": anchor}, `${bit}`);
    if (high === low)
      parts.push(number(x + size.width / 2, "middle", low));
    else
      parts.push(number(x + 3, "start", high), number(x + size.width - 3, "end", low));
  }
  return svg(
      "g", {class: `segment ${lane > 0 ? "bar " : ""}${classOf(group)}`, "data-group": group.name},
      parts);
}
