// The lines that members write on entry: which members write, in which order, and the record.

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "Kiv/Trace.h"
#include "support/AssertionFailed.h"
#include "support/ClassProbes.h"
#include "support/GoldenData.h"
#include "support/Records.h"

namespace VelmarTest {
namespace {

using Texts = std::vector<std::string>;

// Runs first and in its own process (one process for each test): the handle does not exist yet.
TEST(Trace, firstUseFromManyThreads) {
  Kiv::TraceFacility::levelIs(traceHandleName, 8, true);
  static std::atomic<int> lines{0};
  Kiv::TraceFacility::sinkIs([](const Kiv::TraceRecord&, void*) { ++lines; }, nullptr);
  std::atomic<bool> go{false};
  std::vector<std::thread> threads;
  for (int i = 0; i < 8; ++i) {
    threads.emplace_back([&go] {
      while (!go) std::this_thread::yield();
      U8 buffer[16] = {};
      Velmar::VlanEntry entry(BCM56990_B0, buffer, 16, false, 0);
      entry.stgIs(5);
    });
  }
  go = true;
  for (int i = 0; i < 100; ++i) {
    Kiv::TraceFacility::levelIs(traceHandleName, 3, i % 2 != 0);
    Kiv::TraceFacility::sinkIs([](const Kiv::TraceRecord&, void*) { ++lines; }, nullptr);
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(lines, 16);
  Kiv::TraceFacility::levelIs(traceHandleName, 8, false);
  Kiv::TraceFacility::sinkIs(nullptr, nullptr);
}

TEST(Trace, quintetOfEveryField) {
  for (const ClassProbe& probe : classProbes()) {
    const GoldenClass& golden = goldenClass(probe.name);
    for (const GoldenField& expected : golden.fields) {
      const FieldProbe& field = probe.field(expected.accessor);
      // A field that no chip has still traces; only what follows the trace fails.
      if (expected.places.empty()) continue;
      const U32 chip = expected.places.begin()->first;
      std::vector<U8> buffer(128, 0);
      const auto view = probe.make(chip, buffer.data(), 128, 0);
      const std::string where = " chipType: " + std::to_string(chip) + " variant: 0";
      Records records(Records::EntryLines::on);
      const Words value = field.get(*view);
      field.set(*view, value);
      ((*view).*field.length)();
      ((*view).*field.offset)();
      ((*view).*field.isValid)();
      ASSERT_EQ(records.lines.size(), 5U);
      EXPECT_EQ(records.lines[0].function, field.accessor);
      EXPECT_EQ(records.lines[4].function, std::string("is") + field.capitalised + "Valid");
      EXPECT_EQ(records.takeTexts(), (Texts{field.getterSignature(probe.name) + where,
                                            field.setterSignature(probe.name) + where,
                                            field.lengthSignature(probe.name) + where,
                                            field.offsetSignature(probe.name) + where,
                                            field.validitySignature(probe.name) + where}));
    }
  }
}

TEST(Trace, everyForwardingStepWritesItsOwnLine) {
  for (const ClassProbe& probe : classProbes()) {
    const GoldenField& golden = goldenClass(probe.name).fields.front();
    const FieldProbe& field = probe.field(golden.accessor);
    const U32 chip = golden.places.begin()->first;
    std::vector<U8> buffer(128, 0);
    const auto view = probe.make(chip, buffer.data(), 128, 0);
    const std::string where = " chipType: " + std::to_string(chip) + " variant: 0";
    const std::string scope = " Velmar::" + probe.name + "::";
    const auto line = [&](const std::string& signature) { return signature + where; };
    Records records(Records::EntryLines::on);

    view->fieldWidth(field.id);
    EXPECT_EQ(records.takeTexts(), (Texts{line("virtual U16" + scope + "fieldWidth(U32) const"),
                                          line("virtual bool" + scope + "isFieldValid(U32) const"),
                                          line(field.validitySignature(probe.name)),
                                          line(field.lengthSignature(probe.name))}));
    view->fieldOffset(field.id);
    EXPECT_EQ(records.takeTexts(), (Texts{line("virtual U16" + scope + "fieldOffset(U32) const"),
                                          line(field.offsetSignature(probe.name))}));
    if (field.isScalar()) {
      view->setField64(field.id, 0);
      EXPECT_EQ(records.takeTexts(), (Texts{line("virtual void" + scope + "setField64(U32, U64)"),
                                            line(field.setterSignature(probe.name))}));
    }
    probe.getAllFields(*view);
    EXPECT_EQ(records.takeTexts(), Texts{line(probe.rawName + scope + "getAllFields() const")});
    U32 out = 0;
    view->getSchanAddress(out, out, out, 0, 0, 0);
    EXPECT_EQ(
        records.takeTexts(),
        (Texts{line("static bool" + scope +
                    "getSchanAddress(U32, U8, U32&, U32&, U32&, U16, U32, U16)"),
               line("static bool" + scope + "hasIdentifier(U32, U8, U32)") + " identifier: 0"}));
    view->hasIdentifier(3);
    EXPECT_EQ(
        records.takeTexts(),
        Texts{line("static bool" + scope + "hasIdentifier(U32, U8, U32)") + " identifier: 3"});
    if (probe.isTable) {
      view->entrySpans();
      EXPECT_EQ(records.takeTexts(), Texts{line("static Velmar::" + probe.name + "::EntrySpans" +
                                                scope + "entrySpans(U32, U8)")});
    }
  }
}

TEST(Trace, onlyTheTracedStaticsWrite) {
  for (const ClassProbe& probe : classProbes()) {
    const U32 chip = anyChipOf(probe);
    const auto view = probe.make(chip, nullptr, 0, 0);
    Records records(Records::EntryLines::on);
    for (const GeometryProbe& geometry : probe.geometry) {
      geometry.ofChip(chip, 0);
      geometry.ofView(*view);
      const std::string line = "static " + geometry.type + " Velmar::" + probe.name +
                               "::" + geometry.name +
                               "(U32, U8) chipType: " + std::to_string(chip) + " variant: 0";
      EXPECT_EQ(records.takeTexts(), geometry.isTraced ? (Texts{line, line}) : Texts{});
    }
    probe.allFieldsMask(chip, 0);
    view->allFieldsMask();
    probe.chipTypeVariantValid(static_cast<ChipType_>(chip), 0);
    if (probe.isTable) probe.tableVariantCount(chip);
    EXPECT_EQ(records.takeTexts(), Texts{});
  }
}

TEST(Trace, linesComeBeforeTheChecks) {
  Records records(Records::EntryLines::on);
  const auto view = classProbe("VlanEntry").open(5, nullptr, 0, 3);
  records.takeTexts();
  assertionOf([&] { view->fieldOffset(Velmar::FieldId::VALID); });
  EXPECT_EQ(records.takeTexts(),
            (Texts{"virtual U16 Velmar::VlanEntry::fieldOffset(U32) const chipType: 5 variant: 3",
                   "U16 Velmar::VlanEntry::validOffset() const chipType: 5 variant: 3"}));
  // A failed look-up writes its level-8 line, then its level-0 line.
  U32 out = 0;
  Velmar::VlanEntry::getSchanAddress(300, 0, out, out, out, 0, 0, 0);
  ASSERT_EQ(records.lines.size(), 2U);
  EXPECT_EQ(records.lines[0].level, 8U);
  EXPECT_EQ(records.lines[1].level, 0U);
  EXPECT_EQ(records.lines[1].text, records.lines[0].text + " failed.");
  records.lines.clear();
  // Each only if its level is on.
  Kiv::TraceFacility::levelIs(traceHandleName, 0, false);
  Velmar::VlanEntry::getSchanAddress(300, 0, out, out, out, 0, 0, 0);
  ASSERT_EQ(records.lines.size(), 1U);
  EXPECT_EQ(records.lines[0].level, 8U);
  Kiv::TraceFacility::levelIs(traceHandleName, 0, true);
}

TEST(Trace, theRecord) {
  U8 buffer[16] = {};
  Velmar::VlanEntry entry(BCM56990_B0, buffer, 16, false, 0);
  Records records(Records::EntryLines::on);
  entry.validIs(1);
  ASSERT_EQ(records.lines.size(), 1U);
  const TraceLine& line = records.lines[0];
  EXPECT_EQ(line.handle, "AsicUtilsVelmarMetaInfo");
  EXPECT_EQ(line.level, 8U);
  EXPECT_EQ(line.file, "VelmarMetaInfo");
  EXPECT_NE(line.line, 0U);
  EXPECT_EQ(line.function, "validIs");
  EXPECT_EQ(line.text, "void Velmar::VlanEntry::validIs(U8) chipType: 33 variant: 0");
  EXPECT_EQ(buffer[8], 4);
}

}  // namespace
}  // namespace VelmarTest
