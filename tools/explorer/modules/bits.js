// The bits of an entry. Bit n is bit n % 8 of byte n / 8. Values of any width are BigInt.

/** The value of `width` bits from bit `offset` on. */
export function readBits(bytes, offset, width) {
  let value = 0n;
  for (let i = (offset + width - 1) >> 3; i >= offset >> 3; --i) {
    value = (value << 8n) | BigInt(bytes[i]);
  }
  return (value >> BigInt(offset & 7)) & largestOf(width);
}

/** The same as a number, for at most 41 bits, so that each sum is exact; `start` is the first byte of
 * the entry. */
export function readNumber(bytes, start, offset, width) {
  let value = 0;
  for (let i = (offset + width - 1) >> 3; i >= offset >> 3; --i)
    value = value * 256 + bytes[start + i];
  return Math.floor(value / 2 ** (offset & 7)) % 2 ** width;
}

/** Writes a value that fits `width` bits. */
export function writeBits(bytes, offset, width, value) {
  for (let i = 0; i < width; ++i) {
    const at = offset + i;
    const mask = 1 << (at & 7);
    if ((value >> BigInt(i)) & 1n)
      bytes[at >> 3] |= mask;
    else
      bytes[at >> 3] &= ~mask;
  }
}

/** The largest value of `width` bits. */
export function largestOf(width) {
  return (1n << BigInt(width)) - 1n;
}

/** The numbers of the bits that are set, ascending. */
export function setBits(value) {
  const bits = [];
  for (let base = 0; value !== 0n; base += 32, value >>= 32n) {
    const word = Number(value & 0xffffffffn);
    for (let bit = 0; bit < 32; ++bit)
      if ((word >>> bit) & 1) bits.push(base + bit);
  }
  return bits;
}

/** Whether two ranges {offset, width} share a bit. */
export function shareBits(a, b) {
  return a.offset < b.offset + b.width && b.offset < a.offset + a.width;
}

export function sameBytes(a, b) {
  return a.length === b.length && a.every((byte, i) => byte === b[i]);
}

/** A value as `count` bytes, the lowest bits first. */
export function bytesOf(value, count) {
  return Uint8Array.from({length: count}, (_, i) => Number((value >> BigInt(8 * i)) & 255n));
}
