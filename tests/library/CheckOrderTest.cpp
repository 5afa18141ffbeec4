// Which check of a field member fails first, with which text and signature, and that a refused
// setter leaves the buffer unchanged: all fields, known and unknown chips, variants, lengths and
// values, against a model built only from the golden data and the order of the checks.

#include <iomanip>
#include <sstream>

#include "support/Sweep.h"

namespace VelmarTest {
namespace {

struct Model {
  bool isPresent = false;    ///< the chip has the class and the field
  bool knowsVariant = true;  ///< and the class knows the variant there
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
  const auto& places = golden.find(field.accessor)->places;
  const auto place = places.find(chip);
  if (place == places.end()) return {};
  return {true, knowsVariant(golden, chip, variant), place->second};
}

class CheckOrder : public testing::TestWithParam<std::size_t> {
 protected:
  const ClassProbe& probe_ = classProbes()[GetParam()];

  void checkQueries(const FieldProbe& field, const Model& model, const Base& view, U32 chip,
                    U8 variant) {
    Records records;
    EXPECT_EQ((view.*field.isValid)(), model.isAvailable());
    expectFailure([&] { (view.*field.offset)(); }, model.presence(),
                  field.offsetSignature(probe_.name));
    expectFailure([&] { (view.*field.length)(); }, model.isAvailable() ? "" : "\"0\" == nullptr",
                  field.lengthSignature(probe_.name));
    ASSERT_EQ(records.softAssertions.size(), model.isAvailable() ? 0U : 1U);
    if (model.isAvailable()) return;
    const SoftAssertion& report = records.softAssertions[0];
    EXPECT_EQ(report.expression, "0");
    EXPECT_EQ(report.file, "VelmarMetaInfo");
    EXPECT_EQ(report.text, textOf(chip, variant) + " does not have field " + field.hardwareName);
  }

  void checkAccess(const FieldProbe& field, const Model& model, U32 chip, U8 variant, U16 len) {
    const std::vector<U8> before(len, 0xa5);
    std::vector<U8> buffer = before;
    const auto view = probe_.open(chip, buffer.data(), len, variant);
    expectFailure([&] { field.get(*view); }, model.reach(len), field.getterSignature(probe_.name));
    std::vector<U64> values = {0};
    if (field.isScalar()) values = {~U64{0} >> (64 - field.typeBits())};
    if (model.checksValues(field)) {
      values.insert(values.end(), {model.largest(), model.largest() + 1});
    }
    for (const U64 value : values) {
      buffer = before;
      // The bitmap has all the words that the field may need.
      const Words words = field.type == "bitmap"
                              ? Words(9, 0)
                              : Words{static_cast<U32>(value), static_cast<U32>(value >> 32)};
      const std::string text = model.value(field, len, value);
      expectFailure([&] { field.set(*view, words); }, text, field.setterSignature(probe_.name));
      if (!text.empty()) ASSERT_EQ(buffer, before) << "a refused setter wrote";
    }
  }
};

TEST_P(CheckOrder, firstFailureAndUntouchedBuffer) {
  for (const FieldProbe& field : probe_.fields) {
    for (const U32 chip : knownAndUnknownChips()) {
      if (chip > 255) break;
      for (const U8 variant : {U8{0}, U8{1}, U8{255}}) {
        SCOPED_TRACE(probe_.name + " " + field.accessor + textOf(chip, variant));
        const Model model = modelOf(goldenClass(probe_.name), field, chip, variant);
        checkQueries(field, model, *probe_.open(chip, nullptr, 0, variant), chip, variant);
        const U16 enough = static_cast<U16>(model.isPresent ? model.bytesNeeded() : 64);
        for (const U16 len : {U16{0}, static_cast<U16>(enough - 1), enough}) {
          checkAccess(field, model, chip, variant, len);
        }
        if (isOver()) return;
      }
    }
  }
}

VELMAR_SWEEP_CLASSES(CheckOrder);

}  // namespace
}  // namespace VelmarTest
