// S-channel addresses over all classes and chips: the rule, the order of the checks with their
// texts, what is written when a check fails, and the path that only returns false.

#include <gtest/gtest.h>

#include "support/AssertionFailed.h"
#include "support/ClassProbes.h"
#include "support/GoldenData.h"
#include "support/Records.h"

namespace VelmarTest {
namespace {

constexpr U32 untouched = 0xdeadbeef;

struct Look {
  bool found = false;
  SchanTriple out = {untouched, untouched, untouched};
  AssertionFailed failure;
};

Look look(const ClassProbe& probe, U32 chip, U8 variant, U16 identifier, U32 entry, U16 element) {
  Look result;
  result.failure = assertionOf([&] {
    result.found = probe.getSchanAddress(chip, variant, result.out, identifier, entry, element);
  });
  return result;
}

std::string signatureOf(const ClassProbe& probe) {
  return "static bool Velmar::" + probe.name +
         "::getSchanAddress(U32, U8, U32&, U32&, U32&, U16, U32, U16)";
}

TEST(Addressing, everyEntryFollowsTheRule) {
  for (const ClassProbe& probe : classProbes()) {
    for (const auto& [chip, facts] : goldenClass(probe.name).chips) {
      SCOPED_TRACE(probe.name + " chip " + std::to_string(chip));
      const U32 count = probe.isTable ? *facts.entries : facts.arrayElements;
      const U32 step = probe.isTable ? 1 : chip < 33 ? 256 : 1024;
      for (U32 index = 0; index < count; ++index) {
        const Look result = probe.isTable ? look(probe, chip, 0, 0, index, 0)
                                          : look(probe, chip, 0, 0, 0, static_cast<U16>(index));
        ASSERT_TRUE(result.found);
        ASSERT_EQ(result.out.address, facts.base + index * step);
        ASSERT_EQ(result.out.accessType, facts.accessType);
        ASSERT_EQ(result.out.block, facts.block);
      }
    }
  }
}

TEST(Addressing, checksInOrder) {
  for (const ClassProbe& probe : classProbes()) {
    for (const auto& [chip, facts] : goldenClass(probe.name).chips) {
      SCOPED_TRACE(probe.name + " chip " + std::to_string(chip));
      const auto expect = [&](const Look& result, const std::string& text, U32 address) {
        EXPECT_EQ(result.failure.expression, text);
        EXPECT_EQ(result.failure.function, signatureOf(probe));
        EXPECT_EQ(result.failure.file, "VelmarMetaInfo");
        EXPECT_EQ(result.out.address, address);
        EXPECT_EQ(result.out.accessType, untouched);
        EXPECT_EQ(result.out.block, untouched);
      };
      const std::string identifierText = "hasIdentifier( chipType, variant, identifier )";
      const U16 badIdentifier = !probe.isTable && chip < 33 ? 2 : 1;
      if (probe.isTable) {
        const std::string bound = "tableEntry < " + std::to_string(*facts.entries);
        expect(look(probe, chip, 0, 1, *facts.entries, 1), bound, untouched);
        expect(look(probe, chip, 0, 1, 0xffffffff, 0), bound, untouched);
        expect(look(probe, chip, 0, 1, *facts.entries - 1, 1), "arrayIndex == 0", untouched);
        // The address is there before the identifier is refused, with its term on the late chips.
        const U32 term = chip >= 33 ? 16384 : 0;
        expect(look(probe, chip, 0, 1, 0, 0), identifierText, facts.base + term);
        expect(look(probe, chip, 0, 3, *facts.entries - 1, 0), identifierText,
               facts.base + 3 * term + *facts.entries - 1);
      } else {
        expect(look(probe, chip, 0, badIdentifier, 1, 64), "tableEntry == 0", untouched);
        expect(look(probe, chip, 0, badIdentifier, 0, 64), "arrayIndex < 64", untouched);
        const U32 stride = chip < 33 ? 256 : 1024;
        expect(look(probe, chip, 0, badIdentifier, 0, 63), identifierText,
               facts.base + 63 * stride);
        if (chip >= 33) continue;
        const Look second = look(probe, chip, 0, 1, 0, 5);
        EXPECT_TRUE(second.found);
        EXPECT_EQ(second.out.address, facts.base + 5 * stride);
      }
    }
  }
}

TEST(Addressing, unknownChipsAndVariantsReturnFalse) {
  for (const ClassProbe& probe : classProbes()) {
    const GoldenClass& golden = goldenClass(probe.name);
    std::vector<U32> chips = {0, 5, 38, 255, 289, 0x10006, 0xffffffff};
    for (const auto& [chip, name] : chipNames()) chips.push_back(chip);
    for (const U32 chip : chips) {
      const auto found = golden.chips.find(chip);
      for (const U8 variant : {U8{0}, U8{1}, U8{9}}) {
        const bool known = found != golden.chips.end() && knowsVariant(found->second, variant);
        Records records;
        // Bad indices do not matter where the chip is unknown.
        const U32 entry = known ? 0 : 0xffffffff;
        const Look result = look(probe, chip, variant, 0, entry, 0);
        SCOPED_TRACE(probe.name + " chip " + std::to_string(chip));
        ASSERT_EQ(result.failure.expression, "");
        ASSERT_EQ(result.found, known);
        ASSERT_EQ(records.lines.size(), known ? 0U : 1U);
        if (known) continue;
        EXPECT_EQ(result.out.address, untouched);
        EXPECT_EQ(result.out.accessType, untouched);
        EXPECT_EQ(result.out.block, untouched);
        EXPECT_EQ(records.lines[0].level, 0U);
        EXPECT_EQ(records.lines[0].function, "getSchanAddress");
        EXPECT_EQ(records.lines[0].text, signatureOf(probe) + " chipType: " + std::to_string(chip) +
                                             " variant: " + std::to_string(variant) + " failed.");
      }
    }
  }
}

TEST(Addressing, viewsAskForTheirOwnChipAndVariant) {
  const Records quiet;
  for (const ClassProbe& probe : classProbes()) {
    for (const auto& [chip, facts] : goldenClass(probe.name).chips) {
      const auto view = probe.open(chip, nullptr, 0, 1);
      Look result;
      result.failure = assertionOf([&] {
        result.found = view->getSchanAddress(result.out.address, result.out.accessType,
                                             result.out.block, 0, 0, 0);
      });
      EXPECT_EQ(result.found, facts.anyVariant) << probe.name << " chip " << chip;
      const auto first = probe.make(chip, nullptr, 0, 0);
      const AssertionFailed failure = assertionOf([&] {
        U32 out = 0;
        first->getSchanAddress(out, out, out, 7, 0, 0);
      });
      EXPECT_EQ(failure.function, signatureOf(probe));
    }
  }
}

}  // namespace
}  // namespace VelmarTest
