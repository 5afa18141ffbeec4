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

template <U32 count>
constexpr bool numbersAscend(const IdRow (&rows)[count]) {
  for (U32 i = 1; i < count; ++i) {
    if (rows[i - 1].id >= rows[i].id) return false;
  }
  return true;
}

/// Whether the names of the first `sorted` rows are in natural order.
template <U32 count>
constexpr bool namesAscend(const IdRow (&rows)[count], U32 sorted) {
  for (U32 i = 1; i < sorted; ++i) {
    if (!naturallyBefore(rows[i - 1].hardwareName, rows[i].hardwareName)) return false;
  }
  return true;
}

/// Whether no row from `sorted` on repeats the name of an earlier row.
template <U32 count>
constexpr bool namesAreOnce(const IdRow (&rows)[count], U32 sorted) {
  for (U32 i = sorted; i < count; ++i) {
    for (U32 earlier = 0; earlier < i; ++earlier) {
      if (sameText(rows[i].hardwareName, rows[earlier].hardwareName)) return false;
    }
  }
  return true;
}

}  // namespace Framework
}  // namespace Velmar
