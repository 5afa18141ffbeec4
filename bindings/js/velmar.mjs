// The face of the module for JavaScript. This file alone knows its memory: what it gives are objects,
// arrays and texts of JavaScript.

let c = null;     // the functions of the module
let scratch = 0;  // room for results of calls

const scratchSize = 4096;
const entryRoom = 256;  // bytes of it before the room for an entry
const none = 0xffffffff;
/** Numbers of JavaScript are exact up to so many bits; wider fields are BigInt. */
const exactBits = 53;

// As velmar.h has them: members of 32 bits, after "*" texts.
const structures = {
  chip: "*name index number",
  table: "*name *purpose index kind field_count unused",
  field: "*accessor *hardware_name *meaning index id type first_bit bits overlaps family_letters " +
      "family_number",
  layout_facts: "table chip variants fields entry_bytes words entries elements identifiers base " +
      "element_step identifier_step access_type block",
  place: "layout index identifier",
};
for (const name of Object.keys(structures)) structures[name] = structures[name].split(" ");
const codes =
    ("ok null size index unknown ambiguous not-on-chip variant value wide no-entry input option " +
     "memory")
        .split(" ");
const types = ["U8", "U16", "U32", "U64", "Raw128", "bitmap"];
const kinds = ["table", "registerArray"];

/** What velmar refuses. `text` is what is wrong, `remedy` what to do about it; `choices` are the options
 * that mend it, with the values that they may have: {hexOrder: ["bytes", "words"]}. */
export class VelmarError extends Error {
  constructor(code, text, remedy, place = {}) {
    super(`${place.line ? `line ${place.line}: ` : ""}${text}${remedy ? `; ${remedy}` : ""}`);
    this.name = "VelmarError";
    Object.assign(
        this, {code, text, remedy, line: null, column: null, entry: null, field: null},
        {choices: {}}, place);
  }
}

function refuse(code, text, remedy) {
  throw new VelmarError(code, text, remedy);
}

/** Starts the module from its bytes; the functions below work when the promise is kept. */
export async function start(source) {
  const failed = () => 52;  // nothing is read or written there
  const {instance} = await WebAssembly.instantiate(
      source, {wasi_snapshot_preview1: {fd_close: failed, fd_seek: failed, fd_write: failed}});
  c = instance.exports;
  c._initialize();
  scratch = c.malloc(scratchSize);
  texts.clear();
  fields.clear();
  layouts.clear();
}

// Memory. It moves when it grows, so that each view of it is made anew.

const view = () => new DataView(c.memory.buffer);
const bytesAt = (at, size) => new Uint8Array(c.memory.buffer, at, size);
const numberAt = (at) => view().getUint32(at, true);
const decoder = new TextDecoder();
const encoder = new TextEncoder();
const texts = new Map();  // those that live as long as the module, by their address

function textAt(at) {
  const all = new Uint8Array(c.memory.buffer);
  return decoder.decode(all.subarray(at, all.indexOf(0, at)));
}

function lastingText(at) {
  if (!texts.has(at)) texts.set(at, textAt(at));
  return texts.get(at);
}

/** Calls a function; a code other than 0 is thrown. */
function call(name, ...values) {
  const code = guarded(name, values);
  if (code !== 0) throw lastFault();
}

function guarded(name, values) {
  try {
    return c[name](...values);
  } catch (error) {
    if (!(error instanceof WebAssembly.RuntimeError)) throw error;
    return refuse(
        "memory", "the module has no memory left, or failed", "start it again with start()");
  }
}

function lastFault() {
  call("velmar_last_fault", scratch, 40);
  const fault = view();
  const at = (offset) => textAt(fault.getUint32(scratch + offset, true));
  const counted = (offset) => Number(fault.getBigUint64(scratch + offset, true)) || null;
  const [entry, code] = [numberAt(scratch + 32), numberAt(scratch + 36)];
  const choices = {};
  let remedy = at(4);
  for (const option of at(8).split(";").filter(Boolean)) {
    const [name, values] = option.split("=");
    const own = camel(name);
    choices[own] = [...choices[own] ?? [], ...values ? values.split("|") : []];
    remedy = remedy.replaceAll(name, own);
  }
  const place = {
    line: counted(16),
    column: counted(24),
    entry: entry === none ? null : entry,
    field: at(12) || null
  };
  return new VelmarError(codes[code], at(0), remedy, {...place, choices});
}

const camel = (name) => name.replace(/_([a-z])/g, (_, letter) => letter.toUpperCase());

