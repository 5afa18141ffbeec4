// Any bytes are an entry. Its values, carried field by field into an entry with other bits, through
// the accessors of the class or through texts of the command, give the same field bits and leave the
// bits outside all fields.

#include "Fuzzing.h"
#include "FieldLists.h"
#include "Velmar/MetaInfo.h"
#include "model/EntryBuilder.h"
#include "tables/Classes.h"

namespace Fuzzing {
namespace {

template <class T>
U64 scalarOf(const T& value) {
  if constexpr (std::is_integral_v<T>) return value;
  return 0;
}

/// Copies a field, where the chip has it; scalars also by identifier.
#define COPY_FIELD(accessor, Accessor, HARDWARE_NAME, TYPE)              \
  if (from.is##Accessor##Valid()) {                                      \
    const auto value = from.accessor();                                  \
    if (byIdentifier && std::is_integral_v<decltype(from.accessor())>) { \
      into.setField64(Velmar::FieldId::HARDWARE_NAME, scalarOf(value));  \
    } else {                                                             \
      into.accessor##Is(value);                                          \
    }                                                                    \
  }

/// A function for each class: all in one would be hard on a compiler with sanitizers.
#define DEFINE_COPY(CLASS)                                                                    \
  void copy##CLASS(const Tool::Layout& layout, std::vector<U8>& entry, std::vector<U8>& copy, \
                   bool byIdentifier) {                                                       \
    const auto chip = static_cast<ChipType_>(layout.chip().number);                           \
    const U16 size = static_cast<U16>(entry.size());                                          \
    const Velmar::CLASS from(chip, entry.data(), size, false, layout.variant());              \
    Velmar::CLASS into(chip, copy.data(), size, false, layout.variant());                     \
    VELMAR_FIELDS_##CLASS(COPY_FIELD) if (size < layout.table().allFieldsBytes()) return;     \
    require(from.getAllFields() == into.getAllFields(), "both have the same fields", #CLASS); \
  }
VELMAR_CLASSES(DEFINE_COPY)

void copyByViews(const Tool::Layout& layout, std::vector<U8>& entry, std::vector<U8>& copy,
                 bool byIdentifier) {
  const std::string_view name = layout.name();
#define CALL_COPY(CLASS) \
  if (name == #CLASS) copy##CLASS(layout, entry, copy, byIdentifier);
  VELMAR_CLASSES(CALL_COPY)
}

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
    builder.set(Tool::parseAssignment(layout, std::string(place.name()) + " = " + text));
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

  const std::string failure = failureOf([&] {
    if (way < 2)
      copyByViews(layout, entry, copy, way == 1);
    else
      copyByTexts(layout, entry, copy, way == 3);
  });
  require(failure.empty(), "values that were read are taken", failure);
  for (size_t i = 0; i < entry.size(); ++i) {
    const U8 others = i < layout.entryBytes() ? layout.reservedMask()[i] : U8{0xff};
    require((entry[i] ^ copy[i]) == others, "the same fields, and all other bits as before",
            layout.name());
  }
  return 0;
}
