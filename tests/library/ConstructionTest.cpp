// Construction of every class on chips known and unknown: its trace, its reports, what it leaves
// alone.

#include <gtest/gtest.h>

#include "support/AssertionFailed.h"
#include "support/ClassProbes.h"
#include "support/GoldenData.h"
#include "support/Records.h"

namespace VelmarTest {
namespace {

TEST(Construction, everyClassChipAndVariant) {
  for (const ClassProbe& probe : classProbes()) {
    const GoldenClass& golden = goldenClass(probe.name);
    std::vector<U32> chips = {0, 5, 7, 38, 255, 289, 0xffffffff};
    for (const auto& [chip, name] : chipNames()) chips.push_back(chip);
    for (const U32 chip : chips) {
      for (const U8 variant : {U8{0}, U8{1}}) {
        SCOPED_TRACE(probe.name + " chip " + std::to_string(chip));
        const auto found = golden.chips.find(chip);
        const bool known = found != golden.chips.end() && knowsVariant(found->second, variant);
        Records records(Records::EntryLines::on);
        U8 buffer[4] = {1, 2, 3, 4};
        const AssertionFailed failure = assertionOf([&] { probe.make(chip, buffer, 4, variant); });
        EXPECT_EQ(buffer[0] + buffer[1] + buffer[2] + buffer[3], 10);
        if (known) {
          EXPECT_EQ(failure.expression, "");
          EXPECT_TRUE(records.softAssertions.empty());
          ASSERT_EQ(records.lines.size(), 1U);
          EXPECT_EQ(records.lines[0].text,
                    probe.name + " chipType: " + chipNames().at(chip) +
                        (found->second.anyVariant ? " variant: None" : " variant: 0"));
          EXPECT_EQ(records.lines[0].function, probe.name);
          EXPECT_EQ(records.lines[0].level, 8U);
          continue;
        }
        EXPECT_TRUE(records.lines.empty());
        EXPECT_EQ(failure.expression, "\"0\" == nullptr");
        EXPECT_EQ(failure.file, "VelmarMetaInfo");
        EXPECT_EQ(failure.function,
                  "Velmar::" + probe.name + "::" + probe.name + "(ChipType_, U8*, U16, bool, U8)");
        ASSERT_EQ(records.softAssertions.size(), 1U);
        EXPECT_EQ(records.softAssertions[0].expression, "0");
        EXPECT_EQ(records.softAssertions[0].text, " chipType: " + std::to_string(chip) +
                                                      " variant: " + std::to_string(variant) +
                                                      " not in metainfo for " + probe.name + "!");
      }
    }
  }
}

TEST(Construction, handleBufDoesNothing) {
  Records records(Records::EntryLines::on);
  Velmar::VlanEntry::handleBuf(static_cast<ChipType_>(5), nullptr, 0, true, 7);
  EXPECT_TRUE(records.lines.empty());
}

TEST(Construction, viewsAddNoData) {
#define VELMAR_SAME_SIZE(CLASS) \
  static_assert(sizeof(Velmar::CLASS) == sizeof(AsicUtils::BcmAsicBase), #CLASS);
  VELMAR_CLASSES(VELMAR_SAME_SIZE)
#undef VELMAR_SAME_SIZE
}

}  // namespace
}  // namespace VelmarTest
