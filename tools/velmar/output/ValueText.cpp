#include "output/ValueText.h"

#include <algorithm>

#include "model/Text.h"

namespace Tool {
namespace {

char* appendPorts(char* at, const Value& value) {
  *at++ = '[';
  bool first = true;
  for (const U32 port : value.ports()) {
    if (!first) *at++ = ',';
    first = false;
    at = appendDecimal(at, port);
  }
  *at++ = ']';
  return at;
}

}  // namespace

std::string plainText(const FieldPlace& place, const Value& value) {
  if (place.isBitmap()) return value.portRanges();
  return isExactInJson(place.width) ? std::to_string(*value.number()) : value.hex();
}

std::string familyText(const FieldGroup& family, const U8* entry, U32 entryBytes) {
  std::vector<std::pair<U64, std::vector<U32>>> values;
  for (const FieldPlace& place : family.members) {
    const U64 value = readScalar(place, entry, entryBytes);
    auto found = std::find_if(values.begin(), values.end(),
                              [value](const auto& one) { return one.first == value; });
    if (found == values.end()) found = values.insert(values.end(), {value, {}});
    found->second.push_back(numberedName(place.name())->number);
  }
  std::string text;
  for (const auto& [value, numbers] : values) {
    text += formatText("{}{}: {}", text.empty() ? "" : "  ", value, rangesText(numbers));
  }
  return text;
}

std::string alignedBits(const Layout& layout, const std::string& bits) {
  const size_t digits = std::to_string(8 * layout.entryBytes() - 1).size();
  const size_t colon = std::min(bits.find(':'), bits.size());
  return std::string(digits - std::min(digits, colon), ' ') + bits;
}

std::string valueJson(const FieldPlace& place, const U8* entry, U32 entryBytes) {
  std::string text(longestValueJson(place), ' ');
  char* const start = text.data();
  const char* end = appendValueJson(append(start, R"({"hex":"0x)"), place, entry, entryBytes);
  text.resize(static_cast<size_t>(end - start));
  return text;
}

size_t longestValueJson(const FieldPlace& place) {
  constexpr size_t numbers = 80;
  constexpr size_t digitsOfPort = 5;
  return numbers + place.width / 4 + digitsOfPort * place.width;
}

char* appendWideJson(char* at, const FieldPlace& place, const U8* entry, U32 entryBytes) {
  const Value value = Value::read(place, entry, entryBytes);
  at = append(append(at, value.hexDigits()), "\"");
  if (place.isBitmap()) at = appendPorts(append(at, R"(,"ports":)"), value);
  return append(at, "}");
}

char* appendPlainJson(char* at, const FieldPlace& place, const U8* entry, U32 entryBytes) {
  if (place.isScalar() && isExactInJson(place.width)) {
    return appendDecimal(at, readScalar(place, entry, entryBytes));
  }
  const Value value = Value::read(place, entry, entryBytes);
  if (place.isBitmap()) return appendPorts(at, value);
  return append(append(append(at, "\"0x"), value.hexDigits()), "\"");
}

std::string sourceJson(const Layout& layout) {
  return formatText(R"("table": "{}", "chip": "{}", "variant": {})", layout.name(),
                    layout.chip().name, layout.variant());
}

std::string reservedBits(const Layout& layout, const U8* entry) {
  std::vector<U8> bits = layout.reservedMask();
  for (size_t i = 0; i < bits.size(); ++i) bits[i] = static_cast<U8>(bits[i] & entry[i]);
  return Value::read(layout.wholeEntry(), bits.data(), layout.entryBytes()).hex();
}

}  // namespace Tool
