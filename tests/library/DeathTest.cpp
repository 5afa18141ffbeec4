// Real failures: the C library's own report on stderr, and the abort. This program does not link
// the test support, so nothing is replaced.

#include <gtest/gtest.h>

#include "Velmar/MetaInfo.h"

namespace {

TEST(DeathTest, reports) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  const auto abort = testing::KilledBySignal(SIGABRT);
  U8 buffer[16] = {};
  Velmar::VlanEntry entry(BCM56990_B0, buffer, 8, false, 0);
  EXPECT_EXIT(entry.validIs(1), abort,
              "VelmarMetaInfo:[0-9]+: void Velmar::VlanEntry::validIs\\(U8\\): "
              "Assertion `len_ >= 9' failed");
  EXPECT_EXIT(Velmar::EgrVlan2Entry(BCM56980_A0, nullptr, 0, false, 0), abort,
              "chipType: 30 variant: 0 not in metainfo for EgrVlan2Entry!\n.*"
              "Velmar::EgrVlan2Entry::EgrVlan2Entry\\(ChipType_, U8\\*, U16, bool, U8\\): "
              "Assertion `\"0\" == nullptr' failed");
  const Velmar::IgmpMldPktControl control(BCM56996_B0, buffer, 4, false, 0);
  EXPECT_EXIT(
      control.entrySpans(), abort,
      "AsicBase:[0-9]+: virtual AsicUtils::EntrySpans AsicUtils::AsicBase::entrySpans\\(\\) "
      "const: Assertion `false' failed");
}

}  // namespace
