#include "input/HexDigits.h"

#include <algorithm>

#include "model/Text.h"

namespace Tool {
namespace {

U8 byteAt(std::string_view digits, size_t at) {
  return static_cast<U8>(hexDigit(digits[at]) << 4 | hexDigit(digits[at + 1]));
}

std::string joined(const std::vector<std::string_view>& groups) {
  std::string digits;
  for (const std::string_view group : groups) digits += group;
  return digits;
}

}  // namespace

std::vector<std::string_view> hexGroups(std::string_view text, const LinePlace& place) {
  std::vector<std::string_view> groups;
  for (;;) {
    text = trim(text);
    if (text.empty()) return groups;
    const size_t end = std::min(text.size(), text.find_first_of(" \t\r"));
    std::string_view group = text.substr(0, end);
    if (group.size() > 2 && group[0] == '0' && (group[1] == 'x' || group[1] == 'X')) {
      group.remove_prefix(2);
    }
    const bool isHex =
        std::all_of(group.begin(), group.end(), [](char letter) { return hexDigit(letter) >= 0; });
    if (!isHex) {
      place.fail("{} is not a hexadecimal number; --input raw reads binary dumps", inQuotes(group));
    }
    groups.push_back(group);
    text.remove_prefix(end);
  }
}

bool haveDigits(const std::vector<std::string_view>& groups, size_t digits) {
  return std::all_of(groups.begin(), groups.end(),
                     [digits](std::string_view group) { return group.size() == digits; });
}

void appendBytes(const std::vector<std::string_view>& groups, HexOrder order,
                 const LinePlace& place, std::vector<U8>& bytes) {
  const std::string digits = joined(groups);
  const size_t unit = order == HexOrder::words ? 8 : 2;
  if (digits.size() % unit != 0) {
    place.fail("{} digits are not whole {}; check the line for lost digits", digits.size(),
               unit == 2 ? "bytes" : "32-bit words");
  }
  for (size_t at = 0; at < digits.size(); at += unit) {
    if (order == HexOrder::bytes) {
      bytes.push_back(byteAt(digits, at));
    } else {
      for (size_t i = unit; i > 0; i -= 2) bytes.push_back(byteAt(digits, at + i - 2));
    }
  }
}

void appendNumber(const std::vector<std::string_view>& groups, size_t count, const LinePlace& place,
                  std::vector<U8>& bytes) {
  std::string digits = joined(groups);
  digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size()));
  if (digits.size() > 2 * count) {
    place.fail("the number does not fit an entry of {} bytes; check table and chip", count);
  }
  digits.insert(0, 2 * count - digits.size(), '0');
  for (size_t i = digits.size(); i > 0; i -= 2) bytes.push_back(byteAt(digits, i - 2));
}

}  // namespace Tool
