// Kiv: levels by name before and after a handle exists, several handles of one name, sinks,
// records, the text stream, soft assertions, and the standard output to stderr.

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "Kiv/SassertHelper.h"
#include "Kiv/Trace.h"

namespace {

std::vector<std::string> lines;

void collect(const Kiv::TraceRecord& record, void*) {
  lines.push_back(std::string(record.handle) + "|" + std::to_string(record.level) + "|" +
                  record.file + "|" + std::to_string(record.line) + "|" + record.function + "|" +
                  record.text);
}

TEST(Trace, levelsBeforeAndAfterTheHandle) {
  EXPECT_TRUE(Kiv::TraceFacility::level("early", 0));
  EXPECT_FALSE(Kiv::TraceFacility::level("early", 5));
  EXPECT_TRUE(Kiv::TraceFacility::levelIs("early", 5, true));
  Kiv::TraceHandle handle("early");
  Kiv::TraceHandle twin("early");
  Kiv::TraceHandle other("late");
  EXPECT_TRUE(handle.isEnabled(5));
  EXPECT_TRUE(handle.isEnabled(0));
  EXPECT_FALSE(handle.isEnabled(8));
  EXPECT_FALSE(other.isEnabled(5));
  Kiv::TraceFacility::levelIs("early", 5, false);
  Kiv::TraceFacility::levelIs("early", 8, true);
  EXPECT_FALSE(handle.isEnabled(5));
  EXPECT_TRUE(handle.isEnabled(8));
  EXPECT_TRUE(twin.isEnabled(8));
  EXPECT_FALSE(other.isEnabled(8));
  EXPECT_FALSE(Kiv::TraceFacility::levelIs("early", 31, true));
  EXPECT_FALSE(Kiv::TraceFacility::level("early", 31));
  EXPECT_TRUE(Kiv::TraceFacility::levelIs("early", 30, true));
  EXPECT_TRUE(handle.isEnabled(30));
}

TEST(Trace, offIsKnownWithoutAskingTheFacility) {
  Kiv::TraceHandle handle("gate");
  EXPECT_TRUE(handle.mayBeEnabled(8)) << "not joined: anything may be on";
  EXPECT_FALSE(handle.isEnabled(8));
  EXPECT_FALSE(handle.mayBeEnabled(8));
  EXPECT_TRUE(handle.mayBeEnabled(0));
}

TEST(Trace, handlesLeaveTheFacility) {
  { Kiv::TraceHandle(std::string("gone").c_str()).isEnabled(0); }
  EXPECT_TRUE(Kiv::TraceFacility::levelIs("gone", 3, true));
}

TEST(Trace, recordsReachTheSink) {
  lines.clear();
  Kiv::TraceHandle handle("records");
  Kiv::TraceFacility::sinkIs(&collect, nullptr);
  Kiv::TraceHelper(handle, 3, "File", 7, "function").stream() << "text " << U32{5};
  Kiv::TraceFacility::sinkIs(nullptr, nullptr);
  EXPECT_EQ(lines, std::vector<std::string>{"records|3|File|7|function|text 5"});
}

TEST(Trace, aSinkMayTrace) {
  static Kiv::TraceHandle handle("nested");
  static int depth = 0;
  Kiv::TraceFacility::sinkIs(
      [](const Kiv::TraceRecord&, void*) {
        if (++depth < 3) Kiv::TraceHelper(handle, 0, "File", 1, "function").stream() << "again";
        Kiv::TraceFacility::levelIs("nested", 4, true);
      },
      nullptr);
  Kiv::TraceHelper(handle, 0, "File", 1, "function").stream() << "first";
  Kiv::TraceFacility::sinkIs(nullptr, nullptr);
  EXPECT_EQ(depth, 3);
}

TEST(Trace, numbersInTheStream) {
  Kiv::TraceStream stream;
  stream << U8{65} << " " << U16{65535} << " " << U32{0xffffffff} << " " << ~U64{0} << " " << 0
         << " " << std::numeric_limits<S32>::min() << " " << -1;
  EXPECT_EQ(stream.text(), "65 65535 4294967295 18446744073709551615 0 -2147483648 -1");
  const std::string longText(1000, 'x');
  stream << longText.c_str();
  EXPECT_EQ(stream.text().substr(stream.text().size() - 1003), " -1" + longText);
}

TEST(Trace, standardErrorIsTheStandardSink) {
  Kiv::TraceHandle handle("plain");
  testing::internal::CaptureStderr();
  Kiv::TraceHelper(handle, 0, "File", 7, "function").stream() << "text";
  { Kiv::SassertHelper("0", "File", 8, "function").stream() << " why"; }
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "plain level 0 File:7 function: text\nsoft assertion \"0\" File:8 function: why\n");
}

TEST(Sassert, recordsReachTheSink) {
  static std::vector<std::string> reports;
  Kiv::SassertHelper::sinkIs(
      [](const Kiv::SassertRecord& record, void* context) {
        EXPECT_EQ(context, &reports);
        reports.push_back(std::string(record.expression) + "|" + record.file + "|" +
                          std::to_string(record.line) + "|" + record.function + "|" + record.text);
      },
      &reports);
  {
    Kiv::SassertHelper report("0", "File", 9, "U8 f()");
    report.stream() << " a"
                    << " b";
    EXPECT_TRUE(reports.empty()) << "the destructor reports";
  }
  Kiv::SassertHelper::sinkIs(nullptr, nullptr);
  EXPECT_EQ(reports, std::vector<std::string>{"0|File|9|U8 f()| a b"});
}

}  // namespace
