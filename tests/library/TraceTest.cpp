// The lines that members write on entry: which members write one, in which order, and the record.
// The static members are in GeometryTest.

#include <atomic>
#include <thread>

#include "Kiv/Trace.h"
#include "support/Sweep.h"

namespace VelmarTest {
namespace {

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

/// Calls `action` and expects these lines, one for each signature.
template <class Action>
void expectLines(Records& records, U32 chip, const Action& action,
                 const std::vector<std::string>& signatures) {
  records.lines.clear();
  action();
  ASSERT_EQ(records.lines.size(), signatures.size());
  for (std::size_t i = 0; i < signatures.size(); ++i) {
    const TraceLine& line = records.lines[i];
    const std::string head = signatures[i].substr(0, signatures[i].find('('));
    EXPECT_EQ(line.text.substr(0, line.text.find(" identifier")), signatures[i] + textOf(chip, 0));
    EXPECT_EQ(line.function, head.substr(head.rfind(':') + 1));
    EXPECT_EQ(line.handle, traceHandleName);
    EXPECT_EQ(line.level, 8U);
    EXPECT_EQ(line.file, "VelmarMetaInfo");
    EXPECT_NE(line.line, 0U);
  }
}

TEST(Trace, everyFieldOfEveryClass) {
  for (const ClassProbe& probe : classProbes()) {
    const std::string scope = " Velmar::" + probe.name + "::";
    const std::string width = "virtual U16" + scope + "fieldWidth(U32) const";
    const std::string isValid = "virtual bool" + scope + "isFieldValid(U32) const";
    const std::string offset = "virtual U16" + scope + "fieldOffset(U32) const";
    const std::string set = "virtual void" + scope + "setField64(U32, U64)";
    for (const GoldenField& golden : goldenClass(probe.name).fields) {
      if (golden.places.empty()) continue;
      const FieldProbe& field = probe.field(golden.accessor);
      const U32 chip = golden.places.begin()->first;
      SCOPED_TRACE(probe.name + " " + field.accessor);
      std::vector<U8> buffer(128, 0);
      const auto view = probe.make(chip, buffer.data(), 128, 0);
      const std::string setter = field.setterSignature(probe.name);
      const std::string length = field.lengthSignature(probe.name);
      const std::string place = field.offsetSignature(probe.name);
      const std::string validity = field.validitySignature(probe.name);
      Records records(Records::EntryLines::on);
      const auto expect = [&](const auto& action, const std::vector<std::string>& signatures) {
        expectLines(records, chip, action, signatures);
      };
      Words value;
      expect([&] { value = field.get(*view); }, {field.getterSignature(probe.name)});
      expect([&] { field.set(*view, value); }, {setter});
      expect([&] { ((*view).*field.length)(); }, {length});
      expect([&] { ((*view).*field.offset)(); }, {place});
      expect([&] { ((*view).*field.isValid)(); }, {validity});
      // Every member that forwards to another writes its own line.
      expect([&] { view->fieldWidth(field.id); }, {width, isValid, validity, length});
      expect([&] { view->fieldOffset(field.id); }, {offset, place});
      if (field.isScalar()) expect([&] { view->setField64(field.id, 0); }, {set, setter});
      if (isOver()) return;
    }
  }
}

TEST(Trace, entriesAndAddresses) {
  for (const ClassProbe& probe : classProbes()) {
    const std::string scope = " Velmar::" + probe.name + "::";
    const U32 chip = anyChipOf(probe);
    std::vector<U8> buffer(128, 0);
    const auto view = probe.make(chip, buffer.data(), 128, 0);
    Records records(Records::EntryLines::on);
    expectLines(records, chip, [&] { probe.getAllFields(*view); },
                {probe.rawName + scope + "getAllFields() const"});
    U32 out = 0;
    expectLines(
        records, chip, [&] { view->getSchanAddress(out, out, out, 0, 0, 0); },
        {"static bool" + scope + "getSchanAddress(U32, U8, U32&, U32&, U32&, U16, U32, U16)",
         "static bool" + scope + "hasIdentifier(U32, U8, U32)"});
  }
}

TEST(Trace, linesComeBeforeTheChecks) {
  const auto view = classProbes().front().open(5, nullptr, 0, 0);
  Records records(Records::EntryLines::on);
  expectLines(records, 5, [&] { assertionOf([&] { view->fieldOffset(Velmar::FieldId::VALID); }); },
              {"virtual U16 Velmar::VlanEntry::fieldOffset(U32) const",
               "U16 Velmar::VlanEntry::validOffset() const"});
  // The line of a failed look-up has a level of its own.
  Kiv::TraceFacility::levelIs(traceHandleName, 0, false);
  U32 out = 0;
  expectLines(records, 300,
              [&] { Velmar::VlanEntry::getSchanAddress(300, 0, out, out, out, 0, 0, 0); },
              {"static bool Velmar::VlanEntry::getSchanAddress(U32, U8, U32&, U32&, U32&, U16, "
               "U32, U16)"});
  Kiv::TraceFacility::levelIs(traceHandleName, 0, true);
}

}  // namespace
}  // namespace VelmarTest
