#pragma once

#include <cstring>

#include "AsicUtils/Types.h"

// The bit copy works through a window of up to 8 bytes that always lies inside the buffer: it is
// read, and for a destination written back, as one little-endian integer.
static_assert(__BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__,
              "the bit copy reads entries as little-endian integers");

namespace Detail {

/// Bytes of a window, if the buffer is that long.
constexpr U32 windowBytes = 8;
/// The most bits that fit a window at any offset, and a window on a multiple of 4 bytes.
constexpr U32 windowBits = 57;
constexpr U32 alignedBits = 33;

/// Always inlined, so that a caller that knows a width or a length gets only the lines it needs.
#define DETAIL_INLINE [[gnu::always_inline]] inline

// The copy touches data only through these two, and otherwise only shifts, masks and joins words:
// the rest is generic over the memory, so that a test can run it on symbolic bits.

/// `count` bytes as an integer.
template <int count>
DETAIL_INLINE U64 loadBytes(const U8* from) {
  U64 value = 0;
  std::memcpy(&value, from, count);
  return value;
}

/// Writes the low `count` bytes of `value`.
template <int count>
DETAIL_INLINE void storeBytes(U8* into, U64 value) {
  std::memcpy(into, &value, count);
}

/// A whole buffer of 1 to 7 bytes as an integer.
template <class Memory>
DETAIL_INLINE auto loadShort(Memory from, U32 len) {
  if (len >= 4) return loadBytes<4>(from) | loadBytes<4>(from + (len - 4)) << 8 * (len - 4);
  if (len == 1) return loadBytes<1>(from);
  return loadBytes<2>(from) | loadBytes<2>(from + (len - 2)) << 8 * (len - 2);
}

/// Writes a whole buffer of 1 to 7 bytes.
template <class Memory, class Word>
DETAIL_INLINE void storeShort(Memory into, U32 len, Word value) {
  if (len >= 4) {
    storeBytes<4>(into, value);
    storeBytes<4>(into + (len - 4), value >> 8 * (len - 4));
  } else if (len == 1) {
    storeBytes<1>(into, value);
  } else {
    storeBytes<2>(into, value);
    storeBytes<2>(into + (len - 2), value >> 8 * (len - 2));
  }
}

/// The byte nearest to `start` from which a whole window lies inside the buffer.
DETAIL_INLINE U32 windowStart(U32 len, U32 start) {
  return start < len - windowBytes ? start : len - windowBytes;
}

/// Up to 57 bits at `offset`, in the low bits of the result; the bits above are arbitrary.
template <class Memory>
DETAIL_INLINE auto readWindow(Memory src, U32 len, U32 offset) {
  if (len < windowBytes) return loadShort(src, len) >> offset;
  const U32 start = windowStart(len, offset / 8);
  return loadBytes<8>(src + start) >> (offset - 8 * start);
}

/// Puts the low `bits` bits of `value` at `offset`, in a window from byte `start` or near it.
template <class Memory, class Word>
DETAIL_INLINE void writeWindow(Memory dst, U32 len, U32 start, U32 offset, U32 bits, Word value) {
  const U64 mask = ~(~U64{0} << bits);
  if (len < windowBytes) {
    const Word old = loadShort(dst, len);
    storeShort(dst, len, (old & ~(mask << offset)) | (value & mask) << offset);
    return;
  }
  start = windowStart(len, start);
  const U32 shift = offset - 8 * start;
  const Word old = loadBytes<8>(dst + start);
  storeBytes<8>(dst + start, (old & ~(mask << shift)) | (value & mask) << shift);
}

/// The same for up to 33 bits, which a window on a multiple of 4 bytes holds at any offset.
/// Adjacent writes then use the same window, so that none waits for part of the one before.
template <class Memory, class Word>
DETAIL_INLINE void writeAligned(Memory dst, U32 len, U32 offset, U32 bits, Word value) {
  writeWindow(dst, len, offset / 32 * 4, offset, bits, value);
}

/// Copies more bits than one window takes. From 64 bits on, the only bytes of `dst` that it reads
/// are those that the range shares with other bits, so that no read waits for a write.
template <class Into, class From>
[[gnu::noinline]] void copyBitsWide(Into dst, U32 dstLen, From src, U32 srcLen, U32 bits,
                                    U32 dstOffset, U32 srcOffset) {
  if (bits < 64) {
    const U32 half = bits / 2;
    writeAligned(dst, dstLen, dstOffset, half, readWindow(src, srcLen, srcOffset));
    writeAligned(dst, dstLen, dstOffset + half, bits - half,
                 readWindow(src, srcLen, srcOffset + half));
    return;
  }
  const U32 first = dstOffset / 8;
  const U32 last = (dstOffset + bits - 1) / 8;
  const U32 below = dstOffset % 8;                      // bits of the first byte to keep
  const U32 above = 8 * (last + 1) - dstOffset - bits;  // bits of the last byte to keep
  const U32 end = srcOffset + bits - 1;                 // the last bit
  const auto firstByte = loadBytes<1>(dst + first) & ((1U << below) - 1);
  const auto lastByte = loadBytes<1>(dst + last) & ~(0xffU >> above);
  // The last seven bytes. A read has at least 57 bits of the range.
  const auto tail = loadBytes<8>(src + (end / 8 - 7)) << (7 - end % 8) >> above >> 8;

  // Of eight bytes that are written, the next write covers the last.
  storeBytes<8>(dst + first,
                loadBytes<8>(src + srcOffset / 8) >> srcOffset % 8 << below | firstByte);
  const U32 next = srcOffset + 56 - below;
  From from = src + next / 8;
  for (U32 into = first + 7; into < last - 6; into += 7, from = from + 7) {
    storeBytes<8>(dst + into, loadBytes<8>(from) >> next % 8);
  }
  storeBytes<4>(dst + (last - 6), tail);
  storeBytes<4>(dst + (last - 3), tail >> 24 | lastByte << 24);
}

/// copyBits(), generic over the memory.
template <class Into, class From>
DETAIL_INLINE void moveBits(Into dst, U32 dstLen, From src, U32 srcLen, U32 bits, U32 dstOffset,
                            U32 srcOffset) {
  if (bits - 1 < alignedBits) {
    writeAligned(dst, dstLen, dstOffset, bits, readWindow(src, srcLen, srcOffset));
  } else if (bits - 1 < windowBits) {
    writeWindow(dst, dstLen, dstOffset / 8, dstOffset, bits, readWindow(src, srcLen, srcOffset));
  } else if (bits > 0) {
    copyBitsWide(dst, dstLen, src, srcLen, bits, dstOffset, srcOffset);
  }
}

/// Copies `bits` bits from bit `srcOffset` of `src` to bit `dstOffset` of `dst`. Lengths are in
/// bytes; bit n of a buffer is bit n % 8 of byte n / 8. The bits of `dst` outside the range stay
/// unchanged. Both ranges must lie inside their buffers and the buffers must not overlap; nothing
/// outside the buffers is read or written, and neither needs any alignment.
DETAIL_INLINE void copyBits(U8* dst, int dstLen, const U8* src, int srcLen, int bits, int dstOffset,
                            int srcOffset) {
  moveBits(dst, static_cast<U32>(dstLen), src, static_cast<U32>(srcLen), static_cast<U32>(bits),
           static_cast<U32>(dstOffset), static_cast<U32>(srcOffset));
}

#undef DETAIL_INLINE

}  // namespace Detail
