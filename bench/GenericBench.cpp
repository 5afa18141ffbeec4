// Reads of all ports by one call, and accesses of the test bench's memory.

#include <array>
#include <cstring>
#include <unordered_map>

#include "Bench.h"
#include "Velmar/Testing/SchanMemory.h"

namespace {

using namespace Bench;
using Velmar::Entry;
using Velmar::VlanEntry;
using Velmar::VlanStgBEntry;
using Velmar::VlanStgEntry;
using Velmar::Testing::EntryWords;
using Velmar::Testing::SchanMemory;

constexpr U32 portsOfTable = 136;

/// As one writes it by hand: the states of an entry's ports, word by word.
template <std::size_t ports>
void addStates(std::array<U8, ports>& states, U32 first, const U8* entry) {
  for (U32 port = 0; port < portsOfTable; ++port) {
    U32 word;
    std::memcpy(&word, entry + port / 16 * 4, sizeof(word));
    states[first + port] = static_cast<U8>(word >> port % 16 * 2 & 3);
  }
}

/// Entries of two tables, filled at random.
struct Group {
  Group() : lower(BCM56990_B0), upper(BCM56990_B0) {
    static std::mt19937 random(4);
    for (std::size_t i = 0; i < 34; ++i) lower.data()[i] = static_cast<U8>(random());
    for (std::size_t i = 0; i < 34; ++i) upper.data()[i] = static_cast<U8>(random());
  }
  Entry<VlanStgEntry> lower;
  Entry<VlanStgBEntry> upper;
};

/// An access to an entry of the VLAN table.
struct Access {
  U32 address;
  U32 accessType;
  EntryWords words;
};

/// All VLANs in a random order, as far as a benchmark asks for them.
std::shared_ptr<std::vector<Access>> accesses() {
  auto list = std::make_shared<std::vector<Access>>();
  std::mt19937 random(5);
  const Entry<VlanEntry> vlan(BCM56990_B0);
  while (list->size() < 4 * itemCount) {
    const auto at = vlan.address(static_cast<U32>(random() % 8192));
    list->push_back({at->address, at->accessType, EntryWords(vlan.words())});
  }
  return list;
}

const bool added = [] {
  const auto groups = std::make_shared<std::vector<Group>>(itemCount);
  add("states/floor 136", groups, [](Group& group, U32) {
    std::array<U8, portsOfTable> states;
    addStates(states, 0, group.lower.data());
    keep(states);
  });
  add("states/136", groups, [](Group& group, U32) { keep(states(group.lower)); });
  add("states/floor 272", groups, [](Group& group, U32) {
    std::array<U8, 2 * portsOfTable> states;
    addStates(states, 0, group.lower.data());
    addStates(states, portsOfTable, group.upper.data());
    keep(states);
  });
  add("states/272", groups, [](Group& group, U32) { keep(states(group.lower, group.upper)); });

  const auto list = accesses();
  const auto bus = std::make_shared<SchanMemory>(BCM56990_B0);
  const auto map = std::make_shared<std::unordered_map<U64, EntryWords>>();
  for (U32 i = 0; i < 8192; ++i) {
    const Entry<VlanEntry> vlan(BCM56990_B0);
    bus->write(vlan, i);
    const auto at = vlan.address(i);
    map->emplace(U64{at->accessType} << 32 | at->address, EntryWords(vlan.words()));
  }
  const auto find = [map](const Access& access) {
    return map->find(U64{access.accessType} << 32 | access.address);
  };
  add("bus/map look-up, read", list, [=](Access& access, U32) {
    const EntryWords words = find(access)->second;
    keep(words);
  });
  add("bus/map look-up, write", list,
      [=](Access& access, U32) { find(access)->second = access.words; });
  add("bus/read", list, [=](Access& access, U32 i) {
    if (i == 0) bus->clearLog();
    const EntryWords words = bus->read(access.address, access.accessType);
    keep(words);
  });
  add("bus/write", list, [=](Access& access, U32 i) {
    if (i == 0) bus->clearLog();
    bus->write(access.address, access.accessType, access.words);
  });
  return true;
}();

}  // namespace
