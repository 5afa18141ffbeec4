// Whole tables: 8192 VLAN entries field by field, and a walk through the virtual interface.

#include <cstring>

#include "Bench.h"
#include "Detail/CopyBits.h"
#include "Velmar/FieldId.h"

namespace {

using namespace Bench;
using Velmar::VlanEntry;
namespace FieldId = Velmar::FieldId;

constexpr U32 entries = 8192;
constexpr U16 entryBytes = 16;

using Table = std::vector<U8>;

std::shared_ptr<Table> someTable() {
  auto table = std::make_shared<Table>(entries * entryBytes);
  std::mt19937 random(3);
  for (U8& byte : *table) byte = static_cast<U8>(random());
  return table;
}

/// Registers a benchmark that makes a view of each entry of a table.
template <class View, class Call>
void addTable(const std::string& name, Call call) {
  benchmark::RegisterBenchmark(name.c_str(), [call, table = someTable()](benchmark::State& state) {
    for (auto _ : state) {
      for (U32 i = 0; i < entries; ++i) {
        View view(BCM56990_B0, table->data() + i * entryBytes, entryBytes, false, 0);
        call(view, i);
      }
    }
    countItems(state, entries);
  });
}

template <class View>
void decode(View& view, U32) {
  U32 sum = 0;
#define BENCH_GET(name, TYPE, offset, width) sum += view.name();
  FLOORS_VLAN_FIELDS(BENCH_GET)
#undef BENCH_GET
  keep(sum);
}

template <class View>
void encode(View& view, U32 i) {
#define BENCH_SET(name, TYPE, offset, width) \
  view.name##Is(static_cast<TYPE>(i & ((1U << width) - 1)));
  FLOORS_VLAN_FIELDS(BENCH_SET)
#undef BENCH_SET
}

/// An agent that programs and verifies: each entry is read back at once.
template <class View>
void readBack(View& view, U32 i) {
  encode(view, i);
  decode(view, i);
}

/// A caller that does not know the class: every identifier of the class, through the base class.
void walk(const AsicUtils::AsicBase& view, const U8* entry) {
  U64 sum = 0;
  for (const U32 id :
       {FieldId::VALID, FieldId::FID_ID, FieldId::ENABLE_IGMP_MLD_SNOOPING, FieldId::VLAN_CLASS_ID,
        FieldId::STG, FieldId::VLAN_PROFILE_PTR, FieldId::MEMBERSHIP_PROFILE_PTR,
        FieldId::PORT_BITMAP_PROFILE_PTR, FieldId::VIRTUAL_PORT_EN, FieldId::LEARN_DISABLE,
        FieldId::L2_ENTRY_KEY_TYPE, FieldId::FLEX_CTR_ACTION, FieldId::UUC_IDX, FieldId::UMC_IDX,
        FieldId::BC_IDX}) {
    if (!view.isFieldValid(id)) continue;
    U64 value = 0;
    Detail::copyBits(reinterpret_cast<U8*>(&value), sizeof(value), entry, entryBytes,
                     view.fieldWidth(id), 0, view.fieldOffset(id));
    sum += value;
  }
  keep(sum);
}

template <class View>
void addWalk(const std::string& name) {
  const auto list = views<View>(oneChip, entryBytes);
  static U8 entry[entryBytes] = {0x55, 0xaa, 0x12, 0x34};
  add(name, list, [](View& view, U32) { walk(view, entry); });
}

const bool added = [] {
  addTable<Floors::Vlan>("decode/floor", &decode<Floors::Vlan>);
  addTable<VlanEntry>("decode/8192 VLANs", &decode<VlanEntry>);
  addTable<Floors::Vlan>("encode/floor", &encode<Floors::Vlan>);
  addTable<VlanEntry>("encode/8192 VLANs", &encode<VlanEntry>);
  addTable<Floors::Vlan>("read back/floor", &readBack<Floors::Vlan>);
  addTable<VlanEntry>("read back/8192 VLANs", &readBack<VlanEntry>);
  addWalk<Floors::Walked>("walk/floor");
  addWalk<VlanEntry>("walk/generic");
  return true;
}();

}  // namespace
