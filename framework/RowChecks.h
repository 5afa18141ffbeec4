#pragma once

#include <array>

#include "framework/Names.h"
#include "framework/Rows.h"

// Checks that the rows of a class are sound. A failed check stops the compiler with one sentence;
// the template arguments in the lines above it name the class, the field and the chip. Checks look
// at rows only, so that one bad row gives one error.

namespace Velmar {
namespace Framework {
namespace RowChecks {

/// The first fault that a check found. Field or chip is 0 if the fault does not concern a single
/// one.
struct Fault {
  bool isSound = true;
  U32 field = 0;
  U32 chip = 0;
};

constexpr Fault sound() { return {}; }
constexpr Fault badField(U32 field, U32 chip = 0) { return {false, field, chip}; }
constexpr Fault badChip(U32 chip) { return {false, 0, chip}; }
constexpr Fault badClass() { return {false, 0, 0}; }

/// A chip of a layout column, which stands for the column in errors; 0 if no chip has it.
template <class ChipRows>
constexpr U32 chipOfColumn(const ChipRows& chipRows, U32 column) {
  for (const ChipRow& row : chipRows) {
    if (row.column == column) return row.chips.lowest();
  }
  return 0;
}

template <U32 fields>
constexpr Fault accessorsDerive(const FieldName (&names)[fields]) {
  for (const FieldName& field : names) {
    char accessor[64] = {};
    writeAccessorName(accessor, field.hardwareName);
    if (!sameText(accessor, field.accessor)) return badField(field.id);
    accessor[0] = toUpper(accessor[0]);
    if (!sameText(accessor, field.capitalised)) return badField(field.id);
  }
  return sound();
}

/// Every field has one row of names and one row of the layout.
template <U32 fields, class FieldRows>
constexpr Fault namesMatchLayout(const FieldName (&names)[fields], const FieldRows& fieldRows) {
  for (const FieldName& field : names) {
    U32 named = 0;
    for (const FieldName& other : names) named += other.id == field.id;
    U32 laidOut = 0;
    for (const auto& row : fieldRows) laidOut += row.id == field.id;
    if (named != 1 || laidOut != 1) return badField(field.id);
  }
  for (const auto& row : fieldRows) {
    U32 named = 0;
    for (const FieldName& field : names) named += field.id == row.id;
    if (named != 1) return badField(row.id);
  }
  return sound();
}

/// The accessors of a port family are one prefix, then the port. All port rows of a class come from
/// one rule.
template <U32 fields, class FieldRows>
constexpr Fault portsEndAccessors(const FieldName (&names)[fields], const FieldRows& fieldRows) {
  const char* first = nullptr;
  U32 firstLength = 0;
  for (const FieldName& field : names) {
    for (const auto& row : fieldRows) {
      if (row.id != field.id || row.port == noPort) continue;
      const U32 length = lengthBefore(field.accessor, row.port);
      if (first == nullptr) first = field.accessor, firstLength = length;
      const bool isSound =
          length != 0 && length == firstLength && sameStart(first, field.accessor, length);
      if (!isSound) return badField(row.id);
    }
  }
  return sound();
}

template <class FieldRows, class ChipRows>
constexpr Fault cellsAreFilled(const FieldRows& fieldRows, const ChipRows& chipRows) {
  for (const auto& row : fieldRows) {
    U32 column = 0;
    for (const BitRange range : row.ranges) {
      if (range.width == 0) return badField(row.id, chipOfColumn(chipRows, column));
      ++column;
    }
  }
  return sound();
}

/// Every column has a chip, and no chip row names another column.
template <class ChipRows>
constexpr Fault columnsAreUsed(const ChipRows& chipRows, U32 columns) {
  for (const ChipRow& row : chipRows) {
    if (row.column >= columns) return badChip(row.chips.lowest());
  }
  for (U32 column = 0; column < columns; ++column) {
    if (chipOfColumn(chipRows, column) == 0) return badClass();
  }
  return sound();
}

template <U32 rows>
constexpr Fault chipsAreOnce(const ChipRow (&chipRows)[rows]) {
  for (const ChipRow& row : chipRows) {
    if (row.chips.lowest() == ChipSet::end) return badClass();
  }
  for (const ChipName& chip : chipNames) {
    U32 found = 0;
    for (const ChipRow& row : chipRows) found += row.chips.has(chip.number);
    if (found > 1) return badChip(chip.number);
  }
  return sound();
}

/// Every chip has facts, and the chips of one row have the same: the row is then true of each of
/// them.
template <U32 rows, U32 allChips>
constexpr Fault chipFactsAgree(const ChipRow (&chipRows)[rows],
                               const ChipFacts (&chipFacts)[allChips]) {
  for (const ChipRow& row : chipRows) {
    const ChipFacts first = factsOf(chipFacts, row.chips.lowest());
    for (const ChipName& chip : chipNames) {
      if (!row.chips.has(chip.number)) continue;
      const ChipFacts facts = factsOf(chipFacts, chip.number);
      if (facts.chip != chip.number || facts.identifierTerm != first.identifierTerm ||
          facts.registerStride != first.registerStride ||
          facts.registerIdentifiers != first.registerIdentifiers ||
          (row.variants == Variants::zeroOnly && !facts.mayHaveVariants)) {
        return badChip(chip.number);
      }
    }
  }
  return sound();
}

/// Entries have words, and tables have entries. A register array has one entry, has elements, and
/// takes any variant.
template <U32 rows>
constexpr Fault shapesAreSound(Kind kind, const ClassRow& about, const ChipRow (&chipRows)[rows]) {
  const bool isTable = kind == Kind::table;
  if (isTable ? about.elements != 1 : about.elements == 0) return badClass();
  for (const ChipRow& row : chipRows) {
    const bool isSound = row.words != 0 && row.entries != 0 &&
                         (isTable || (row.entries == 1 && row.variants == Variants::any));
    if (!isSound) return badChip(row.chips.lowest());
  }
  return sound();
}

template <class FieldRows, class ChipRows>
constexpr Fault fieldsFitEntries(const FieldRows& fieldRows, const ChipRows& chipRows) {
  for (const ChipRow& chips : chipRows) {
    for (const auto& row : fieldRows) {
      const BitRange range = row.ranges[chips.column];
      if (isPresent(range) && endOf(range) > 32U * chips.words) {
        return badField(row.id, chips.chips.lowest());
      }
    }
  }
  return sound();
}

/// Each scalar type is the smallest that holds the field on every chip; raw data fits its type.
template <U32 fields, class FieldRows>
constexpr Fault typesFitFields(const FieldName (&names)[fields], const FieldRows& fieldRows) {
  for (const FieldName& field : names) {
    U32 widest = 1;
    for (const BitRange range : fieldRowOf(fieldRows, field.id).ranges) {
      if (isPresent(range) && range.width > widest) widest = range.width;
    }
    const bool isTooLarge =
        isScalar(field.type) && field.type != ValueType::u8 && widest <= bitsOf(field.type) / 2;
    if (widest > bitsOf(field.type) || isTooLarge) return badField(field.id);
  }
  return sound();
}

/// Bits of the largest raw type.
constexpr U32 mostBits = 32 * 32;

/// How many fields cover each bit of a column.
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

/// The largest number of fields that cover one bit of a range.
constexpr U32 mostNames(const std::array<U8, mostBits>& names, BitRange range) {
  U32 most = 0;
  if (!isPresent(range)) return most;
  for (U32 bit = range.offset; bit < endOf(range) && bit < mostBits; ++bit) {
    if (names[bit] > most) most = names[bit];
  }
  return most;
}

/// No two unmarked fields share a bit, and every field marked `alias` shares bits with another.
template <class FieldRows, class ChipRows>
constexpr Fault overlapsAreMarked(const FieldRows& fieldRows, const ChipRows& chipRows,
                                  U32 columns) {
  for (U32 column = 0; column < columns; ++column) {
    const auto names = namesOfBits(fieldRows, column, false);
    for (const auto& row : fieldRows) {
      if (row.overlap == Overlap::disjoint && mostNames(names, row.ranges[column]) > 1) {
        return badField(row.id, chipOfColumn(chipRows, column));
      }
    }
  }
  for (const auto& row : fieldRows) {
    bool shares = row.overlap == Overlap::disjoint;
    for (U32 column = 0; column < columns && !shares; ++column) {
      shares = mostNames(namesOfBits(fieldRows, column, true), row.ranges[column]) > 1;
    }
    if (!shares) return badField(row.id);
  }
  return sound();
}

/// The raw type is the smallest of 1, 2, 4, 8, 16 and 32 words that holds the widest entry, and
/// getAllFields needs at least the widest entry and at most the raw type.
template <U32 rows>
constexpr Fault rawTypeFits(U32 rawWords, const ClassRow& about, const ChipRow (&chipRows)[rows]) {
  U32 widest = 0;
  for (const ChipRow& row : chipRows) widest = row.words > widest ? row.words : widest;
  U32 smallest = 1;
  while (smallest < widest) smallest *= 2;
  const U32 needed = about.allFieldsBytes;
  const bool isSound =
      rawWords == smallest && (needed == 0 || (needed >= 4 * widest && needed < 4 * rawWords));
  return isSound ? sound() : badClass();
}

/// Every number of entries has one span member, named after a chip with that number.
template <U32 rows, U32 spans>
constexpr Fault spansMatchEntries(Kind kind, const ChipRow (&chipRows)[rows],
                                  const SpanMember (&members)[spans]) {
  for (const ChipRow& row : chipRows) {
    U32 found = 0;
    for (const SpanMember& member : members) {
      if (member.chip != 0) found += entriesOn(chipRows, member.chip) == row.entries;
    }
    if (found != (kind == Kind::table ? 1 : 0)) return badChip(row.chips.lowest());
  }
  for (const SpanMember& member : members) {
    if (member.chip != 0 && entriesOn(chipRows, member.chip) == 0) return badChip(member.chip);
  }
  return sound();
}

// The sentences. For a failed check the compiler names the class, the field and the chip of the
// instantiation.

template <class Class, bool isSound, auto field, auto chip>
struct AccessorsDerive {
  static_assert(isSound, "an accessor is not the lowerCamelCase of its hardware name");
};

template <class Class, bool isSound, auto field, auto chip>
struct NamesMatchLayout {
  static_assert(isSound,
                "names and layout differ: each field has one row of names and one of the layout");
};

template <class Class, bool isSound, auto field, auto chip>
struct PortsEndAccessors {
  static_assert(isSound,
                "an accessor of a port family is not the prefix of the family and the port");
};

template <class Class, bool isSound, auto field, auto chip>
struct CellsAreFilled {
  static_assert(isSound, "a layout row leaves a column out or gives a width of 0; write none");
};

template <class Class, bool isSound, auto field, auto chip>
struct ColumnsAreUsed {
  static_assert(isSound, "a chip row names a column that does not exist, or a column has no chip");
};

template <class Class, bool isSound, auto field, auto chip>
struct ChipsAreOnce {
  static_assert(isSound, "a chip is in two rows, or a row has no chip");
};

template <class Class, bool isSound, auto field, auto chip>
struct ChipFactsAgree {
  static_assert(
      isSound,
      "a chip has no facts or may not have variants, or the chips of a row differ in their facts");
};

template <class Class, bool isSound, auto field, auto chip>
struct ShapesAreSound {
  static_assert(isSound,
                "a chip row has no words or entries, or a class has entries, elements or variants "
                "that its kind does not have");
};

template <class Class, bool isSound, auto field, auto chip>
struct FieldsFitEntries {
  static_assert(isSound, "a field ends beyond its entry");
};

template <class Class, bool isSound, auto field, auto chip>
struct TypesFitFields {
  static_assert(isSound, "a value type is too small for its field, or larger than it needs");
};

template <class Class, bool isSound, auto field, auto chip>
struct OverlapsAreMarked {
  static_assert(isSound,
                "two fields share bits and neither is marked alias, or an alias shares none");
};

template <class Class, bool isSound, auto field, auto chip>
struct RawTypeFits {
  static_assert(isSound, "the raw type is not the smallest that holds the widest entry");
};

template <class Class, bool isSound, auto field, auto chip>
struct SpansMatchEntries {
  static_assert(isSound, "span members and numbers of entries differ");
};

}  // namespace RowChecks
}  // namespace Framework
}  // namespace Velmar

