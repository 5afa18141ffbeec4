#pragma once

#include <cstddef>
#include <type_traits>

#include "framework/FieldSlot.h"
#include "framework/Names.h"

// What the engine reads, made from the rows of tables/ at compile time. A chip row of a table
// becomes a "row" here; one more row, the last, stands for every chip and variant that the class
// lacks.

namespace Velmar {
namespace Framework {

/// Geometry and address of one row. The names are those of the public members that return them.
struct RowFacts : Geometry {
  const AsicUtils::EntrySpan* span = nullptr;
  U16 portField = 0;  ///< the first field of the class's port family
  U16 ports = 0;      ///< fields of the family; 0: it has none on the row

  static constexpr U32 index_min = 0;
  static constexpr U32 arrayIndex_min = 0;
  static constexpr U32 instanceCount = 1;
  static constexpr U32 maxIdentifier = 0;
};

/// The part of a field's row of names that is kept.
struct FieldFacts {
  U16 id = 0;
  ValueType type = ValueType::u8;
  bool overlaps = false;  ///< shares bits with another field on some row
  U16 port = 0;           ///< its number in its port family
  U8 prefixLength = 0;    ///< characters of its accessor before the port; 0: it is of no family
  const char* meaning = nullptr;
};

static_assert(sizeof(FieldFacts) <= 16, "there is one for each field of each class");

/// Chip numbers in a view are below this; any other number is unknown.
constexpr U32 chipTypes = 256;

/// Row of each chip, for variant 0 and for every other variant.
struct RowIndex {
  U8 row[chipTypes][2];
};

/// The row of a chip and variant in TableArrays or ClassData; `rows` where the class lacks them.
template <class Data>
constexpr U32 rowIn(const Data& data, U32 chipType, U8 variant) {
  return chipType < chipTypes ? data.rowIndex.row[chipType][variant != 0] : data.rows;
}

/// The slot of a field on a row. The indices are of full width, so that the compiler folds them
/// into one address.
template <class Data>
constexpr const FieldSlot& slotIn(const Data& data, std::size_t field, std::size_t row) {
  return data.slots[field * (data.rows + 1) + row];
}

/// The identifiers from the lowest to the highest that a class declares.
struct IdRange {
  U32 first;
  U32 count;
};

template <U32 fields>
constexpr IdRange idRangeOf(const FieldName (&names)[fields]) {
  U32 lowest = names[0].id;
  U32 highest = lowest;
  for (const FieldName& field : names) {
    if (field.id < lowest) lowest = field.id;
    if (field.id > highest) highest = field.id;
  }
  return {lowest, highest - lowest + 1};
}

/// The arrays of one class. They hold no pointers, so that the loader leaves their pages alone.
template <U32 fields_, U32 rows_, U32 rawWords_, U32 ids_>
struct TableArrays {
  static_assert(fields_ < 256 && rows_ < 256, "fields and rows are numbered by bytes");
  static constexpr U32 fields = fields_;
  static constexpr U32 rows = rows_;
  /// The part of an entry that the fast path reads, and for a setter writes back, as one integer.
  using Window = std::conditional_t<rawWords_ == 1, U32, U64>;

  RowIndex rowIndex{};
  FieldSlot slots[(fields_ + 1) * (rows_ + 1)]{};  ///< by field, then row; the last field is absent
  U32 masks[rows_][rawWords_]{};
  U8 fieldOfId[ids_]{};  ///< by identifier, from the lowest; `fields` where the class lacks it
};

/// The rest of a class's data.
template <U32 fields, U32 rows>
struct TableFacts {
  RowFacts ofRow[rows + 1]{};
  FieldFacts ofField[fields]{};
};

/// A class's data without its sizes, for the slow paths and for the catalogue.
struct ClassData {
  const char* name;
  const char* purpose;
  U32 line;  ///< source line of the class's members
  Kind kind;
  U16 allFieldsBytes;
  U32 fields;
  U32 rows;
  U32 rawWords;
  const RowIndex& rowIndex;
  const FieldSlot* slots;  ///< (fields + 1) x (rows + 1)
  const RowFacts* facts;   ///< rows + 1
  const U32* masks;        ///< rows x rawWords
  const FieldFacts* fieldFacts;
  U32 firstId;
  U32 ids;
  const U8* fieldIndex;  ///< field by identifier, from firstId

