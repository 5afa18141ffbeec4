#pragma once

#include "core/Dump.h"
#include "core/Families.h"
#include "core/Listing.h"

namespace Velmar {
namespace Core {

/// What a translation does not hold, and in which entries. Fields of a family that get lost in the same
/// entries for the same reason are one loss.
struct Loss {
  std::string field;  ///< or "outsideFields", or "(entry)" for a whole entry
  std::string reason;
  std::vector<U32> indexes;
};

struct Translation {
  Dump dump;  ///< of the other chip
  std::vector<Loss> losses;
};

/// Moves the entries of a dump to another chip, field by field. Fields that only the other chip has are
/// zero.
Translation translate(const Layout& from, const Layout& to, const Dump& dump);

/// The losses as rows: field, reason, entries.
Listing listingOf(const std::vector<Loss>& losses);

}  // namespace Core
}  // namespace Velmar
