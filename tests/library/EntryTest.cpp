// Entries that own their bytes, for all classes.

#include "Velmar/Entry.h"

#include <cstring>

#include "support/Sweep.h"
#include "support/ViewClasses.h"

namespace VelmarTest {
namespace {

using Velmar::Entry;
using Velmar::VlanEntry;

TEST(Entry, areWhatViewsOverTheirBytesAre) {
  forEachClass([](auto view, const ClassProbe& probe) {
    using View = typename decltype(view)::Type;
    const GoldenClass& golden = goldenClass(probe.name);
    for (const auto& [chip, facts] : golden.chips) {
      SCOPED_TRACE(probe.name + " on " + chipNames().at(chip));
      Entry<View> entry(ChipType_{chip});
      ASSERT_EQ(entry.size(), 4U * facts.words);
      ASSERT_EQ(entry.words().size(), facts.words);
      ASSERT_EQ(std::vector<U8>(entry.data(), entry.data() + entry.size()),
                std::vector<U8>(entry.size()));
      std::vector<U8> bytes(entry.size());
      for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<U8>(37 * i + 11);
      entry.assign(bytes.data(), bytes.size());
      bytes.resize(sizeof(entry->getAllFields()));
      const auto direct = probe.make(chip, bytes.data(), static_cast<U16>(bytes.size()), 0);
      EXPECT_EQ(probe.getAllFields(*entry), probe.getAllFields(*direct));

      Entry<View> copy = entry;
      EXPECT_EQ(copy, entry);
      entry.data()[entry.size() - 1] ^= 0x80;
      EXPECT_NE(copy, entry);
      EXPECT_EQ(probe.getAllFields(*copy), probe.getAllFields(*direct));
      copy.assign(entry.words());
      EXPECT_EQ(copy, entry);
    }
  });
}

TEST(Entry, addressesAreThoseOfTheViews) {
  forEachClass([](auto view, const ClassProbe& probe) {
    using View = typename decltype(view)::Type;
    for (const auto& [chip, facts] : goldenClass(probe.name).chips) {
      SCOPED_TRACE(probe.name + " on " + chipNames().at(chip));
      const Entry<View> entry(ChipType_{chip});
      const U32 count = probe.isTable ? entry->entries() : entry->arrayElements();
      for (const U32 index : {U32{0}, count - 1}) {
        SchanTriple triple{};
        probe.getSchanAddress(chip, 0, triple, 0, probe.isTable ? index : 0,
                              static_cast<U16>(probe.isTable ? 0 : index));
        const Velmar::EntryAddress expected{triple.address, triple.accessType, triple.block};
        EXPECT_EQ(entry.address(index), expected);
      }
      EXPECT_EQ(entry.address(count), std::nullopt);
      for (const U32 identifier : {1U, 2U, 0x10000U}) {
        EXPECT_EQ(entry.address(0, identifier).has_value(),
                  probe.hasIdentifier(chip, 0, identifier));
      }
    }
  });
}

TEST(Entry, assignmentTakesTheChipToo) {
  Entry<VlanEntry> old(BCM56960_A0);
  old->validIs(1);
  Entry<VlanEntry> entry(BCM56990_B0);
  entry->stgIs(5);
  const Entry<VlanEntry> kept = entry;
  entry = old;
  EXPECT_EQ(entry, old);
  EXPECT_EQ(entry->validOffset(), old->validOffset());
  entry->validIs(0);
  EXPECT_EQ(old->valid(), 1);
  entry = Entry<VlanEntry>(kept);
  EXPECT_EQ(entry->stg(), 5);
  EXPECT_NE(&*entry, &*kept);
}

TEST(Entry, refusesAsTheViewsDo) {
  const std::string constructor =
      "Velmar::VlanStg2Entry::VlanStg2Entry(ChipType_, U8*, U16, bool, U8)";
  expectFailure([] { Entry<Velmar::VlanStg2Entry>{BCM56990_B0}; }, "\"0\" == nullptr", constructor);
  EXPECT_EQ(assertionOf([] { Entry<VlanEntry>(BCM56990_B0, 1); }).expression, "\"0\" == nullptr");
  Entry<VlanEntry> entry(BCM56990_B0);
  const std::vector<U8> bytes(17);
  const std::vector<U32> words(5);
  for (const std::size_t size : {0U, 15U, 17U}) {
    EXPECT_EQ(assertionOf([&] { entry.assign(bytes.data(), size); }).expression, "size == 16");
  }
  EXPECT_EQ(assertionOf([&] { entry.assign(words.data(), 3); }).expression, "size == 4");
  EXPECT_EQ(assertionOf([&] { entry.assign(words); }).expression, "size == 4");
}

}  // namespace
}  // namespace VelmarTest
