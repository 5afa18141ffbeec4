#pragma once

#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "core/Fault.h"

namespace Velmar {
namespace Core {

/// The entries that a command line selects, such as "100", "0-99", "100-" or "1,5,100-199".
class IndexSet {
 public:
  /// All entries.
  IndexSet() = default;
  static Expected<IndexSet> of(std::string_view text);

  bool isAll() const { return ranges_.empty(); }
  bool has(U64 index) const;
  U64 last() const { return isAll() ? std::numeric_limits<U64>::max() : ranges_.back().last; }
  /// The largest number that is written: of "5-" it is 5.
  U64 largestNamed() const;
  /// The indexes, in ascending order, up to `end`, which is not included.
  std::vector<U64> below(U64 end) const;
  /// The ranges in which has() met no index, such as "5,100-199".
  std::string unmet() const;

 private:
  struct Range {
    U64 first;
    U64 last;
    mutable bool isMet = false;
  };

  std::vector<Range> ranges_;  ///< ascending
};

}  // namespace Core
}  // namespace Velmar
