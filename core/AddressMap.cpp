#include "core/AddressMap.h"

#include <algorithm>

namespace Velmar {
namespace Core {

AddressMap::AddressMap(const Catalogue::Chip& chip, U8 variant) {
  struct Range {
    U32 table, first;
    U64 end;
  };
  std::vector<Range> ranges;
  std::vector<U32> starts = {0};
  for (U32 i = 0; i < Catalogue::tableCount(); ++i) {
    const Catalogue::Table table = Catalogue::table(i);
    geometries_.push_back(table.geometry(chip.number));
    if (!table.isOn(chip.number, variant)) continue;
    const Catalogue::Geometry& geometry = geometries_.back();
    const U32 last = addressOf(geometry, indexCount(geometry) - 1, 0);
    ranges.push_back({i, addressOf(geometry, 0, 0), U64{last} + 1});
    starts.push_back(ranges.back().first);
    if (last + 1 != 0) starts.push_back(last + 1);
  }
  std::sort(starts.begin(), starts.end());
  starts.erase(std::unique(starts.begin(), starts.end()), starts.end());
  for (const U32 start : starts) {
    parts_.push_back({start, {}});
    for (const Range& range : ranges) {
      if (range.first <= start && start < range.end) parts_.back().tables.push_back(range.table);
    }
  }
}

const AddressMap::Part& AddressMap::partOf(U32 address) const {
  const auto next =
      std::upper_bound(parts_.begin(), parts_.end(), address,
                       [](U32 wanted, const Part& part) { return wanted < part.first; });
  return *std::prev(next);
}

}  // namespace Core
}  // namespace Velmar
