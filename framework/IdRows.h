#pragma once

#include "framework/Names.h"

// The field identifiers as rows, and the checks on them.

namespace Velmar {
namespace Framework {

/// A field identifier with its names, stored in the row: no pointers to relocate.
struct IdRow {
  U16 id;
  char hardwareName[36];
  char accessor[36];
};

constexpr IdRow makeIdRow(U32 id, const char* name) {
  IdRow row{static_cast<U16>(id), {}, {}};
  for (U32 i = 0; name[i] != '\0'; ++i) row.hardwareName[i] = name[i];
  writeAccessorName(row.accessor, name);
  return row;
}

// Checks of the rows. Each returns the identifier of the first bad row, 0 for none, and has a sentence
// that is compiled with it, so that the compiler names the identifier.

template <U32 count>
constexpr U32 firstNumberOutOfOrder(const IdRow (&rows)[count]) {
  for (U32 i = 1; i < count; ++i) {
    if (rows[i - 1].id >= rows[i].id) return rows[i].id;
  }
  return 0;
}

/// The first `sorted` rows are in the natural order of their names.
template <U32 count>
constexpr U32 firstNameOutOfOrder(const IdRow (&rows)[count], U32 sorted) {
  for (U32 i = 1; i < sorted; ++i) {
    if (!naturallyBefore(rows[i - 1].hardwareName, rows[i].hardwareName)) return rows[i].id;
  }
  return 0;
}

template <auto id>
struct IdNumbersAscend {
  static_assert(id == 0, "field identifiers: the numbers do not ascend");
};

template <auto id>
struct ClosedListIsSorted {
  static_assert(
      id == 0,
      "field identifiers: a name of the closed list is out of order; add new names to the "
      "second list");
};

}  // namespace Framework
}  // namespace Velmar
