#pragma once

#include <array>

#include "Velmar/FieldId.h"
#include "framework/ChipCatalogue.h"

// The words in which tables/ describes a memory or register. Rows are data: they are proved by
// Proofs.h and turned into what the engine reads by TableData.h, both when compiled.

namespace Velmar {
namespace Framework {

/// Where a field lies in an entry, in bits. A cell that was left out is all zero and is refused.
struct BitRange {
  U16 offset = 0;
  U16 width = 0;
};

/// The field does not exist on the chips of the column.
constexpr BitRange none = {0xffff, 0xffff};

constexpr bool isPresent(BitRange range) { return range.width != none.width; }
constexpr U32 endOf(BitRange range) { return U32{range.offset} + range.width; }

/// Whether a field may share bits with others: a row marked `alias` names bits that other rows
/// name.
enum class Overlap : U8 { disjoint, marked };
constexpr Overlap alias = Overlap::marked;

/// One field: its identifier and its place in each layout column.
template <U32 columns>
struct FieldRow {
  U32 id;
  BitRange ranges[columns];
  Overlap overlap = Overlap::disjoint;
};

/// A family of per-port fields, made by rule: port n lies at bitsPerPort * (n - firstPort), and a
/// column has the first so many of the declared ports.
template <U32 columns>
struct PortRule {
  U16 firstPort;
  U16 bitsPerPort;
  U16 ports[columns];
};

/// The rows of a port family that declares `declared` ports.
template <U32 declared, U32 columns>
constexpr std::array<FieldRow<columns>, declared> portRows(const PortRule<columns>& rule) {
  std::array<FieldRow<columns>, declared> rows{};
  for (U32 i = 0; i < declared; ++i) {
    rows[i].id = FieldId::firstPort + rule.firstPort + i;
    for (U32 column = 0; column < columns; ++column) {
      const U16 offset = static_cast<U16>(rule.bitsPerPort * i);
      rows[i].ranges[column] = i < rule.ports[column] ? BitRange{offset, rule.bitsPerPort} : none;
    }
  }
  return rows;
}

/// What a chip does with the variant of a class: ignore it, or know variant 0 only.
enum class Variants : U8 { any, zeroOnly };
constexpr Variants anyVariant = Variants::any;
constexpr Variants variantZero = Variants::zeroOnly;

/// One set of chips that share everything.
struct ChipRow {
  ChipSet chips;
  U8 column;  ///< layout column
  Variants variants;
  U16 width;            ///< entry width in 32-bit words
  U32 entries;          ///< number of entries; 1 for a register
  U32 base;             ///< S-channel address of the first entry or element
  U32 accessType;       ///< S-channel access code
  U32 addrStride = 0;   ///< registers: address distance between array elements
  U32 identifiers = 1;  ///< number of instance identifiers accepted, from 0
};

/// The pipeline block of an object, as the S-channel takes it.
enum class Block : U8 { ingress = 1, egress = 2 };
constexpr Block ingress = Block::ingress;
constexpr Block egress = Block::egress;

enum class Kind : U8 { table, registerArray };

/// What is true of a class on every chip.
struct ClassRow {
  const char* purpose;  ///< one line: what the memory or register holds
  Block block;
  U16 allFieldsBytes = 0;  ///< buffer bytes that getAllFields needs; 0: those of its raw type
};

/// Number of array elements of a register array; a table has one.
constexpr U32 registerArrayElements = 64;
/// On the bcm5699x chips a memory's address takes its identifier times this.
constexpr U32 identifierTerm = 1U << 14;

/// What a getter returns.
enum class ValueType : U8 { u8, u16, u32, u64, raw128, bitmap };

template <class T>
inline constexpr ValueType valueTypeOf = ValueType::bitmap;
template <>
inline constexpr ValueType valueTypeOf<U8> = ValueType::u8;
template <>
inline constexpr ValueType valueTypeOf<U16> = ValueType::u16;
template <>
inline constexpr ValueType valueTypeOf<U32> = ValueType::u32;
template <>
inline constexpr ValueType valueTypeOf<U64> = ValueType::u64;
template <>
inline constexpr ValueType valueTypeOf<Raw128> = ValueType::raw128;

constexpr bool isScalar(ValueType type) { return type <= ValueType::u64; }
/// Words of the widest bitmap that a field may be.
constexpr U32 mostBitmapWords = 9;

/// The most bits that a field of a value type may have.
constexpr U32 bitsOf(ValueType type) {
  switch (type) {
    case ValueType::u8:
      return 8;
    case ValueType::u16:
      return 16;
    case ValueType::u32:
      return 32;
    case ValueType::u64:
      return 64;
    case ValueType::raw128:
      return 128;
    case ValueType::bitmap:
      break;
  }
  return 32 * mostBitmapWords;
}

/// One row of a class's field list.
struct FieldEntry {
  const char* accessor;
  const char* capitalised;
  const char* hardwareName;
  U32 id;
  ValueType type;
  const char* meaning;
};

/// One span member of a class: the chip it is called after, and the member.
struct SpanMember {
  ChipType_ chip;
  const AsicUtils::EntrySpan* span;
};

/// The number of entries on a chip; 0 where no row has the chip.
template <class ChipRows>
constexpr U32 entriesOn(const ChipRows& chipRows, U32 chipType) {
  for (const ChipRow& row : chipRows) {
    if (row.chips.has(chipType)) return row.entries;
  }
  return 0;
}

}  // namespace Framework
}  // namespace Velmar