// clang-format off

/// One check of a class: instantiates its sentence with the fault that the check found.
#define VELMAR_CHECK(CLASS, Sentence, found)                                  \
  constexpr Fault fault##Sentence = found;                                    \
  static_assert(sizeof(Sentence<CLASS, fault##Sentence.isSound,               \
                                ::Velmar::FieldId::Id(fault##Sentence.field), \
                                ::ChipType_(fault##Sentence.chip)>) > 0);

/// All checks of a class's rows.
#define VELMAR_CHECK_ROWS(CLASS, KIND, RAW_WORDS, names, spans, about, layout, chips, chipFacts) \
  namespace RowChecksOf##CLASS {                                                                 \
  using namespace ::Velmar::Framework::RowChecks;                                                \
  constexpr U32 columns = ::Velmar::Framework::columnsOf(layout);                                \
  VELMAR_CHECK(CLASS, AccessorsDerive, accessorsDerive(names))                                   \
  VELMAR_CHECK(CLASS, NamesMatchLayout, namesMatchLayout(names, layout))                         \
  VELMAR_CHECK(CLASS, PortsEndAccessors, portsEndAccessors(names, layout))                       \
  VELMAR_CHECK(CLASS, CellsAreFilled, cellsAreFilled(layout, chips))                             \
  VELMAR_CHECK(CLASS, ColumnsAreUsed, columnsAreUsed(chips, columns))                            \
  VELMAR_CHECK(CLASS, ChipsAreOnce, chipsAreOnce(chips))                                         \
  VELMAR_CHECK(CLASS, ChipFactsAgree, chipFactsAgree(chips, chipFacts))                          \
  VELMAR_CHECK(CLASS, ShapesAreSound, shapesAreSound(KIND, about, chips))                        \
  VELMAR_CHECK(CLASS, FieldsFitEntries, fieldsFitEntries(layout, chips))                         \
  VELMAR_CHECK(CLASS, TypesFitFields, typesFitFields(names, layout))                             \
  VELMAR_CHECK(CLASS, OverlapsAreMarked, overlapsAreMarked(layout, chips, columns))              \
  VELMAR_CHECK(CLASS, RawTypeFits, rawTypeFits(RAW_WORDS, about, chips))                         \
  VELMAR_CHECK(CLASS, SpansMatchEntries, spansMatchEntries(KIND, chips, spans))                  \
  }
// clang-format on
