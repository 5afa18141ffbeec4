// Signatures and texts letter by letter, picked by hand from every shape of member: the sweeps put
// theirs together by rule, these do not.

#include <gtest/gtest.h>

#include "Kiv/TraceStream.h"
#include "Velmar/MetaInfo.h"
#include "support/AssertionFailed.h"
#include "support/Records.h"

namespace VelmarTest {
namespace {

template <class Action>
std::string signatureOf(Action action) {
  return assertionOf(action).function;
}

TEST(Signatures, asWritten) {
  U8 buffer[4] = {};
  Velmar::VlanEntry vlan(BCM56960_A0, buffer, 0, false, 0);
  Velmar::IngVpVlanMembershipEntry member(BCM56470_A0, buffer, 0, false, 0);
  Velmar::IngVpVlanMembershipEccEntry ecc(BCM56470_A0, buffer, 0, false, 0);
  EXPECT_EQ(signatureOf([&] { vlan.valid(); }), "U8 Velmar::VlanEntry::valid() const");
  EXPECT_EQ(signatureOf([&] { vlan.validIs(0); }), "void Velmar::VlanEntry::validIs(U8)");
  EXPECT_EQ(signatureOf([&] { vlan.fidIdIs(0); }), "void Velmar::VlanEntry::fidIdIs(U16)");
  EXPECT_EQ(signatureOf([&] { vlan.vfiOffset(); }), "U16 Velmar::VlanEntry::vfiOffset() const");
  EXPECT_EQ(signatureOf([&] { vlan.portBitmap(); }),
            "Oru::PerUnitBitmap Velmar::VlanEntry::portBitmap() const");
  EXPECT_EQ(signatureOf([&] { vlan.portBitmapIs({}); }),
            "void Velmar::VlanEntry::portBitmapIs(Oru::PerUnitBitmap)");
  EXPECT_EQ(signatureOf([&] { member.key(); }),
            "U64 Velmar::IngVpVlanMembershipEntry::key() const");
  EXPECT_EQ(signatureOf([&] { member.keyIs(0); }),
            "void Velmar::IngVpVlanMembershipEntry::keyIs(const U64&)");
  EXPECT_EQ(signatureOf([&] { member.sglpIs(0); }),
            "void Velmar::IngVpVlanMembershipEntry::sglpIs(U32)");
  EXPECT_EQ(signatureOf([&] { ecc.eccData(); }),
            "Raw128 Velmar::IngVpVlanMembershipEccEntry::eccData() const");
  EXPECT_EQ(signatureOf([&] { ecc.eccDataIs({}); }),
            "void Velmar::IngVpVlanMembershipEccEntry::eccDataIs(const Raw128&)");
  EXPECT_EQ(signatureOf([&] { vlan.getAllFields(); }),
            "Raw512 Velmar::VlanEntry::getAllFields() const");
  EXPECT_EQ(signatureOf([&] { vlan.fieldOffset(0); }),
            "virtual U16 Velmar::VlanEntry::fieldOffset(U32) const");
  EXPECT_EQ(signatureOf([] { Velmar::VlanEntry::entrySpans(0, 0); }),
            "static Velmar::VlanEntry::EntrySpans Velmar::VlanEntry::entrySpans(U32, U8)");
  EXPECT_EQ(signatureOf([] { Velmar::VlanEntry::allFieldsMask(0, 0); }),
            "static Raw8192 Velmar::VlanEntry::allFieldsMask(U32, U8)");
}

TEST(Texts, asWritten) {
  const Records quiet;
  U8 buffer[64] = {};
  const auto text = [](auto action) { return assertionOf(action).expression; };
  Velmar::VlanEntry g0(BCM56960_A0, buffer, 43, false, 0);
  EXPECT_EQ(text([&] { g0.validIs(1); }), "len_ >= 44");
  Velmar::VlanEntry late(BCM56990_B0, buffer, 16, false, 0);
  EXPECT_EQ(text([&] { late.fidIdIs(0x2000); }), "value <= 0x1fff");
  EXPECT_EQ(text([&] { late.fidIdIs(0x1fff); }), "");
  EXPECT_EQ(text([&] { late.portBitmapLen(); }), "\"0\" == nullptr");
  // The width is the type's own here, and narrower on this chip: no value check, low bits only.
  Velmar::VlanEntry narrow(BCM56275_A0, buffer, 64, false, 0);
  EXPECT_EQ(text([&] { narrow.stgIs(0xffff); }), "");
  EXPECT_EQ(narrow.stg(), 0xff);
  EXPECT_EQ(narrow.valid(), 0);
  Velmar::IngVpVlanMembershipEntry member(BCM56470_A0, buffer, 8, false, 0);
  EXPECT_EQ(text([&] { member.keyIs(0x1000000000); }), "value <= 0xfffffffff");
  EXPECT_EQ(text([&] { late.entries(); }), "");
  EXPECT_EQ(text([&] { late.maxIdentifier(); }),
            "false && \"maxIdentifier invalid for this class\"");
  Velmar::IgmpMldPktControl control(BCM56996_B0, buffer, 4, false, 5);
  const AsicUtils::BcmAsicBase& base = control;
  EXPECT_EQ(text([&] { base.entries(); }), "false && \"entries invalid for this class\"");
}

TEST(Texts, chipAndVariant) {
  Kiv::TraceStream stream;
  using Velmar::operator<<;
  stream << AsicUtils::ChipAndVariant{33, 200};
  EXPECT_EQ(stream.text(), " chipType: 33 variant: 200");
}

}  // namespace
}  // namespace VelmarTest
