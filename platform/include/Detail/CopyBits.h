#pragma once

#include <cstring>

#include "AsicUtils/Types.h"
#include "Detail/CopyBitsLoop.h"

// The bit copy works through a window of up to 8 bytes that always lies inside the buffer: it is
// read, and for a destination written back, as one little-endian integer.
static_assert(__BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__,
              "the bit copy reads entries as little-endian integers");

namespace Detail {

/// Bytes of a window, where the buffer is that long.
constexpr U32 windowBytes = 8;
/// The most bits that one window takes at any offset, and one on a multiple of 4 bytes.
constexpr U32 windowBits = 57;
constexpr U32 alignedBits = 33;

/// These few lines are the body of every accessor: inline them whatever the compiler thinks.
#define DETAIL_INLINE [[gnu::always_inline]] inline

template <class T>
DETAIL_INLINE T loadBytes(const U8* from) {
  T value;
  std::memcpy(&value, from, sizeof(value));
  return value;
}

template <class T>
DETAIL_INLINE void storeBytes(U8* into, T value) {
  std::memcpy(into, &value, sizeof(value));
}

/// A whole buffer of 1 to 7 bytes as an integer.
DETAIL_INLINE U64 loadShort(const U8* from, U32 len) {
  if (len >= 4) {
    return loadBytes<U32>(from) | static_cast<U64>(loadBytes<U32>(from + len - 4)) << 8 * (len - 4);
  }
  if (len == 1) return from[0];
  return loadBytes<U16>(from) | static_cast<U64>(loadBytes<U16>(from + len - 2)) << 8 * (len - 2);
}

/// Writes a whole buffer of 1 to 7 bytes.
DETAIL_INLINE void storeShort(U8* into, U32 len, U64 value) {
  if (len >= 4) {
    storeBytes<U32>(into, static_cast<U32>(value));
    storeBytes<U32>(into + len - 4, static_cast<U32>(value >> 8 * (len - 4)));
  } else if (len == 1) {
    into[0] = static_cast<U8>(value);
  } else {
    storeBytes<U16>(into, static_cast<U16>(value));
    storeBytes<U16>(into + len - 2, static_cast<U16>(value >> 8 * (len - 2)));
  }
}

/// A byte from which a whole window lies inside the buffer: `start`, or as near as can be.
DETAIL_INLINE U32 windowStart(U32 len, U32 start) {
  return start < len - windowBytes ? start : len - windowBytes;
}

/// Up to 57 bits at `offset`, in the low bits of the result; the bits above are arbitrary.
DETAIL_INLINE U64 readWindow(const U8* src, U32 len, U32 offset) {
  if (len < windowBytes) return loadShort(src, len) >> offset;
  const U32 start = windowStart(len, offset / 8);
  return loadBytes<U64>(src + start) >> (offset - 8 * start);
}

/// Puts the low `bits` bits of `value` at `offset`, in a window from byte `start` or near it.
DETAIL_INLINE void writeWindow(U8* dst, U32 len, U32 start, U32 offset, U32 bits, U64 value) {
  const U64 mask = ~(~U64{0} << bits);
  if (len < windowBytes) {
    const U64 old = loadShort(dst, len);
    storeShort(dst, len, (old & ~(mask << offset)) | (value & mask) << offset);
    return;
  }
  start = windowStart(len, start);
  const U32 shift = offset - 8 * start;
  const U64 old = loadBytes<U64>(dst + start);
  storeBytes<U64>(dst + start, (old & ~(mask << shift)) | (value & mask) << shift);
}

/// The same for up to 33 bits, which a window on a multiple of 4 bytes holds wherever they are.
/// Writes side by side then meet in the same window, and none waits for a part of the one before.
DETAIL_INLINE void writeAligned(U8* dst, U32 len, U32 offset, U32 bits, U64 value) {
  writeWindow(dst, len, offset / 32 * 4, offset, bits, value);
}

/// 64 bits from bit `shift` (0 to 7) of the first byte; reads no byte beyond the last of them.
DETAIL_INLINE U64 read64(const U8* src, U32 shift) {
  // The ninth byte, or the eighth again where `shift` is 0 and it adds nothing.
  const U64 high = src[(shift + 63) / 8];
  return loadBytes<U64>(src) >> shift | high << 1 << (63 - shift);
}

/// Copies more bits than one window takes, 8 bytes of `dst` at a time. Of `dst` nothing is read but
/// the bytes that the range shares with other bits, so that no read waits for a write.
[[gnu::noinline]] inline void copyBitsWide(U8* dst, U32 dstLen, const U8* src, U32 srcLen, U32 bits,
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
  const U32 below = dstOffset % 8;                      // bits of the first byte that stay
  const U32 above = 8 * (last + 1) - dstOffset - bits;  // bits of the last byte that stay
  const U32 end = srcOffset + bits - 64;                // the last 64 bits
  const U64 head = read64(src + srcOffset / 8, srcOffset % 8) << below;
  const U64 tail = read64(src + end / 8, end % 8) >> above;
  const U64 firstByte = dst[first] & ((1U << below) - 1);
  const U64 lastByte = dst[last] & ~(0xffU >> above);

  storeBytes<U64>(dst + first, head | firstByte);
  const U32 next = srcOffset + 64 - below;
  const U8* from = src + next / 8;
  for (U32 into = first + 8; into < last - 7; into += 8, from += 8) {
    storeBytes<U64>(dst + into, read64(from, next % 8));
  }
  storeBytes<U64>(dst + last - 7, tail | lastByte << 56);
}

/// Copies `bits` bits from bit `srcOffset` of `src` to bit `dstOffset` of `dst`. Lengths are in
/// bytes; bit n of a buffer is bit n % 8 of byte n / 8. The bits of `dst` outside the range stay as
/// they are. Both ranges must lie inside their buffers and the buffers must not overlap; nothing
/// outside the buffers is read or written, and neither needs any alignment.
DETAIL_INLINE void copyBits(U8* dst, int dstLen, const U8* src, int srcLen, int bits, int dstOffset,
                            int srcOffset) {
  const U32 into = static_cast<U32>(dstOffset);
  const U32 from = static_cast<U32>(srcOffset);
  const U32 count = static_cast<U32>(bits);
  const U32 intoLen = static_cast<U32>(dstLen);
  const U32 fromLen = static_cast<U32>(srcLen);
  if (count - 1 < alignedBits) {
    writeAligned(dst, intoLen, into, count, readWindow(src, fromLen, from));
  } else if (count - 1 < windowBits) {
    writeWindow(dst, intoLen, into / 8, into, count, readWindow(src, fromLen, from));
  } else if (bits > 0) {
    copyBitsWide(dst, intoLen, src, fromLen, count, into, from);
  }
}

#undef DETAIL_INLINE

}  // namespace Detail