/** A structure that a function fills, with the names of JavaScript. */
function structure(name, fn, ...values) {
  const members = structures[name];
  call(fn, ...values, scratch, 4 * members.length);
  return structureAt(members, scratch);
}

function structureAt(members, at) {
  const result = {};
  members.forEach((member, i) => {
    const value = numberAt(at + 4 * i);
    if (member[0] === "*")
      result[camel(member.slice(1))] = lastingText(value);
    else
      result[camel(member)] = value;
  });
  return result;
}

/** The number that a function writes. */
function result(fn, ...values) {
  call(fn, ...values, scratch);
  return numberAt(scratch);
}

function take(size) {
  const at = c.malloc(size || 1);
  return at !== 0 ?
      at :
      refuse("memory", `there is no memory for ${size} bytes`, "free dumps that are not needed");
}

/** Runs an action that takes memory; it is free again afterwards. */
function allocating(action) {
  const given = [];
  const room = (size) => {
    const at = take(size);
    given.push(at);
    return at;
  };
  try {
    return action(room);
  } finally {
    for (const at of given) c.free(at);
  }
}

function put(room, bytes) {
  const at = room(bytes.length);
  bytesAt(at, bytes.length).set(bytes);
  return at;
}

function putText(room, value) {
  const text = textOf(value, "a name or a condition");
  if (text.includes("\0")) refuse("value", "a text has a zero character", "give a text without it");
  return put(room, encoder.encode(`${text}\0`));
}

function putTexts(room, list) {
  const addresses = list.map((text) => putText(room, text));
  const at = room(4 * list.length);
  new Uint32Array(c.memory.buffer, at, list.length).set(addresses);
  return at;
}

function putNumbers(room, numbers) {
  const at = room(4 * numbers.length);
  new Uint32Array(c.memory.buffer, at, numbers.length).set(numbers);
  return at;
}

function textOf(value, what) {
  if (typeof value === "string" || typeof value === "number") return String(value);
  return refuse("value", `${what} is ${value === null ? "null" : typeof value}`, "give a text");
}

/** Bytes as callers have them. */
function bytesOf(value) {
  if (value instanceof Uint8Array) return value;
  if (value instanceof ArrayBuffer) return new Uint8Array(value);
  if (ArrayBuffer.isView(value))
    return new Uint8Array(value.buffer, value.byteOffset, value.byteLength);
  const isList = Array.isArray(value) &&
      value.every((byte) => Number.isInteger(byte) && byte >= 0 && byte <= 255);
  return isList ? Uint8Array.from(value) :
                  refuse(
                      "value", "the bytes are of another type",
                      "give a Uint8Array, or a list of numbers from 0 to 255");
}

/** The text that a function makes. */
function document(fn, ...values) {
  call(fn, ...values, scratch);
  const at = numberAt(scratch);
  try {
    return textAt(at);
  } finally {
    c.velmar_text_free(at);
  }
}

// The catalogue.

export const version = () => lastingText(c.velmar_version());

/** All chips, as {name, number}. */
export function chips() {
  return Array.from({length: c.velmar_chip_count()}, (_, i) => {
    const {name, number} = structure("chip", "velmar_chip_info", i);
    return {name, number};
  });
}

/** All tables, as {name, purpose, kind, chips}: the chips that have them. */
export function tables() {
  const all = chips().map(({name}) => name);
  return Array.from({length: c.velmar_table_count()}, (_, i) => {
    const {name, purpose, kind} = structure("table", "velmar_table_info", i);
    const has = (chip) => guarded("velmar_layout_of", [i, chip, 0, scratch]) === 0;
    return {name, purpose, kind: kinds[kind], chips: all.filter((_, chip) => has(chip))};
  });
}

const findTable = (name) => allocating((room) => result("velmar_find_table", putText(room, name)));
const findChip = (name) => allocating((room) => result("velmar_find_chip", putText(room, name)));

/** The entries of all tables of a chip that have an address, as {table, index, identifier}. */
export function entriesAt(chip, address, variant = 0) {
  const found = [];
  const at = findChip(chip);
  for (let nth = 0;; ++nth) {
    try {
      const place = structure("place", "velmar_entry_at", at, variant, address, nth);
      const {layout: handle, index, identifier} = place;
      const {table} = structure("layout_facts", "velmar_layout_info", handle);
      found.push({table: structure("table", "velmar_table_info", table).name, index, identifier});
    } catch (error) {
      if (error.code !== "no-entry") throw error;
      return found;
    }
  }
}

