// Kiv: levels by name before and after a handle exists, sinks, records, the text stream, soft
// assertions, and the standard output to stderr.

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "Kiv/SassertHelper.h"
#include "Kiv/Trace.h"
#include "support/Records.h"

namespace {

using Kiv::TraceFacility;

TEST(Trace, levelsBeforeAndAfterTheHandle) {
  EXPECT_TRUE(TraceFacility::level("early", 0));
  EXPECT_FALSE(TraceFacility::level("early", 5));
  EXPECT_TRUE(TraceFacility::levelIs("early", 5, true));
  Kiv::TraceHandle handle("early");
  Kiv::TraceHandle twin("early");
  Kiv::TraceHandle other("late");
  EXPECT_TRUE(other.mayBeEnabled(8)) << "not joined yet: any level may be on";
  EXPECT_TRUE(handle.isEnabled(5) && handle.isEnabled(0));
  EXPECT_FALSE(handle.isEnabled(8) || other.isEnabled(5));
  EXPECT_FALSE(other.mayBeEnabled(8));
  TraceFacility::levelIs("early", 5, false);
  TraceFacility::levelIs("early", 8, true);
  EXPECT_TRUE(handle.isEnabled(8) && twin.isEnabled(8));
  EXPECT_FALSE(handle.isEnabled(5) || other.isEnabled(8));
  EXPECT_TRUE(TraceFacility::levelIs("early", 30, true));
  EXPECT_TRUE(handle.isEnabled(30));
  EXPECT_FALSE(TraceFacility::levelIs("early", 31, true) || TraceFacility::level("early", 31));
  { Kiv::TraceHandle(std::string("gone").c_str()).isEnabled(0); }
  EXPECT_TRUE(TraceFacility::levelIs("gone", 3, true)) << "handles leave the facility";
}

TEST(Trace, aSinkMayTrace) {
  static Kiv::TraceHandle handle("nested");
  static int depth = 0;
  TraceFacility::sinkIs(
      [](const Kiv::TraceRecord&, void*) {
        if (++depth < 3) Kiv::TraceHelper(handle, 0, "File", 1, "function").stream() << "again";
        TraceFacility::levelIs("nested", 4, true);
      },
      nullptr);
  Kiv::TraceHelper(handle, 0, "File", 1, "function").stream() << "first";
  TraceFacility::sinkIs(nullptr, nullptr);
  EXPECT_EQ(depth, 3);
}

TEST(Trace, numbersInTheStream) {
  Kiv::TraceStream stream;
  stream << U8{65} << " " << U16{65535} << " " << U32{0xffffffff} << " " << ~U64{0} << " " << 0
         << " " << std::numeric_limits<S32>::min() << " " << -1;
  EXPECT_EQ(stream.text(), "65 65535 4294967295 18446744073709551615 0 -2147483648 -1");
}

TEST(Trace, standardErrorIsTheStandardSink) {
  Kiv::TraceHandle handle("plain");
  testing::internal::CaptureStderr();
  Kiv::TraceHelper(handle, 0, "File", 7, "function").stream() << "text";
  {
    const VelmarTest::Records others;
    Kiv::SassertHelper report("0", "File", 8, "function");
    report.stream() << " two";
    EXPECT_TRUE(others.softAssertions.empty()) << "the destructor reports";
  }
  { Kiv::SassertHelper("0", "File", 8, "function").stream() << " why"; }
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "plain level 0 File:7 function: text\nsoft assertion \"0\" File:8 function: why\n");
}

}  // namespace
