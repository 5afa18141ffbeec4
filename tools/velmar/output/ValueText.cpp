#include "output/ValueText.h"

namespace Tool {
namespace {

char* appendPorts(char* at, const Value& value) {
  at = append(at, R"(,"ports":[)");
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
  if (place.isBitmap()) at = appendPorts(at, value);
  return append(at, "}");
}

std::string reservedBits(const Layout& layout, const U8* entry) {
  std::vector<U8> bits = layout.reservedMask();
  for (size_t i = 0; i < bits.size(); ++i) bits[i] = static_cast<U8>(bits[i] & entry[i]);
  return Value::read(layout.wholeEntry(), bits.data(), layout.entryBytes()).hex();
}

}  // namespace Tool
