/* The bit copy, byte by byte, in the common subset of C and C++ so that a prover for C can read it.
 * Bit n of a byte array is bit n % 8 of byte n / 8. */
#ifndef DETAIL_COPY_BITS_LOOP_H
#define DETAIL_COPY_BITS_LOOP_H

/* Puts `count` bits of `from`, from its bit `fromBit`, over those of `into` from bit `intoBit`.
 * count >= 1, fromBit + count <= 8, intoBit + count <= 8. */
static inline unsigned char detailMergeBits(unsigned char into, unsigned char from, int count,
                                            int intoBit, int fromBit) {
  const unsigned mask = ((1U << count) - 1U) << intoBit;
  const unsigned moved = ((unsigned)from >> fromBit) << intoBit;
  return (unsigned char)(((unsigned)into & ~mask) | (moved & mask));
}

/* Copies `bits` bits from bit `srcOffset` of `src` to bit `dstOffset` of `dst`; other bits of `dst`
 * stay. Both ranges lie inside their buffers, which do not overlap. */
static inline void detailCopyBitsLoop(unsigned char* dst, const unsigned char* src, int bits,
                                      int dstOffset, int srcOffset) {
  while (bits > 0) {
    const int intoBit = dstOffset % 8;
    const int fromBit = srcOffset % 8;
    int count = 8 - (intoBit > fromBit ? intoBit : fromBit);
    if (count > bits) {
      count = bits;
    }
    dst[dstOffset / 8] =
        detailMergeBits(dst[dstOffset / 8], src[srcOffset / 8], count, intoBit, fromBit);
    dstOffset += count;
    srcOffset += count;
    bits -= count;
  }
}

#endif