const fields = new Map();

/** The fields of a table, on whatever chip. */
function fieldsOf(table) {
  if (!fields.has(table)) {
    const {fieldCount} = structure("table", "velmar_table_info", table);
    fields.set(table, Array.from({length: fieldCount}, (_, i) => fieldOf(table, i)));
  }
  return fields.get(table);
}

function fieldOf(table, i) {
  const facts = structure("field", "velmar_field_info", table, i);
  const {accessor: name, familyLetters, hardwareName, meaning, id, index, familyNumber} = facts;
  const family = name.slice(0, familyLetters);
  return {name, hardwareName, meaning, id, index, type: types[facts.type], family, familyNumber};
}

const layouts = new Map();
const handles = new WeakMap();  // of layouts

const handleOf = (of) =>
    handles.get(of) ?? refuse("null", "this is no layout", "give what layout() gives");

/** A table on a chip. */
export function layout(table, chip, variant = 0) {
  const key = [findTable(table), findChip(chip), variant];
  const name = key.join();
  if (!layouts.has(name)) layouts.set(name, new Layout(...key));
  return layouts.get(name);
}

class Layout {
  #handle;

  constructor(table, chip, variant) {
    this.#handle = result("velmar_layout_of", table, chip, variant);
    handles.set(this, this.#handle);
    const {name, purpose, kind} = structure("table", "velmar_table_info", table);
    const facts = structure("layout_facts", "velmar_layout_info", this.#handle);
    const own = {
      table: name,
      purpose,
      kind: kinds[kind],
      chip: structure("chip", "velmar_chip_info", chip).name
    };
    Object.assign(this, facts, own, {
      variant,
      variants: facts.variants === 0 ? "any" : "0 only",
      indexCount: facts.entries * facts.elements,
      fields: Object.freeze(this.#fields(table)),
    });
  }

  #fields(table) {
    const all = fieldsOf(table);
    return allocating((room) => {
      const at = room(12 * all.length);
      c.velmar_places(this.#handle, at);
      const places = new Uint32Array(c.memory.buffer, at, 3 * all.length);
      const own = [];
      for (let i = 0, to = 0; i < all.length; ++i, to += 3) {
        if (places[to + 1] === 0) continue;
        const place = {firstBit: places[to], bits: places[to + 1], overlaps: places[to + 2] !== 0};
        own.push(Object.assign(place, all[i]));
      }
      return own;
    });
  }

  /** A field by its accessor, hardware name or identifier. */
  field(name) {
    const index =
        allocating((room) => result("velmar_find_field", this.#handle, putText(room, name)));
    return this.fields.find((field) => field.index === index);
  }

  /** The S-channel address of an entry, or of an element of a register array. */
  address(index, identifier = 0) {
    return result("velmar_address", this.#handle, index, identifier) >>> 0;
  }

  /** The bits of an entry that belong to no field, as a mask. */
  reservedMask() {
    return allocating((room) => {
      const at = room(this.entryBytes);
      call("velmar_field_mask", this.#handle, at, this.entryBytes);
      return bytesAt(at, this.entryBytes).map((byte) => ~byte);
    });
  }

  #count(bytes) {
    if (bytes.length % this.entryBytes === 0) return bytes.length / this.entryBytes;
    return refuse(
        "size", `${bytes.length} bytes are not whole entries of ${this.entryBytes}`,
        `give those of ${this.table} on ${this.chip}`);
  }

  /** A column of numbers or BigInt, by the width of the field; beyond 64 bits a list of BigInt. */
  #column(room, field, at, size, count) {
    if (field.bits <= 64) {
      const to = room(8 * count);
      call("velmar_read_column", this.#handle, field.index, at, size, to, count);
      const wide = new BigUint64Array(c.memory.buffer, to, count);
      if (field.bits > exactBits) return wide.slice();
      const Numbers = field.bits <= 32 ? Uint32Array : Float64Array;
      const words = new Uint32Array(c.memory.buffer, to, 2 * count);
      return Numbers.from({length: count}, (_, i) => words[2 * i] + 2 ** 32 * words[2 * i + 1]);
    }
    const words = this.#words(room, field, at, size, count);
    return Array.from({length: count}, (_, i) => number(words.of(i)));
  }

  #words(room, field, at, size, count) {
    const each = Math.ceil(field.bits / 32);
    const to = room(4 * each * count);
    call("velmar_read_word_column", this.#handle, field.index, at, size, to, each * count);
    const all = new Uint32Array(c.memory.buffer, to, each * count);
    return {of: (i) => all.subarray(i * each, (i + 1) * each)};
  }

  /** Entries one after another as objects of their fields: numbers, BigInt for fields of more than 53
   * bits, lists of ports for bitmaps. Bits outside all fields are `outsideFields`, if one is set. */
  decode(bytes) {
    const all = bytesOf(bytes);
    const count = this.#count(all);
    const entries = Array.from({length: count}, () => ({}));
    allocating((room) => {
      const at = put(room, all);
      for (const field of this.fields) {
        allocating((more) => {
          const values = field.type === "bitmap" ? this.#words(more, field, at, all.length, count) :
                                                   this.#column(more, field, at, all.length, count);
          const isBitmap = field.type === "bitmap";
          entries.forEach((entry, i) => {
            entry[field.name] = isBitmap ? ports(values.of(i)) : values[i];
          });
        });
      }
    });
    const mask = this.reservedMask();
    entries.forEach((entry, i) => {
      const outside = mask.map((bits, at) => bits & all[i * mask.length + at]);
      if (outside.some(Boolean)) entry.outsideFields = BigInt(hexOf(outside));
    });
    return entries;
  }

  /** The fields named, of all entries: {stg: Uint32Array ...}. A bitmap is a number, bit n port n. */
  columns(bytes, names = this.fields.map(({name}) => name)) {
    const all = bytesOf(bytes);
    const count = this.#count(all);
    return allocating((room) => {
      const at = put(room, all);
      const own = (name) =>
          allocating((more) => this.#column(more, this.field(name), at, all.length, count));
      return Object.fromEntries(names.map((name) => [name, own(name)]));
    });
  }

  /** The bytes of an entry, or of a list of them, from values of fields as decode() gives them, or texts
   * such as "0x1f" and "0-3,17". Other fields are those of `base`, or zero. */
  encode(values, base) {
    const list = Array.isArray(values) ? values : [values];
    const bytes =
        base === undefined ? new Uint8Array(list.length * this.entryBytes) : bytesOf(base).slice();
    if (bytes.length !== list.length * this.entryBytes) {
      refuse("size", `the base has ${bytes.length} bytes`, `give ${list.length * this.entryBytes}`);
    }
    list.forEach((entry, i) => {
      const own = bytes.subarray(i * this.entryBytes, (i + 1) * this.entryBytes);
      try {
        this.#encode(entry, own);
      } catch (error) {
        if (list !== values) throw error;
        throw Object.assign(error, {entry: i, message: `entry ${i}: ${error.message}`});
      }
    });
    return bytes;
  }

  #encode(values, bytes) {
    if (values === null || typeof values !== "object")
      refuse("value", "the values are no object", "give {stg: 5}");
    const assignments = Object.entries(values).flatMap(
        ([name, value]) => valueTexts(name, value).map((text) => `${name}=${text}`));
    allocating((room) => {
      const list = putTexts(room, assignments);
      const at = put(room, bytes);
      call("velmar_encode", this.#handle, list, assignments.length, at, bytes.length);
      bytes.set(bytesAt(at, bytes.length));
    });
  }

  /** The value of a field as people read it: "5", "0-3,17", "0x1f". */
  text(field, bytes) {
    bytesAt(scratch + entryRoom, this.entryBytes).set(bytes);
    return textAt(
        c.velmar_value_text(this.#handle, field.index, scratch + entryRoom, this.entryBytes));
  }

  /** The value of a field of one entry as a BigInt. */
  value(field, bytes) {
    const size = Math.ceil(field.bits / 32);
    const [entry, to] = [scratch + entryRoom, scratch + scratchSize / 2];
    bytesAt(entry, this.entryBytes).set(bytes);
    call("velmar_read_words", this.#handle, field.index, entry, this.entryBytes, to, size);
    return number(new Uint32Array(c.memory.buffer, to, size));
  }
}

/** A number from its words, the lowest first. */
function number(words) {
  let value = 0n;
  for (let i = words.length - 1; i >= 0; --i) value = (value << 32n) | BigInt(words[i]);
  return value;
}

/** The numbers of the bits that are set. */
function ports(words) {
  const found = [];
  words.forEach((word, i) => {
    for (let rest = word; rest !== 0; rest &= rest - 1)
      found.push(32 * i + 31 - Math.clz32(rest & -rest));
  });
  return found;
}

/** Bytes as a number in hexadecimal, the lowest byte first. */
function hexOf(bytes) {
  return `0x${Array.from(bytes, (byte) => byte.toString(16).padStart(2, "0")).reverse().join("")}`;
}

/** A value as it is typed, or all of those that an object of the command's JSON has. */
function valueTexts(name, value) {
  if (typeof value === "bigint") return [value < 0n ? `${value}` : `0x${value.toString(16)}`];
  if (typeof value === "boolean") return [value ? "1" : "0"];
  if (Array.isArray(value)) return [value.length === 0 ? "none" : value.join(",")];
  if (value === null || typeof value !== "object") return [textOf(value, name)];
  const forms = Object.keys(value);
  const known = ["hex", "decimal", "ports"];
  if (forms.length === 0 || forms.some((form) => !known.includes(form))) {
    refuse("value", `${name}: an object without a value`, "give hex, decimal or ports");
  }
  return forms.flatMap((form) => valueTexts(name, value[form]));
}

// Dumps.

const optionNames =
    ["input", "hexOrder", "byteOrder", "origin", "first", "stride", "beyondEnd", "variant"];

/** The options of a reading, as the C functions take them. */
function putOptions(room, options) {
  const unknown = Object.keys(options).find((name) => !optionNames.includes(name));
  if (unknown) refuse("option", `there is no option ${unknown}`, `give ${optionNames.join(", ")}`);
  const at = room(48);
  const given = ["input", "hexOrder", "byteOrder"].map(
      (name) => (options[name] === undefined ? 0 : putText(room, options[name])));
  const has = (name) => Number(options[name] !== undefined);
  const to = view();
  [48, ...given].forEach((value, i) => to.setUint32(at + 4 * i, value, true));
  to.setBigUint64(at + 16, BigInt(options.origin ?? 0), true);
  [has("origin"), has("first"), options.first ?? 0, options.stride ?? 0,
   Number(Boolean(options.beyondEnd)), options.variant ?? 0]
      .forEach((value, i) => to.setUint32(at + 24 + 4 * i, value, true));
  return at;
}

const inputBytes = (input) => (typeof input === "string" ? encoder.encode(input) : bytesOf(input));

/** A dump of bytes that the module has for it: it may borrow them. */
function made(of, bytes, make) {
  const at = take(bytes.length);
  try {
    bytesAt(at, bytes.length).set(bytes);
    return new Dump(of, allocating((room) => make(room, at)), at);
  } catch (error) {
    c.free(at);
    throw error;
  }
}

/** Reads a dump of a table: bytes or text in any notation. */
export function read(of, input, options = {}) {
  const bytes = inputBytes(input);
  return made(
      of, bytes,
      (room, at) => result(
          "velmar_dump_read", handleOf(of), putOptions(room, {variant: of.variant, ...options}), at,
          bytes.length));
}

/** A dump of entries one after another; `indexes` are those of the entries, or they count from 0. */
export function dumpOf(of, bytes, indexes) {
  const all = bytesOf(bytes);
  const count = Math.floor(all.length / of.entryBytes);
  if (indexes && indexes.length !== count)
    refuse("size", `there are ${indexes.length} indexes`, `give ${count}`);
  return made(
      of, all,
      (room, at) => result(
          "velmar_dump_of", handleOf(of), of.variant, indexes ? putNumbers(room, indexes) : 0,
          count, at, all.length));
}

const released =
    new FinalizationRegistry(({owner, handle, bytes}) => release(owner, handle, bytes));

function release(owner, handle, bytes) {
  if (owner !== c) return;
  c.velmar_dump_free(handle);
  c.free(bytes);
}

class Dump {
  #handle;
  #bytes;
  #owner = c;

  constructor(of, handle, bytes) {
    this.layout = of;
    this.#handle = handle;
    this.#bytes = bytes;
    this.count = result("velmar_dump_count", handle);
    allocating((room) => {
      const at = room(4 * this.count);
      call("velmar_dump_index", handle, 0, at, this.count);
      this.indexes = new Uint32Array(c.memory.buffer, at, this.count).slice();
    });
    call("velmar_dump_bytes", handle, scratch, scratch + 4);
    this.bytes = bytesAt(numberAt(scratch), numberAt(scratch + 4)).slice();
    if (numberAt(scratch) !== bytes) this.#give();
    this.notes = [];
    for (let at; (at = result("velmar_dump_note", handle, this.notes.length)) !== 0;)
      this.notes.push(textAt(at));
    released.register(this, {owner: c, handle, bytes: this.#bytes}, this);
  }

  /** The input, which the dump does not borrow. */
  #give() {
    c.free(this.#bytes);
    this.#bytes = 0;
  }

  get #live() {
    if (this.#handle !== 0 && this.#owner === c) return this.#handle;
    return refuse("null", "the dump is free", "read it again");
  }

  /** Gives its memory back at once. */
  free() {
    if (this.#handle === 0) return;
    released.unregister(this);
    release(this.#owner, this.#handle, this.#bytes);
    this.#handle = 0;
  }

  /** The bytes of the entry at a position. */
  entry(position) {
    const size = this.layout.entryBytes;
    return this.bytes.subarray(position * size, (position + 1) * size);
  }

  decode() {
    return this.layout.decode(this.bytes);
  }

  /** The positions of the entries that meet all conditions, such as "stg=3" or "any spTreePort=2". */
  select(conditions, {indexes, nonzero = false} = {}) {
    const list = typeof conditions === "string" ? [conditions] : conditions ?? [];
    return allocating((room) => {
      const to = room(4 * this.count);
      const given = putTexts(room, list);
      const among = indexes === undefined ? 0 : putText(room, indexes);
      const count = result(
          "velmar_select", this.#live, given, list.length, among, Number(nonzero), to, this.count);
      return new Uint32Array(c.memory.buffer, to, count).slice();
    });
  }

  #document(fn, positions, ...more) {
    return allocating((room) => {
      const at = positions ? putNumbers(room, positions) : 0;
      // No positions are no entries; NULL would be all.
      if (positions?.length === 0)
        return document(fn, dumpOf(this.layout, []).#live, 0, 0, ...more);
      return document(fn, this.#live, at, positions?.length ?? 0, ...more);
    });
  }

  /** The entries as JSON of "velmar-entries", all or those at some positions. */
  json({positions, plain = false} = {}) {
    return this.#document("velmar_entries_json", positions, Number(plain));
  }

  csv({positions} = {}) {
    return this.#document("velmar_entries_csv", positions);
  }

  /** The indexes of the entries that differ, or that one of the dumps lacks. */
  differing(after) {
    return allocating((room) => {
      const most = this.count + after.count;
      const to = room(4 * most);
      const count = result("velmar_differing", this.#live, after.#live, to, most);
      return new Uint32Array(c.memory.buffer, to, count).slice();
    });
  }

  /** What changed, as "velmar-diff" or as CSV; of entries that meet all conditions in one of the dumps. */
  diff(after, {where = [], csv = false} = {}) {
    if (after.layout !== this.layout)
      refuse("input", "the dumps are of different layouts", "give two of one");
    const list = typeof where === "string" ? [where] : where;
    return allocating(
        (room) => document(
            "velmar_diff_where", this.#live, after.#live, putTexts(room, list), list.length,
            Number(csv)));
  }

  /** The dump on another chip, and what it does not hold. */
  translate(chip) {
    const to = layout(this.layout.table, chip, this.layout.variant);
    call("velmar_translate", this.#live, findChip(chip), scratch, scratch + 4);
    const [handle, losses] = [numberAt(scratch), numberAt(scratch + 4)];
    const text = textAt(losses);
    c.velmar_text_free(losses);
    return {dump: new Dump(to, handle, 0), losses: JSON.parse(text).losses};
  }
}

/** What changes from one chip to another, in one table or in all: {table, part, change, old, new}. */
export function compare(before, after, table, variant = 0) {
  const only = table === undefined ? none : findTable(table);
  return JSON.parse(document("velmar_compare", findChip(before), findChip(after), only, variant))
      .differences;
}

/** The same as people read it, [table, part, old, new, change]: fields of a family that change alike are
 * one row. */
export function compareRows(before, after, table) {
  const only = table === undefined ? none : findTable(table);
  return JSON.parse(document("velmar_compare_rows", findChip(before), findChip(after), only));
}

/** The tables and chips that a dump fits, the likeliest first. */
export function identify(input, {table, chip, ...options} = {}) {
  const bytes = inputBytes(input);
  return allocating((room) => {
    const only =
        [table === undefined ? none : findTable(table), chip === undefined ? none : findChip(chip)];
    const at = put(room, bytes);
    return JSON
        .parse(document("velmar_identify", at, bytes.length, putOptions(room, options), ...only))
        .fits;
  });
}
