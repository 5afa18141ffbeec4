// Fields chosen by identifier, masks and whole entries, for all classes through the base class.

#include <cstring>

#include "support/Sweep.h"

namespace VelmarTest {
namespace {

std::string memberOf(const ClassProbe& probe, const std::string& type, const std::string& call) {
  return "virtual " + type + " Velmar::" + probe.name + "::" + call;
}

TEST(GenericAccess, identifiersGiveWhatAccessorsGive) {
  onEveryChip([](const ClassProbe& probe, const GoldenClass&, U32 chip) {
    std::vector<U8> buffer(128, 0x5a);
    const auto view = probe.make(chip, buffer.data(), 128, 0);
    for (U32 id = 0; id < 1024; ++id) {
      const FieldProbe* field = nullptr;
      for (const FieldProbe& each : probe.fields) field = each.id == id ? &each : field;
      const bool isPresent = field != nullptr && ((*view).*field->isValid)();
      ASSERT_EQ(view->isFieldValid(id), isPresent);
      ASSERT_EQ(view->fieldWidth(id), isPresent ? ((*view).*field->length)() : 0);
      if (field != nullptr) {
        U16 offset = 0;
        expectFailure([&] { offset = view->fieldOffset(id); }, isPresent ? "" : "0",
                      field->offsetSignature(probe.name));
        if (isPresent) ASSERT_EQ(offset, ((*view).*field->offset)());
      }
      if (field != nullptr || chip != anyChipOf(probe)) continue;
      expectFailure([&] { view->fieldOffset(id); }, "false",
                    memberOf(probe, "U16", "fieldOffset(U32) const"));
      expectFailure([&] { view->setField64(id, 0); }, "false",
                    memberOf(probe, "void", "setField64(U32, U64)"));
    }
    for (const U32 id : {0x80000000U, 0xffffffffU}) EXPECT_FALSE(view->isFieldValid(id));
    EXPECT_EQ(buffer, std::vector<U8>(128, 0x5a));
  });
}

TEST(GenericAccess, setField64NarrowsThenChecks) {
  onEveryChip([](const ClassProbe& probe, const GoldenClass& golden, U32 chip) {
    for (const GoldenField& expected : golden.fields) {
      const FieldProbe& field = probe.field(expected.accessor);
      if (expected.places.count(chip) == 0) continue;
      std::vector<U8> buffer(128, 0);
      const auto view = probe.make(chip, buffer.data(), 128, 0);
      if (!field.isScalar()) {
        expectFailure([&] { view->setField64(field.id, 0); }, "false",
                      memberOf(probe, "void", "setField64(U32, U64)"));
        continue;
      }
      const U32 width = expected.places.at(chip).width;
      const U64 largest = ~U64{0} >> (64 - width);
      // Bits beyond the type are dropped before the check.
      const U64 beyond = field.typeBits() < 64 ? U64{1} << field.typeBits() : 0;
      view->setField64(field.id, largest | beyond);
      EXPECT_EQ(field.get(*view)[0], static_cast<U32>(largest));
      if (width % 8 == 0) continue;
      const AssertionFailed failure = assertionOf([&] { view->setField64(field.id, largest + 1); });
      EXPECT_EQ(failure.expression.substr(0, 9), "value <= ");
      EXPECT_EQ(failure.function, field.setterSignature(probe.name));
    }
  });
}

TEST(GenericAccess, widthsAskTheDerivedViewFirst) {
  struct Derived : Velmar::VlanEntry {
    using VlanEntry::VlanEntry;
    bool isFieldValid(U32) const override { return claims; }
    bool claims = false;
  };
  Derived view(BCM56990_B0, nullptr, 0, false, 0);
  EXPECT_EQ(view.fieldWidth(Velmar::FieldId::STG), 0);
  view.claims = true;
  EXPECT_EQ(view.fieldWidth(Velmar::FieldId::STG), view.stgLen());
  ASSERT_FALSE(view.isPortBitmapValid());
  EXPECT_EQ(assertionOf([&] { view.fieldWidth(0xffff); }).expression, "false");
  EXPECT_EQ(assertionOf([&] { view.fieldWidth(Velmar::FieldId::PORT_BITMAP); }).function,
            "U16 Velmar::VlanEntry::portBitmapLen() const");
}

TEST(GenericAccess, masksAreTheUnionOfTheFields) {
  onEveryChip([](const ClassProbe& probe, const GoldenClass& golden, U32 chip) {
    Raw8192 expected{};
    for (const GoldenField& field : golden.fields) {
      if (field.places.count(chip) == 0) continue;
      const GoldenField::Place place = field.places.at(chip);
      for (U32 bit = place.offset; bit < place.offset + place.width; ++bit) {
        expected.words[bit / 32] |= 1U << bit % 32;
      }
    }
    ASSERT_EQ(probe.allFieldsMask(chip, 0), expected);
    std::vector<U8> buffer(golden.chips.at(chip).rawBytesNeeded);
    for (std::size_t i = 0; i < buffer.size(); ++i) buffer[i] = static_cast<U8>(37 * i + 11);
    const std::vector<U8> before = buffer;
    const auto view = probe.make(chip, buffer.data(), static_cast<U16>(buffer.size()), 0);
    const Words entry = probe.getAllFields(*view);
    for (U32 word = 0; word < entry.size(); ++word) {
      U32 bytes = 0;
      if (4 * word < buffer.size()) std::memcpy(&bytes, &buffer[4 * word], 4);
      ASSERT_EQ(entry[word], bytes & expected.words[word]) << "word " << word;
    }
    EXPECT_EQ(buffer, before);
  });
}

TEST(GenericAccess, getAllFieldsChecksInOrder) {
  onEveryChip([](const ClassProbe& probe, const GoldenClass& golden, U32 chip) {
    std::vector<U8> buffer(256, 0);
    const auto expect = [&](U32 onChip, U8 variant, U32 len, const std::string& text) {
      const auto view = probe.open(onChip, buffer.data(), static_cast<U16>(len), variant);
      expectFailure([&] { probe.getAllFields(*view); }, text,
                    probe.rawName + " Velmar::" + probe.name + "::getAllFields() const");
    };
    const GoldenChip& facts = golden.chips.at(chip);
    const std::string tooShort = "len_ >= " + std::to_string(facts.rawBytesNeeded);
    expect(unknownChip(), 0, 0, "0");
    expect(chip, 1, 0, facts.anyVariant ? tooShort : "variant_ == 0");
    expect(chip, 0, facts.rawBytesNeeded - 1, tooShort);
    expect(chip, 0, facts.rawBytesNeeded, "");
  });
}

}  // namespace
}  // namespace VelmarTest
