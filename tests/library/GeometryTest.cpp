// The static members and their const forms over all classes, chips known and unknown, and variants:
// values, failure texts and signatures, spans, identifiers, variant counts, base defaults.

#include <gtest/gtest.h>

#include <set>

#include "support/AssertionFailed.h"
#include "support/ClassProbes.h"
#include "support/GoldenData.h"

namespace VelmarTest {
namespace {

/// Chips known to some class, neighbours of the range, and numbers that a narrowing to 8 bits would
/// turn into known ones.
std::vector<U32> chipsAndStrangers() {
  std::vector<U32> chips = {0, 5, 7, 32, 38, 255, 256 + 33, 289 + 256, 0x10006, 0xffffffff};
  for (const auto& [chip, name] : chipNames()) chips.push_back(chip);
  return chips;
}

/// The text with which a static member fails; empty where it does not.
std::string staticFailure(const GoldenClass& golden, U32 chip, U8 variant) {
  const auto found = golden.chips.find(chip);
  if (found == golden.chips.end()) return "0";
  return knowsVariant(found->second, variant) ? "" : "variant == 0";
}

TEST(Geometry, staticAndConstFormsFailAlike) {
  for (const ClassProbe& probe : classProbes()) {
    const GoldenClass& golden = goldenClass(probe.name);
    for (const U32 chip : chipsAndStrangers()) {
      for (const U8 variant : {U8{0}, U8{1}, U8{255}}) {
        const std::string text = staticFailure(golden, chip, variant);
        for (const GeometryProbe& geometry : probe.geometry) {
          SCOPED_TRACE(probe.name + " " + geometry.name + " chip " + std::to_string(chip) +
                       " variant " + std::to_string(variant));
          const std::string signature = "static " + geometry.type + " Velmar::" + probe.name +
                                        "::" + geometry.name + "(U32, U8)";
          U32 value = 0;
          const AssertionFailed failure =
              assertionOf([&] { value = geometry.ofChip(chip, variant); });
          ASSERT_EQ(failure.expression, text);
          if (!text.empty()) EXPECT_EQ(failure.function, signature);
          if (chip > 255) continue;
          U32 constValue = 0;
          const AssertionFailed constFailure = assertionOf(
              [&] { constValue = geometry.ofView(*probe.open(chip, nullptr, 0, variant)); });
          ASSERT_EQ(constFailure.expression, text);
          EXPECT_EQ(constFailure.function, failure.function);
          EXPECT_EQ(constValue, value);
        }
      }
    }
  }
}

TEST(Geometry, constantsOfEveryChip) {
  for (const ClassProbe& probe : classProbes()) {
    for (const auto& [chip, facts] : goldenClass(probe.name).chips) {
      for (const GeometryProbe& geometry : probe.geometry) {
        SCOPED_TRACE(probe.name + " " + geometry.name);
        const U32 value = geometry.ofChip(chip, 0);
        if (geometry.name == "instanceCount") EXPECT_EQ(value, 1U);
        if (geometry.name == "index_min" || geometry.name == "arrayIndex_min" ||
            geometry.name == "maxIdentifier") {
          EXPECT_EQ(value, 0U);
        }
        if (geometry.name == "addrStride") EXPECT_EQ(value, chip < 33 ? 256U : 1024U);
      }
      const auto view = probe.make(chip, nullptr, 0, 0);
      EXPECT_EQ(view->isTable(), probe.isTable);
      EXPECT_TRUE(probe.isPrimary(*view));
    }
  }
}

TEST(Geometry, tableWidthIsACallOfWidth) {
  EXPECT_EQ(Velmar::VlanEntry::tableWidth(BCM56960_A0, 0), 16);
  EXPECT_EQ(assertionOf([] { Velmar::VlanEntry::tableWidth(5, 0); }).function,
            "static U16 Velmar::VlanEntry::width(U32, U8)");
  EXPECT_EQ(Velmar::IgmpMldPktControl::regWidth(BCM56996_B0, 5), 1);
  EXPECT_EQ(assertionOf([] { Velmar::IgmpMldPktControl::regWidth(289, 0); }).function,
            "static U16 Velmar::IgmpMldPktControl::regWidth(U32, U8)");
}

TEST(Geometry, entrySpans) {
  for (const ClassProbe& probe : classProbes()) {
    if (!probe.isTable) continue;
    std::set<const AsicUtils::EntrySpan*> met;
    for (const auto& [chip, facts] : goldenClass(probe.name).chips) {
      const AsicUtils::EntrySpans spans = probe.entrySpans(chip, 0);
      ASSERT_EQ(spans.count, 1U);
      EXPECT_EQ(spans.spans[0].first, 0U);
      EXPECT_EQ(spans.spans[0].count, facts.entries);
      EXPECT_EQ(probe.make(chip, nullptr, 0, 0)->entrySpans().spans, spans.spans);
      met.insert(spans.spans);
    }
    // The named members, and no other.
    EXPECT_EQ(met, std::set<const AsicUtils::EntrySpan*>(probe.spanMembers.begin(),
                                                         probe.spanMembers.end()));
    const AssertionFailed failure = assertionOf([&] { probe.entrySpans(0xffffffff, 0); });
    EXPECT_EQ(failure.expression, "0");
    EXPECT_EQ(failure.function, "static Velmar::" + probe.name +
                                    "::EntrySpans Velmar::" + probe.name + "::entrySpans(U32, U8)");
  }
  EXPECT_EQ(Velmar::VlanEntry::_entrySpans_BCM56968_A0[0].count, 4096U);
  EXPECT_EQ(Velmar::VlanEntry::entrySpans(BCM56990_B0, 0).spans,
            Velmar::VlanEntry::_entrySpans_BCM56996_A0);
}

TEST(Geometry, variantsAndTheirCount) {
  for (const ClassProbe& probe : classProbes()) {
    const GoldenClass& golden = goldenClass(probe.name);
    for (const U32 chip : chipsAndStrangers()) {
      const bool exists = golden.chips.count(chip) != 0;
      for (const U8 variant : {U8{0}, U8{1}, U8{255}}) {
        EXPECT_EQ(probe.chipTypeVariantValid(static_cast<ChipType_>(chip), variant),
                  staticFailure(golden, chip, variant).empty())
            << probe.name << " chip " << chip;
      }
      if (!probe.isTable) continue;
      EXPECT_EQ(probe.tableVariantCount(chip), exists ? 1U : 0U);
      if (chip < 256) {
        EXPECT_EQ(probe.open(chip, nullptr, 0, 1)->tableVariantCount(), exists ? 1U : 0U);
      }
    }
  }
}

TEST(Geometry, identifiers) {
  for (const ClassProbe& probe : classProbes()) {
    const std::string signature =
        "static bool Velmar::" + probe.name + "::hasIdentifier(U32, U8, U32)";
    for (const U32 chip : chipsAndStrangers()) {
      for (const U8 variant : {U8{0}, U8{1}}) {
        const std::string text = staticFailure(goldenClass(probe.name), chip, variant);
        for (const U32 identifier : {0U, 1U, 2U, 0xffffffffU}) {
          bool accepted = false;
          const AssertionFailed failure =
              assertionOf([&] { accepted = probe.hasIdentifier(chip, variant, identifier); });
          ASSERT_EQ(failure.expression, text) << probe.name << " chip " << chip;
          if (!text.empty()) {
            EXPECT_EQ(failure.function, signature);
            continue;
          }
          const U32 count = !probe.isTable && chip < 33 ? 2 : 1;
          EXPECT_EQ(accepted, identifier < count);
          EXPECT_EQ(probe.open(chip, nullptr, 0, variant)->hasIdentifier(identifier), accepted);
        }
      }
    }
  }
}

TEST(Geometry, masksFailAsStatics) {
  for (const ClassProbe& probe : classProbes()) {
    for (const U32 chip : chipsAndStrangers()) {
      const std::string text = staticFailure(goldenClass(probe.name), chip, 1);
      const AssertionFailed failure = assertionOf([&] { probe.allFieldsMask(chip, 1); });
      ASSERT_EQ(failure.expression, text) << probe.name << " chip " << chip;
      if (!text.empty()) {
        EXPECT_EQ(failure.function,
                  "static Raw8192 Velmar::" + probe.name + "::allFieldsMask(U32, U8)");
      }
    }
  }
}

}  // namespace
}  // namespace VelmarTest
