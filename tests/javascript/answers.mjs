// Answers the requests of a test, one JSON document on standard input: what the package gives for each,
// or its refusal.
//
// usage: node answers.mjs FOLDER_OF_THE_PACKAGE

import {readFileSync, writeSync} from "node:fs";
import {pathToFileURL} from "node:url";

const velmar = await import(pathToFileURL(`${process.argv[2]}/node.mjs`));
const fromHex = (text) => new Uint8Array(Buffer.from(text, "hex"));
const toHex = (bytes) => Buffer.from(bytes).toString("hex");

const answers = {
  read(layout, {path, options}) {
    const dump = velmar.read(layout, readFileSync(path), options);
    const entries = Array.from(dump.indexes, (index, i) => [index, toHex(dump.entry(i))]);
    dump.free();
    return entries;
  },
  facts: (layout) =>
      ({...layout, addresses: [0, layout.indexCount - 1].map((i) => layout.address(i))}),
  decode: (layout, {bytes}) => layout.decode(fromHex(bytes)),
  again: (layout, {bytes}) => toHex(layout.encode(layout.decode(fromHex(bytes)))),
  columns(layout, {bytes}) {
    const columns = Object.entries(layout.columns(fromHex(bytes)));
    return Object.fromEntries(
        columns.map(([name, one]) => [name, [one.constructor.name, Array.from(one)]]));
  },
  encode: (layout, {values, base}) =>
      toHex(layout.encode(values, base === undefined ? base : fromHex(base))),
  json: (layout, {bytes}) => velmar.dumpOf(layout, fromHex(bytes)).json(),
  csv: (layout, {bytes}) => velmar.dumpOf(layout, fromHex(bytes)).csv(),
  select: (layout, {bytes, where}) =>
      Array.from(velmar.dumpOf(layout, fromHex(bytes)).select(where)),
  diff(layout, {before, after, ...options}) {
    const [old, now] = [before, after].map((bytes) => velmar.dumpOf(layout, fromHex(bytes)));
    return [old.diff(now, options), Array.from(old.differing(now))];
  },
  translate(layout, {bytes, to}) {
    const {dump, losses} = velmar.dumpOf(layout, fromHex(bytes)).translate(to);
    return [toHex(dump.bytes), losses];
  },
  identify: (layout, {bytes}) =>
      velmar.identify(fromHex(bytes), {table: layout.table, chip: layout.chip}),
  compare: (_, {before, after}) => velmar.compare(before, after),
  at: (_, {on, address}) => velmar.entriesAt(on, address),
  catalogue: () => [velmar.version(), velmar.chips(), velmar.tables()],
};

function answer({call, table, chip, ...rest}) {
  try {
    return {result: answers[call](table === undefined ? null : velmar.layout(table, chip), rest)};
  } catch (error) {
    if (!(error instanceof velmar.VelmarError)) throw error;
    const {code, line, text, choices} = error;
    return {refusal: {code, line, text, choices}};
  }
}

// A BigInt is written so that it cannot be taken for a number.
const text = JSON.stringify(
    JSON.parse(readFileSync(0, "utf8")).map(answer),
    (_, value) => (typeof value === "bigint" ? {big: `0x${value.toString(16)}`} : value));
for (let rest = Buffer.from(text); rest.length > 0;) rest = rest.subarray(writeSync(1, rest));
