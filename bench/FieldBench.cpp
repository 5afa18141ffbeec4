// Scalar fields: getters, setters, offset, width and presence.

#include "Bench.h"
#include "Kiv/Trace.h"

namespace {

using namespace Bench;
using Velmar::VlanEntry;
using Velmar::VlanMplsEntry;
using Velmar::VlanStgEntry;

constexpr U16 roomy = 64;
/// Chips whose VLAN entries ignore the variant.
const std::vector<ChipType_> anyVariant = {BCM56960_A0, BCM56970_A0, BCM56870_A0, BCM56980_A0};

template <class View>
void addAccessors(const std::string& name, std::shared_ptr<Views<View>> views) {
  add("getter/" + name, views, [](View& view, U32) { keep(view.fidId()); });
  add("setter/" + name, views, [](View& view, U32 i) { view.fidIdIs(static_cast<U16>(i)); });
}

void addStgAccessors(const std::string& name, std::shared_ptr<Views<VlanStgEntry>> views) {
  add("getter/" + name, views, [](VlanStgEntry& view, U32) { keep(view.spTreePort12()); });
  add("setter/" + name, views,
      [](VlanStgEntry& view, U32 i) { view.spTreePort12Is(static_cast<U8>(i & 3)); });
}

void discard(const Kiv::TraceRecord&, void*) {}

/// Each call writes one line: the level is on while this benchmark runs.
void tracedGetter(benchmark::State& state) {
  U8 entry[roomy] = {};
  const VlanEntry view(BCM56990_B0, entry, roomy, false, 0);
  Kiv::TraceFacility::sinkIs(&discard, nullptr);
  Kiv::TraceFacility::levelIs("AsicUtilsVelmarMetaInfo", 8, true);
  for (auto _ : state) keep(view.fidId());
  Kiv::TraceFacility::levelIs("AsicUtilsVelmarMetaInfo", 8, false);
  Kiv::TraceFacility::sinkIs(nullptr, nullptr);
  countItems(state, 1);
}

const bool added = [] {
  const auto floor = views<Floors::Vlan>(oneChip, roomy);
  addAccessors("floor", floor);
  addAccessors("one chip", views<VlanEntry>(oneChip, roomy));
  addAccessors("mixed chips", views<VlanEntry>(mixedChips, roomy));
  addAccessors("other variants", views<VlanEntry>(anyVariant, roomy, 4));
  addStgAccessors("port family", views<VlanStgEntry>(oneChip, roomy));
  addStgAccessors("port family, mixed chips", views<VlanStgEntry>(mixedChips, roomy));
  const auto words = views<VlanMplsEntry>({BCM56990_B0}, 4);
  add("getter/exactly 4 bytes", words, [](VlanMplsEntry& view, U32) { keep(view.l3Iif()); });
  add("setter/exactly 4 bytes", words,
      [](VlanMplsEntry& view, U32 i) { view.l3IifIs(static_cast<U16>(i)); });
  // Bits 10 to 22: the field ends in byte 2. Bits 365 to 376: byte 47.
  addAccessors("exactly 3 bytes", views<VlanEntry>(oneChip, 3));
  addAccessors("exactly 48 bytes", views<VlanEntry>({BCM56960_A0}, 48));

  add("constant/floor", floor, [](Floors::Vlan& view, U32) { keep(view.constant()); });
  for (const auto& [name, chips] : {std::pair{"one chip", oneChip}, {"mixed chips", mixedChips}}) {
    const auto vlans = views<VlanEntry>(chips, roomy);
    const std::string suffix = std::string("/") + name;
    add("offset" + suffix, vlans, [](VlanEntry& view, U32) { keep(view.fidIdOffset()); });
    add("length" + suffix, vlans, [](VlanEntry& view, U32) { keep(view.fidIdLen()); });
    add("validity" + suffix, vlans, [](VlanEntry& view, U32) { keep(view.isFidIdValid()); });
  }
  benchmark::RegisterBenchmark("trace line", &tracedGetter);
  return true;
}();

}  // namespace
