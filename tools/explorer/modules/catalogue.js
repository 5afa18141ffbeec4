// The catalogue as objects: chips, tables, and the layout of a table on a chip. Every fact comes
// from the library's own catalogue, which the page carries in columns to stay small.

import {bytesOf, largestOf, readBits, shareBits} from "./bits.js";

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
  constructor(table, chip, geometry, places) {
    Object.assign(this, geometry, {table, chip});
    this.entryBytes = 4 * this.words;
    this.isRegisterArray = table.isRegisterArray;
    this.indexCount = this.isRegisterArray ? this.arrayElements : this.entries;
    this.places = places;
    this.fields = [];
    table.fields.forEach((field, i) => {
      const [offset, width] = [places.offsets[i], places.widths[i]];
      if (width === 0) return;
      this.fields.push(
          {...field, offset, width, last: offset + width - 1, bits: bitsText(offset, width)});
    });
    this.byName = new Map(this.fields.map((field) => [field.accessor, field]));
    this.groups = groupsOf(this.fields);
    this.reservedMask = this.maskOfReserved();
    this.reservedBytes = bytesOf(this.reservedMask, this.entryBytes);
  }

  maskOfReserved() {
    let mask = largestOf(8 * this.entryBytes);
    for (const field of this.fields) mask &= ~(largestOf(field.width) << BigInt(field.offset));
    return mask;
  }

  find(name) {
    return this.byName.get(name) ??
        refuse(`${this.table.name} has no field ${quoted(name)} on ${
            this.chip}; see the field table`);
  }

  /** S-channel address of an entry, or of an element of a register array. */
  addressOf(index, identifier = 0) {
    const step = this.isRegisterArray ? this.addrStride : 1;
    return (this.base + identifier * this.identifierTerm + index * step) >>> 0;
  }

  /** The entries {index, identifier} that have an address. */
  entriesAt(address) {
    const step = this.isRegisterArray ? this.addrStride : 1;
    const found = [];
    for (let identifier = 0; identifier < this.identifiers; ++identifier) {
      const distance = address - this.addressOf(0, identifier);
      if (distance < 0 || (step === 0 ? distance !== 0 : distance % step !== 0)) continue;
      const index = step === 0 ? 0 : distance / step;
      if (index < this.indexCount) found.push({index, identifier});
    }
    return found;
  }

  /** The fields that share bits with a field. */
  overlapsOf(field) {
    return this.fields.filter((other) => other !== field && shareBits(other, field));
  }

  /** Whether bits are set outside all fields; `start` is the first byte of the entry. */
  hasOutsideBits(bytes, start) {
    return this.reservedBytes.some((mask, i) => (bytes[start + i] & mask) !== 0);
  }

  /** The bits that are set outside all fields. */
  outsideFields(bytes) {
    return readBits(bytes, 0, 8 * this.entryBytes) & this.reservedMask;
  }
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

/** Splits "spTreePort12" into its prefix and number; null without a number. */
export function numberedName(name) {
  const match = /^(.*[^0-9])([0-9]+)$/.exec(name);
  return match && {prefix: match[1], number: Number(match[2])};
}

export function areOfOneFamily(a, b) {
  const [first, second] = [numberedName(a.accessor), numberedName(b.accessor)];
  return Boolean(first && second && first.prefix === second.prefix && a.meaning === b.meaning);
}

/** Fields in declaration order as groups of one, or of the members of a family. */
function groupsOf(fields) {
  const groups = [];
  for (let begin = 0, end; begin < fields.length; begin = end) {
    end = begin + 1;
    while (end < fields.length && fields[end].width === fields[begin].width &&
           areOfOneFamily(fields[begin], fields[end])) {
      ++end;
    }
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
  const numbers = members.map((field) => numberedName(field.accessor).number);
  return numberedName(members[0][key]).prefix + rangesText(numbers);
}

/** Where the members of a family lie, in words: "port p at bit 2 × p". */
export function familyRule(group) {
  const [first, second] = group.members;
  const number = (field) => numberedName(field.accessor).number;
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
  constructor(data) {
    this.version = data.version;
    this.chips = data.chips.map(([name, number]) => ({name, number}));
    this.tables = data.tables.map((table) => this.tableOf(table));
    this.byName = new Map(this.tables.map((table) => [table.name, table]));
  }

  tableOf(data) {
    const table = {
      name: data.name,
      purpose: data.purpose,
      isRegisterArray: data.kind === "registerArray"
    };
    table.fields = data.accessors.map((accessor, i) => ({
                                        accessor,
                                        hardwareName: data.hardwareNames[i],
                                        meaning: data.meanings[data.meaning[i]],
                                        id: data.ids[i],
                                        type: data.types[data.type[i]],
                                        isBitmap: data.types[data.type[i]].endsWith("Bitmap"),
                                      }));
    table.chips = [];
    table.make = new Map();
    for (const row of data.layouts) {
      row.chips.forEach((number) => {
        const chip = this.chips[number].name;
        table.make.set(
            chip, {row, geometry: data.geometries.find((one) => one.chips.includes(number))});
      });
    }
    table.chips = this.chips.map((chip) => chip.name).filter((chip) => table.make.has(chip));
    table.layouts = new Map();
    return table;
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
    const table = this.table(tableName);
    if (!table.layouts.has(chip)) {
      this.checkChip(chip);
      const made = table.make.get(chip) ??
          refuse(`${table.name} does not exist on ${chip}; it exists on ${table.chips.join(", ")}`);
      const geometry =
          Object.fromEntries(Object.entries(made.geometry).filter(([key]) => key !== "chips"));
      table.layouts.set(chip, new Layout(table, chip, geometry, made.row));
    }
    return table.layouts.get(chip);
  }

  /** The tables that a chip has, as layouts. */
  layoutsOn(chip) {
    return this.tables.filter((table) => table.make.has(chip))
        .map((table) => this.layout(table.name, chip));
  }

  /** The chips of a table in groups that share one layout. */
  chipGroups(table) {
    const groups = new Map();
    for (const chip of table.chips) {
      const row = table.make.get(chip).row;
      groups.set(row, [...(groups.get(row) ?? []), chip]);
    }
    return [...groups.values()];
  }
}

/** "all", "all but ..." where few are missing, or the chips. */
export function chipsText(catalogue, chips) {
  const others = catalogue.chips.map((chip) => chip.name).filter((chip) => !chips.includes(chip));
  if (others.length === 0) return "all";
  return others.length <= 4 ? "all but " + others.join(" ") : chips.join(" ");
}
