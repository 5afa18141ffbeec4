// The defaults of the base classes: text, file name and signature of each; and what the base keeps.

#include <gtest/gtest.h>

#include "AsicUtils/BcmAsicBase.h"
#include "support/AssertionFailed.h"

namespace {

using VelmarTest::assertionOf;

/// The least that a view must define.
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

template <class Action>
void expectDefault(Action action, const char* text, const char* file, const char* signature) {
  const VelmarTest::AssertionFailed failure = assertionOf(action);
  EXPECT_EQ(failure.expression, text);
  EXPECT_EQ(failure.file, file);
  EXPECT_EQ(failure.function, signature);
  EXPECT_NE(failure.line, 0U);
}

TEST(BaseDefaults, failWithTheirTexts) {
  Plain view(6, nullptr, 0, false, 0, 0);
  U32 out = 0;
  U8 small = 0;
  const char* base = "AsicBase";
  const char* bcm = "BcmAsicBase";
  expectDefault([&] { view.stringField("a", 0); },
                "false && \"stringField function not implemented\"", base,
                "virtual U64 AsicUtils::AsicBase::stringField(const Morvo::String&, U16) const");
  expectDefault(
      [&] { view.stringFieldIs("a", 0); }, "false && \"stringFieldIs is invalid for this class\"",
      base, "virtual void AsicUtils::AsicBase::stringFieldIs(const Morvo::String&, const U64&)");
  expectDefault([&] { view.entries(); }, "false && \"entries invalid for this class\"", base,
                "virtual U32 AsicUtils::AsicBase::entries() const");
  expectDefault([&] { view.maxIdentifier(); }, "false && \"maxIdentifier invalid for this class\"",
                base, "virtual U32 AsicUtils::AsicBase::maxIdentifier() const");
  expectDefault([&] { view.sdkDefinedId(); }, "false", base,
                "virtual S32 AsicUtils::AsicBase::sdkDefinedId() const");
  expectDefault([&] { view.hasInstance(0); }, "false", base,
                "virtual bool AsicUtils::AsicBase::hasInstance(U32) const");
  expectDefault([&] { view.tableVariantCount(); }, "false", base,
                "virtual U32 AsicUtils::AsicBase::tableVariantCount() const");
  expectDefault([&] { view.entrySpans(); }, "false", base,
                "virtual AsicUtils::EntrySpans AsicUtils::AsicBase::entrySpans() const");
  expectDefault([&] { view.compareTo(nullptr, 0); }, "0", base,
                "virtual bool AsicUtils::AsicBase::compareTo(const void*, U16) const");
  expectDefault([&] { view.hasMultipleMem(); }, "0", bcm,
                "virtual bool AsicUtils::BcmAsicBase::hasMultipleMem() const");
  expectDefault([&] { view.groupId(0); }, "0", bcm,
                "virtual U32 AsicUtils::BcmAsicBase::groupId(U32) const");
  expectDefault([&] { view.numGroups(); }, "0", bcm,
                "virtual U32 AsicUtils::BcmAsicBase::numGroups() const");
  expectDefault([&] { view.groupInfo(0, out, out, small); }, "0", bcm,
                "virtual bool AsicUtils::BcmAsicBase::groupInfo(U32, U32&, U32&, U8&) const");
  expectDefault(
      [&] { view.memInfo(0, 0, out, out, out, out, out); }, "0", bcm,
      "virtual bool AsicUtils::BcmAsicBase::memInfo(U32, U32, U32&, U32&, U32&, U32&, U32&) const");
}

TEST(BaseState, isKept) {
  const Plain view(6, nullptr, 7, true, 8, 9);
  EXPECT_EQ(view.fieldCount(), 6U);
  EXPECT_EQ(view.width(), 7);
  EXPECT_TRUE(view.isTable());
  EXPECT_EQ(view.arrayElements(), 8U);
  EXPECT_EQ(view.instanceCount(), 9U);
  // A length that 16 bits do not hold counts as the longest that they do, never as a short one.
  EXPECT_EQ(Plain(6, nullptr, 65536 + 4, false, 0, 0).width(), 65535);
}

TEST(ChipTypes, standInBothScopes) {
  static_assert(AsicUtils::BCM56960_A0 == 6 && ::BCM56996_B0 == 37);
  static_assert(std::is_same_v<AsicUtils::ChipType_, ::ChipType_>);
  static_assert(std::is_same_v<std::underlying_type_t<ChipType_>, U32>);
  static_assert(std::is_convertible_v<ChipType_, U32>);
}

}  // namespace
