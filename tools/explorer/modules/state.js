// What the page shows, as the part of its address after "#": a link shows exactly what one sees.
//
//   #VlanEntry/BCM56990_B0/stg?hex=...&order=bytes     a table on a chip, a field, an entry
//   #compare/BCM56275_A0/BCM56175_A0/VlanEntry         two chips, and one table
//   #dumps/VlanEntry/BCM56990_B0?filter=stg==5         dumps; the files are not part of it

/** The state {view, parts, options} of an address; options are texts by name. */
export function parseState(hash) {
  const [path, query] = splitOnce(hash.replace(/^#/, ""), "?");
  const parts = path.split("/").filter((part) => part !== "").map(decoded);
  const options = Object.fromEntries(new URLSearchParams(query));
  if (parts[0] === "compare" || parts[0] === "dumps")
    return {view: parts[0], parts: parts.slice(1), options};
  return {view: parts.length > 0 ? "table" : "home", parts, options};
}

/** The address of a state; options that are empty are left out. */
export function formatState({view, parts, options = {}}) {
  const path = [...(view === "compare" || view === "dumps" ? [view] : []), ...parts];
  const query = new URLSearchParams(Object.entries(options).filter(([, value]) => value));
  const text = query.toString();
  return "#" + path.map(encodeURIComponent).join("/") + (text === "" ? "" : "?" + text);
}

function splitOnce(text, separator) {
  const at = text.indexOf(separator);
  return at < 0 ? [text, ""] : [text.slice(0, at), text.slice(at + 1)];
}

function decoded(text) {
  try {
    return decodeURIComponent(text);
  } catch {
    return text;
  }
}
