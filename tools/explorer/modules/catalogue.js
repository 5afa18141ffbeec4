// The catalogue as the views use it: tables, the layout of a table on a chip, its fields in groups. All
// facts are the library's.

import * as engine from "./engine.js";

/** Something that a person gave and that cannot be done; the text names the remedy. */
export class Refusal extends Error {}

export function refuse(text) {
  throw new Refusal(text);
}

/** A text of a person in quotes, cut where it is long. */
export function quoted(text) {
  return `"${text.length > 60 ? `${text.slice(0, 60)}…` : text}"`;
}

/** Fewer numbered fields than these are shown one by one. */
const smallestFamily = 4;

/** A table on one chip: sizes, addresses, and its fields in declaration order. */
export class Layout {
  constructor(table, own) {
    Object.assign(this, own, {own, table});
    this.isRegisterArray = table.isRegisterArray;
    this.fields = own.fields.map((field) => fieldOf(field));
    this.byName = new Map(this.fields.map((field) => [field.accessor, field]));
    this.groups = groupsOf(this.fields);
    this.key = keyOf(own);
    this.mask = own.reservedMask();
  }

  find(name) {
    return this.byName.get(this.own.field(name).name);
  }

  /** S-channel address of an entry, or of an element of a register array. */
  addressOf(index, identifier = 0) {
    return this.own.address(index, identifier);
  }

  /** The fields that share bits with a field. */
  overlapsOf(field) {
    if (!field.overlaps) return [];
    return this.fields.filter((other) => other !== field && shareBits(other, field));
  }

  /** The value of a field as a number, and as people read it. */
  value(field, bytes) {
    return this.own.value(field.own, bytes);
  }
  text(field, bytes) {
    return this.own.text(field.own, bytes);
  }

  /** An entry with some fields set: numbers, or texts as people type them. */
  encode(values, bytes) {
    return this.own.encode(values, bytes ?? new Uint8Array(this.entryBytes));
  }

  /** The bits that are set outside all fields. */
  outsideBits(bytes) {
    const bits = [];
    for (let i = 0; i < this.entryBytes; ++i) {
      const outside = bytes[i] & this.mask[i];
      for (let bit = 0; outside >> bit !== 0; ++bit)
        if ((outside >> bit) & 1) bits.push(8 * i + bit);
    }
    return bits;
  }

  /** What differs between two entries: [{name, old, now}], in hexadecimal. */
  changes(old, now) {
    const dumps = [old, now].map((bytes) => engine.dumpOf(this.own, bytes));
    const [entry] = JSON.parse(dumps[0].diff(dumps[1])).entries;
    for (const dump of dumps) dump.free();
    return Object.entries(entry?.fields ?? {})
        .map(([name, value]) => ({name, old: value.old.hex, now: value.new.hex}));
  }
}

function fieldOf(own) {
  const {name, firstBit, bits} = own;
  return {
    ...own,
    own,
    accessor: name,
    offset: firstBit,
    width: bits,
    last: firstBit + bits - 1,
    bits: bitsText(firstBit, bits),
    isBitmap: own.type === "bitmap"
  };
}

/** The same for layouts with all fields at the same places. */
function keyOf(own) {
  return [
    own.entryBytes, ...own.fields.map(({index, firstBit, bits}) => `${index}.${firstBit}.${bits}`)
  ].join();
}

/** Whether two ranges {offset, width} share a bit. */
export function shareBits(a, b) {
  return a.offset < b.offset + b.width && b.offset < a.offset + a.width;
}

/** An entry as people paste it: in bytes, 32-bit words, or as one number. */
export function entryText(bytes, order = "bytes") {
  const pairs = Array.from(bytes, (byte) => byte.toString(16).padStart(2, "0"));
  if (order === "number") return "0x" + pairs.reverse().join("");
  if (order === "bytes") return pairs.join(" ");
  const words = [];
  for (let i = 0; i < pairs.length; i += 4) words.push(pairs.slice(i, i + 4).reverse().join(""));
  return words.join(" ");
}

export function hexText(value) {
  return "0x" + value.toString(16);
}

/** As data sheets write it: "47:42", or "66" for one bit. */
export function bitsText(offset, width) {
  return width === 1 ? `${offset}` : `${offset + width - 1}:${offset}`;
}

export function addressText(address) {
  return "0x" + address.toString(16).padStart(8, "0");
}

export function blockText(block) {
  return block === 1 ? "1 (ingress)" : "2 (egress)";
}

/** "0-3,17"; "none" for no numbers. */
export function rangesText(numbers) {
  const ranges = [];
  for (const number of numbers) {
    const last = ranges[ranges.length - 1];
    if (last && last[1] + 1 === number)
      last[1] = number;
    else
      ranges.push([number, number]);
  }
  return ranges.map(([a, b]) => (a === b ? `${a}` : `${a}-${b}`)).join(",") || "none";
}

