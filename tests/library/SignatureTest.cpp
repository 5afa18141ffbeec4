// Literal signatures and texts, picked by hand from every shape of member: the sweeps assemble
// theirs by rule, these do not.

#include <functional>

#include "Kiv/TraceStream.h"
#include "Velmar/MetaInfo.h"
#include "support/AssertionFailed.h"
#include "support/Records.h"

namespace VelmarTest {
namespace {

U8 buffer[64] = {};
Velmar::VlanEntry empty(BCM56960_A0, buffer, 0, false, 0);
Velmar::VlanEntry oneShort(BCM56960_A0, buffer, 43, false, 0);
Velmar::VlanEntry late(BCM56990_B0, buffer, 16, false, 0);
Velmar::IngVpVlanMembershipEntry member(BCM56470_A0, buffer, 0, false, 0);
Velmar::IngVpVlanMembershipEntry whole(BCM56470_A0, buffer, 8, false, 0);
Velmar::IngVpVlanMembershipEccEntry ecc(BCM56470_A0, buffer, 0, false, 0);

struct Row {
  std::function<void()> call;
  const char* signature;
  const char* text;
};

// clang-format off
const Row rows[] = {
    {[] { empty.valid(); }, "U8 Velmar::VlanEntry::valid() const", "len_ >= 44"},
    {[] { oneShort.validIs(1); }, "void Velmar::VlanEntry::validIs(U8)", "len_ >= 44"},
    {[] { late.fidIdIs(0x2000); }, "void Velmar::VlanEntry::fidIdIs(U16)", "value <= 0x1fff"},
    {[] { late.fidIdIs(0x1fff); }, "", ""},
    {[] { empty.vfiOffset(); }, "U16 Velmar::VlanEntry::vfiOffset() const", "0"},
    {[] { late.portBitmapLen(); }, "U16 Velmar::VlanEntry::portBitmapLen() const", "\"0\" == nullptr"},
    {[] { late.portBitmap(); }, "Oru::PerUnitBitmap Velmar::VlanEntry::portBitmap() const", "0"},
    {[] { late.portBitmapIs({}); }, "void Velmar::VlanEntry::portBitmapIs(Oru::PerUnitBitmap)", "0"},
    {[] { member.key(); }, "U64 Velmar::IngVpVlanMembershipEntry::key() const", "len_ >= 5"},
    {[] { whole.keyIs(0x1000000000); }, "void Velmar::IngVpVlanMembershipEntry::keyIs(const U64&)",
     "value <= 0xfffffffff"},
    {[] { member.sglpIs(0); }, "void Velmar::IngVpVlanMembershipEntry::sglpIs(U32)", "len_ >= 5"},
    {[] { ecc.eccData(); }, "Raw128 Velmar::IngVpVlanMembershipEccEntry::eccData() const", "len_ >= 11"},
    {[] { ecc.eccDataIs({}); }, "void Velmar::IngVpVlanMembershipEccEntry::eccDataIs(const Raw128&)",
     "len_ >= 11"},
    {[] { empty.getAllFields(); }, "Raw512 Velmar::VlanEntry::getAllFields() const", "len_ >= 64"},
    {[] { late.fieldOffset(0); }, "virtual U16 Velmar::VlanEntry::fieldOffset(U32) const", "false"},
    {[] { Velmar::VlanEntry::entrySpans(0, 0); },
     "static Velmar::VlanEntry::EntrySpans Velmar::VlanEntry::entrySpans(U32, U8)", "0"},
    {[] { Velmar::VlanEntry::allFieldsMask(0, 0); },
     "static Raw8192 Velmar::VlanEntry::allFieldsMask(U32, U8)", "0"}};
// clang-format on

TEST(Signatures, asWritten) {
  const Records quiet;
  for (const Row& row : rows) {
    SCOPED_TRACE(row.signature);
    expectFailure(row.call, row.text, row.signature);
  }
}

TEST(Texts, aFieldNarrowerThanItsTypeOfWholeBytesKeepsTheLowBits) {
  Velmar::VlanEntry narrow(BCM56275_A0, buffer, 64, false, 0);
  narrow.stgIs(0xffff);
  EXPECT_EQ(narrow.stg(), 0xff);
  EXPECT_EQ(narrow.valid(), 0);
}

TEST(Texts, chipAndVariant) {
  Kiv::TraceStream stream;
  using Velmar::operator<<;
  stream << AsicUtils::ChipAndVariant{33, 200};
  EXPECT_EQ(stream.text(), " chipType: 33 variant: 200");
}

}  // namespace
}  // namespace VelmarTest
