#pragma once

#include <array>
#include <cstddef>

#include "AsicUtils/EntrySpans.h"
#include "framework/LayoutRows.h"

// What the engine reads, made from the rows of tables/ when compiled. A chip row of a table becomes
// a "row" here; one more row, the last, stands for every chip and variant that the class lacks.

namespace Velmar {
namespace Framework {

/// One field on one row. The last row, and a field that the row lacks, hold an absent slot.
struct FieldSlot {
  U16 offset = 0;  ///< first bit
  U16 width = 0;   ///< bits; 0: absent
  U16 straightLen =
      0xffff;            ///< a longer buffer holds the field and a whole window; absent: none does
  U8 uncheckedBits = 0;  ///< values up to 2^(64 - this) - 1 are accepted
};

/// The bytes that a buffer needs to hold a field that is present.
constexpr U32 bytesUpTo(const FieldSlot& slot) { return (U32{slot.offset} + slot.width + 7) / 8; }

constexpr FieldSlot makeSlot(BitRange range) {
  FieldSlot slot;
  if (!isPresent(range)) return slot;
  slot.offset = range.offset;
  slot.width = range.width;
  const U32 bytes = bytesUpTo(slot);
  slot.straightLen = static_cast<U16>((bytes < plainCopyBytes ? plainCopyBytes : bytes) - 1);
  // Widths of whole bytes take any value of their type.
  if (range.width < 64 && range.width % 8 != 0)
    slot.uncheckedBits = static_cast<U8>(64 - range.width);
  return slot;
}

/// The largest value that a field's setter accepts.
constexpr U64 largestValue(const FieldSlot& slot) { return ~U64{0} >> slot.uncheckedBits; }

/// Geometry and address of one row. The names are those of the public members that return them.
struct RowFacts {
  Variants variants = Variants::any;
  U16 width = 0;
  U32 entries = 0;
  U32 arrayElements = 0;
  U32 addrStride = 0;
  U32 fieldCount = 0;
  U32 base = 0;
  U32 accessType = 0;
  U32 identifiers = 0;
  U32 identifierTerm = 0;  ///< what an identifier adds to the address
  const AsicUtils::EntrySpan* span = nullptr;

  static constexpr U32 index_min = 0;
  static constexpr U32 arrayIndex_min = 0;
  static constexpr U32 instanceCount = 1;
  static constexpr U32 maxIdentifier = 0;
};

/// What is kept of a row of the field list.
struct FieldFacts {
  U16 id = 0;
  ValueType type = ValueType::u8;
  Overlap overlap = Overlap::disjoint;
  const char* meaning = nullptr;
};

/// The chips are numbered below this in a view; any other number is unknown.
constexpr U32 chipTypes = 256;

/// Row of each chip, for variant 0 and for every other variant.
struct RowIndex {
  U8 row[chipTypes][2];
};

/// The identifiers from the lowest to the highest that a class declares.
struct IdRange {
  U32 first;
  U32 count;
};

template <U32 fields>
constexpr IdRange idRangeOf(const FieldEntry (&list)[fields]) {
  U32 lowest = list[0].id;
  U32 highest = lowest;
  for (const FieldEntry& field : list) {
    if (field.id < lowest) lowest = field.id;
    if (field.id > highest) highest = field.id;
  }
  return {lowest, highest - lowest + 1};
}

template <U32 fields_, U32 rows_, U32 rawWords_, U32 ids_>
struct TableData {
  static_assert(fields_ < 256 && rows_ < 256, "fields and rows are numbered by bytes");
  static constexpr U32 fields = fields_;
  static constexpr U32 rows = rows_;
  static constexpr U32 rawWords = rawWords_;
  /// Families of many alike fields share one routine instead of each having its own copy.
  static constexpr bool shareRoutines = fields_ > 64;

  RowIndex rowIndex{};
  FieldSlot slots[(fields_ + 1) * (rows_ + 1)]{};  ///< by field, then row; the last field is absent
  RowFacts facts[rows_ + 1]{};
  U32 masks[rows_][rawWords_]{};
  FieldFacts fieldFacts[fields_]{};
  U32 firstId = 0;
  U8 fieldOfId[ids_]{};  ///< by identifier, from firstId; `fields` where the class lacks it

  constexpr U32 rowOf(U32 chipType, U8 variant) const {
    return chipType < chipTypes ? rowIndex.row[chipType][variant != 0] : rows_;
  }
  /// Called with full-width indices, which the compiler folds into one address.
  constexpr const FieldSlot& slot(std::size_t field, std::size_t row) const {
    return slots[field * (rows_ + 1) + row];
  }
};

/// A class's data without its sizes, for the paths that need not be fast and for the catalogue.
struct ClassData {
  const char* name;
  const char* purpose;
  U32 line;  ///< source line of the class's members
  Kind kind;
  Block block;
  U16 allFieldsBytes;
  U32 fields;
  U32 rows;
  U32 rawWords;
  const RowIndex* rowIndex;
  const FieldSlot* slots;  ///< (fields + 1) x (rows + 1)
  const RowFacts* facts;   ///< rows + 1
  const U32* masks;        ///< rows x rawWords
  const FieldFacts* fieldFacts;
  U32 firstId;
  U32 ids;
  const U8* fieldIndex;  ///< field by identifier, from firstId

