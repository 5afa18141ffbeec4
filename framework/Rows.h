#pragma once

#include <array>
#include <iterator>

#include "AsicUtils/EntrySpans.h"
#include "framework/ChipSet.h"
#include "framework/ValueTypes.h"

// The row types of tables/. Rows are data: RowChecks.h checks them and TableData.h turns them into
// what the engine reads, both at compile time. Nothing here needs the headers that are derived from
// the rows.

namespace Velmar {
namespace Framework {

using Catalogue::BitRange;
using Catalogue::Geometry;
using Catalogue::Kind;
using Catalogue::Variants;

/// A cell of a layout: the chips of the column do not have the field. A cell that is left out is
/// all zero and is refused.
constexpr BitRange none = {0xffff, 0xffff};

constexpr bool isPresent(BitRange range) { return range.width != none.width; }
constexpr U32 endOf(BitRange range) { return U32{range.offset} + range.width; }
constexpr bool shareBits(BitRange a, BitRange b) {
  return isPresent(a) && isPresent(b) && a.offset < endOf(b) && b.offset < endOf(a);
}

/// Whether a field deliberately shares bits with others: a row marked `alias` covers bits of other
/// rows.
enum class Overlap : U8 { disjoint, marked };
constexpr Overlap alias = Overlap::marked;

/// The port of a field that is of no port family.
constexpr U16 noPort = 0xffff;

/// One field: its identifier and its place in each layout column.
template <U32 columns>
struct FieldRow {
  U32 id;
  BitRange ranges[columns];
  Overlap overlap = Overlap::disjoint;
  U16 port = noPort;  ///< set by portRows: the number that ends the accessor
};

/// A family of per-port fields: the fields follow each other from the first one on, each of
/// bitsPerPort bits, and a column has as many of them as it has ports.
template <U32 columns>
struct PortRule {
  U32 firstId;    ///< identifier of the field at bit 0; the others have the identifiers after it
  U16 firstPort;  ///< port of that field; the others have the ports after it
  U16 bitsPerPort;
  U16 ports[columns];
};

/// The rows of a port family that declares `declared` fields.
template <U32 declared, U32 columns>
constexpr std::array<FieldRow<columns>, declared> portRows(const PortRule<columns>& rule) {
  std::array<FieldRow<columns>, declared> rows{};
  for (U32 i = 0; i < declared; ++i) {
    rows[i].id = rule.firstId + i;
    rows[i].port = static_cast<U16>(rule.firstPort + i);
    for (U32 column = 0; column < columns; ++column) {
      const U16 offset = static_cast<U16>(rule.bitsPerPort * i);
      rows[i].ranges[column] = i < rule.ports[column] ? BitRange{offset, rule.bitsPerPort} : none;
    }
  }
  return rows;
}

constexpr Variants anyVariant = Variants::any;
constexpr Variants variantZero = Variants::zeroOnly;

/// Chips that share everything.
struct ChipRow {
  ChipSet chips;
  U8 column;  ///< layout column
  Variants variants;
  U16 words;       ///< size of an entry in 32-bit words
  U32 entries;     ///< number of entries; 1 for a register array
  U32 base;        ///< S-channel address of the first entry or element
  U32 accessType;  ///< S-channel access code
};

/// What is true of a chip in every class.
struct ChipFacts {
  ChipType_ chip;
  U32 identifierTerm;       ///< added to the address of a memory per identifier
  U32 registerStride;       ///< address distance between the elements of a register array
  U32 registerIdentifiers;  ///< number of identifiers that a register array accepts, from 0
  bool mayHaveVariants;     ///< whether a class may be limited to variant 0
};

/// The pipeline block of an object, as S-channel messages encode it.
enum class Block : U8 { ingress = 1, egress = 2 };
constexpr Block ingress = Block::ingress;
constexpr Block egress = Block::egress;

/// What is true of a class on every chip.
struct ClassRow {
  const char* purpose;  ///< one line: what the memory or register holds
  Block block;
  U32 elements = 1;        ///< number of elements of a register array
  U16 allFieldsBytes = 0;  ///< buffer bytes that getAllFields needs; 0: those of its raw type
};

/// One row of a class's list of names.
struct FieldName {
  const char* accessor;
  const char* capitalised;
  const char* hardwareName;
  U32 id;
  ValueType type;
  const char* meaning;
};

/// One span member of a class: the chip it is named after, and the member.
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

/// The number of layout columns.
template <class FieldRows>
constexpr U32 columnsOf(const FieldRows& fieldRows) {
  return static_cast<U32>(std::size(std::begin(fieldRows)->ranges));
}

/// The layout row of a field; the first row where the field has none.
template <class FieldRows>
constexpr const auto& fieldRowOf(const FieldRows& fieldRows, U32 id) {
  for (const auto& row : fieldRows) {
    if (row.id == id) return row;
  }
  return *std::begin(fieldRows);
}

/// The facts of a chip; all zero if there is no row for it.
template <class AllChipFacts>
constexpr ChipFacts factsOf(const AllChipFacts& chipFacts, U32 chipType) {
  for (const ChipFacts& facts : chipFacts) {
    if (facts.chip == chipType) return facts;
  }
  return {};
}

}  // namespace Framework
}  // namespace Velmar

/// A row of names as a FieldName.
#define VELMAR_FIELD_NAME(accessor, Accessor, HARDWARE_NAME, TYPE, meaning) \
  {#accessor,                                                               \
   #Accessor,                                                               \
   #HARDWARE_NAME,                                                          \
   ::Velmar::FieldId::HARDWARE_NAME,                                        \
   ::Velmar::Framework::valueTypeOf<VELMAR_VALUE_##TYPE>,                   \
   meaning},
