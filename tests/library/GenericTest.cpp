// Reads, texts, differences and translation through views of any class.

#include "Velmar/Generic.h"

#include <random>

#include "Velmar/FieldId.h"
#include "support/Sweep.h"
#include "support/ViewClasses.h"

namespace VelmarTest {
namespace {

using namespace Velmar;

/// Calls check(entry, probe, golden) for every class on each of its chips, with random bytes.
template <class Check>
void onRandomEntries(const Check& check) {
  std::mt19937 random(7);
  forEachClass([&](auto view, const ClassProbe& probe) {
    using View = typename decltype(view)::Type;
    const GoldenClass& golden = goldenClass(probe.name);
    for (const auto& [chip, facts] : golden.chips) {
      SCOPED_TRACE(probe.name + " on " + chipNames().at(chip));
      Entry<View> entry(ChipType_{chip});
      for (std::size_t i = 0; i < entry.size(); ++i) entry.data()[i] = static_cast<U8>(random());
      check(entry, probe, golden);
      if (isOver()) return;
    }
  });
}

Words wordsOf(const FieldValue& value) { return {value.words().begin(), value.words().end()}; }

/// A probe's value without words that the field has no bits in.
Words trimmed(Words words, U32 width) {
  words.resize((width + 31) / 32);
  return words;
}

TEST(Generic, readsWhatTheMembersRead) {
  onRandomEntries([](const auto& entry, const ClassProbe& probe, const GoldenClass& golden) {
    EXPECT_EQ(className(entry), probe.name);
    EXPECT_EQ(chipOf(entry).number, entry.chip());
    EXPECT_EQ(chipOf(entry).name, chipNames().at(entry.chip()));
    EXPECT_EQ(variantOf(entry), 0);
    EXPECT_EQ(bytesOf(entry).data(), entry.data());
    EXPECT_EQ(bytesOf(entry).size(), entry.size());
    U32 fields = 0;
    forEachField(entry, [&](const Catalogue::Field& field, const FieldValue& value) {
      ++fields;
      const FieldProbe& members = probe.field(field.accessor);
      const Words expected = trimmed(members.get(*entry), value.width());
      EXPECT_EQ(value.width(), golden.fields[0].places.empty() ? 0 : entry->fieldWidth(field.id));
      EXPECT_EQ(wordsOf(value), expected);
      EXPECT_EQ(wordsOf(bits(entry, field.id)), expected);
      EXPECT_EQ(wordsOf(bits(entry, field.hardwareName)), expected);
      if (!members.isScalar()) {
        EXPECT_EQ(assertionOf([&] { field64(entry, field.id); }).expression, "false");
        return;
      }
      EXPECT_EQ(field64(entry, field.accessor), *value.number());
    });
    EXPECT_EQ(fields, entry->fieldCount());
  });
}

TEST(Generic, failsAsTheMembersFail) {
  U8 bytes[16] = {};
  const VlanEntry tooShort(BCM56990_B0, bytes, 5, false, 0);
  expectFailure([&] { field64(tooShort, FieldId::STG); }, "len_ >= 6",
                "U16 Velmar::VlanEntry::stg() const");
  expectFailure([&] { bits(tooShort, "PORT_BITMAP"); }, "0",
                "Oru::PerUnitBitmap Velmar::VlanEntry::portBitmap() const");
  EXPECT_EQ(field64(tooShort, FieldId::FID_ID), 0U);
  for (const char* name : {"spTreePort0", "STG ", ""}) {
    EXPECT_EQ(assertionOf([&] { field64(tooShort, name); }).expression, "false") << name;
    EXPECT_EQ(assertionOf([&] { bits(tooShort, name); }).expression, "false") << name;
  }
  EXPECT_EQ(assertionOf([&] { toText(tooShort); }).expression, "len_ >= 16");
  const Entry<VlanEntry> entry(BCM56990_B0);
  EXPECT_EQ(assertionOf([&] { differences(entry, Entry<VlanEntry>(BCM56992_B0)); }).expression,
            "chipOf(before) == chipOf(after)");
  EXPECT_EQ(assertionOf([&] {
              differences(entry, Entry<PortBitmapProfileEntry>(BCM56990_B0));
            }).expression,
            "className(before) == className(after)");
}

TEST(Generic, namesAreExact) {
  EXPECT_EQ(findChip("BCM56990_B0")->number, BCM56990_B0);
  EXPECT_STREQ(findTable("VlanStgBEntry")->name(), "VlanStgBEntry");
  for (const char* name : {"", "BCM56990", "bcm56990_b0", "VlanEntry ", "Vlan", "VlanEntr"}) {
    EXPECT_FALSE(findChip(name).has_value()) << name;
    EXPECT_FALSE(findTable(name).has_value()) << name;
  }
}

TEST(Generic, textsHaveEveryValueOnce) {
  Entry<VlanEntry> vlan(BCM56990_B0);
  vlan->validIs(1);
  vlan->stgIs(5);
  EXPECT_EQ(toText(vlan),
            "VlanEntry on BCM56990_B0: valid=1 fidId=0 enableIgmpMldSnooping=0 vlanClassId=0 stg=5 "
            "vlanProfilePtr=0 membershipProfilePtr=0 portBitmapProfilePtr=0 virtualPortEn=0 "
            "learnDisable=0 l2EntryKeyType=0 flexCtrAction=0 uucIdx=0 umcIdx=0 bcIdx=0");
  Entry<VlanStgEntry> group(BCM56980_A0);
  group->spTreePort2Is(3);
  group->spTreePort9Is(3);
  group.data()[47] = 0x80;
  EXPECT_EQ(toText(*group),
            "VlanStgEntry on BCM56980_A0: spTreePort0-1,3-8,10-159=0 spTreePort2,9=3 "
            "outsideFields=0x8" +
                std::string(95, '0'));
  Entry<PortBitmapProfileEntry> ports(BCM56990_B0);
  Oru::PerUnitBitmap bitmap(272);
  for (const U32 port : {0U, 1U, 271U}) bitmap.set(port);
  ports->bitmapIs(bitmap);
  EXPECT_EQ(toText(ports), "PortBitmapProfileEntry on BCM56990_B0: bitmap=0-1,271");
}

TEST(Generic, differencesAreTheFieldsThatWereSet) {
  onRandomEntries([](const auto& entry, const ClassProbe& probe, const GoldenClass&) {
    EXPECT_TRUE(differences(entry, *entry).empty());
    const Raw8192 mask = probe.allFieldsMask(entry.chip(), 0);
    for (U32 bit = 0; bit < 8 * entry.size(); bit += 7) {
      auto changed = entry;
      changed.data()[bit / 8] ^= static_cast<U8>(1U << bit % 8);
      const std::vector<FieldDifference> found = differences(entry, changed);
      ASSERT_FALSE(found.empty());
      for (const FieldDifference& each : found) {
        if (!mask.bit(bit)) {
          EXPECT_STREQ(each.accessor, "outsideFields");
          EXPECT_EQ(found.size(), 1U);
          continue;
        }
        const FieldProbe& members = probe.field(each.accessor);
        EXPECT_EQ(wordsOf(each.before), trimmed(members.get(*entry), each.before.width()));
        EXPECT_EQ(wordsOf(each.after), trimmed(members.get(*changed), each.after.width()));
        EXPECT_NE(each.before, each.after);
      }
    }
  });
}

TEST(Generic, translationMovesFieldsOrSaysWhatIsLost) {
  std::size_t lost = 0;
  onRandomEntries([&](const auto& entry, const ClassProbe& probe, const GoldenClass& golden) {
    for (const auto& [chip, facts] : golden.chips) {
      auto target = std::decay_t<decltype(entry)>(ChipType_{chip});
      std::vector<std::string> losses;
      const bool isWhole = translate(*entry, *target, &losses);
      EXPECT_EQ(isWhole, losses.empty());
      lost += losses.size();
      std::set<std::string> names;
      for (const std::string& loss : losses) names.insert(loss.substr(0, loss.find(':')));
      forEachField(entry, [&](const Catalogue::Field& field, const FieldValue& value) {
        const FieldProbe& members = probe.field(field.accessor);
        const bool isThere = ((*target).*members.isValid)();
        const bool isSame =
            isThere && value.resized(bits(target, field.id).width()) == bits(target, field.id);
        EXPECT_EQ(isSame || value.isZero(), names.count(field.accessor) == 0) << field.accessor;
      });
    }
  });
  EXPECT_GT(lost, 500U);

  Entry<VlanEntry> from(BCM56990_B0);
  from->stgIs(5);
  from->fidIdIs(4096);
  from.data()[15] = 0x80;
  Entry<VlanEntry> into(BCM56980_A0);
  into->validIs(1);
  std::vector<std::string> losses;
  EXPECT_FALSE(translate(*from, *into, &losses));
  EXPECT_EQ(losses,
            (std::vector<std::string>{"fidId: too large for 12 bits on BCM56980_A0",
                                      "stg: VlanEntry has no such field on BCM56980_A0",
                                      "outsideFields: bits outside all fields have no name"}));
  EXPECT_EQ(into, Entry<VlanEntry>(BCM56980_A0));
}

TEST(Generic, statesAreThoseOfTheAccessors) {
  onRandomEntries([](const auto& entry, const ClassProbe&, const GoldenClass&) {
    const PortStates all = states(entry);
    EXPECT_EQ(all.size(), portCount(entry, "spTreePort"));
    std::vector<U64> expected;
    forEachField(entry, [&](const Catalogue::Field& field, const FieldValue& value) {
      if (field.id < FieldId::firstPort || field.id > FieldId::SP_TREE_PORT271) return;
      EXPECT_EQ(all[field.id - FieldId::firstPort], *value.number());
      expected.push_back(*value.number());
    });
    EXPECT_EQ(std::vector<U64>(all.begin(), all.end()), expected);
  });
  Entry<VlanStgEntry> lower(BCM56990_B0);
  Entry<VlanStgBEntry> upper(BCM56990_B0);
  lower->spTreePort135Is(1);
  upper->spTreePort136Is(2);
  upper->spTreePort271Is(3);
  const PortStates both = states(lower, upper);
  EXPECT_EQ(both.size(), 272U);
  EXPECT_EQ(both[135] + 10 * both[136] + 100 * both[271], 321);
  EXPECT_EQ(states(upper).firstPort(), 136U);
  EXPECT_EQ(assertionOf([&] { both[272]; }).expression, "port < 272");
  EXPECT_EQ(assertionOf([&] { states(upper)[135]; }).expression, "port < 272");
  EXPECT_EQ(assertionOf([&] { states(upper, lower); }).expression, "port == 272");
  EXPECT_EQ(portCount(lower, "spTreePor"), 0U);
  U8 bytes[33] = {};
  EXPECT_EQ(assertionOf([&] { states(VlanStgEntry(BCM56990_B0, bytes, 33, false, 0)); }).expression,
            "len_ >= 34");
}

}  // namespace
}  // namespace VelmarTest
