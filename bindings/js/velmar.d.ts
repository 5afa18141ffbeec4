/** What velmar refuses. */
export class VelmarError extends Error {
  /** Such as "ambiguous" or "input". */
  readonly code: string;
  /** What is wrong, without the place. */
  readonly text: string;
  /** What to do about it; may be empty. */
  readonly remedy: string;
  /** Of the input, from 1. */
  readonly line: number | null;
  readonly column: number | null;
  /** Index of the entry. */
  readonly entry: number | null;
  /** Name of the field. */
  readonly field: string | null;
  /** The options that mend it, with the values that they may have; an empty list for any. */
  readonly choices: {[option in keyof ReadOptions]?: string[]};
}

/** A number; BigInt for fields of more than 53 bits; the ports of a bitmap. */
export type Value = number | bigint | number[];
/** What encode() takes for a field: also texts such as "0x1f" and "0-3,17", and values of the command's JSON. */
export type GivenValue = Value | string | boolean | {hex?: string; decimal?: number; ports?: number[]};
export type Bytes = Uint8Array | ArrayBuffer | ArrayBufferView | number[];
export type Column = Uint32Array | Float64Array | BigUint64Array | bigint[];

export interface Field {
  readonly name: string;
  readonly hardwareName: string;
  readonly meaning: string;
  /** Identifier; never changes. */
  readonly id: number;
  /** Among the fields of the table, the same on every chip. */
  readonly index: number;
  readonly type: "U8" | "U16" | "U32" | "U64" | "Raw128" | "bitmap";
  readonly firstBit: number;
  /** Width. */
  readonly bits: number;
  /** Whether it shares bits with another field of the layout. */
  readonly overlaps: boolean;
  /** The name of its family, such as "spTreePort", and its number there; "" for a field alone. */
  readonly family: string;
  readonly familyNumber: number;
}

/** A table on a chip. */
export interface Layout {
  readonly table: string;
  readonly purpose: string;
  readonly kind: "table" | "registerArray";
  readonly chip: string;
  readonly variant: number;
  readonly variants: "any" | "0 only";
  readonly fields: readonly Field[];
  readonly entryBytes: number;
  readonly words: number;
  readonly entries: number;
  readonly elements: number;
  /** Indexes of entries, or of elements of a register array, are below it. */
  readonly indexCount: number;
  readonly identifiers: number;
  readonly base: number;
  readonly elementStep: number;
  readonly identifierStep: number;
  readonly accessType: number;
  readonly block: number;
  /** A field by its name, hardware name or identifier. */
  field(name: string | number): Field;
  /** The S-channel address of an entry, or of an element of a register array. */
  address(index: number, identifier?: number): number;
  /** The bits of an entry that belong to no field. */
  reservedMask(): Uint8Array;
  /** Entries one after another, as objects; bits outside all fields are `outsideFields`. */
  decode(bytes: Bytes): {[field: string]: Value}[];
  /** Fields of all entries, by name. A bitmap is a number, bit n port n. */
  columns(bytes: Bytes, names?: string[]): {[field: string]: Column};
  /** An entry, or a list of entries, to bytes. Other fields are those of `base`, or zero. */
  encode(values: {[field: string]: GivenValue} | {[field: string]: GivenValue}[], base?: Bytes): Uint8Array;
  /** The value of a field of an entry as people read it, such as "5" or "0-3,17". */
  text(field: Field, entry: Uint8Array): string;
  /** The same as a number. */
  value(field: Field, entry: Uint8Array): bigint;
}

export interface ReadOptions {
  /** The notation; default: recognized. */
  input?: "auto" | "raw" | "hex" | "xxd" | "hexdump" | "od" | "json" | "csv";
  /** What hexadecimal digits are; default: as their groups say it. */
  hexOrder?: "bytes" | "words" | "int";
  /** The byte of each 32-bit word that comes first; default: little. */
  byteOrder?: "little" | "big";
  /** Address of entry 0, for lines with addresses. */
  origin?: number | bigint;
  /** Index of the first entry. */
  first?: number;
  /** Bytes from one entry to the next. */
  stride?: number;
  /** Take entries beyond the end of the table, too. */
  beyondEnd?: boolean;
  variant?: number;
}

/** Entries of one layout. */
export interface Dump {
  readonly layout: Layout;
  readonly count: number;
  readonly indexes: Uint32Array;
  /** The entries one after another. */
  readonly bytes: Uint8Array;
  /** What was left out of the input, or is worth saying. */
  readonly notes: string[];
  /** The bytes of the entry at a position. */
  entry(position: number): Uint8Array;
  decode(): {[field: string]: Value}[];
  /** The positions of the entries that meet all conditions, such as "stg=3" or "any spTreePort=2". */
  select(conditions?: string | string[], options?: {indexes?: string; nonzero?: boolean}): Uint32Array;
  /** A document "velmar-entries", of all entries or of those at some positions. */
  json(options?: {positions?: ArrayLike<number>; plain?: boolean}): string;
  csv(options?: {positions?: ArrayLike<number>}): string;
  /** The indexes of the entries that differ, or that one of the dumps lacks. */
  differing(after: Dump): Uint32Array;
  /** A document "velmar-diff", or CSV; of entries that meet all conditions in one of the dumps. */
  diff(after: Dump, options?: {where?: string | string[]; csv?: boolean}): string;
  /** The dump on another chip, and what it does not hold. */
  translate(chip: string | number): {dump: Dump; losses: {field: string; reason: string; entries: number[]}[]};
  /** Gives its memory back at once; otherwise it is given back some time after the last use. */
  free(): void;
}

/** Starts the module from its bytes. Only importers of velmar.mjs call it. */
export function start(source: BufferSource): Promise<void>;
export function version(): string;
export function chips(): {name: string; number: number}[];
/** All tables, with the chips that have them. */
export function tables(): {name: string; purpose: string; kind: "table" | "registerArray"; chips: string[]}[];
/** A table on a chip, by their names. */
export function layout(table: string, chip: string | number, variant?: number): Layout;
/** Reads a dump of a table: bytes or text in any notation. */
export function read(layout: Layout, input: Bytes | string, options?: ReadOptions): Dump;
/** A dump of entries one after another; without `indexes` they count from 0. */
export function dumpOf(layout: Layout, bytes: Bytes, indexes?: ArrayLike<number>): Dump;
/** What changes from one chip to another, in one table or in all. */
export function compare(before: string | number, after: string | number, table?: string, variant?: number):
    {table: string; part: string; change: string; old: unknown; new: unknown}[];
/** The same as people read it: table, part, old, new, change; fields of a family that change alike are one row. */
export function compareRows(before: string | number, after: string | number, table?: string): string[][];
/** The tables and chips that a dump fits, the likeliest first. */
export function identify(input: Bytes | string, options?: ReadOptions & {table?: string; chip?: string | number}):
    {table: string; chips: string[]; entries: number; tableEntries: number; reason: string}[];
/** The entries of all tables of a chip that have an address. */
export function entriesAt(chip: string | number, address: number, variant?: number):
    {table: string; index: number; identifier: number}[];
