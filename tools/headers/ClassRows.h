#pragma once

#include <string>
#include <vector>

#include "framework/TableData.h"

namespace Headers {

using namespace Velmar::Framework;

/// A field of a class: its names, and its width on each chip of the class (0: absent).
struct FieldRows {
  FieldName name;
  std::vector<U32> widths;
};

/// The S-channel addresses of a class on a chip, both ends included: all entries, elements and
/// instances.
struct AddressRange {
  U32 first;
  U32 last;
};

/// The contents of a class, taken from the rows of its source.
struct ClassRows {
  std::string name;
  std::string raw;  ///< the type that getAllFields returns
  Kind kind;
  ClassRow about;
  std::vector<std::string> spans;       ///< the chips that span members are named after
  std::vector<std::string> chips;       ///< in the order of their numbers
  std::vector<AddressRange> addresses;  ///< on each of the chips
  std::vector<FieldRows> fields;
};

/// The classes whose sources are compiled into this program, in no particular order.
std::vector<ClassRows>& classesRead();

/// Adds a class; each source does so before main().
bool add(const ClassRows& rows);

/// `known` completed with the chips of a class and its fields.
template <class FieldLayout, U32 rows, U32 fields, U32 allChips>
ClassRows completed(ClassRows known, const FieldName (&names)[fields], const FieldLayout& layout,
                    const ChipRow (&chips)[rows], const ChipFacts (&chipFacts)[allChips]) {
  for (const FieldName& name : names) known.fields.push_back({name, {}});
  for (const ChipName& chip : chipNames) {
    for (const ChipRow& row : chips) {
      if (!row.chips.has(chip.number)) continue;
      known.chips.emplace_back(chip.name);
      const Geometry geometry =
          makeRowFacts(known.kind, known.about, row, factsOf(chipFacts, chip.number), nullptr);
      const U32 last = geometry.addressOf(geometry.entries - 1, geometry.arrayElements - 1,
                                          geometry.identifiers - 1);
      const U32 step = known.kind == Kind::registerArray ? geometry.addrStride : 1;
      known.addresses.push_back({geometry.base, last + step - 1});
      for (FieldRows& field : known.fields) {
        const BitRange range = fieldRowOf(layout, field.name.id).ranges[row.column];
        field.widths.push_back(isPresent(range) ? range.width : 0);
      }
    }
  }
  return known;
}

}  // namespace Headers
