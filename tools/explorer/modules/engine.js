// The library in the page: its module, which the page carries packed, and what a refusal is here.

import {start} from "../../../bindings/js/velmar.mjs";

export * from "../../../bindings/js/velmar.mjs";

const packed = document.getElementById("module").textContent;
const bytes = Uint8Array.from(atob(packed), (character) => character.charCodeAt(0));
const whole = new Blob([bytes]).stream().pipeThrough(new DecompressionStream("gzip"));
await start(await new Response(whole).arrayBuffer());

/** What the options of a reading are called here: their choices, and the words before a free value. */
export const words = {
  hexOrder: {bytes: "bytes", words: "32-bit words", int: "highest byte first"},
  byteOrder: {little: "lowest byte of a word first", big: "highest byte of a word first"},
  input: {
    raw: "raw bytes",
    hex: "hex text",
    xxd: "output of xxd, or lines with offsets",
    hexdump: "output of hexdump",
    od: "output of od",
    json: "JSON of velmar",
    csv: "CSV of velmar",
  },
  origin: "the address of entry 0 is",
};

/** What the command says of its own options helps nobody here. */
export function remedyOf({remedy, choices}) {
  return Object.keys(choices).length > 0 || /velmar |--|="/.test(remedy) ? "" : remedy;
}
