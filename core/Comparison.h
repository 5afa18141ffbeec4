#pragma once

#include "core/Families.h"
#include "core/Listing.h"

namespace Velmar {
namespace Core {

/// A part of a table that is not the same on two chips. A family whose members differ alike is one.
struct PartChange {
  Catalogue::Table table;
  std::string part;    ///< a field, or in parentheses a fact of the table such as "(entries)"
  const char* change;  ///< "added", "gone", "changed", "moved", "resized" or "moved and resized"
  Cell before;
  Cell after;
};

/// What changes from one chip to another, in one table or in all.
Expected<std::vector<PartChange>> compareChips(const Catalogue::Chip& before,
                                               const Catalogue::Chip& after, U8 variant,
                                               const std::optional<Catalogue::Table>& table,
                                               bool asFamilies);

/// The rows as documents have them.
Listing listingOf(const std::vector<PartChange>& changes);
JsonFrame comparisonFrame(const Catalogue::Chip& before, const Catalogue::Chip& after);

}  // namespace Core
}  // namespace Velmar
