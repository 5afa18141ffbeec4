#include "model/IndexSet.h"

#include <algorithm>

#include "model/Failure.h"
#include "model/Text.h"

namespace Tool {
namespace {

U64 parseIndex(std::string_view text) {
  const std::optional<U64> index = parseNumber(trim(text));
  if (!index || *index > std::numeric_limits<U32>::max()) {
    fail("{} is not an entry index; give indexes such as 100, 0-99, 100- or 1,5,100-199",
         inQuotes(text));
  }
  return *index;
}

}  // namespace

IndexSet::IndexSet(std::string_view text) {
  for (const std::string& part : split(text, ',')) {
    const size_t dash = part.find('-');
    const U64 first = parseIndex(std::string_view(part).substr(0, dash));
    const bool isOpen = dash + 1 == part.size();
    const U64 last = dash == std::string::npos ? first
                     : isOpen                  ? std::numeric_limits<U32>::max()
                              : parseIndex(std::string_view(part).substr(dash + 1));
    if (last < first) {
      fail("index range {} runs backwards; give the lower index first", inQuotes(part));
    }
    ranges_.push_back({first, last});
  }
  std::sort(ranges_.begin(), ranges_.end(),
            [](const Range& a, const Range& b) { return a.first < b.first; });
  size_t kept = 0;
  for (size_t i = 1; i < ranges_.size(); ++i) {
    if (ranges_[i].first <= ranges_[kept].last) {
      ranges_[kept].last = std::max(ranges_[kept].last, ranges_[i].last);
    } else {
      ranges_[++kept] = ranges_[i];
    }
  }
  ranges_.resize(kept + 1);
}

bool IndexSet::has(U64 index) const {
  if (isAll()) return true;
  const auto after =
      std::upper_bound(ranges_.begin(), ranges_.end(), index,
                       [](U64 value, const Range& range) { return value < range.first; });
  if (after == ranges_.begin() || index > std::prev(after)->last) return false;
  std::prev(after)->isMet = true;
  return true;
}

U64 IndexSet::largestNamed() const {
  const Range& range = ranges_.back();
  return range.last == std::numeric_limits<U32>::max() ? range.first : range.last;
}

std::vector<U64> IndexSet::below(U64 end) const {
  std::vector<U64> indexes;
  for (const Range& range : ranges_) {
    for (U64 index = range.first; index <= range.last && index < end; ++index) {
      indexes.push_back(index);
    }
  }
  return indexes;
}

std::string IndexSet::unmet() const {
  std::string text;
  for (const Range& range : ranges_) {
    if (range.isMet) continue;
    text += formatText("{}{}", text.empty() ? "" : ",", range.first);
    const bool isOpen = range.last == std::numeric_limits<U32>::max();
    if (range.last != range.first) text += isOpen ? "-" : formatText("-{}", range.last);
  }
  return text;
}

}  // namespace Tool
