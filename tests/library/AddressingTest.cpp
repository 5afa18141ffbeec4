// S-channel addresses for all classes and chips: the rule, the order of the checks and their texts,
// the outputs after a failed check, and unknown chips.

#include "support/Sweep.h"

namespace VelmarTest {
namespace {

constexpr U32 untouched = 0xdeadbeef;
constexpr SchanTriple nothing = {untouched, untouched, untouched};

void expectOutputs(const SchanTriple& out, const SchanTriple& expected) {
  EXPECT_EQ(out.address, expected.address);
  EXPECT_EQ(out.accessType, expected.accessType);
  EXPECT_EQ(out.block, expected.block);
}

std::string signatureOf(const ClassProbe& probe) {
  return "static bool Velmar::" + probe.name +
         "::getSchanAddress(U32, U8, U32&, U32&, U32&, U16, U32, U16)";
}

TEST(Addressing, everyEntryFollowsTheRule) {
  onEveryChip([](const ClassProbe& probe, const GoldenClass& golden, U32 chip) {
    const GoldenChip& facts = golden.chips.at(chip);
    const U32 step = probe.isTable ? 1 : isLate(chip) ? 1024 : 256;
    const U16 identifiers = probe.isTable || isLate(chip) ? 1 : 2;
    for (U16 id = 0; id < identifiers; ++id) {
      for (U32 index = 0; index < facts.entries.value_or(facts.arrayElements); ++index) {
        const U32 entry = probe.isTable ? index : 0;
        SchanTriple out = nothing;
        ASSERT_TRUE(
            probe.getSchanAddress(chip, 0, out, id, entry, static_cast<U16>(index - entry)));
        expectOutputs(out, {facts.base + index * step, facts.accessType, facts.block});
      }
    }
  });
}

TEST(Addressing, checksInOrder) {
  onEveryChip([](const ClassProbe& probe, const GoldenClass& golden, U32 chip) {
    const GoldenChip& facts = golden.chips.at(chip);
    const auto expect = [&](U16 identifier, U32 entry, U16 element, const std::string& text,
                            U32 address) {
      SchanTriple out = nothing;
      expectFailure([&] { probe.getSchanAddress(chip, 0, out, identifier, entry, element); }, text,
                    signatureOf(probe));
      expectOutputs(out, {address, untouched, untouched});
    };
    // The address is written before the identifier is refused.
    const std::string refused = "hasIdentifier( chipType, variant, identifier )";
    if (probe.isTable) {
      const U32 entries = *facts.entries;
      const std::string bound = "tableEntry < " + std::to_string(entries);
      const U32 term = isLate(chip) ? 16384 : 0;
      expect(1, entries, 1, bound, untouched);
      expect(1, 0xffffffff, 0, bound, untouched);
      expect(1, entries - 1, 1, "arrayIndex == 0", untouched);
      expect(1, 0, 0, refused, facts.base + term);
      expect(3, entries - 1, 0, refused, facts.base + 3 * term + entries - 1);
    } else {
      const U16 elements = static_cast<U16>(facts.arrayElements);
      const U32 last = (elements - 1U) * (isLate(chip) ? 1024 : 256);
      expect(2, 1, elements, "tableEntry == 0", untouched);
      expect(2, 0, elements, "arrayIndex < " + std::to_string(elements), untouched);
      expect(2, 0, static_cast<U16>(elements - 1), refused, facts.base + last);
    }
  });
}

TEST(Addressing, unknownChipsAndVariantsReturnFalse) {
  everywhere([](const ClassProbe& probe, const GoldenClass& golden, U32 chip, U8 variant,
                Records::EntryLines entryLines) {
    const bool isKnown = knowsVariant(golden, chip, variant);
    const std::string line = signatureOf(probe) + textOf(chip, variant);
    std::vector<std::string> lines;
    if (entryLines == Records::EntryLines::on) lines.push_back(line);
    if (!isKnown) lines.push_back(line + " failed.");
    const auto expect = [&](Records& records, bool found, const SchanTriple& out) {
      EXPECT_EQ(found, isKnown);
      if (!isKnown) expectOutputs(out, nothing);
      if (!isKnown) EXPECT_EQ(records.lines.back().level, 0U);
      if (!isKnown) EXPECT_EQ(records.lines.back().function, "getSchanAddress");
      std::vector<std::string> texts = records.takeTexts();
      if (isKnown && !lines.empty()) texts.resize(1);  // hasIdentifier writes the second
      EXPECT_EQ(texts, lines);
    };
    // Bad indices do not matter where the chip is unknown.
    const U32 entry = isKnown ? 0 : 0xffffffff;
    SchanTriple out = nothing;
    const auto view = probe.open(chip, nullptr, 0, variant);
    Records records(entryLines);
    expect(records, probe.getSchanAddress(chip, variant, out, 0, entry, 0), out);
    if (chip > 255) return;
    out = nothing;
    const bool found = view->getSchanAddress(out.address, out.accessType, out.block, 0, entry, 0);
    expect(records, found, out);
  });
}

}  // namespace
}  // namespace VelmarTest
