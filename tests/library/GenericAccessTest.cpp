// Fields chosen by identifier, masks and whole entries, over all classes through the base class.

#include <gtest/gtest.h>

#include <cstring>

#include "support/AssertionFailed.h"
#include "support/ClassProbes.h"
#include "support/GoldenData.h"

namespace VelmarTest {
namespace {

std::string memberOf(const ClassProbe& probe, const std::string& type, const std::string& call) {
  return "virtual " + type + " Velmar::" + probe.name + "::" + call;
}

TEST(GenericAccess, unknownIdentifiers) {
  for (const ClassProbe& probe : classProbes()) {
    std::vector<U8> buffer(128, 0x5a);
    const std::vector<U8> before = buffer;
    const auto view = probe.make(anyChipOf(probe), buffer.data(), 128, 0);
    for (U32 id = 0; id < 700; ++id) {
      bool isDeclared = false;
      for (const FieldProbe& field : probe.fields) isDeclared |= field.id == id;
      if (isDeclared) continue;
      EXPECT_FALSE(view->isFieldValid(id));
      EXPECT_EQ(view->fieldWidth(id), 0);
      const AssertionFailed offset = assertionOf([&] { view->fieldOffset(id); });
      ASSERT_EQ(offset.expression, "false") << probe.name << " " << id;
      EXPECT_EQ(offset.function, memberOf(probe, "U16", "fieldOffset(U32) const"));
      const AssertionFailed set = assertionOf([&] { view->setField64(id, 0); });
      ASSERT_EQ(set.expression, "false");
      EXPECT_EQ(set.function, memberOf(probe, "void", "setField64(U32, U64)"));
    }
    for (const U32 id : {0x80000000U, 0xffffffffU}) EXPECT_FALSE(view->isFieldValid(id));
    EXPECT_EQ(buffer, before);
  }
}

TEST(GenericAccess, setField64NarrowsThenChecks) {
  for (const ClassProbe& probe : classProbes()) {
    const GoldenClass& golden = goldenClass(probe.name);
    for (const GoldenField& expected : golden.fields) {
      const FieldProbe& field = probe.field(expected.accessor);
      for (const auto& [chip, place] : expected.places) {
        SCOPED_TRACE(probe.name + " " + field.accessor);
        std::vector<U8> buffer(128, 0);
        const auto view = probe.make(chip, buffer.data(), 128, 0);
        if (!field.isScalar()) {
          const AssertionFailed failure = assertionOf([&] { view->setField64(field.id, 0); });
          ASSERT_EQ(failure.expression, "false");
          EXPECT_EQ(failure.function, memberOf(probe, "void", "setField64(U32, U64)"));
          continue;
        }
        const U64 largest = ~U64{0} >> (64 - place.width);
        // Bits beyond the type are dropped before the check.
        const U64 beyond = field.typeBits() < 64 ? U64{1} << field.typeBits() : 0;
        view->setField64(field.id, largest | beyond);
        EXPECT_EQ(field.get(*view)[0], static_cast<U32>(largest));
        if (place.width % 8 == 0) continue;
        const AssertionFailed failure =
            assertionOf([&] { view->setField64(field.id, largest + 1); });
        EXPECT_EQ(failure.expression.substr(0, 9), "value <= ");
        EXPECT_EQ(failure.function, field.setterSignature(probe.name));
      }
    }
  }
}

TEST(GenericAccess, absentFieldsFailInTheirOwnOffset) {
  for (const ClassProbe& probe : classProbes()) {
    const auto view = probe.open(38, nullptr, 0, 0);
    for (const FieldProbe& field : probe.fields) {
      const AssertionFailed failure = assertionOf([&] { view->fieldOffset(field.id); });
      ASSERT_EQ(failure.expression, "0");
      EXPECT_EQ(failure.function, field.offsetSignature(probe.name));
      EXPECT_EQ(view->fieldWidth(field.id), 0);
    }
  }
}

TEST(GenericAccess, aDerivedViewThatClaimsAFieldGetsNoWidthForIt) {
  struct Claiming : Velmar::VlanEntry {
    using VlanEntry::VlanEntry;
    bool isFieldValid(U32) const override { return true; }
  };
  const Claiming view(BCM56990_B0, nullptr, 0, false, 0);
  ASSERT_FALSE(view.isPortBitmapValid());
  EXPECT_EQ(assertionOf([&] { view.fieldWidth(0xffff); }).expression, "false");
  EXPECT_EQ(assertionOf([&] { view.fieldWidth(Velmar::FieldId::PORT_BITMAP); }).function,
            "U16 Velmar::VlanEntry::portBitmapLen() const");
}

TEST(GenericAccess, masksAreTheUnionOfTheFields) {
  for (const ClassProbe& probe : classProbes()) {
    const GoldenClass& golden = goldenClass(probe.name);
    for (const auto& [chip, facts] : golden.chips) {
      SCOPED_TRACE(probe.name + " chip " + std::to_string(chip));
      Raw8192 expected{};
      U32 count = 0;
      for (const GoldenField& field : golden.fields) {
        if (field.places.count(chip) == 0) continue;
        ++count;
        const GoldenField::Place place = field.places.at(chip);
        for (U32 bit = place.offset; bit < place.offset + place.width; ++bit) {
          expected.words[bit / 32] |= 1U << bit % 32;
        }
      }
      ASSERT_EQ(probe.allFieldsMask(chip, 0), expected);
      std::vector<U8> buffer(facts.rawBytesNeeded);
      for (std::size_t i = 0; i < buffer.size(); ++i) buffer[i] = static_cast<U8>(37 * i + 11);
      const std::vector<U8> before = buffer;
      const auto view = probe.make(chip, buffer.data(), static_cast<U16>(buffer.size()), 0);
      EXPECT_EQ(view->allFieldsMask(), expected);
      EXPECT_EQ(view->fieldCount(), count);
      const Words entry = probe.getAllFields(*view);
      for (U32 word = 0; word < entry.size(); ++word) {
        U32 bytes = 0;
        if (4 * word < buffer.size()) std::memcpy(&bytes, &buffer[4 * word], 4);
        ASSERT_EQ(entry[word], bytes & expected.words[word]) << "word " << word;
      }
      EXPECT_EQ(buffer, before);
    }
  }
}

TEST(GenericAccess, getAllFieldsChecksInOrder) {
  for (const ClassProbe& probe : classProbes()) {
    const std::string signature =
        probe.rawName + " Velmar::" + probe.name + "::getAllFields() const";
    std::vector<U8> buffer(256, 0);
    const auto expect = [&](U32 chip, U8 variant, U32 len, const std::string& text) {
      const auto view = probe.open(chip, buffer.data(), static_cast<U16>(len), variant);
      const AssertionFailed failure = assertionOf([&] { probe.getAllFields(*view); });
      EXPECT_EQ(failure.expression, text) << probe.name << " chip " << chip;
      if (!text.empty()) EXPECT_EQ(failure.function, signature);
    };
    expect(38, 0, 0, "0");
    for (const auto& [chip, facts] : goldenClass(probe.name).chips) {
      const std::string tooShort = "len_ >= " + std::to_string(facts.rawBytesNeeded);
      expect(chip, 0, facts.rawBytesNeeded - 1, tooShort);
      expect(chip, 1, 0, facts.anyVariant ? tooShort : "variant_ == 0");
      expect(chip, 0, facts.rawBytesNeeded, "");
    }
  }
}

}  // namespace
}  // namespace VelmarTest
