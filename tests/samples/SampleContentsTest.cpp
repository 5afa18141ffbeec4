// Verifies that views read from the committed samples what the programs meant to write. The values
// here are literals, so that a wrong layout cannot agree with itself.

#include <gtest/gtest.h>

#include <vector>

#include "Velmar/MetaInfo.h"
#include "support/Files.h"

namespace {

using namespace Velmar;

/// A sample in memory, and views of its entries.
template <class View>
class Sample {
 public:
  Sample(const char* name, ChipType_ chip)
      : chip_(chip),
        entryBytes_(4U * View::width(chip, 0)),
        bytes_(VelmarTest::readFile(SAMPLES_DIR "/" + std::string(name))) {}

  U32 entries() const { return static_cast<U32>(bytes_.size() / entryBytes_); }
  View entry(U32 index) {
    U8* bytes = reinterpret_cast<U8*>(&bytes_.at(index * entryBytes_));
    return View(chip_, bytes, static_cast<U16>(entryBytes_), false, 0);
  }

 private:
  ChipType_ chip_;
  U32 entryBytes_;
  std::string bytes_;
};

std::string text(const Oru::PerUnitBitmap& ports) { return ports.ranges().c_str(); }

TEST(SampleContents, Vlans) {
  Sample<VlanEntry> sample("vlan-bcm56990.bin", BCM56990_B0);
  ASSERT_EQ(8192U, sample.entries());
  std::vector<U32> valid;
  for (U32 vlan = 0; vlan < sample.entries(); ++vlan) {
    if (sample.entry(vlan).valid() != 0) valid.push_back(vlan);
  }
  EXPECT_EQ((std::vector<U32>{1, 10, 20, 30, 99, 200, 201, 202, 203, 300, 301, 302, 303, 666, 1000,
                              1001, 4094, 5000}),
            valid);
  EXPECT_EQ(202, sample.entry(202).fidId());
  EXPECT_EQ(3, sample.entry(202).stg());
  EXPECT_EQ(23, sample.entry(202).uucIdx());
  EXPECT_EQ(18, sample.entry(202).membershipProfilePtr());
  EXPECT_EQ(1, sample.entry(20).enableIgmpMldSnooping());
  EXPECT_EQ(0, sample.entry(20).learnDisable());
  EXPECT_EQ(10, sample.entry(666).fidId()) << "the isolated VLAN shares VLAN 10's addresses";
  EXPECT_EQ(1, sample.entry(666).learnDisable());
  EXPECT_EQ(5000, sample.entry(5000).fidId());
  EXPECT_EQ(1, sample.entry(5000).virtualPortEn());
  VlanEntry last = sample.entry(4094);
  EXPECT_EQ(127, last.vlanProfilePtr());
  EXPECT_EQ(2047, last.portBitmapProfilePtr());
  EXPECT_EQ(31, last.flexCtrAction());
  EXPECT_EQ(510, last.uucIdx());
}

TEST(SampleContents, PortBitmaps) {
  Sample<EgrVlanEntry> sample("egr-vlan-bcm56980.bin", BCM56980_A0);
  ASSERT_EQ(8U, sample.entries());
  EXPECT_EQ("20-22,156-159", text(sample.entry(1).portBitmap()));
  EXPECT_EQ("20-22", text(sample.entry(1).utPortBitmap()));
  EXPECT_EQ("140-154,156-159", text(sample.entry(7).portBitmap()));
  EXPECT_EQ(3, sample.entry(7).stg());
  EXPECT_EQ(0, sample.entry(5).valid());
  EXPECT_EQ("", text(sample.entry(5).portBitmap()));
}

TEST(SampleContents, PortFamilies) {
  Sample<VlanStgEntry> sample("vlan-stg-bcm56980.bin", BCM56980_A0);
  ASSERT_EQ(4U, sample.entries());
  VlanStgEntry group = sample.entry(2);
  EXPECT_EQ(0, group.spTreePort0());
  EXPECT_EQ(3, group.spTreePort1());
  EXPECT_EQ(2, group.spTreePort20());
  EXPECT_EQ(1, group.spTreePort157());
  EXPECT_EQ(3, group.spTreePort158());
  EXPECT_EQ(1, group.spTreePort159());
  EXPECT_EQ(0, sample.entry(0).spTreePort158());
}

TEST(SampleContents, Profiles) {
  Sample<VlanProfileEntry> sample("vlan-profile-bcm56870.bin", BCM56870_A0);
  ASSERT_EQ(8U, sample.entries());
  VlanProfileEntry closed = sample.entry(1);
  EXPECT_EQ(1, closed.l2MissDrop());
  EXPECT_EQ(1, closed.learnDisable());
  EXPECT_EQ(0, closed.ipmcv6L2Enable());
  VlanProfileEntry open = sample.entry(6);
  EXPECT_EQ(6, open.protocolPktIndex());
  EXPECT_EQ(2, open.l3Ipv6Pfm());
  EXPECT_EQ(0, open.l3Ipv4Pfm());
  EXPECT_EQ(0, open.l2NonUcastTocpu());
}

TEST(SampleContents, OverlappingFields) {
  Sample<IngVpVlanMembershipEntry> sample("ing-vp-vlan-membership-bcm56470.bin", BCM56470_A0);
  ASSERT_EQ(8U, sample.entries());
  EXPECT_EQ(102, sample.entry(5).vlan());
  EXPECT_EQ(0x1205, sample.entry(5).vp());
  EXPECT_EQ(3, sample.entry(5).data()) << "the data is the spanning-tree state";
  EXPECT_EQ(0U, sample.entry(3).getAllFields());
  IngVpVlanMembershipEntry instance = sample.entry(6);
  EXPECT_EQ(0x2abc, instance.vfi());
  EXPECT_EQ(0x1beefU, instance.sglp());
  EXPECT_EQ(0xabc, instance.vlan()) << "the VLAN is the low part of the instance";
  EXPECT_EQ(0x3eef, instance.vp()) << "the virtual port is the low part of the source port";
  IngVpVlanMembershipEntry whole = sample.entry(7);
  EXPECT_EQ(2, whole.keyType());
  EXPECT_EQ(2047, whole.vlan());
  EXPECT_EQ(2047, whole.hashLsb());
  EXPECT_EQ(0x1234, whole.vp());
  EXPECT_EQ(1, whole.spTree());
}

TEST(SampleContents, RawWordsHoldThePairsOfMembers) {
  Sample<IngVpVlanMembershipEntry> members("ing-vp-vlan-membership-bcm56470.bin", BCM56470_A0);
  Sample<IngVpVlanMembershipEccEntry> sample("ing-vp-vlan-membership-ecc-bcm56470.bin",
                                             BCM56470_A0);
  ASSERT_EQ(4U, sample.entries());
  for (U32 index = 0; index < sample.entries(); ++index) {
    const Raw128 data = sample.entry(index).eccData();
    const U64 low = data.words[0] | U64{data.words[1]} << 32;
    const U64 high = data.words[1] >> 9 | U64{data.words[2]} << 23;
    EXPECT_EQ(members.entry(2 * index).getAllFields(), low & 0x1ffffffffff) << index;
    EXPECT_EQ(members.entry(2 * index + 1).getAllFields(), high) << index;
  }
  IngVpVlanMembershipEccEntry first = sample.entry(0);
  EXPECT_EQ(first.ecc() | first.parity() << 7, first.eccp());
  EXPECT_EQ(0x19, first.ecc());
  EXPECT_EQ(1, first.parity());
}

TEST(SampleContents, RegisterArray) {
  Sample<IgmpMldPktControl> sample("igmp-mld-pkt-control-bcm56870.bin", BCM56870_A0);
  ASSERT_EQ(8U, sample.entries());
  EXPECT_EQ(1, sample.entry(2).igmpQueryToCpu());
  EXPECT_EQ(2, sample.entry(2).mldQueryFwdAction());
  EXPECT_EQ(1, sample.entry(2).igmpRepLeaveFwdAction());
  EXPECT_EQ(1, sample.entry(1).igmpQueryFwdAction());
  EXPECT_EQ(0, sample.entry(3).mldRepDoneToCpu());
  EXPECT_EQ(0, sample.entry(0).pfmRuleApply());
  EXPECT_EQ(1, sample.entry(7).pfmRuleApply());
}

}  // namespace
