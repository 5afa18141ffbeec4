#pragma once

#include "core/Listing.h"
#include "core/Reading.h"

namespace Velmar {
namespace Core {

/// A table that a dump fits, on the chips that give it the same entries.
struct Fit {
  std::vector<Layout> layouts;
  U64 entries = 0;       ///< of the dump
  U64 last = 0;          ///< largest index
  U32 indexCount = 0;    ///< entries of the table
  U64 nonzero = 0;       ///< entries that are not zero
  U32 reservedBits = 0;  ///< bits of an entry outside all fields; in the dump all are zero
};

/// The tables and chips that a dump fits, the likeliest first: the dump is whole entries, all of them
/// in the table, and no bit outside all fields is set. A table or chip that is named is the only one
/// that is tried; a fault if the chip does not have the table, or if the input is empty or too long.
Expected<std::vector<Fit>> identify(std::string_view input, const ReadOptions& options,
                                    const std::optional<Catalogue::Table>& table,
                                    const std::optional<Catalogue::Chip>& chip);

Listing listingOf(const std::vector<Fit>& fits);

}  // namespace Core
}  // namespace Velmar
