#include <gtest/gtest.h>

#include "Velmar/EgrVlanEntry.h"
#include "Velmar/Version.h"
#include "Velmar/VlanEntry.h"
#include "support/AssertionFailed.h"

namespace {

using VelmarTest::assertionOf;

class Replacement : public testing::Test {
 protected:
  U8 bytes_[52] = {};
  Velmar::VlanEntry vlan_{BCM56990_B0, bytes_, 16, false, 0};
};

TEST_F(Replacement, readsAndWritesFields) {
  vlan_.stgIs(5);
  EXPECT_EQ(vlan_.stg(), 5);
  EXPECT_EQ(bytes_[5], 5 << 2);
  vlan_.setField64(585, 9);
  EXPECT_EQ(vlan_.stg(), 9);
}

TEST_F(Replacement, readsAndWritesBitmaps) {
  Velmar::EgrVlanEntry entry(BCM56980_A0, bytes_, 52, false, 0);
  Oru::PerUnitBitmap ports;
  for (U32 word = 0; word < 5; ++word) ports.bitListIs(word, 0);
  ports.set(17);
  ports.set(159);
  entry.portBitmapIs(ports);
  EXPECT_TRUE(entry.portBitmap() == ports);
  EXPECT_EQ(bytes_[39], 0x80);
  EXPECT_THROW(entry.portBitmapIs(Oru::PerUnitBitmap()), std::out_of_range);
}

// The headers of these base libraries include <cassert>, which declares that it never throws.
TEST_F(Replacement, assertionsMayThrow) {
  EXPECT_EQ(assertionOf([&] { vlan_.stgIs(64); }).expression, "value <= 0x3f");
  EXPECT_EQ(assertionOf([&] { vlan_.portBitmap(); }).expression, "0");
}

TEST_F(Replacement, softAssertionsFollowTheirPolicy) {
  testing::internal::CaptureStderr();
  assertionOf([&] { Velmar::VlanEntry(static_cast<ChipType_>(99), bytes_, 16, false, 0); });
  EXPECT_NE(testing::internal::GetCapturedStderr().find("not in metainfo for VlanEntry!"),
            std::string::npos);
}

TEST_F(Replacement, hasAVersion) { EXPECT_STREQ(Velmar::version(), VELMAR_VERSION_STRING); }

}  // namespace
