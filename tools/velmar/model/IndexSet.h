#pragma once

#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "AsicUtils/Types.h"

namespace Tool {

/// The entries that a command line selects, such as "100", "0-99", "100-" or "1,5,100-199".
class IndexSet {
 public:
  /// All entries.
  IndexSet() = default;
  explicit IndexSet(std::string_view text);

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

/// The indexes that a document has given.
class SeenIndexes {
 public:
  /// False where it was inserted before. Indexes that no table has are not remembered.
  bool insert(U64 index) {
    constexpr U64 most = 1U << 16;
    if (index >= most) return true;
    const auto at = static_cast<size_t>(index);
    if (at >= seen_.size()) seen_.resize(at + 1);
    const bool isNew = !seen_[at];
    seen_[at] = true;
    return isNew;
  }

 private:
  std::vector<bool> seen_;
};

}  // namespace Tool
