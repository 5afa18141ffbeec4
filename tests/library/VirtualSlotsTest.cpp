// The virtual table by position: each slot of every class is called through the table itself and
// must be the member that callers compiled against the base expect there.

#include <gtest/gtest.h>

#include "Morvo/String.h"
#include "support/AssertionFailed.h"
#include "support/ClassProbes.h"
#include "support/GoldenData.h"
#include "support/Records.h"

namespace VelmarTest {
namespace {

/// Calls slot `slot` (counted from 0, two of them destructors) as a member of the given type.
template <class Result, class... Arguments>
Result callSlot(const Base& view, std::size_t slot, Arguments... arguments) {
  using Function = Result (*)(const Base*, Arguments...);
  void* const* table = *reinterpret_cast<void* const* const*>(&view);
  return reinterpret_cast<Function>(table[slot])(&view, arguments...);
}

/// What the called member said first: a trace line's text or an assertion's signature.
template <class Action>
std::string saidBy(Records& records, Action action) {
  records.lines.clear();
  const AssertionFailed failure = assertionOf(action);
  if (!records.lines.empty()) {
    const std::string& text = records.lines[0].text;
    return text.substr(0, text.find(" chipType:"));
  }
  return failure.function;
}

TEST(VirtualSlots, everyClassInOrder) {
  for (const ClassProbe& probe : classProbes()) {
    SCOPED_TRACE(probe.name);
    const U32 chip = anyChipOf(probe);
    const auto view = probe.make(chip, nullptr, 0, 0);
    const std::string scope = " Velmar::" + probe.name + "::";
    Records records(Records::EntryLines::on);
    U32 out = 0;
    U8 small = 0;
    const Morvo::String text;
    const U64 number = 0;
    const auto said = [&](auto action) { return saidBy(records, action); };
    const Base& base = *view;

    EXPECT_EQ(said([&] { callSlot<void, U32, U64>(base, 2, 0, 0); }),
              "virtual void" + scope + "setField64(U32, U64)");
    EXPECT_EQ(said([&] { callSlot<U64, const Morvo::String&, U16>(base, 3, text, 0); }),
              "virtual U64 AsicUtils::AsicBase::stringField(const Morvo::String&, U16) const");
    EXPECT_EQ(
        said([&] { callSlot<void, const Morvo::String&, const U64&>(base, 4, text, number); }),
        "virtual void AsicUtils::AsicBase::stringFieldIs(const Morvo::String&, const U64&)");
    EXPECT_EQ(said([&] { callSlot<U16, U32>(base, 5, 0); }),
              "virtual U16" + scope + "fieldWidth(U32) const");
    EXPECT_EQ(said([&] { callSlot<U16, U32>(base, 6, 0); }),
              "virtual U16" + scope + "fieldOffset(U32) const");
    EXPECT_EQ(said([&] { callSlot<bool, U32>(base, 7, 0); }),
              "virtual bool" + scope + "isFieldValid(U32) const");
    EXPECT_EQ(callSlot<U16>(base, 8), base.width());
    EXPECT_EQ(said([&] { callSlot<U32>(base, 9); }),
              probe.isTable ? "" : "virtual U32 AsicUtils::AsicBase::entries() const");
    EXPECT_EQ(said([&] { callSlot<U32>(base, 10); }),
              probe.isTable ? "virtual U32 AsicUtils::AsicBase::maxIdentifier() const" : "");
    EXPECT_EQ(said([&] { callSlot<U32>(base, 11); }), "static U32" + scope + "fieldCount(U32, U8)");
    EXPECT_EQ(callSlot<bool>(base, 12), probe.isTable);
    EXPECT_EQ(callSlot<Raw8192>(base, 13), base.allFieldsMask());
    EXPECT_EQ(said([&] { callSlot<S32>(base, 14); }),
              "virtual S32 AsicUtils::AsicBase::sdkDefinedId() const");
    EXPECT_EQ(said([&] { callSlot<U32>(base, 15); }),
              "static U32" + scope + "instanceCount(U32, U8)");
    EXPECT_EQ(said([&] { callSlot<bool, U32>(base, 16, 0); }),
              "virtual bool AsicUtils::AsicBase::hasInstance(U32) const");
    EXPECT_EQ(said([&] { callSlot<bool, U32>(base, 17, 0); }),
              "static bool" + scope + "hasIdentifier(U32, U8, U32)");
    EXPECT_EQ(callSlot<U32>(base, 18), probe.isTable ? 1U : 64U);
    EXPECT_EQ(said([&] { callSlot<U32>(base, 19); }),
              probe.isTable ? "" : "virtual U32 AsicUtils::AsicBase::tableVariantCount() const");
    EXPECT_EQ(said([&] { callSlot<AsicUtils::EntrySpans>(base, 20); }),
              probe.isTable
                  ? "static Velmar::" + probe.name + "::EntrySpans" + scope + "entrySpans(U32, U8)"
                  : "virtual AsicUtils::EntrySpans AsicUtils::AsicBase::entrySpans() const");
    EXPECT_EQ(said([&] { callSlot<bool, const void*, U16>(base, 21, nullptr, 0); }),
              "virtual bool AsicUtils::AsicBase::compareTo(const void*, U16) const");
    EXPECT_EQ(said([&] {
                callSlot<bool, U32&, U32&, U32&, U16, U32, U16>(base, 22, out, out, out, 0, 0, 0);
              }),
              "static bool" + scope + "getSchanAddress(U32, U8, U32&, U32&, U32&, U16, U32, U16)");
    const std::string bcm = " AsicUtils::BcmAsicBase::";
    EXPECT_EQ(said([&] { callSlot<bool>(base, 23); }),
              "virtual bool" + bcm + "hasMultipleMem() const");
    EXPECT_EQ(said([&] { callSlot<U32, U32>(base, 24, 0); }),
              "virtual U32" + bcm + "groupId(U32) const");
    EXPECT_EQ(said([&] { callSlot<U32>(base, 25); }), "virtual U32" + bcm + "numGroups() const");
    EXPECT_EQ(said([&] { callSlot<bool, U32, U32&, U32&, U8&>(base, 26, 0, out, out, small); }),
              "virtual bool" + bcm + "groupInfo(U32, U32&, U32&, U8&) const");
    EXPECT_EQ(said([&] {
                callSlot<bool, U32, U32, U32&, U32&, U32&, U32&, U32&>(base, 27, 0, 0, out, out,
                                                                       out, out, out);
              }),
              "virtual bool" + bcm + "memInfo(U32, U32, U32&, U32&, U32&, U32&, U32&) const");
  }
}

}  // namespace
}  // namespace VelmarTest
