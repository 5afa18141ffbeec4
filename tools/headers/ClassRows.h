#pragma once

#include <string>
#include <vector>

#include "framework/Rows.h"

namespace Headers {

using namespace Velmar::Framework;

/// A field of a class: its names, and its width on each chip of the class (0: absent).
struct FieldRows {
  FieldName name;
  std::vector<U32> widths;
};

/// The contents of a class's header, taken from the rows of its source.
struct ClassRows {
  std::string name;
  std::string raw;  ///< the type that getAllFields returns
  Kind kind;
  ClassRow about;
  std::vector<std::string> spans;  ///< the chips that span members are named after
  std::vector<std::string> chips;  ///< in the order of their numbers
  std::vector<FieldRows> fields;
};

/// The classes whose sources are compiled into this program, in no particular order.
std::vector<ClassRows>& classesRead();

/// Adds a class; each source does so before main().
bool add(const ClassRows& rows);

/// `known` completed with the chips of a class and its fields.
template <class FieldLayout, U32 rows, U32 fields>
ClassRows withFields(ClassRows known, const FieldName (&names)[fields], const FieldLayout& layout,
                     const ChipRow (&chips)[rows]) {
  for (const FieldName& name : names) known.fields.push_back({name, {}});
  for (const ChipName& chip : chipNames) {
    for (const ChipRow& row : chips) {
      if (!row.chips.has(chip.number)) continue;
      known.chips.emplace_back(chip.name);
      for (FieldRows& field : known.fields) {
        const BitRange range = fieldRowOf(layout, field.name.id).ranges[row.column];
        field.widths.push_back(isPresent(range) ? range.width : 0);
      }
    }
  }
  return known;
}

}  // namespace Headers
