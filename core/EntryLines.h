#pragma once

#include "core/Difference.h"

// Entries and differences for people, a line for each value: for faces without a terminal.

namespace Velmar {
namespace Core {

/// "stg = 5" for each field, "spTreePort = {3: 0-7  0: 8-159}" for each family.
std::string entryLines(const Layout& layout, const U8* entry);
/// "20: stg = 2 -> 7" for each field that differs, or for those of a family that change alike.
std::string differenceLines(const Layout& layout, const Difference& difference);

}  // namespace Core
}  // namespace Velmar
