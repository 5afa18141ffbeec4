// The package in node: the module lies beside this file.

import {readFile} from "node:fs/promises";

import {start} from "./velmar.mjs";

await start(await readFile(new URL("velmar.wasm", import.meta.url)));
export * from "./velmar.mjs";
