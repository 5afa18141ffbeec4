#pragma once

#include <cstring>

#include "framework/PlatformAdapter.h"
#include "framework/Reports.h"

// What depends on chip and variant only: construction, geometry and masks; and whole entries.

namespace Velmar {
namespace Framework {

/// Whether the class knows the chip and variant.
inline bool isKnown(const ClassData& data, U32 chipType, U8 variant) {
  return data.rowOf(chipType, variant) != data.rows;
}

/// The facts of a chip and variant; fails where the class lacks them.
const RowFacts& facts(const ClassData& data, U32 chipType, U8 variant, Site site);
/// The same for the members that trace.
const RowFacts& tracedFacts(const ClassData& data, U32 chipType, U8 variant, Site site);

bool hasIdentifier(const ClassData& data, U32 chipType, U8 variant, U32 identifier, Site site);

Raw8192 allFieldsMask(const ClassData& data, U32 chipType, U8 variant, Site site);

/// Fills `words` 32-bit words with the entry, with the reserved bits zero. Words beyond those that
/// the class needs in the buffer stay zero.
void allFields(const ClassData& data, const EntryView& view, Site site, U32* entry, int words);

/// getAllFields in the type that the class returns.
template <class Raw>
Raw allFieldsAs(const ClassData& data, const EntryView& view, Site site) {
  U32 words[sizeof(Raw) / sizeof(U32)] = {};
  allFields(data, view, site, words, sizeof(Raw) / sizeof(U32));
  Raw entry;
  std::memcpy(&entry, words, sizeof(entry));
  return entry;
}

/// Traces a construction, or fails it if the class lacks the chip or variant.
[[gnu::cold]] void checkConstruction(const ClassData& data, U32 chipType, U8 variant, Site site);

/// The body of a view's constructor.
template <class Class>
inline void construct(U32 chipType, U8 variant, Site site) {
  if (takesSlowPath(rowIn(Class::arrays, chipType, variant) == Class::arrays.rows)) {
    checkConstruction(Class::data, chipType, variant, site);
  }
}

}  // namespace Framework
}  // namespace Velmar
