#pragma once

#include <vector>

#include "AsicUtils/ChipType.h"

namespace Examples {

/// The first entries of a table, or elements of a register array, on one chip, as an agent holds
/// them before it writes them to the chip: one buffer, initially all zero.
template <class View>
class Dump {
 public:
  Dump(ChipType_ chip, U32 entries)
      : chip_(chip),
        entryBytes_(static_cast<U16>(4 * View::width(chip, variant))),
        bytes_(entries * entryBytes_) {}

  /// A view of entry `index`, which must be below the number of entries. It points into the dump.
  View entry(U32 index) {
    return View(chip_, &bytes_[index * entryBytes_], entryBytes_, false, variant);
  }

  const std::vector<U8>& bytes() const { return bytes_; }

 private:
  static constexpr U8 variant = 0;

  ChipType_ chip_;
  U16 entryBytes_;
  std::vector<U8> bytes_;
};

}  // namespace Examples
