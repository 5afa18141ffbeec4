#include "model/IndexSet.h"

#include <algorithm>

#include "model/Failure.h"
#include "model/Text.h"

namespace Tool {
namespace {

U64 parseIndex(std::string_view text) {
  const std::optional<U64> index = parseNumber(trim(text));
  if (!index || *index > std::numeric_limits<U32>::max()) {
    fail("{} is not an entry index; give indexes such as 100, 0-99 or 1,5,100-199", inQuotes(text));
  }
  return *index;
}

}  // namespace

IndexSet::IndexSet(std::string_view text) {
  for (const std::string& part : split(text, ',')) {
    const size_t dash = part.find('-');
    const U64 first = parseIndex(std::string_view(part).substr(0, dash));
    const U64 last =
        dash == std::string::npos ? first : parseIndex(std::string_view(part).substr(dash + 1));
    if (last < first) {
      fail("index range {} runs backwards; give the lower index first", inQuotes(part));
    }
    ranges_.emplace_back(first, last);
  }
  std::sort(ranges_.begin(), ranges_.end());
  size_t kept = 0;
  for (size_t i = 1; i < ranges_.size(); ++i) {
    if (ranges_[i].first <= ranges_[kept].second + 1) {
      ranges_[kept].second = std::max(ranges_[kept].second, ranges_[i].second);
    } else {
      ranges_[++kept] = ranges_[i];
    }
  }
  ranges_.resize(kept + 1);
}

bool IndexSet::has(U64 index) const {
  if (isAll()) return true;
  const auto after = std::upper_bound(
      ranges_.begin(), ranges_.end(), index,
      [](U64 value, const std::pair<U64, U64>& range) { return value < range.first; });
  return after != ranges_.begin() && index <= std::prev(after)->second;
}

}  // namespace Tool
