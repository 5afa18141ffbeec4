// The package in a browser: the module is fetched from beside this file.

import {start} from "./velmar.mjs";

const response = await fetch(new URL("velmar.wasm", import.meta.url));
if (!response.ok)
  throw new Error(
      `velmar.wasm cannot be fetched (${response.status}); serve it beside browser.mjs`);
await start(await response.arrayBuffer());
export * from "./velmar.mjs";
