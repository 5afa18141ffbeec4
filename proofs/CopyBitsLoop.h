/* The bit copy, byte by byte, in the common subset of C and C++ so that a prover for C can read it.
 * Bit n of a byte array is bit n % 8 of byte n / 8. The contracts are ACSL; scripts/verify proves the
 * loop against them, and tests compare Detail::copyBits, which is faster, with the loop. The
 * contracts count bits as 8 * byte + bit, since provers handle / and % badly. */
#ifndef DETAIL_COPY_BITS_LOOP_H
#define DETAIL_COPY_BITS_LOOP_H

/* bitSet is a bit of a byte, left uninterpreted: the loop moves bits and never examines one.
 * paired: bit k of byte b is as far into its range as bit l of byte c into its own. */
/*@ axiomatic Bits {
  @   predicate bitSet(integer byte, integer bit) reads \nothing;
  @ }
  @ predicate paired(integer b, integer k, integer dstStart,
  @                  integer c, integer l, integer srcStart) =
  @   0 <= k < 8 && 0 <= l < 8 && 8 * b + k - dstStart == 8 * c + l - srcStart;
  @*/

/* Replaces `count` bits of `into`, from bit `intoBit`, by those of `from` from its bit `fromBit`. A
 * test checks the body against its contract for all inputs; the proof assumes moved and stays. */
/*@ requires 1 <= count && 0 <= intoBit <= 8 - count && 0 <= fromBit <= 8 - count;
  @ assigns \nothing;
  @ ensures moved: \forall integer k, l; paired(0, k, intoBit, 0, l, fromBit) ==>
  @   intoBit <= k < intoBit + count ==> (bitSet(\result, k) <==> bitSet(from, l));
  @ ensures stays: \forall integer k; 0 <= k < intoBit || intoBit + count <= k < 8 ==>
  @   (bitSet(\result, k) <==> bitSet(into, k));
  @*/
static inline unsigned char detailMergeBits(unsigned char into, unsigned char from, int count,
                                            int intoBit, int fromBit) {
  const unsigned mask = ((1U << count) - 1U) << intoBit;
  const unsigned moved = ((unsigned)from >> fromBit) << intoBit;
  return (unsigned char)(((unsigned)into & ~mask) | (moved & mask));
}

/*@ requires 0 <= offset;
  @ assigns \nothing;
  @ ensures 8 * \result <= offset < 8 * \result + 8;
  @*/
static inline int detailByteOf(int offset) { return offset / 8; }

/* Copies `bits` bits from bit `srcOffset` of `src` to bit `dstOffset` of `dst`; other bits of `dst`
 * stay unchanged. Both ranges lie inside their buffers, which do not overlap. */
/*@ requires 1 <= dstLen <= 65536 && 1 <= srcLen <= 65536;
  @ requires \valid(dst + (0 .. dstLen - 1)) && \valid_read(src + (0 .. srcLen - 1));
  @ requires \separated(dst + (0 .. dstLen - 1), src + (0 .. srcLen - 1));
  @ requires 0 <= bits && 0 <= dstOffset <= 8 * dstLen - bits && 0 <= srcOffset <= 8 * srcLen - bits;
  @ assigns dst[0 .. dstLen - 1];
  @ ensures copied: \forall integer b, k, c, l; paired(b, k, dstOffset, c, l, srcOffset) ==>
  @   dstOffset <= 8 * b + k < dstOffset + bits ==> (bitSet(dst[b], k) <==> bitSet(src[c], l));
  @ ensures kept: \forall integer b, k; 0 <= b < dstLen && 0 <= k < 8 &&
  @   !(dstOffset <= 8 * b + k < dstOffset + bits) ==>
  @   (bitSet(dst[b], k) <==> bitSet(\old(dst[b]), k));
  @*/
static inline void detailCopyBitsLoop(unsigned char* dst, const unsigned char* src, int bits,
                                      int dstOffset, int srcOffset)
    /*@ ghost (int dstLen, int srcLen) */ {
  /*@ loop invariant 0 <= bits <= \at(bits, Pre);
    @ loop invariant dstOffset == \at(dstOffset + bits, Pre) - bits;
    @ loop invariant srcOffset == \at(srcOffset + bits, Pre) - bits;
    @ loop invariant copied: \forall integer b, k, c, l;
    @   paired(b, k, \at(dstOffset, Pre), c, l, \at(srcOffset, Pre)) ==>
    @   \at(dstOffset, Pre) <= 8 * b + k < dstOffset ==>
    @   (bitSet(dst[b], k) <==> bitSet(\at(src[c], Pre), l));
    @ loop invariant kept: \forall integer b, k; 0 <= b < dstLen && 0 <= k < 8 &&
    @   !(\at(dstOffset, Pre) <= 8 * b + k < dstOffset) ==>
    @   (bitSet(dst[b], k) <==> bitSet(\at(dst[b], Pre), k));
    @ loop assigns dst[0 .. dstLen - 1], bits, dstOffset, srcOffset;
    @ loop variant bits;
    @*/
  while (bits > 0) {
    const int intoByte = detailByteOf(dstOffset);
    const int fromByte = detailByteOf(srcOffset);
    const int intoBit = dstOffset - 8 * intoByte;
    const int fromBit = srcOffset - 8 * fromByte;
    int count = 8 - (intoBit > fromBit ? intoBit : fromBit);
    if (count > bits) {
      count = bits;
    }
    /*@ assert oneByteEach: \forall integer b, k, c, l;
      @   paired(b, k, \at(dstOffset, Pre), c, l, \at(srcOffset, Pre)) ==>
      @   dstOffset <= 8 * b + k < dstOffset + count ==>
      @   b == intoByte && c == fromByte && paired(0, k, intoBit, 0, l, fromBit);
      @*/
    dst[intoByte] = detailMergeBits(dst[intoByte], src[fromByte], count, intoBit, fromBit);
    dstOffset += count;
    srcOffset += count;
    bits -= count;
  }
}

#endif
