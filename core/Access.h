#pragma once

#include <algorithm>
#include <cstring>
#include <optional>

#include "Detail/CopyBits.h"
#include "Velmar/Catalogue.h"

// Bits and addresses of entries, for the loops that must be fast: inline, and without checks.

namespace Velmar {
namespace Core {

/// Reads a range of bits of an entry into the low bits of `value`, whose other bits stay.
[[gnu::always_inline]] inline void readBits(const U8* entry, U32 entryBytes, U32 offset, U32 width,
                                            void* value, U32 valueBytes) {
  Detail::copyBits(static_cast<U8*>(value), static_cast<int>(valueBytes), entry,
                   static_cast<int>(entryBytes), static_cast<int>(width), 0,
                   static_cast<int>(offset));
}

/// A range of bits that lies in 8 bytes of an entry, for columns of many entries.
struct Window {
  U32 byte;   ///< the first one
  U32 shift;  ///< of the range in the bytes
  U64 mask;

  U64 read(const U8* entry) const {
    U64 bytes;
    std::memcpy(&bytes, entry + byte, sizeof(bytes));
    return bytes >> shift & mask;
  }
};
/// Nothing if the entry or the range does not allow it.
inline std::optional<Window> windowOf(U32 entryBytes, U32 offset, U32 width) {
  constexpr U32 bytes = sizeof(U64);
  if (entryBytes < bytes || width > 63) return std::nullopt;
  const U32 byte = std::min(offset / 8, entryBytes - bytes);
  const U32 shift = offset - 8 * byte;
  if (shift + width > 8 * bytes) return std::nullopt;
  return Window{byte, shift, (U64{1} << width) - 1};
}

/// Writes the low bits of `value` to a range of bits of an entry.
[[gnu::always_inline]] inline void writeBits(U8* entry, U32 entryBytes, U32 offset, U32 width,
                                             const void* value, U32 valueBytes) {
  Detail::copyBits(entry, static_cast<int>(entryBytes), static_cast<const U8*>(value),
                   static_cast<int>(valueBytes), static_cast<int>(width), static_cast<int>(offset),
                   0);
}

inline void setBit(U8* mask, U32 bit) {
  mask[bit / 8] = static_cast<U8>(mask[bit / 8] | 1U << bit % 8);
}

/// Sets the bits of an entry's mask that belong to a field of the chip, and clears the others.
inline void fieldMask(const Catalogue::Table& table, const Catalogue::Chip& chip, U8* mask) {
  const U32 bytes = 4U * table.geometry(chip.number).words;
  for (U32 i = 0; i < bytes; ++i) mask[i] = 0;
  constexpr U32 ones[] = {~U32{0}, ~U32{0}};
  for (U32 i = 0; i < table.fieldCount(); ++i) {
    const Catalogue::BitRange range = table.range(i, chip.number);
    for (U32 at = 0; at < range.width; at += 64) {
      writeBits(mask, bytes, range.offset + at, std::min(range.width - at, 64U), ones,
                sizeof(ones));
    }
  }
}

/// Number of entries of a table, or of elements of a register array: one of the two is 1.
inline U32 indexCount(const Catalogue::Geometry& geometry) { return geometry.indexCount(); }

/// Address of an entry of a table, or of an element of a register array.
inline U32 addressOf(const Catalogue::Geometry& geometry, U32 index, U32 identifier) {
  return geometry.addressOfIndex(index, identifier);
}

/// The entry or element that has an address with an identifier.
inline std::optional<U32> indexAt(const Catalogue::Geometry& geometry, U32 address,
                                  U32 identifier) {
  const U32 index = geometry.indexAt(address, identifier);
  return index < geometry.indexCount() ? std::optional<U32>(index) : std::nullopt;
}

}  // namespace Core
}  // namespace Velmar
