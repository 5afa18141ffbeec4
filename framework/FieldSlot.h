#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "framework/Rows.h"

// Where a field lies on one row, and how the fast path reads and writes a value there.

namespace Velmar {
namespace Framework {

static_assert(__BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__,
              "entries are read as little-endian integers");

/// One field on one row. The last row, and a field that the row lacks, hold an absent slot.
struct FieldSlot {
  U16 offset = 0;  ///< first bit
  U16 width = 0;   ///< bits; 0: absent
  /// The last byte of the field's window: the fast path takes buffers that are longer than this. A
  /// field that fits no window, and an absent one, need more than any buffer has.
  U16 slowLen = 0xffff;
  U8 shift = 0;          ///< the field's first bit in its window
  U8 acceptedBits = 64;  ///< values below 2^(this) are accepted
};

/// The buffer length in bytes that a present field needs.
constexpr U32 bytesUpTo(const FieldSlot& slot) { return (U32{slot.offset} + slot.width + 7) / 8; }

/// Chooses a field's window inside the entry: on a multiple of 8 bytes if it can be, else of 4.
/// Fields in the same window are set one after the other at full speed; a read of a window that was
/// written in parts waits for them.
constexpr void setWindow(FieldSlot& slot, U32 entryBytes, U32 windowBytes) {
  const U32 last = entryBytes < windowBytes ? 0 : entryBytes - windowBytes;
  for (const U32 start : {slot.offset / 64U * 8, slot.offset / 32U * 4, slot.offset / 8U}) {
    const U32 first = std::min(start, last);
    const U32 shift = slot.offset - 8 * first;
    if (shift + slot.width > 8 * windowBytes) continue;
    slot.slowLen = static_cast<U16>(first + windowBytes - 1);
    slot.shift = static_cast<U8>(shift);
    return;
  }
}

constexpr FieldSlot makeSlot(BitRange range, U32 entryBytes, U32 windowBytes) {
  FieldSlot slot;
  if (!isPresent(range)) return slot;
  slot.offset = range.offset;
  slot.width = range.width;
  setWindow(slot, entryBytes, windowBytes);
  // A width of whole bytes takes any value of the field's type, and the bits that do not fit are
  // dropped: callers rely on it for the fields that are narrower on some chips.
  if (range.width < 64 && range.width % 8 != 0) slot.acceptedBits = static_cast<U8>(range.width);
  return slot;
}

struct LowBits {
  U64 ofWidth[65] = {};
  constexpr LowBits() {
    for (U32 bits = 1; bits <= 64; ++bits) ofWidth[bits] = ~U64{0} >> (64 - bits);
  }
};
inline constexpr LowBits lowBitsTable;

/// 2^bits - 1, for up to 64 bits. A load is cheaper than shifts by a variable, which on Intel's
/// machines take two operations each on the units that branches need.
constexpr U64 lowBits(std::size_t bits) { return lowBitsTable.ofWidth[bits]; }

/// The largest value that a field's setter accepts.
constexpr U64 largestValue(const FieldSlot& slot) { return lowBits(slot.acceptedBits); }

/// The value of a field in a buffer that is longer than its slowLen.
template <class Window>
U64 readWindow(const U8* buf, const FieldSlot& slot) {
  Window window;
  std::memcpy(&window, buf + slot.slowLen + 1 - sizeof(window), sizeof(window));
  return window >> slot.shift & lowBits(slot.width);
}

/// Writes a value that fits the field.
template <class Window>
void writeWindow(U8* buf, const FieldSlot& slot, U64 value) {
  const U64 mask = lowBits(slot.width);
  const U32 shift = slot.shift;
  U8* const at = buf + slot.slowLen + 1 - sizeof(Window);
  Window window;
  std::memcpy(&window, at, sizeof(window));
  window = static_cast<Window>((window & ~(mask << shift)) | value << shift);
  std::memcpy(at, &window, sizeof(window));
}

}  // namespace Framework
}  // namespace Velmar
