#include "core/TextLines.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Velmar {
namespace Core {
namespace {

enum Kind : U8 { other, separator, digit };

constexpr std::array<U8, 256> kinds = [] {
  std::array<U8, 256> all{};
  for (const char character :
       {' ', '\t', '\r', ',', ';', ':', '{', '}', '[', ']', '(', ')', '"', '\''}) {
    all[static_cast<U8>(character)] = separator;
  }
  for (const char character : std::string_view("0123456789abcdefABCDEF")) {
    all[static_cast<U8>(character)] = digit;
  }
  return all;
}();

Kind kindOf(char character) { return static_cast<Kind>(kinds[static_cast<U8>(character)]); }

constexpr std::array<U8, 256> digitValues = [] {
  std::array<U8, 256> all{};
  for (const char character : std::string_view("0123456789abcdefABCDEF")) {
    all[static_cast<U8>(character)] = static_cast<U8>(hexDigit(character));
  }
  return all;
}();

U8 valueOf(char digit) { return digitValues[static_cast<U8>(digit)]; }
U8 byteAt(const char* digits) {
  return static_cast<U8>(valueOf(digits[0]) << 4 | valueOf(digits[1]));
}

bool isLetter(char character) {
  return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

/// The next word of a line that is more than punctuation; empty at the end.
std::string_view takeWord(std::string_view& line) {
  const size_t begin = line.find_first_not_of(" \t\r\n,;:{}[]()\"");
  line.remove_prefix(std::min(begin, line.size()));
  const std::string_view word = line.substr(0, line.find_first_of(" \t\r\n,;:{}[]()\""));
  line.remove_prefix(word.size());
  return word;
}

/// Whether a word is a hexadecimal number, or one with mistyped digits: after 0x anything, otherwise
/// a word of which a quarter is no digit at most, and at least one is a decimal digit.
bool isHexWord(std::string_view word) {
  if (word[0] == '\\') return true;
  if (word.size() > 2 && word[0] == '0' && (word[1] | 0x20) == 'x') return true;
  const auto digits = static_cast<size_t>(std::count_if(word.begin(), word.end(), isHexDigit));
  return digits == word.size() ||
         (4 * digits >= 3 * word.size() && std::any_of(word.begin(), word.end(), isDecimalDigit));
}

/// The length of a text that has the form of a pattern at its start, 0 if it has not: "9" stands for a
/// decimal digit, "8" also for a blank before one, "A" for a letter, "_" for a blank or "T".
size_t formed(std::string_view text, std::string_view pattern) {
  if (text.size() < pattern.size()) return 0;
  for (size_t i = 0; i < pattern.size(); ++i) {
    const char character = text[i];
    bool fits = character == pattern[i];
    if (pattern[i] == '9') fits = isDecimalDigit(character);
    if (pattern[i] == '8') fits = isDecimalDigit(character) || character == ' ';
    if (pattern[i] == 'A') fits = isLetter(character);
    if (pattern[i] == '_') fits = character == ' ' || character == 'T';
    if (!fits) return 0;
  }
  return pattern.size();
}

size_t digitsAt(std::string_view text, size_t at) {
  return std::min(text.find_first_not_of("0123456789", at), text.size()) - at;
}

/// The length of a time stamp at the start of a text: ISO 8601, syslog, a time alone.
size_t timeStamp(std::string_view text) {
  size_t length = 0;
  for (const char* form :
       {"9999-99-99_99:99:99", "9999/99/99_99:99:99", "AAA 89 99:99:99", "99:99:99"}) {
    length = formed(text, form);
    if (length != 0) break;
  }
  if (length == 0) return 0;
  if (length < text.size() && (text[length] == '.' || text[length] == ',')) {
    const size_t digits = digitsAt(text, length + 1);
    if (digits != 0) length += 1 + digits;
  }
  const std::string_view zone = text.substr(length);
  if (!zone.empty() && zone[0] == 'Z') ++length;
  for (const char* form : {"+99:99", "-99:99", "+9999", "-9999"}) {
    const size_t added = formed(zone, form);
    length += added;
    if (added != 0) break;
  }
  const std::string_view rest = text.substr(length);
  return rest.empty() || isBlank(rest[0]) || rest[0] == ':' || rest[0] == ']' ? length : 0;
}

/// The length of "[...]", "<...>" or "(...)" at the start of a text, if it holds no index: "[host]",
/// "[   12.345678]", "<6>", "[2026-11-22 06:12:32]".
size_t bracketed(std::string_view text, bool& isTime) {
  if (text.empty() || (text[0] != '[' && text[0] != '<' && text[0] != '(')) return 0;
  const char end = text[0] == '[' ? ']' : text[0] == '<' ? '>' : ')';
  const size_t close = text.find(end);
  if (close == text.npos || close < 2) return 0;
  const std::string_view inside = trim(text.substr(1, close - 1));
  const size_t seconds = digitsAt(inside, 0);
  const bool isSeconds = seconds != 0 && seconds < inside.size() && inside[seconds] == '.' &&
                         seconds + 1 + digitsAt(inside, seconds + 1) == inside.size();
  isTime = isSeconds || (timeStamp(inside) == inside.size() && !inside.empty());
  if (isTime) return close + 1;
  const bool isName = std::all_of(inside.begin(), inside.end(), [](char character) {
    return isLetter(character) || isDecimalDigit(character) ||
           std::string_view("_-./:@").find(character) != std::string_view::npos;
  });
  const bool isNumber =
      std::all_of(inside.begin(), inside.end(), isHexDigit) || parseNumber(inside);
  return isName && (!isNumber || text[0] == '<') ? close + 1 : 0;
}

/// The length of a word that is no number, such as "host", "INFO", "agent[99]:" or "kernel:".
size_t nameWord(std::string_view text) {
  size_t length = 0;
  while (length < text.size() &&
         (isLetter(text[length]) || isDecimalDigit(text[length]) ||
          std::string_view("_-./@").find(text[length]) != std::string_view::npos)) {
    ++length;
  }
  const std::string_view name = text.substr(0, length);
  if (name.empty() || !isLetter(name[0]) || isHexWord(name)) return 0;
  if (length < text.size() && text[length] == '[') {
    const size_t digits = digitsAt(text, length + 1);
    const bool isClosed = digits != 0 && text.substr(length + 1 + digits, 1) == "]";
    if (!isClosed) return 0;
    length += digits + 2;
  }
  if (length < text.size() && text[length] == ':') ++length;
  return length == text.size() || isBlank(text[length]) ? length : 0;
}

}  // namespace

bool splitGroups(std::string_view text, std::vector<Group>& groups) {
  groups.clear();
  bool hasColon = false, hasBlank = false;
  for (size_t at = 0;;) {
    const size_t gap = at;
    while (at < text.size() && kindOf(text[at]) == separator) ++at;
    if (at == text.size() || text[at] == '#') return !(hasColon && hasBlank);
    if (!groups.empty()) {
      const bool isColon = at - gap == 1 && text[gap] == ':';
      (isColon ? hasColon : hasBlank) = true;
    }
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

bool splitColumns(std::string_view text, std::vector<Group>& groups, size_t gap) {
  groups.clear();
  for (size_t at = 0; at < text.size();) {
    const size_t begin = text.find_first_not_of(" \t", at);
    if (begin != at + gap) return false;
    at = begin;
    const bool isPrefixed = at + 2 < text.size() && text[at] == '0' && (text[at + 1] | 0x20) == 'x';
    if (isPrefixed) at += 2;
    const size_t first = at;
    while (at < text.size() && kindOf(text[at]) == digit) ++at;
    if (at == first) return false;
    groups.push_back({text.substr(first, at - first), isPrefixed ? 'x' : '\0'});
  }
  return true;
}

bool haveDigits(const std::vector<Group>& groups, size_t digits) {
  return std::all_of(groups.begin(), groups.end(),
                     [digits](const Group& group) { return group.digits.size() == digits; });
}

void appendBytes(std::string_view digits, std::vector<U8>& bytes) {
  const size_t count = digits.size() / 2;
  bytes.resize(bytes.size() + count);
  U8* to = bytes.data() + bytes.size() - count;
  for (size_t i = 0; i < count; ++i) *to++ = byteAt(digits.data() + 2 * i);
}

void appendNumber(std::string_view digits, size_t count, std::vector<U8>& bytes) {
  bytes.resize(bytes.size() + count);
  U8* to = bytes.data() + bytes.size() - count;
  const char* at = digits.data() + digits.size();
  for (; at - digits.data() >= 2; at -= 2) *to++ = byteAt(at - 2);
  if (at != digits.data()) *to = valueOf(*digits.data());
}

bool needsCleaning(std::string_view text) {
  // Three searches for one character are much faster than one for any of three.
  return text.find('\xef') != text.npos || text.find('\xc2') != text.npos ||
         text.find('\x1b') != text.npos;
}

std::string cleaned(std::string_view text) {
  std::string clean;
  const auto startsWith = [&text](const char* what) { return text.rfind(what, 0) == 0; };
  while (!text.empty()) {
    if (startsWith("\xef\xbb\xbf")) {
      text.remove_prefix(3);
    } else if (startsWith("\xc2\xa0")) {
      clean += ' ';
      text.remove_prefix(2);
    } else if (startsWith("\x1b[")) {
      const size_t end = text.find_first_not_of("0123456789;:?", 2);
      text.remove_prefix(std::min(end, text.size() - 1) + 1);
    } else {
      clean += text.front();
      text.remove_prefix(1);
    }
  }
  return clean;
}

bool mayBeBase64(std::string_view line) {
  line = trim(line);
  const size_t end = line.find_last_not_of('=') + 1;
  if (line.size() < 8 || line.size() % 4 != 0 || line.size() - end > 2) return false;
  bool hasDigit = false, hasLower = false, hasOther = false;
  for (const char character : line.substr(0, end)) {
    const bool isDecimal = isDecimalDigit(character);
    if (!isLetter(character) && !isDecimal && character != '+' && character != '/') return false;
    hasDigit = hasDigit || isDecimal;
    hasLower = hasLower || (character >= 'a' && character <= 'z');
    hasOther = hasOther || !isHexDigit(character);
  }
  if (end < line.size()) return true;
  if (line.size() == 8) return false;
  return hasOther ? hasDigit || (hasLower && line.find_first_of("ABCDEFGHIQ") != line.npos)
                  : !hasDigit && !hasLower;
}

bool isForeign(std::string_view line) {
  if (mayBeBase64(line)) return false;
  const size_t digits = line.find_first_not_of("0123456789abcdefABCDEF");
  const std::string_view start = line.substr(0, digits);
  if (start.size() >= 4 && std::any_of(start.begin(), start.end(), isDecimalDigit)) return false;
  // The values of a list in source code are data.
  const std::string_view list = line.substr(std::min(line.find('{'), line.size()));
  if (list.find_first_of("0123456789") != std::string_view::npos) return false;
  size_t words = 0, hexWords = 0;
  for (std::string_view word = takeWord(line); !word.empty(); word = takeWord(line)) {
    ++words;
    if (isHexWord(word)) ++hexWords;
  }
  return 2 * hexWords < words;
}

bool isMark(std::string_view line) {
  if (line.find_first_not_of("xX*.-~?=_: \t") == line.npos) return true;
  const bool isBracket = line[0] == '[';
  const size_t end = line.find(isBracket ? ']' : ':');
  if (end == line.npos || end + 1 >= line.size()) return false;
  const std::string_view lead = trim(line.substr(isBracket, end - isBracket));
  const bool isLead =
      parseNumber(lead) || (lead.size() >= 4 && std::all_of(lead.begin(), lead.end(), isHexDigit));
  return isLead && (isBlank(line[end + 1]) || line[end + 1] == ':');
}

size_t logPrefix(std::string_view line, std::string& shape) {
  shape.clear();
  size_t at = 0;
  bool hasProcess = false;
  for (;;) {
    at = std::min(line.find_first_not_of(" \t", at), line.size());
    const std::string_view rest = line.substr(at);
    bool isTime = false;
    size_t length = timeStamp(rest);
    if (length != 0) {
      isTime = true;
      if (rest.substr(length, 1) == ":") ++length;
    } else {
      length = bracketed(rest, isTime);
      if (rest.substr(length, 1) == ":" && length != 0) ++length;
    }
    if (length == 0) length = nameWord(rest);
    const std::string_view word = rest.substr(0, length);
    // A short word alone may be mistyped digits.
    const bool isShort = at == 0 && word.size() < 3;
    const bool isProcess = length != 0 && !isTime && word.find("]") != word.npos && word[0] != '[';
    // A second name with a number is an array with an index.
    if (isProcess && std::exchange(hasProcess, true)) break;
    const bool isEnd = length == rest.size() || isBlank(rest[length]) || rest[length] == '[';
    if (length == 0 || isShort || (!isEnd && word.back() != '>')) break;
    shape += isTime ? std::string_view("[time]") : word;
    shape += ' ';
    at += length;
  }
  return at;
}

Lines::Lines(std::string_view text) : text_(text) {
  if (needsCleaning(text)) {
    clean_ = cleaned(text);
    text_ = clean_;
  }
}

bool Lines::nextRaw(Line& line) {
  while (at_ < text_.size()) {
    const size_t end = std::min(text_.find('\n', at_), text_.size());
    const std::string_view whole = text_.substr(at_, end - at_);
    at_ = end + 1;
    ++number_;
    line.text = trim(whole);
    if (line.text.empty()) continue;
    line.number = number_;
    line.isIndented = isBlank(whole[0]);
    return true;
  }
  return false;
}

bool Lines::next(Line& line) {
  if (!nextRaw(line)) return false;
  line.hasPrefix = true;
  if (shape_.empty()) return true;
  std::string shape;
  const size_t length = logPrefix(line.text, shape);
  line.hasPrefix = shape == shape_;
  if (line.hasPrefix) line.text = trim(line.text.substr(length));
  return true;
}

bool Lines::usePrefix() {
  restart();
  std::vector<Group> groups;
  std::string shape;
  Line line;
  while (shape_.empty() && nextRaw(line)) {
    const size_t length = logPrefix(line.text, shape);
    const std::string_view data = line.text.substr(std::min(length, line.text.size()));
    const std::string_view word = data.substr(0, data.find_first_of(" \t:|"));
    // An index, or a name with one, or digits.
    const std::string_view digits = word.substr(word.find('[') == word.npos ? 0 : word.find('['));
    const bool isData = splitGroups(digits, groups) && !groups.empty() && !isForeign(data);
    if (length != 0 && isData) shape_ = shape;
  }
  const bool isStamped = shape_.find("[time]") != shape_.npos ||
                         std::string_view("[<(").find(shape_[0]) != std::string_view::npos;
  // One line with a name alone may be an entry whose index was lost.
  bool isRepeated = false;
  while (!shape_.empty() && !isRepeated && nextRaw(line)) {
    logPrefix(line.text, shape);
    isRepeated = shape == shape_;
  }
  if (!isStamped && !isRepeated) shape_.clear();
  restart();
  return !shape_.empty();
}

}  // namespace Core
}  // namespace Velmar
