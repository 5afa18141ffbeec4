// A program for the tests of gdb: it stops with views of several kinds in memory.

#include <cstdlib>
#include <vector>

#include "Oru/PerUnitBitmap.h"
#include "Velmar/EgrVlanEntry.h"
#include "Velmar/IngVpVlanMembershipEccEntry.h"
#include "Velmar/VlanEntry.h"
#include "Velmar/VlanStgEntry.h"

namespace {

int stop(const Velmar::VlanEntry& vlan, const AsicUtils::AsicBase* base) {
  if (base != nullptr) std::abort();
  return vlan.stg();
}

template <class View, U16 size>
struct Held {
  U8 bytes[size] = {};
  View view;
  explicit Held(ChipType_ chip, U16 length = size) : view(chip, bytes, length, false, 0) {}
};

struct Named {
  int id = 3;
};
struct Port : Named {
  Velmar::VlanEntry view;
  int number = 7;
  explicit Port(const Velmar::VlanEntry& of) : view(of) {}
};

}  // namespace

int main() {
  U8 bytes[16] = {};
  Velmar::VlanEntry vlan(BCM56990_B0, bytes, sizeof bytes, false, 0);
  vlan.stgIs(5);
  vlan.fidIdIs(100);
  bytes[15] = 0x80;
  Held<Velmar::EgrVlanEntry, 52> egress(BCM56980_A0);
  egress.bytes[0] = 0x0f;
  egress.bytes[2] = 2;
  Held<Velmar::VlanStgEntry, 48> groups(BCM56980_A0);
  groups.bytes[1] = 0x0c;
  Held<Velmar::IngVpVlanMembershipEccEntry, 12> raw(BCM56470_A0);
  raw.bytes[10] = 3;
  Held<Velmar::VlanEntry, 16> cut(BCM56990_B0, 8);
  const Port port(vlan);
  const std::vector<Port> ports{port};
  const std::vector<Velmar::VlanEntry> vec{vlan, cut.view, vlan};
  const std::vector<Velmar::VlanEntry> none;
  Oru::PerUnitBitmap members(64);
  members.set(3);
  members.set(4);
  Oru::PerUnitBitmap many(400);
  many.set(399);
  return stop(vec[0], &egress.view) + static_cast<int>(ports.size() + none.size());
}
