#include "input/HexDigits.h"

#include <algorithm>
#include <array>

#include "model/Text.h"

namespace Tool {
namespace {

enum Kind : U8 { other, separator, digit };

constexpr std::array<U8, 256> kinds = [] {
  std::array<U8, 256> all{};
  for (const char letter :
       {' ', '\t', '\r', ',', ';', ':', '{', '}', '[', ']', '(', ')', '"', '\''})
    all[static_cast<U8>(letter)] = separator;
  for (const char letter : std::string_view("0123456789abcdefABCDEF"))
    all[static_cast<U8>(letter)] = digit;
  return all;
}();

Kind kindOf(char letter) { return static_cast<Kind>(kinds[static_cast<U8>(letter)]); }

U8 byteAt(std::string_view digits, size_t at) {
  return static_cast<U8>(hexDigit(digits[at]) << 4 | hexDigit(digits[at + 1]));
}

}  // namespace

bool splitGroups(std::string_view text, std::vector<HexGroup>& groups) {
  groups.clear();
  for (size_t at = 0;;) {
    while (at < text.size() && kindOf(text[at]) == separator) ++at;
    if (at == text.size() || text[at] == '#') return true;
    const bool isPython = text[at] == 'b' && text.substr(at + 1, 1).find_first_of("'\"") == 0;
    if (isPython) {
      ++at;
      continue;
    }
    char prefix = 0;
    const bool isPrefixed = at + 2 < text.size() && (text[at + 1] | 0x20) == 'x';
    if (isPrefixed && (text[at] == '0' || text[at] == '\\')) {
      prefix = text[at] == '0' ? 'x' : '\\';
      at += 2;
    }
    const size_t begin = at;
    while (at < text.size() && kindOf(text[at]) == digit) ++at;
    if (at == begin) return false;
    if (at < text.size() && kindOf(text[at]) == other && text[at] != '\\' && text[at] != '#') {
      return false;
    }
    groups.push_back({text.substr(begin, at - begin), prefix});
  }
}

bool splitColumns(std::string_view text, std::vector<HexGroup>& groups, size_t gap) {
  groups.clear();
  for (size_t at = 0; at < text.size();) {
    const size_t begin = text.find_first_not_of(' ', at);
    if (begin != at + gap) return false;
    at = begin;
    while (at < text.size() && kindOf(text[at]) == digit) ++at;
    if (at == begin) return false;
    groups.push_back({text.substr(begin, at - begin), 0});
  }
  return true;
}

bool haveDigits(const std::vector<HexGroup>& groups, size_t digits) {
  return std::all_of(groups.begin(), groups.end(),
                     [digits](const HexGroup& group) { return group.digits.size() == digits; });
}

void appendBytes(std::string_view digits, std::vector<U8>& bytes) {
  for (size_t at = 0; at + 1 < digits.size(); at += 2) bytes.push_back(byteAt(digits, at));
}

void appendNumber(std::string_view digits, size_t count, std::vector<U8>& bytes) {
  const size_t end = bytes.size() + count;
  for (; digits.size() >= 2; digits.remove_suffix(2)) {
    bytes.push_back(byteAt(digits, digits.size() - 2));
  }
  if (!digits.empty()) bytes.push_back(static_cast<U8>(hexDigit(digits[0])));
  bytes.resize(end);
}

}  // namespace Tool
