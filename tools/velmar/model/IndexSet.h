#pragma once

#include <limits>
#include <string_view>
#include <utility>
#include <vector>

#include "AsicUtils/Types.h"

namespace Tool {

/// The entries that a command line selects, such as "100", "0-99" or "1,5,100-199".
class IndexSet {
 public:
  /// All entries.
  IndexSet() = default;
  explicit IndexSet(std::string_view text);

  bool isAll() const { return ranges_.empty(); }
  bool has(U64 index) const;
  U64 first() const { return isAll() ? 0 : ranges_.front().first; }
  U64 last() const { return isAll() ? std::numeric_limits<U64>::max() : ranges_.back().second; }

 private:
  std::vector<std::pair<U64, U64>> ranges_;  ///< ascending; both ends are included
};

}  // namespace Tool
