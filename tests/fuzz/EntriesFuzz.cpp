// Any bytes are an entry. Its values, copied field by field as the command's texts into an entry
// with other bits, give the same field bits and leave the reserved bits unchanged.

#include "Fuzzing.h"
#include "model/EntryBuilder.h"

namespace Fuzzing {
namespace {

/// Types the fields as `velmar encode` takes them, each in one of the forms that decode prints.
void copyByTexts(const Tool::Layout& layout, const std::vector<U8>& entry, std::vector<U8>& copy,
                 bool inHex) {
  Tool::EntryBuilder builder(layout);
  builder.start(copy.data());
  for (const Tool::FieldPlace& place : layout.fields()) {
    const auto value = Tool::Value::read(place, entry.data(), layout.entryBytes());
    std::string text = value.hex();
    if (!inHex && place.isBitmap())
      text = value.portRanges();
    else if (!inHex && value.number())
      text = std::to_string(*value.number());
    for (const Tool::Assignment& assignment :
         Tool::parseAssignments(layout, std::string(place.name()) + " = " + text)) {
      builder.set(assignment);
    }
  }
  std::copy(builder.bytes().begin(), builder.bytes().end(), copy.begin());
}

}  // namespace
}  // namespace Fuzzing

extern "C" int LLVMFuzzerTestOneInput(const U8* data, size_t size) {
  using namespace Fuzzing;
  Input input(data, size);
  const Tool::Layout& layout = chooseLayout(input);
  const U32 way = input.choose(4);
  const U32 surplus = input.choose(2) * layout.table().allFieldsBytes();
  const std::string bytes = input.rest();
  std::vector<U8> entry(std::max(layout.entryBytes(), surplus));
  std::copy_n(bytes.begin(), std::min(bytes.size(), entry.size()), entry.begin());
  std::vector<U8> copy(entry.size());
  for (size_t i = 0; i < copy.size(); ++i) copy[i] = static_cast<U8>(~entry[i]);

  const std::string failure = failureOf([&] { copyByTexts(layout, entry, copy, way % 2 == 1); });
  require(failure.empty(), "values that were read are taken", failure);
  for (size_t i = 0; i < entry.size(); ++i) {
    const U8 others = i < layout.entryBytes() ? layout.reservedMask()[i] : U8{0xff};
    require((entry[i] ^ copy[i]) == others, "the same fields, and all other bits as before",
            layout.name());
  }
  return 0;
}
