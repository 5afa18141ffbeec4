// Runs the sweep of the C interface, compiled for the module's machine. Its exit code is that of the sweep.
//
// usage: node sweep.mjs SWEEP_WASM

import {readFile} from "node:fs/promises";
import {WASI} from "node:wasi";

const wasi = new WASI({version: "preview1"});
const {instance} = await WebAssembly.instantiate(
    await readFile(process.argv[2]),
    wasi.getImportObject?.() ?? {wasi_snapshot_preview1: wasi.wasiImport});
wasi.start(instance);