/** Fields in declaration order as groups of one, or of the members of a family. */
function groupsOf(fields) {
  const groups = [];
  for (let begin = 0, end; begin < fields.length; begin = end) {
    const {family, width} = fields[begin];
    end = begin + 1;
    while (family && fields[end]?.family === family && fields[end].width === width) ++end;
    if (end - begin < smallestFamily) end = begin + 1;
    groups.push(groupOf(fields.slice(begin, end)));
  }
  return groups;
}

function groupOf(members) {
  const offset = Math.min(...members.map((field) => field.offset));
  const width = Math.max(...members.map((field) => field.last)) + 1 - offset;
  const isFamily = members.length > 1;
  return {
    members,
    isFamily,
    offset,
    width,
    name: isFamily ? familyName(members, "accessor") : members[0].accessor,
    hardwareName: isFamily ? familyName(members, "hardwareName") : members[0].hardwareName,
    bits: bitsText(offset, width),
  };
}

function familyName(members, key) {
  const {[key]: name, familyNumber} = members[0];
  return name.slice(0, -`${familyNumber}`.length) +
      rangesText(members.map((field) => field.familyNumber));
}

/** The values of a family: which ports have which, such as "0: 2-7; 3: 0-1". */
export function familyText(layout, group, bytes) {
  const ports = new Map();
  for (const field of group.members) {
    const value = layout.value(field, bytes);
    ports.set(value, [...(ports.get(value) ?? []), field.familyNumber]);
  }
  return [...ports].map(([value, numbers]) => `${value}: ${rangesText(numbers)}`).join("; ");
}

/** Where the members of a family lie, in words: "port p at bit 2 × p". */
export function familyRule(group) {
  const [first, second] = group.members;
  const number = (field) => field.familyNumber;
  const step = second.offset - first.offset;
  const isRegular = group.members.every(
      (field) => field.offset - first.offset === step * (number(field) - number(first)));
  const range = `${first.width} bit${first.width === 1 ? "" : "s"} for each port`;
  if (!isRegular) return `${range}; the field of each port has its own place`;
  const start = number(first) === 0 ? "p" : `(p − ${number(first)})`;
  const base = first.offset === 0 ? "" : `${first.offset} + `;
  return `${range}; port p begins at bit ${base}${step} × ${start}`;
}

/** The catalogue of the page. */
export class Catalogue {
  constructor() {
    this.version = engine.version();
    this.chips = engine.chips();
    this.tables =
        engine.tables().map((table) => ({...table, isRegisterArray: table.kind !== "table"}));
    this.byName = new Map(this.tables.map((table) => [table.name, table]));
    this.layouts = new Map();
  }

  table(name) {
    return this.byName.get(name) ??
        refuse(`there is no table ${quoted(name)}; search for it above`);
  }

  checkChip(chip) {
    if (!this.chips.some((one) => one.name === chip))
      refuse(`there is no chip ${quoted(chip)}; choose one above`);
  }

  /** The layout of a table on a chip; refuses a table that the chip does not have. */
  layout(tableName, chip) {
    const key = `${tableName}/${chip}`;
    if (!this.layouts.has(key)) {
      const table = this.table(tableName);
      this.checkChip(chip);
      if (!table.chips.includes(chip))
        refuse(`${table.name} does not exist on ${chip}; it exists on ${table.chips.join(", ")}`);
      this.layouts.set(key, new Layout(table, engine.layout(tableName, chip)));
    }
    return this.layouts.get(key);
  }

  /** The tables that a chip has, as layouts. */
  layoutsOn(chip) {
    return this.tables.filter((table) => table.chips.includes(chip))
        .map((table) => this.layout(table.name, chip));
  }

  /** The chips of a table in groups that share one layout. */
  chipGroups(table) {
    const groups = new Map();
    for (const chip of table.chips) {
      const key = keyOf(engine.layout(table.name, chip));
      groups.set(key, [...(groups.get(key) ?? []), chip]);
    }
    return [...groups.values()];
  }

  /** The fields of a table, each with the chips that have it. */
  fieldsOf(table) {
    const fields = new Map();
    for (const chip of table.chips) {
      for (const field of engine.layout(table.name, chip).fields) {
        if (!fields.has(field.index)) fields.set(field.index, {field, chips: []});
        fields.get(field.index).chips.push(chip);
      }
    }
    return [...fields.values()].sort((a, b) => a.field.index - b.field.index);
  }
}

/** "all", "all but ..." where few are missing, or the chips. */
export function chipsText(catalogue, chips) {
  const others = catalogue.chips.map((chip) => chip.name).filter((chip) => !chips.includes(chip));
  if (others.length === 0) return "all";
  return others.length <= 4 ? "all but " + others.join(" ") : chips.join(" ");
}
