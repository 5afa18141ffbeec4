#pragma once

#include <benchmark/benchmark.h>

#include <cstddef>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "Floors.h"
#include "Velmar/MetaInfo.h"

namespace Bench {

/// Items in one round of a benchmark: few enough for the L1 cache.
constexpr std::size_t itemCount = 256;

/// Makes a benchmark report the time for one item.
inline void countItems(benchmark::State& state, std::size_t perRound) {
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(perRound));
}

/// Registers a benchmark that makes `call(item, i)` for each item, round after round.
template <class Items, class Call>
void add(const std::string& name, std::shared_ptr<Items> items, Call call) {
  benchmark::RegisterBenchmark(name.c_str(), [items, call](benchmark::State& state) {
    for (auto _ : state) {
      U32 i = 0;
      for (auto& item : *items) call(item, i++);
    }
    countItems(state, items->size());
  });
}

/// Views of one class over buffers of `bytes` bytes with random contents, each in a cache line of
/// its own and for one of `chips`.
template <class View>
class Views {
 public:
  Views(const std::vector<ChipType_>& chips, U16 bytes, U8 variants = 1)
      : entries_(itemCount * line) {
    std::mt19937 random(1);
    for (U8& byte : entries_) byte = static_cast<U8>(random());
    for (std::size_t i = 0; i < itemCount; ++i) {
      views_.emplace_back(chips[random() % chips.size()], entries_.data() + i * line, bytes, false,
                          static_cast<U8>(random() % variants));
    }
  }
  auto begin() { return views_.begin(); }
  auto end() { return views_.end(); }
  std::size_t size() const { return views_.size(); }

 private:
  static constexpr std::size_t line = 64;

  std::vector<U8> entries_;
  std::vector<View> views_;
};

template <class View, class... Arguments>
std::shared_ptr<Views<View>> views(const std::vector<ChipType_>& chips, Arguments... arguments) {
  return std::make_shared<Views<View>>(chips, static_cast<U16>(arguments)...);
}

const std::vector<ChipType_> oneChip = {BCM56990_B0};
const std::vector<ChipType_> mixedChips = {BCM56960_A0, BCM56965_A0, BCM56968_A0, BCM56970_A0,
                                           BCM56870_A0, BCM56770_A0, BCM56470_A0, BCM56370_A0,
                                           BCM56275_A0, BCM56175_A0, BCM56980_A0, BCM56990_B0,
                                           BCM56992_B0, BCM56993_B0, BCM56996_A0, BCM56996_B0};

template <class T>
void keep(const T& value) {
  benchmark::DoNotOptimize(value);
}

}  // namespace Bench
