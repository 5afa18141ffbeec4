// The base classes: their virtual table by position, the defaults' texts and signatures, and what
// the base keeps.

#include <gtest/gtest.h>

#include <cstring>
#include <functional>

#include "AsicUtils/BcmAsicBase.h"
#include "support/AssertionFailed.h"

namespace {

/// A view that defines only the pure members.
class Plain : public AsicUtils::BcmAsicBase {
 public:
  Plain(U8 chipType, U8* buf, U32 len, bool flag, U8 variant, U8 last)
      : BcmAsicBase(chipType, buf, len, flag, variant, last) {}
  void setField64(U32, U64) override {}
  U16 fieldWidth(U32) const override { return 0; }
  U16 fieldOffset(U32) const override { return 0; }
  bool isFieldValid(U32) const override { return false; }
  U16 width() const override { return len_; }
  U32 fieldCount() const override { return chipType_; }
  bool isTable() const override { return flag_; }
  Raw8192 allFieldsMask() const override { return {}; }
  U32 instanceCount() const override { return last_; }
  bool hasIdentifier(U32) const override { return false; }
  U32 arrayElements() const override { return variant_; }
  bool getSchanAddress(U32&, U32&, U32&, U16, U32, U16) const override { return false; }
};

/// The index of a virtual member in the virtual table: a pointer to the member holds its offset in
/// bytes, plus one on some processors.
template <class Member>
std::size_t slotOf(Member member) {
  std::size_t distance = 0;
  static_assert(sizeof(member) >= sizeof(distance));
  std::memcpy(&distance, &member, sizeof(distance));
  return distance / sizeof(void*);
}

TEST(VirtualTable, isInTheOrderThatCallersWereCompiledWith) {
  using A = AsicUtils::AsicBase;
  using B = AsicUtils::BcmAsicBase;
  // clang-format off
  const std::size_t slots[] = {
      slotOf(&A::setField64), slotOf(&A::stringField), slotOf(&A::stringFieldIs),
      slotOf(&A::fieldWidth), slotOf(&A::fieldOffset), slotOf(&A::isFieldValid), slotOf(&A::width),
      slotOf(&A::entries), slotOf(&A::maxIdentifier), slotOf(&A::fieldCount), slotOf(&A::isTable),
      slotOf(&A::allFieldsMask), slotOf(&A::sdkDefinedId), slotOf(&A::instanceCount),
      slotOf(&A::hasInstance), slotOf(&A::hasIdentifier), slotOf(&A::arrayElements),
      slotOf(&A::tableVariantCount), slotOf(&A::entrySpans), slotOf(&A::compareTo),
      slotOf(&A::getSchanAddress), slotOf(&B::hasMultipleMem), slotOf(&B::groupId),
      slotOf(&B::numGroups), slotOf(&B::groupInfo), slotOf(&B::memInfo)};
  // clang-format on
  std::size_t expected = 2;  // after the two destructors
  for (const std::size_t slot : slots) EXPECT_EQ(slot, expected++);
}

TEST(BaseDefaults, failWithTheirTexts) {
  static Plain view(6, nullptr, 0, false, 0, 0);
  static U32 out = 0;
  static U8 small = 0;
  struct Row {
    std::function<void()> call;
    const char* text;
    const char* signature;  ///< after "virtual"
  };
  // clang-format off
  const Row rows[] = {
      {[] { view.stringField("a", 0); }, "false && \"stringField function not implemented\"",
       "U64 AsicUtils::AsicBase::stringField(const Morvo::String&, U16) const"},
      {[] { view.stringFieldIs("a", 0); }, "false && \"stringFieldIs is invalid for this class\"",
       "void AsicUtils::AsicBase::stringFieldIs(const Morvo::String&, const U64&)"},
      {[] { view.entries(); }, "false && \"entries invalid for this class\"", "U32 AsicUtils::AsicBase::entries() const"},
      {[] { view.maxIdentifier(); }, "false && \"maxIdentifier invalid for this class\"",
       "U32 AsicUtils::AsicBase::maxIdentifier() const"},
      {[] { view.sdkDefinedId(); }, "false", "S32 AsicUtils::AsicBase::sdkDefinedId() const"},
      {[] { view.hasInstance(0); }, "false", "bool AsicUtils::AsicBase::hasInstance(U32) const"},
      {[] { view.tableVariantCount(); }, "false", "U32 AsicUtils::AsicBase::tableVariantCount() const"},
      {[] { view.entrySpans(); }, "false", "AsicUtils::EntrySpans AsicUtils::AsicBase::entrySpans() const"},
      {[] { view.compareTo(nullptr, 0); }, "0", "bool AsicUtils::AsicBase::compareTo(const void*, U16) const"},
      {[] { view.hasMultipleMem(); }, "0", "bool AsicUtils::BcmAsicBase::hasMultipleMem() const"},
      {[] { view.groupId(0); }, "0", "U32 AsicUtils::BcmAsicBase::groupId(U32) const"},
      {[] { view.numGroups(); }, "0", "U32 AsicUtils::BcmAsicBase::numGroups() const"},
      {[] { view.groupInfo(0, out, out, small); }, "0", "bool AsicUtils::BcmAsicBase::groupInfo(U32, U32&, U32&, U8&) const"},
      {[] { view.memInfo(0, 0, out, out, out, out, out); }, "0",
       "bool AsicUtils::BcmAsicBase::memInfo(U32, U32, U32&, U32&, U32&, U32&, U32&) const"}};
  // clang-format on
  for (const Row& row : rows) {
    const bool isBcm = std::string(row.signature).find("BcmAsicBase") != std::string::npos;
    VelmarTest::expectFailure(row.call, row.text, "virtual " + std::string(row.signature),
                              isBcm ? "BcmAsicBase" : "AsicBase");
  }
}

TEST(BaseState, isKept) {
  const Plain view(6, nullptr, 7, true, 8, 9);
  EXPECT_EQ(view.fieldCount(), 6U);
  EXPECT_EQ(view.width(), 7);
  EXPECT_TRUE(view.isTable());
  EXPECT_EQ(view.arrayElements(), 8U);
  EXPECT_EQ(view.instanceCount(), 9U);
  // A length that does not fit 16 bits counts as the largest that does, never as a short one.
  EXPECT_EQ(Plain(6, nullptr, 65536 + 4, false, 0, 0).width(), 65535);
}

static_assert(AsicUtils::BCM56960_A0 == 6 && ::BCM56996_B0 == 37);
static_assert(std::is_same_v<AsicUtils::ChipType_, ::ChipType_>);
static_assert(std::is_same_v<std::underlying_type_t<ChipType_>, U32>);

}  // namespace