  U32 rowOf(U32 chipType, U8 variant) const {
    return chipType < chipTypes ? rowIndex->row[chipType][variant != 0] : rows;
  }
  /// The row of a chip whatever the variant.
  U32 rowOfChip(U32 chipType) const { return rowOf(chipType, 0); }
  const FieldSlot& slot(U32 field, U32 row) const { return slots[field * (rows + 1) + row]; }
  /// The field that a slot belongs to.
  U32 fieldOf(const FieldSlot& slot) const { return static_cast<U32>(&slot - slots) / (rows + 1); }
  /// The field of an identifier; `fields`, which is absent everywhere, for one that is not
  /// declared.
  U32 fieldOfId(U32 id) const { return id - firstId < ids ? fieldIndex[id - firstId] : fields; }
  bool hasId(U32 id) const { return fieldOfId(id) != fields; }
};

template <class FieldRows>
constexpr const auto& fieldRowOf(const FieldRows& fieldRows, U32 id) {
  for (const auto& row : fieldRows) {
    if (row.id == id) return row;
  }
  return *std::begin(fieldRows);
}

template <U32 rawWords, U32 ids, class FieldRows, U32 fields, U32 rows, U32 spans>
constexpr auto makeTable(Kind kind, const FieldEntry (&list)[fields], const FieldRows& fieldRows,
                         const ChipRow (&chipRows)[rows], const SpanMember (&spanMembers)[spans]) {
  TableData<fields, rows, rawWords, ids> table;
  table.firstId = idRangeOf(list).first;
  for (U8& field : table.fieldOfId) field = fields;
  for (U32 chip = 0; chip < chipTypes; ++chip) {
    table.rowIndex.row[chip][0] = table.rowIndex.row[chip][1] = rows;
  }
  for (U32 row = 0; row < rows; ++row) {
    const ChipRow& from = chipRows[row];
    for (const ChipName& chip : chipNames) {
      if (!from.chips.has(chip.number)) continue;
      table.rowIndex.row[chip.number][0] = static_cast<U8>(row);
      if (from.variants == Variants::any) table.rowIndex.row[chip.number][1] = static_cast<U8>(row);
    }
    RowFacts& facts = table.facts[row];
    facts.variants = from.variants;
    facts.width = from.width;
    facts.entries = from.entries;
    facts.arrayElements = kind == Kind::table ? 1 : registerArrayElements;
    facts.addrStride = from.addrStride;
    facts.base = from.base;
    facts.accessType = from.accessType;
    facts.identifiers = from.identifiers;
    if (kind == Kind::table && bcm5699x.has(from.chips.lowest())) {
      facts.identifierTerm = identifierTerm;
    }
    for (const SpanMember& member : spanMembers) {
      if (member.span != nullptr && entriesOn(chipRows, member.chip) == from.entries) {
        facts.span = member.span;
      }
    }
  }
  for (U32 field = 0; field < fields; ++field) {
    table.fieldOfId[list[field].id - table.firstId] = static_cast<U8>(field);
    const auto& fieldRow = fieldRowOf(fieldRows, list[field].id);
    table.fieldFacts[field] = {static_cast<U16>(list[field].id), list[field].type, fieldRow.overlap,
                               list[field].meaning};
    for (U32 row = 0; row < rows; ++row) {
      const BitRange range = fieldRow.ranges[chipRows[row].column];
      table.slots[field * (rows + 1) + row] = makeSlot(range);
      if (!isPresent(range)) continue;
      ++table.facts[row].fieldCount;
      for (U32 bit = range.offset; bit < endOf(range); ++bit) {
        table.masks[row][bit / 32] |= 1U << bit % 32;
      }
    }
  }
  return table;
}

template <class Table>
constexpr ClassData makeClassData(const char* name, U32 line, Kind kind, const ClassRow& about,
                                  const Table& table) {
  const U32 rawBytes = 4 * Table::rawWords;
  return {name,
          about.purpose,
          line,
          kind,
          about.block,
          static_cast<U16>(about.allFieldsBytes != 0 ? about.allFieldsBytes : rawBytes),
          Table::fields,
          Table::rows,
          Table::rawWords,
          &table.rowIndex,
          table.slots,
          table.facts,
          &table.masks[0][0],
          table.fieldFacts,
          table.firstId,
          sizeof(table.fieldOfId),
          table.fieldOfId};
}

}  // namespace Framework
}  // namespace Velmar
