#pragma once

#include <array>

#include "framework/Names.h"
#include "framework/TableData.h"

// Proofs that the rows of a table are sound, each a sentence that fails the compile. They look at
// rows only, so that one slip gives one error.

namespace Velmar {
namespace Framework {
namespace Proofs {

template <U32 fields>
constexpr bool namesDerive(const FieldEntry (&list)[fields]) {
  for (const FieldEntry& field : list) {
    char accessor[64] = {};
    writeAccessorName(accessor, field.hardwareName);
    if (!sameText(accessor, field.accessor)) return false;
    accessor[0] = toUpper(accessor[0]);
    if (!sameText(accessor, field.capitalised)) return false;
  }
  return true;
}

template <U32 fields, class FieldRows>
constexpr bool rowsMatchList(const FieldEntry (&list)[fields], const FieldRows& fieldRows) {
  U32 rows = 0;
  for (const auto& row : fieldRows) {
    ++rows;
    U32 found = 0;
    for (const FieldEntry& field : list) found += field.id == row.id;
    if (found != 1) return false;
  }
  // As many rows as fields, each row's field in the list once: no two rows may share a field.
  for (const FieldEntry& field : list) {
    U32 found = 0;
    for (const auto& row : fieldRows) found += field.id == row.id;
    if (found != 1) return false;
  }
  return rows == fields;
}

template <class FieldRows>
constexpr bool cellsAreFilled(const FieldRows& fieldRows) {
  for (const auto& row : fieldRows) {
    for (const BitRange range : row.ranges) {
      if (range.width == 0) return false;
    }
  }
  return true;
}

template <class FieldRows, class ChipRows>
constexpr bool fieldsFitEntries(const FieldRows& fieldRows, const ChipRows& chipRows) {
  for (const ChipRow& chips : chipRows) {
    for (const auto& row : fieldRows) {
      const BitRange range = row.ranges[chips.column];
      if (isPresent(range) && endOf(range) > 32U * chips.width) return false;
    }
  }
  return true;
}

/// Each scalar type is the smallest that holds the field on every column; raw data fits its type.
template <U32 fields, class FieldRows>
constexpr bool typesFitFields(const FieldEntry (&list)[fields], const FieldRows& fieldRows) {
  for (const FieldEntry& field : list) {
    U32 widest = 1;
    for (const BitRange range : fieldRowOf(fieldRows, field.id).ranges) {
      if (isPresent(range) && range.width > widest) widest = range.width;
    }
    if (widest > bitsOf(field.type)) return false;
    if (isScalar(field.type) && field.type != ValueType::u8 && widest <= bitsOf(field.type) / 2) {
      return false;
    }
  }
  return true;
}

/// The most bits of an entry that any raw type holds.
constexpr U32 mostBits = 32 * 32;

/// How many fields name each bit of a column.
template <class FieldRows>
constexpr std::array<U8, mostBits> namesOfBits(const FieldRows& fieldRows, U32 column,
                                               bool countAliases) {
  std::array<U8, mostBits> names{};
  for (const auto& row : fieldRows) {
    const BitRange range = row.ranges[column];
    if (!isPresent(range) || (row.overlap == Overlap::marked && !countAliases)) continue;
    for (U32 bit = range.offset; bit < endOf(range) && bit < mostBits; ++bit) ++names[bit];
  }
  return names;
}

/// No two unmarked fields share a bit, and every marked one does share bits with another.
template <class FieldRows>
constexpr bool overlapsAreMarked(const FieldRows& fieldRows, U32 columns) {
  for (U32 column = 0; column < columns; ++column) {
    for (const U8 names : namesOfBits(fieldRows, column, false)) {
      if (names > 1) return false;
    }
  }
  for (const auto& row : fieldRows) {
    bool shares = row.overlap == Overlap::disjoint;
    for (U32 column = 0; column < columns && !shares; ++column) {
      const BitRange range = row.ranges[column];
      if (!isPresent(range)) continue;
      const auto names = namesOfBits(fieldRows, column, true);
      for (U32 bit = range.offset; bit < endOf(range) && bit < mostBits; ++bit) {
        shares = shares || names[bit] > 1;
      }
    }
    if (!shares) return false;
  }
  return true;
}

template <U32 rows>
constexpr bool chipsAreOnce(const ChipRow (&chipRows)[rows]) {
  for (const ChipRow& row : chipRows) {
    if (row.chips.lowest() == 64) return false;
  }
  for (const ChipName& chip : chipNames) {
    U32 found = 0;
    for (const ChipRow& row : chipRows) found += row.chips.has(chip.number);
    if (found > 1) return false;
  }
  return true;
}

template <U32 rows>
constexpr bool columnsAreUsed(const ChipRow (&chipRows)[rows], U32 columns) {
  for (const ChipRow& row : chipRows) {
    if (row.column >= columns) return false;
  }
  for (U32 column = 0; column < columns; ++column) {
    U32 found = 0;
    for (const ChipRow& row : chipRows) found += row.column == column;
    if (found == 0) return false;
  }
  return true;
}

/// A row is all bcm5699x chips or none; only those have variants.
template <U32 rows>
constexpr bool generationsAreApart(const ChipRow (&chipRows)[rows]) {
  for (const ChipRow& row : chipRows) {
    const bool late = bcm5699x.has(row.chips.lowest());
    for (const ChipName& chip : chipNames) {
      if (row.chips.has(chip.number) && bcm5699x.has(chip.number) != late) return false;
    }
    if (row.variants == Variants::zeroOnly && !late) return false;
  }
  return true;
}

template <U32 rows>
constexpr bool shapesAreSound(Kind kind, const ChipRow (&chipRows)[rows]) {
  for (const ChipRow& row : chipRows) {
    if (row.width == 0 || row.entries == 0 || row.identifiers == 0) return false;
    if (kind == Kind::table && (row.addrStride != 0 || row.identifiers != 1)) return false;
    if (kind == Kind::registerArray && (row.addrStride == 0 || row.entries != 1)) return false;
    if (kind == Kind::registerArray && row.variants != Variants::any) return false;
  }
  return true;
}

/// The raw type is the smallest of 1, 2, 4, 8, 16 and 32 words that holds the widest entry, and
/// getAllFields needs at least the widest entry and at most the raw type.
template <U32 rows>
constexpr bool rawTypeFits(U32 rawWords, U16 allFieldsBytes, const ChipRow (&chipRows)[rows]) {
  U32 widest = 0;
  for (const ChipRow& row : chipRows) widest = row.width > widest ? row.width : widest;
  U32 smallest = 1;
  while (smallest < widest) smallest *= 2;
  return rawWords == smallest &&
         (allFieldsBytes == 0 || (allFieldsBytes >= 4 * widest && allFieldsBytes < 4 * rawWords));
}

/// Every number of entries has its one span member, called after a chip that has as many.
template <U32 rows, U32 spans>
constexpr bool spansMatchEntries(Kind kind, const ChipRow (&chipRows)[rows],
                                 const SpanMember (&members)[spans]) {
  for (const ChipRow& row : chipRows) {
    U32 found = 0;
    for (const SpanMember& member : members) {
      if (member.span != nullptr) found += entriesOn(chipRows, member.chip) == row.entries;
    }
    if (found != (kind == Kind::table ? 1 : 0)) return false;
  }
  for (const SpanMember& member : members) {
    if (member.span != nullptr && entriesOn(chipRows, member.chip) == 0) return false;
  }
  return true;
}

constexpr bool blockFitsName(Block block, const char* name) {
  const bool isEgress = name[0] == 'E' && name[1] == 'g' && name[2] == 'r';
  return isEgress == (block == Block::egress);
}

}  // namespace Proofs
}  // namespace Framework
}  // namespace Velmar
