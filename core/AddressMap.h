#pragma once

#include <vector>

#include "core/Access.h"
#include "core/Lookup.h"

namespace Velmar {
namespace Core {

/// The entries of all tables of a chip by their addresses, made once for many look-ups.
class AddressMap {
 public:
  AddressMap(const Catalogue::Chip& chip, U8 variant);

  /// Calls for each entry that has the address, in the order of the catalogue: with its table and its
  /// index. Identifiers are left out: with each of them an entry has the same address.
  template <class Take>
  void find(U32 address, const Take& take) const {
    for (const U32 table : partOf(address).tables) {
      const std::optional<U32> index = indexAt(geometries_[table], address, 0);
      if (index) take(table, *index);
    }
  }

 private:
  /// The addresses from one up to the next part.
  struct Part {
    U32 first;
    std::vector<U32> tables;  ///< that may have entries there
  };

  const Part& partOf(U32 address) const;

  std::vector<Catalogue::Geometry> geometries_;  ///< of all tables
  std::vector<Part> parts_;                      ///< ascending, from address 0 on
};

}  // namespace Core
}  // namespace Velmar
