// Any bytes are an entry. Its values, copied field by field as typed texts into an entry with other
// bits, give the same field bits and leave the reserved bits unchanged.

#include "Fuzzing.h"
#include "core/EntryBuilder.h"

namespace Fuzzing {
namespace {

/// Types the fields in one of the forms in which they are printed.
std::vector<U8> copyByTexts(const Core::Layout& layout, const std::vector<U8>& entry,
                            const std::vector<U8>& to, bool inHex) {
  Core::EntryBuilder builder(layout);
  builder.start(to.data());
  for (const Core::FieldPlace& place : layout.fields()) {
    const auto value = Core::Value::read(place, entry.data(), layout.entryBytes());
    std::string text = value.hex();
    if (!inHex && place.isBitmap()) {
      text = value.portRanges();
    } else if (!inHex && value.number()) {
      text = std::to_string(*value.number());
    }
    const auto assignments =
        Core::parseAssignments(layout, std::string(place.name()) + " = " + text);
    require(succeeds(assignments), "values that were read are taken", text);
    for (const Core::Assignment& assignment : *assignments) {
      require(succeeds(builder.set(assignment)), "values that were read agree", place.name());
    }
  }
  return builder.bytes();
}

}  // namespace
}  // namespace Fuzzing

extern "C" int LLVMFuzzerTestOneInput(const U8* data, size_t size) {
  using namespace Fuzzing;
  Input input(data, size);
  const Core::Layout& layout = chooseLayout(input);
  const U32 way = input.choose(4);
  const std::string bytes = input.rest();
  std::vector<U8> entry(layout.entryBytes());
  std::copy_n(bytes.begin(), std::min(bytes.size(), entry.size()), entry.begin());
  std::vector<U8> inverse(entry.size());
  for (size_t i = 0; i < entry.size(); ++i) inverse[i] = static_cast<U8>(~entry[i]);

  const std::vector<U8> copy = copyByTexts(layout, entry, inverse, way % 2 == 1);
  for (size_t i = 0; i < entry.size(); ++i) {
    require((entry[i] ^ copy[i]) == layout.reservedMask()[i],
            "the same fields, and all other bits as before", layout.name());
  }
  return 0;
}