  /// The row of a chip and variant; `rows` where the class lacks them.
  U32 rowOf(U32 chipType, U8 variant) const { return rowIn(*this, chipType, variant); }
  /// The row of a chip, whatever the variant.
  U32 rowOfChip(U32 chipType) const { return rowOf(chipType, 0); }
  const FieldSlot& slot(U32 field, U32 row) const { return slotIn(*this, field, row); }
  /// The field that a slot belongs to.
  U32 fieldOf(const FieldSlot& slot) const { return static_cast<U32>(&slot - slots) / (rows + 1); }
  /// The field of an identifier; `fields`, which is absent everywhere, for one that is not
  /// declared.
  U32 fieldOfId(U32 id) const { return id - firstId < ids ? fieldIndex[id - firstId] : fields; }
  bool hasId(U32 id) const { return fieldOfId(id) != fields; }
};

template <U32 rows>
constexpr RowIndex makeRowIndex(const ChipRow (&chipRows)[rows]) {
  RowIndex index{};
  for (auto& chip : index.row) chip[0] = chip[1] = rows;
  for (U32 row = 0; row < rows; ++row) {
    for (const ChipName& chip : chipNames) {
      if (!chipRows[row].chips.has(chip.number)) continue;
      index.row[chip.number][0] = static_cast<U8>(row);
      if (chipRows[row].variants == Variants::any) {
        index.row[chip.number][1] = static_cast<U8>(row);
      }
    }
  }
  return index;
}

/// The span member of a number of entries; null where the class has none.
template <U32 rows, U32 spans>
constexpr const AsicUtils::EntrySpan* spanOf(const SpanMember (&members)[spans],
                                             const ChipRow (&chipRows)[rows], U32 entries) {
  for (const SpanMember& member : members) {
    if (member.span != nullptr && entriesOn(chipRows, member.chip) == entries) return member.span;
  }
  return nullptr;
}

/// The facts of a chip row, except its number of fields.
constexpr RowFacts makeRowFacts(Kind kind, const ClassRow& about, const ChipRow& row,
                                const ChipFacts& chip, const AsicUtils::EntrySpan* span) {
  const bool isTable = kind == Kind::table;
  RowFacts facts{};
  facts.variants = row.variants;
  facts.words = row.words;
  facts.entries = row.entries;
  facts.arrayElements = about.elements;
  facts.addrStride = isTable ? 0 : chip.registerStride;
  facts.identifiers = isTable ? 1 : chip.registerIdentifiers;
  facts.identifierTerm = isTable ? chip.identifierTerm : 0;
  facts.base = row.base;
  facts.accessType = row.accessType;
  facts.block = static_cast<U32>(about.block);
  facts.span = span;
  return facts;
}

/// Whether a field shares bits with another on any chip.
template <class FieldRows>
constexpr bool sharesBits(const FieldRows& fieldRows, U32 id) {
  const auto& row = fieldRowOf(fieldRows, id);
  for (const auto& other : fieldRows) {
    if (other.id == id) continue;
    for (U32 column = 0; column < columnsOf(fieldRows); ++column) {
      if (shareBits(row.ranges[column], other.ranges[column])) return true;
    }
  }
  return false;
}

/// The facts of a field, from its rows.
template <class FieldRows>
constexpr FieldFacts makeFieldFacts(const FieldName& name, const FieldRows& fieldRows) {
  FieldFacts facts;
  facts.id = static_cast<U16>(name.id);
  facts.type = name.type;
  facts.overlaps = sharesBits(fieldRows, name.id);
  facts.meaning = name.meaning;
  const U16 port = fieldRowOf(fieldRows, name.id).port;
  if (port == noPort) return facts;
  facts.port = port;
  facts.prefixLength = static_cast<U8>(lengthBefore(name.accessor, port));
  return facts;
}

/// The arrays of a class, from its rows.
template <U32 rawWords, U32 ids, class FieldRows, U32 fields, U32 rows>
constexpr auto makeArrays(const FieldName (&names)[fields], const FieldRows& fieldRows,
                          const ChipRow (&chipRows)[rows]) {
  TableArrays<fields, rows, rawWords, ids> arrays;
  arrays.rowIndex = makeRowIndex(chipRows);
  for (U8& field : arrays.fieldOfId) field = fields;
  for (U32 field = 0; field < fields; ++field) {
    const U32 id = names[field].id;
    arrays.fieldOfId[id - idRangeOf(names).first] = static_cast<U8>(field);
    for (U32 row = 0; row < rows; ++row) {
      const BitRange range = fieldRowOf(fieldRows, id).ranges[chipRows[row].column];
      arrays.slots[field * (rows + 1) + row] =
          makeSlot(range, 4U * chipRows[row].words, sizeof(typename decltype(arrays)::Window));
      if (!isPresent(range)) continue;
      for (U32 bit = range.offset; bit < endOf(range); ++bit) {
        arrays.masks[row][bit / 32] |= 1U << bit % 32;
      }
    }
  }
  return arrays;
}

/// The facts of a class, from its rows.
template <class FieldRows, U32 fields, U32 rows, U32 spans, U32 allChips>
constexpr auto makeFacts(Kind kind, const FieldName (&names)[fields], const ClassRow& about,
                         const FieldRows& fieldRows, const ChipRow (&chipRows)[rows],
                         const SpanMember (&spanMembers)[spans],
                         const ChipFacts (&chipFacts)[allChips]) {
  TableFacts<fields, rows> facts;
  for (U32 row = 0; row < rows; ++row) {
    const ChipRow& chips = chipRows[row];
    RowFacts& ofRow = facts.ofRow[row];
    ofRow = makeRowFacts(kind, about, chips, factsOf(chipFacts, chips.chips.lowest()),
                         spanOf(spanMembers, chipRows, chips.entries));
    for (const auto& field : fieldRows) ofRow.fieldCount += isPresent(field.ranges[chips.column]);
  }
  for (U32 field = 0; field < fields; ++field) {
    facts.ofField[field] = makeFieldFacts(names[field], fieldRows);
  }
  for (U32 field = fields; field-- > 0;) {
    const FieldFacts& ofField = facts.ofField[field];
    if (ofField.prefixLength == 0) continue;
    for (U32 row = 0; row < rows; ++row) {
      const auto& ranges = fieldRowOf(fieldRows, ofField.id).ranges;
      if (!isPresent(ranges[chipRows[row].column])) continue;
      facts.ofRow[row].portField = static_cast<U16>(field);
      ++facts.ofRow[row].ports;
    }
  }
  return facts;
}

template <U32 fields, U32 rows, U32 rawWords, U32 ids>
constexpr ClassData makeClassData(const char* name, U32 line, Kind kind, const ClassRow& about,
                                  U32 firstId,
                                  const TableArrays<fields, rows, rawWords, ids>& arrays,
                                  const TableFacts<fields, rows>& facts) {
  const U32 rawBytes = 4 * rawWords;
  return {name,
          about.purpose,
          line,
          kind,
          static_cast<U16>(about.allFieldsBytes != 0 ? about.allFieldsBytes : rawBytes),
          fields,
          rows,
          rawWords,
          arrays.rowIndex,
          arrays.slots,
          facts.ofRow,
          &arrays.masks[0][0],
          facts.ofField,
          firstId,
          ids,
          arrays.fieldOfId};
}

}  // namespace Framework
}  // namespace Velmar
