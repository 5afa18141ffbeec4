// Construction of every class on known and unknown chips: its trace and reports, and that it leaves
// the buffer unchanged.

#include "support/Sweep.h"

namespace VelmarTest {
namespace {

TEST(Construction, everyClassChipAndVariant) {
  everywhere([](const ClassProbe& probe, const GoldenClass& golden, U32 chip, U8 variant,
                Records::EntryLines entryLines) {
    const bool isKnown = knowsVariant(golden, chip, variant);
    Records records(entryLines);
    U8 buffer[4] = {1, 2, 3, 4};
    expectFailure([&] { probe.make(chip, buffer, 4, variant); }, isKnown ? "" : "\"0\" == nullptr",
                  "Velmar::" + probe.name + "::" + probe.name + "(ChipType_, U8*, U16, bool, U8)");
    EXPECT_EQ(buffer[0] + buffer[1] + buffer[2] + buffer[3], 10);
    ASSERT_EQ(records.softAssertions.size(), isKnown ? 0U : 1U);
    const bool hasLine = isKnown && entryLines == Records::EntryLines::on;
    ASSERT_EQ(records.lines.size(), hasLine ? 1U : 0U);
    if (!isKnown) {
      EXPECT_EQ(records.softAssertions[0].expression, "0");
      EXPECT_EQ(records.softAssertions[0].text,
                textOf(chip, variant) + " not in metainfo for " + probe.name + "!");
    }
    if (!hasLine) return;
    const std::string variantText = golden.chips.at(chip).anyVariant ? "None" : "0";
    EXPECT_EQ(records.lines[0].text,
              probe.name + " chipType: " + chipNames().at(chip) + " variant: " + variantText);
    EXPECT_EQ(records.lines[0].function, probe.name);
    EXPECT_EQ(records.lines[0].level, 8U);
  });
}

TEST(Construction, handleBufDoesNothing) {
  Records records(Records::EntryLines::on);
  Velmar::VlanEntry::handleBuf(static_cast<ChipType_>(5), nullptr, 0, true, 7);
  EXPECT_TRUE(records.lines.empty());
}

#define VELMAR_SAME_SIZE(CLASS) \
  static_assert(sizeof(Velmar::CLASS) == sizeof(AsicUtils::BcmAsicBase), #CLASS);
VELMAR_CLASSES(VELMAR_SAME_SIZE)

}  // namespace
}  // namespace VelmarTest
