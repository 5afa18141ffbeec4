// The memory of the test bench, against a model and word by word.

#include "Velmar/Testing/SchanMemory.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <random>

#include "Velmar/Testing/RandomEntries.h"
#include "support/Sweep.h"
#include "support/ViewClasses.h"

namespace VelmarTest {
namespace {

using namespace Velmar;
using Testing::BusError;
using Testing::RandomEntries;
using Testing::SchanMemory;

/// What the memory says when it refuses; empty if it does not.
template <class Action>
std::string refusalOf(const Action& action) {
  try {
    action();
  } catch (const BusError& error) {
    return error.what();
  }
  return "";
}

std::string stateOf(const testing::AssertionResult& result) {
  return result ? "holds" : result.message();
}

TEST(SchanMemory, holdsWhatWasWrittenOnEveryChip) {
  std::mt19937 random(3);
  for (const auto& [chip, name] : chipNames()) {
    SCOPED_TRACE(name);
    SchanMemory bus(ChipType_{chip});
    std::map<U32, std::vector<U32>> model;
    forEachClass([&, chip = chip](auto view, const ClassProbe& probe) {
      using View = typename decltype(view)::Type;
      const GoldenClass& golden = goldenClass(probe.name);
      if (golden.chips.count(chip) == 0) return;
      const GoldenChip& facts = golden.chips.at(chip);
      const U32 count = facts.entries ? *facts.entries : facts.arrayElements;
      RandomEntries<View> entries(ChipType_{chip});
      for (U32 i = 0; i < 40; ++i) {
        const U32 index = i == 0 ? 0 : i == 1 ? count - 1 : static_cast<U32>(random()) % count;
        const Entry<View> entry = entries.next();
        const EntryAddress at = *entry.address(index);
        const auto known = model.find(at.address);
        const Testing::EntryWords before = bus.read(at.address, at.accessType);
        EXPECT_EQ(Velmar::Words(before),
                  known == model.end() ? std::vector<U32>(facts.words) : known->second);
        EXPECT_TRUE(bus.write(entry, index));
        model[at.address].assign(entry.words().begin(), entry.words().end());
        EXPECT_EQ(bus.entry<View>(index), entry);
      }
    });
    std::map<U32, std::vector<U32>> replayed;
    for (const Testing::Transaction& transaction : bus.log()) {
      if (!transaction.isWrite) continue;
      replayed[transaction.address].assign(transaction.words.begin(), transaction.words.end());
    }
    EXPECT_EQ(replayed, model);
    for (const auto& [address, words] : model) {
      std::string refusal = refusalOf([&, at = address] { bus.read(at, 1000); });
      EXPECT_NE(refusal.find("access code"), refusal.npos) << refusal;
    }
  }
}

TEST(SchanMemory, refusesWhatNoChipAccepts) {
  SchanMemory bus(BCM56990_B0);
  const Entry<VlanEntry> vlan(BCM56990_B0);
  const EntryAddress at = *vlan.address(20);
  const std::vector<U32> words(5);
  EXPECT_EQ(refusalOf([&] { bus.write(at.address, at.accessType, words); }),
            "VlanEntry 20 on BCM56990_B0 has 4 words, not 5; write the whole entry");
  EXPECT_EQ(refusalOf([&] { bus.write(at.address, 14, vlan.words()); }),
            "VlanEntry 20 on BCM56990_B0 has the access code 17, not 14; take it from "
            "Entry::address()");
  for (const U32 address : {0U, 0x0c7c2000U, 0xffffffffU}) {
    EXPECT_NE(refusalOf([&] { bus.read(address, 17); }).find("no entry has the address"),
              std::string::npos);
  }
  EXPECT_EQ(
      refusalOf([&] { bus.write(vlan, 8192); }),
      "VlanEntry 8192 with identifier 0 does not exist on BCM56990_B0; there are 8192 entries "
      "and 1 identifiers from 0 on");
  EXPECT_NE(refusalOf([&] { bus.entry<VlanEntry>(0, 1); }), "");
  EXPECT_NE(refusalOf([&] { bus.entry<VlanStg2Entry>(0); }).find("is not on BCM56990_B0"),
            std::string::npos);
  EXPECT_NE(refusalOf([] { SchanMemory(ChipType_{5}); }), "");
  EXPECT_TRUE(bus.log().empty());

  // Elements of a register array are apart: nothing answers between them.
  SchanMemory old(BCM56960_A0);
  const EntryAddress element = *Entry<IgmpMldPktControl>(BCM56960_A0).address(1);
  EXPECT_EQ(old.read(element.address, element.accessType).size(), 1U);
  EXPECT_NE(refusalOf([&] { old.read(element.address + 1, element.accessType); }), "");
}

TEST(SchanMemory, tablesThatViewOneMemoryShareIt) {
  SchanMemory bus(BCM56990_B0);
  Entry<VlanProfile2Entry> profile(BCM56990_B0);
  profile.data()[3] = 5;
  bus.write(profile, 3);
  EXPECT_EQ(bus.entry<VfiProfile2Entry>(3).words(), profile.words());
}

TEST(SchanMemory, expectationsShowTheEntry) {
  SchanMemory bus(BCM56960_A0);
  EXPECT_EQ(stateOf(bus.wrote<VlanEntry>(20)), "VlanEntry 20 was not written");
  Entry<VlanEntry> vlan(BCM56960_A0);
  vlan->stgIs(5);
  Oru::PerUnitBitmap ports(136);
  for (const U32 port : {1U, 2U, 9U}) ports.set(port);
  vlan->portBitmapIs(ports);
  bus.write(vlan, 20);
  const std::string text = toText(vlan);
  vlan->stgIs(6);
  bus.write(vlan, 21);
  EXPECT_TRUE(bus.wrote<VlanEntry>(20)
                  .with("stg", 5)
                  .with("PORT_BITMAP", "1-2,9")
                  .with("virtualPortEn", 0));
  EXPECT_EQ(stateOf(bus.wrote<VlanEntry>(20).with("valid", 0).with("stg", 7)),
            "VlanEntry 20 was written with stg=5, not 7: " + text);
  EXPECT_EQ(stateOf(bus.wrote<VlanEntry>(20).with("portBitmap", "1-3")),
            "VlanEntry 20 was written with portBitmap=1-2,9, not 1-3: " + text);
  EXPECT_EQ(stateOf(bus.wrote<VlanEntry>(20).with("spTreePort0", 0)),
            "there is no field \"spTreePort0\" to expect; give a name of " + text);
  EXPECT_FALSE(bool(bus.wrote<VlanEntry>(22)));
  bus.clearLog();
  EXPECT_FALSE(bus.wrote<VlanEntry>(20));
}

TEST(SchanMemory, faultsHitTheEntryTheyAreMeantFor) {
  SchanMemory bus(BCM56990_B0);
  Entry<VlanEntry> vlan(BCM56990_B0);
  const EntryAddress at = *vlan.address(20);
  vlan->stgIs(1);
  bus.failWrites<VlanEntry>(20, 2);
  EXPECT_TRUE(bus.write(vlan, 21));
  EXPECT_FALSE(bus.write(vlan, 20));
  EXPECT_FALSE(bus.write(at.address, at.accessType, vlan.words()));
  EXPECT_EQ(bus.log().size(), 1U);
  EXPECT_EQ(bus.entry<VlanEntry>(20)->stg(), 0);
  EXPECT_TRUE(bus.write(vlan, 20));

  const auto groupRead = [&] {
    Entry<VlanEntry> entry(BCM56990_B0);
    entry.assign(bus.read(at.address, at.accessType));
    return entry->stg();
  };
  bus.delayReads<VlanEntry>(20, 2);
  EXPECT_EQ(groupRead(), 1);
  vlan->stgIs(2);
  bus.write(vlan, 20);
  std::vector<U16> seen;
  for (U32 i = 0; i < 4; ++i) seen.push_back(groupRead());
  EXPECT_EQ(seen, (std::vector<U16>{1, 1, 2, 2}));
  vlan->stgIs(3);
  bus.write(vlan, 20);
  EXPECT_EQ(groupRead(), 3);
}

TEST(SchanMemory, logsAndSnapshotsAreText) {
  SchanMemory bus(BCM56990_B0);
  Entry<VlanEntry> vlan(BCM56990_B0);
  vlan->validIs(1);
  vlan->fidIdIs(20);
  bus.write(vlan, 20);
  bus.read(0x0c7c0014, 17);
  EXPECT_EQ(bus.logText(),
            "0.000001 W 0x0c7c0014 00005000 00000000 00000004 00000000\n"
            "0.000002 R 0x0c7c0014 00005000 00000000 00000004 00000000\n");
  bus.clearLog();
  bus.write(vlan, 8191);
  EXPECT_EQ(bus.logText(), "0.000003 W 0x0c7c1fff 00005000 00000000 00000004 00000000\n");

  namespace fs = std::filesystem;
  const fs::path folder =
      fs::temp_directory_path() / ("velmar-snapshot-" + std::to_string(getpid()));
  EXPECT_THROW(bus.save(folder), std::runtime_error);
  fs::create_directory(folder);
  bus.save(folder);
  std::ifstream file(folder / "VlanEntry.bin", std::ios::binary);
  const std::string bytes(std::istreambuf_iterator<char>(file), {});
  ASSERT_EQ(bytes.size(), 8192U * 16);
  EXPECT_EQ(bytes.substr(8191 * 16),
            std::string(reinterpret_cast<const char*>(vlan.data()), vlan.size()));
  EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 2);
  fs::remove_all(folder);
}

TEST(RandomEntries, areValidAndRepeatable) {
  forEachClass([](auto view, const ClassProbe& probe) {
    using View = typename decltype(view)::Type;
    for (const auto& [chip, facts] : goldenClass(probe.name).chips) {
      RandomEntries<View> entries(ChipType_{chip});
      RandomEntries<View> again(ChipType_{chip});
      std::vector<U32> seen(facts.words);
      const Raw8192 mask = probe.allFieldsMask(chip, 0);
      for (U32 i = 0; i < 60; ++i) {
        const Entry<View> entry = entries.next();
        ASSERT_EQ(entry, again.next());
        for (U32 word = 0; word < facts.words; ++word) seen[word] |= entry.words()[word];
      }
      for (U32 word = 0; word < facts.words; ++word) ASSERT_EQ(seen[word], mask.words[word]);
    }
  });
}

}  // namespace
}  // namespace VelmarTest
