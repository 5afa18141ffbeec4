#include "core/IndexSet.h"

#include <algorithm>

#include "core/Text.h"

namespace Velmar {
namespace Core {
namespace {

Expected<U64> parseIndex(std::string_view text) {
  const std::optional<U64> index = parseNumber(trim(text));
  if (!index || *index > std::numeric_limits<U32>::max()) {
    return failed(
        Fault(Code::index,
              "{} is not an entry index; give indexes such as 100, 0-99, 100- or 1,5,100-199",
              quoted(text).view()));
  }
  return *index;
}

}  // namespace

Expected<IndexSet> IndexSet::of(std::string_view text) {
  std::vector<Range> ranges;
  for (const std::string& part : split(text, ',')) {
    const size_t dash = part.find('-');
    const Expected<U64> first = parseIndex(std::string_view(part).substr(0, dash));
    const bool isOpen = dash + 1 == part.size();
    const Expected<U64> last = dash == std::string::npos ? first
                               : isOpen ? Expected<U64>(std::numeric_limits<U32>::max())
                                        : parseIndex(std::string_view(part).substr(dash + 1));
    if (!first || !last) return failed(first ? last : first);
    if (*last < *first) {
      return failed(Fault(Code::index, "index range {} runs backwards; give the lower index first",
                          quoted(part).view()));
    }
    ranges.push_back({*first, *last});
  }
  std::sort(ranges.begin(), ranges.end(),
            [](const Range& a, const Range& b) { return a.first < b.first; });
  size_t kept = 0;
  for (size_t i = 1; i < ranges.size(); ++i) {
    if (ranges[i].first <= ranges[kept].last) {
      ranges[kept].last = std::max(ranges[kept].last, ranges[i].last);
    } else {
      ranges[++kept] = ranges[i];
    }
  }
  ranges.resize(kept + 1);
  IndexSet set;
  set.ranges_ = std::move(ranges);
  return set;
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

}  // namespace Core
}  // namespace Velmar
