// Which check of a field member speaks first, with which text and signature, and that no refused
// setter touches the buffer: all fields, all chips known and unknown, variants, lengths and values,
// against a model that knows the golden data and the order of the checks, nothing of the library.

#include <gtest/gtest.h>

#include <iomanip>
#include <sstream>

#include "support/AssertionFailed.h"
#include "support/ClassProbes.h"
#include "support/GoldenData.h"
#include "support/Records.h"

namespace VelmarTest {
namespace {

struct Model {
  bool exists = false;       ///< the class is on the chip
  bool isPresent = false;    ///< and has the field there
  bool knowsVariant = true;  ///< and knows the variant
  GoldenField::Place place = {0, 0};

  U32 bytesNeeded() const { return (place.offset + place.width + 7) / 8; }
  bool isAvailable() const { return isPresent && knowsVariant; }
  bool checksValues(const FieldProbe& field) const {
    return field.isScalar() && place.width % 8 != 0;
  }
  U64 largest() const { return (U64{1} << place.width) - 1; }

  /// The text of the first check that getter, setter and offset fail; empty for none.
  std::string presence() const {
    if (!isPresent) return "0";
    return knowsVariant ? "" : "variant_ == 0";
  }
  std::string reach(U32 len) const {
    if (!presence().empty()) return presence();
    return len < bytesNeeded() ? "len_ >= " + std::to_string(bytesNeeded()) : "";
  }
  std::string value(const FieldProbe& field, U32 len, U64 value) const {
    if (!reach(len).empty()) return reach(len);
    if (!checksValues(field) || value <= largest()) return "";
    std::ostringstream text;
    text << "value <= 0x" << std::hex << largest();
    return text.str();
  }
};

Model modelOf(const GoldenClass& golden, const FieldProbe& field, U32 chip, U8 variant) {
  Model model;
  const auto found = golden.chips.find(chip);
  model.exists = found != golden.chips.end();
  if (!model.exists) return model;
  model.knowsVariant = knowsVariant(found->second, variant);
  for (const GoldenField& each : golden.fields) {
    if (each.accessor != field.accessor || each.places.count(chip) == 0) continue;
    model.isPresent = true;
    model.place = each.places.at(chip);
  }
  return model;
}

Words wordsOf(U64 value) { return {static_cast<U32>(value), static_cast<U32>(value >> 32)}; }

class CheckOrder : public testing::TestWithParam<std::size_t> {
 protected:
  const ClassProbe& probe_ = classProbes()[GetParam()];
  const GoldenClass& golden_ = goldenClass(probe_.name);
  U32 texts_ = 0;

  void expectFailure(const AssertionFailed& failure, const std::string& text,
                     const std::string& signature) {
    ++texts_;
    ASSERT_EQ(failure.expression, text);
    if (text.empty()) return;
    EXPECT_EQ(failure.file, "VelmarMetaInfo");
    EXPECT_EQ(failure.function, signature);
    EXPECT_NE(failure.line, 0U);
  }

  void checkQueries(const FieldProbe& field, const Model& model, const Base& view, U32 chip,
                    U8 variant) {
    Records records;
    EXPECT_EQ((view.*field.isValid)(), model.isAvailable());
    expectFailure(assertionOf([&] { (view.*field.offset)(); }), model.presence(),
                  field.offsetSignature(probe_.name));
    const AssertionFailed length = assertionOf([&] { (view.*field.length)(); });
    expectFailure(length, model.isAvailable() ? "" : "\"0\" == nullptr",
                  field.lengthSignature(probe_.name));
    ASSERT_EQ(records.softAssertions.size(), model.isAvailable() ? 0U : 1U);
    if (model.isAvailable()) return;
    const SoftAssertion& report = records.softAssertions[0];
    EXPECT_EQ(report.expression, "0");
    EXPECT_EQ(report.file, "VelmarMetaInfo");
    EXPECT_EQ(report.text, " chipType: " + std::to_string(chip) +
                               " variant: " + std::to_string(variant) + " does not have field " +
                               field.hardwareName);
  }

  void checkAccess(const FieldProbe& field, const Model& model, U32 chip, U8 variant, U16 len) {
    const std::vector<U8> before(len, 0xa5);
    std::vector<U8> buffer = before;
    const auto view = probe_.open(chip, buffer.data(), len, variant);
    expectFailure(assertionOf([&] { field.get(*view); }), model.reach(len),
                  field.getterSignature(probe_.name));
    std::vector<U64> values = {0};
    if (model.checksValues(field)) {
      values = {model.largest(), model.largest() + 1, ~U64{0} >> (64 - field.typeBits())};
    } else if (field.isScalar()) {
      values = {~U64{0} >> (64 - field.typeBits())};
    }
    for (const U64 value : values) {
      buffer = before;
      // A bitmap gets all the words that it may need.
      const Words words = field.type == "bitmap" ? Words(9, 0) : wordsOf(value);
      const std::string text = model.value(field, len, value);
      expectFailure(assertionOf([&] { field.set(*view, words); }), text,
                    field.setterSignature(probe_.name));
      if (!text.empty()) ASSERT_EQ(buffer, before) << "a refused setter wrote";
    }
  }
};

TEST_P(CheckOrder, firstFailureAndUntouchedBuffer) {
  std::vector<U32> chips = {0, 5, 7, 32, 38, 255};
  for (const auto& [chip, name] : chipNames()) chips.push_back(chip);
  for (const FieldProbe& field : probe_.fields) {
    for (const U32 chip : chips) {
      for (const U8 variant : {U8{0}, U8{1}, U8{255}}) {
        SCOPED_TRACE(probe_.name + " " + field.accessor + " chip " + std::to_string(chip) +
                     " variant " + std::to_string(variant));
        const Model model = modelOf(golden_, field, chip, variant);
        checkQueries(field, model, *probe_.open(chip, nullptr, 0, variant), chip, variant);
        const U16 enough = static_cast<U16>(model.isPresent ? model.bytesNeeded() : 64);
        for (const U16 len : {U16{0}, static_cast<U16>(enough - 1), enough}) {
          checkAccess(field, model, chip, variant, len);
        }
        if (HasFatalFailure()) return;
      }
    }
  }
  RecordProperty("texts", static_cast<int>(texts_));
}

INSTANTIATE_TEST_SUITE_P(Classes, CheckOrder, testing::Range(std::size_t{0}, std::size_t{27}),
                         [](const testing::TestParamInfo<std::size_t>& each) {
                           return classProbes()[each.param].name;
                         });

}  // namespace
}  // namespace VelmarTest
