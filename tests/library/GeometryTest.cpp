// The static members and their const forms for all classes, known and unknown chips, and variants:
// values, failure texts, signatures, and which of them write a line on entry.

#include "support/Sweep.h"

namespace VelmarTest {
namespace {

/// A static member with its const form, for any result type.
struct Member {
  std::string signature;
  bool isTraced;
  std::string lineEnd;  ///< of the line on entry, after chip and variant
  std::function<Words(U32, U8)> ofChip;
  std::function<Words(const Base&)> ofView;
};

Words wordsOf(const AsicUtils::EntrySpans& spans) {
  return {spans.count, spans.spans[0].first, spans.spans[0].count};
}

Words wordsOf(const Raw8192& mask) { return {std::begin(mask.words), std::end(mask.words)}; }

std::vector<Member> membersOf(const ClassProbe& probe) {
  const std::string scope = " Velmar::" + probe.name + "::";
  std::vector<Member> members;
  for (const GeometryProbe& each : probe.geometry) {
    members.push_back({"static " + each.type + scope + each.name + "(U32, U8)", each.isTraced, "",
                       [&each](U32 chip, U8 variant) { return Words{each.ofChip(chip, variant)}; },
                       [&each](const Base& view) { return Words{each.ofView(view)}; }});
  }
  members.push_back(
      {"static Raw8192" + scope + "allFieldsMask(U32, U8)", false, "",
       [&probe](U32 chip, U8 variant) { return wordsOf(probe.allFieldsMask(chip, variant)); },
       [](const Base& view) { return wordsOf(view.allFieldsMask()); }});
  for (const U32 id : {0U, 1U, 2U, 0xffffffffU}) {
    members.push_back({"static bool" + scope + "hasIdentifier(U32, U8, U32)", true,
                       " identifier: " + std::to_string(id),
                       [&probe, id](U32 chip, U8 variant) {
                         return Words{probe.hasIdentifier(chip, variant, id)};
                       },
                       [id](const Base& view) { return Words{view.hasIdentifier(id)}; }});
  }
  if (!probe.isTable) return members;
  members.push_back(
      {"static Velmar::" + probe.name + "::EntrySpans" + scope + "entrySpans(U32, U8)", true, "",
       [&probe](U32 chip, U8 variant) { return wordsOf(probe.entrySpans(chip, variant)); },
       [](const Base& view) { return wordsOf(view.entrySpans()); }});
  return members;
}

TEST(Geometry, bothFormsTraceFailAndAnswerAlike) {
  everywhere([](const ClassProbe& probe, const GoldenClass& golden, U32 chip, U8 variant,
                Records::EntryLines entryLines) {
    const std::string text = staticFailure(golden, chip, variant);
    EXPECT_EQ(probe.chipTypeVariantValid(static_cast<ChipType_>(chip), variant), text.empty());
    const auto view = probe.open(chip, nullptr, 0, variant);
    Records records(entryLines);
    for (const Member& member : membersOf(probe)) {
      std::vector<std::string> lines;
      if (entryLines == Records::EntryLines::on && member.isTraced) {
        lines = {member.signature + textOf(chip, variant) + member.lineEnd};
      }
      Words value;
      expectFailure([&] { value = member.ofChip(chip, variant); }, text, member.signature);
      EXPECT_EQ(records.takeTexts(), lines) << member.signature;
      if (chip > 255) continue;
      Words ofView;
      expectFailure([&] { ofView = member.ofView(*view); }, text, member.signature);
      EXPECT_EQ(records.takeTexts(), lines) << member.signature;
      EXPECT_EQ(ofView, value);
    }
    if (!probe.isTable) return;
    const U32 variants = golden.chips.count(chip) != 0 ? 1 : 0;
    EXPECT_EQ(probe.tableVariantCount(chip), variants);
    if (chip <= 255) EXPECT_EQ(view->tableVariantCount(), variants);
    EXPECT_TRUE(records.lines.empty());
  });
}

TEST(Geometry, constantsOfEveryChip) {
  onEveryChip([](const ClassProbe& probe, const GoldenClass& golden, U32 chip) {
    U32 fieldCount = 0;
    for (const GoldenField& field : golden.fields) fieldCount += field.places.count(chip) != 0;
    const std::map<std::string, U32> constants = {{"instanceCount", 1},
                                                  {"index_min", 0},
                                                  {"arrayIndex_min", 0},
                                                  {"maxIdentifier", 0},
                                                  {"addrStride", isLate(chip) ? 1024 : 256},
                                                  {"fieldCount", fieldCount}};
    for (const GeometryProbe& member : probe.geometry) {
      const auto found = constants.find(member.name);
      if (found != constants.end()) EXPECT_EQ(member.ofChip(chip, 0), found->second) << member.name;
    }
    for (const U32 identifier : {0U, 1U, 2U, 0xffffffffU}) {
      EXPECT_EQ(probe.hasIdentifier(chip, 0, identifier),
                identifier < (probe.isTable || isLate(chip) ? 1U : 2U));
    }
    const auto view = probe.make(chip, nullptr, 0, 0);
    EXPECT_EQ(view->isTable(), probe.isTable);
    EXPECT_TRUE(probe.isPrimary(*view));
    if (!probe.isTable) return;
    EXPECT_EQ(wordsOf(view->entrySpans()), (Words{1, 0, *golden.chips.at(chip).entries}));
  });
}

TEST(Geometry, spansAreTheNamedMembers) {
  std::map<std::string, std::set<const AsicUtils::EntrySpan*>> met;
  onEveryChip([&met](const ClassProbe& probe, const GoldenClass&, U32 chip) {
    if (probe.isTable) met[probe.name].insert(probe.entrySpans(chip, 0).spans);
  });
  for (const ClassProbe& probe : classProbes()) {
    const auto& named = probe.spanMembers;
    const std::set<const AsicUtils::EntrySpan*> members(named.begin(), named.end());
    EXPECT_EQ(met[probe.name], members) << probe.name;
  }
  EXPECT_EQ(Velmar::VlanEntry::_entrySpans_BCM56968_A0[0].count, 4096U);
}

TEST(Geometry, otherNamesOfWidth) {
  EXPECT_EQ(Velmar::VlanEntry::tableWidth(BCM56960_A0, 0), 16);
  EXPECT_EQ(Velmar::IgmpMldPktControl::regWidth(BCM56996_B0, 5), 1);
  expectFailure([] { Velmar::VlanEntry::tableWidth(5, 0); }, "0",
                "static U16 Velmar::VlanEntry::width(U32, U8)");
  expectFailure([] { Velmar::IgmpMldPktControl::regWidth(289, 0); }, "0",
                "static U16 Velmar::IgmpMldPktControl::regWidth(U32, U8)");
}

}  // namespace
}  // namespace VelmarTest
