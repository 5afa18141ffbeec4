#include "core/Value.h"

#include <algorithm>

namespace Velmar {
namespace Core {
namespace {

bool isHexNumber(std::string_view text) {
  return text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X') &&
         text.find_first_not_of("0123456789abcdefABCDEF", 2) == std::string_view::npos;
}

Fault badValue(const FieldPlace& place, const Text& what, const char* advice) {
  return Fault(Code::value, "{}: {}; {}", place.name(), what.view(), advice).ofField(place.name());
}

/// Whether a text is what a spreadsheet makes of "1-3": 1-Mar, Jan 3, 01.03.2026, 3/1/26, 2026-03-01.
bool isDate(std::string_view text) {
  constexpr std::string_view months =
      "jan feb mar apr may jun jul aug sep oct nov dec mrz mai okt dez";
  const std::string simple = simplified(text);
  const size_t word = simple.find_first_not_of("0123456789 .,/:");
  const bool hasNumber = simple.find_first_of("0123456789") != simple.npos;
  if (word != simple.npos) {
    const std::string_view month = std::string_view(simple).substr(word, 3);
    return hasNumber && month.size() == 3 && months.find(month) != months.npos;
  }
  const bool hasYear = std::count(text.begin(), text.end(), '-') == 2;
  return hasNumber && (simple.find_first_of("./") != simple.npos || hasYear);
}

Expected<U64> parsePort(const FieldPlace& place, std::string_view text) {
  // Alone it would set bits: nobody can tell what is meant.
  if (isHexNumber(text)) {
    Text what = quoted(text);
    what.append(" is a hexadecimal number in a list of ports");
    return failed(badValue(place, what, "give ports in decimal, or one number"));
  }
  const std::optional<U64> port = parseNumber(text);
  if (!port) {
    Text what = quoted(text);
    what.append(" is not a port");
    return failed(
        badValue(place, what, "give ports such as 0-3,17, \"none\", or a hexadecimal number"));
  }
  return *port;
}

Expected<Value> parsePorts(const FieldPlace& place, std::string_view text) {
  Value value(place.width);
  if (text == "none") return value;
  for (const std::string& part : split(text, ',')) {
    const size_t dash = part.find('-');
    const Expected<U64> first = parsePort(place, trim(std::string_view(part).substr(0, dash)));
    const Expected<U64> last =
        dash == std::string::npos ? first
                                  : parsePort(place, trim(std::string_view(part).substr(dash + 1)));
    if (!first || !last) {
      if (!isDate(text)) return failed(first ? last : first);
      Text what = quoted(text);
      what.append(" is not a port, but may be a date that a spreadsheet made of ports");
      return failed(badValue(place, what, "give ports such as 1-3, in a column formatted as text"));
    }
    if (*last < *first) {
      Text what;
      what.append("port range {} runs backwards", quoted(part).view());
      return failed(badValue(place, what, "give the lower port first"));
    }
    if (const Done done = addPort(place, value, *last); !done) return failed(done);
    for (U64 port = *first; port < *last; ++port) value.setBit(static_cast<U32>(port));
  }
  return value;
}

}  // namespace

U64 readScalar(const FieldPlace& place, const U8* entry, U32 entryBytes) {
  U64 value = 0;
  readBits(entry, entryBytes, place.offset, place.width, &value, sizeof(value));
  return value;
}

Expected<Value> makeValue(const FieldPlace& place, U64 number) {
  Value value(place.width);
  if (value.setNumber(number)) return value;
  return failed(tooLarge(place.name(), place.width, formatText("{}", number)));
}

Done addPort(const FieldPlace& place, Value& value, U64 port) {
  if (port >= place.width) {
    return failed(Fault(Code::value, "{}: there is no port {}; the field has ports 0 to {}",
                        place.name(), port, place.width - 1)
                      .ofField(place.name()));
  }
  value.setBit(static_cast<U32>(port));
  return {};
}

Expected<Value> parseValue(const FieldPlace& place, std::string_view text) {
  if (isHexNumber(text)) {
    Value value(place.width);
    if (!value.setHexDigits(text.substr(2))) {
      return failed(tooLarge(place.name(), place.width, text));
    }
    return value;
  }
  if (place.isBitmap()) return parsePorts(place, text);
  const std::optional<U64> number = parseNumber(text);
  if (number) return makeValue(place, *number);
  const bool allDigits =
      !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
  Text what = quoted(text);
  if (allDigits) {
    what.clear();
    what.append("value {} has more than 64 bits", quoted(text).view());
    return failed(badValue(place, what, "give it in hexadecimal"));
  }
  what.append(" is not a number from 0 to {}", largestText(place.width, place.width > 64).view());
  return failed(badValue(place, what, "give it in decimal, or in hexadecimal after 0x"));
}

std::string reservedBits(const Layout& layout, const U8* entry) {
  std::vector<U8> bits = layout.reservedMask();
  for (size_t i = 0; i < bits.size(); ++i) bits[i] = static_cast<U8>(bits[i] & entry[i]);
  return Value::read(layout.wholeEntry(), bits.data(), layout.entryBytes()).hex();
}

}  // namespace Core
}  // namespace Velmar
