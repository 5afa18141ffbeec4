#include "core/TextLines.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Velmar {
namespace Core {
namespace {

/// What a character is: the value of a hexadecimal digit, or one of these.
enum Kind : U8 { blank = 16, separator, other };

constexpr std::array<U8, 256> kinds = [] {
  std::array<U8, 256> all{};
  for (U8& kind : all) kind = other;
  for (const char character : std::string_view(",;:{}[]()\"'")) {
    all[static_cast<U8>(character)] = separator;
  }
  for (const char character : std::string_view(" \t\r")) all[static_cast<U8>(character)] = blank;
  for (const char digit : std::string_view("0123456789abcdefABCDEF")) {
    all[static_cast<U8>(digit)] = static_cast<U8>(hexDigit(digit));
  }
  return all;
}();

U8 kindOf(char character) { return kinds[static_cast<U8>(character)]; }
U8 byteAt(const char* digits) {
  return static_cast<U8>(kindOf(digits[0]) << 4 | kindOf(digits[1]));
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

/// Whether a character is one that a form has: "9" stands for a decimal digit, "8" also for a blank
/// before one, "A" for a letter, "N" for what names have, "H" for what host names have too, "_" for a
/// blank or "T", "S" for a sign.
inline bool isOf(char form, char character) {
  const auto isIn = [character](std::string_view all) { return all.find(character) != all.npos; };
  const bool isDigit = isDecimalDigit(character);
  if (form == '9') return isDigit;
  if (form == '8') return isDigit || character == ' ';
  if (form == 'A') return isLetter(character);
  if (form == 'N') return isDigit || isLetter(character) || isIn("_-./@");
  if (form == 'H') return isDigit || isLetter(character) || isIn("_-./@:");
  if (form == '_') return isIn(" T");
  return form == 'S' ? isIn("+-") : character == form;
}

/// The length of the start of a text that has the first of these forms that fits, 0 if none does. A "+"
/// repeats what is before it.
size_t formed(std::string_view text, std::initializer_list<std::string_view> forms) {
  for (const std::string_view form : forms) {
    size_t at = 0, next = 0;
    while (next < form.size() && at < text.size() && isOf(form[next], text[at])) {
      const bool isRepeated = next + 1 < form.size() && form[next + 1] == '+';
      const char kind = form[next];
      do ++at;
      while (isRepeated && at < text.size() && isOf(kind, text[at]));
      next += isRepeated ? 2 : 1;
    }
    if (next == form.size()) return at;
  }
  return 0;
}

/// The length of a time stamp at the start of a text: ISO 8601, syslog, a time alone.
size_t timeStamp(std::string_view text) {
  size_t length =
      formed(text, {"9999-99-99_99:99:99", "9999/99/99_99:99:99", "AAA 89 99:99:99", "99:99:99"});
  if (length == 0) return 0;
  length += formed(text.substr(length), {".9+", ",9+"});
  length += formed(text.substr(length), {"Z", "S99:99", "S9999"});
  return length == text.size() || isBlank(text[length]) || text[length] == ':' ? length : 0;
}

/// The length of "[...]", "<...>" or "(...)" at the start of a text, if it holds no index: "[host]",
/// "[   12.345678]", "<6>", "[2026-11-22 06:12:32]".
size_t bracketed(std::string_view text, bool& isTime) {
  const size_t kind = text.empty() ? text.npos : std::string_view("[<(").find(text[0]);
  const size_t close = kind == text.npos ? text.npos : text.find("]>)"[kind]);
  if (close == text.npos) return 0;
  const std::string_view inside = trim(text.substr(1, close - 1));
  const auto isAll = [inside](size_t length) { return length != 0 && length == inside.size(); };
  isTime = isAll(formed(inside, {"9+.9+", "9+."})) || isAll(timeStamp(inside));
  if (isTime) return close + 1;
  const bool isNumber = text[0] != '<' && (isAll(hexDigitsOf(inside)) || parseNumber(inside));
  return !isNumber && isAll(formed(inside, {"H+"})) ? close + 1 : 0;
}

/// The length of a word that is no number, such as "host", "INFO", "agent[99]:" or "kernel:".
size_t nameWord(std::string_view text) {
  size_t length = text.empty() || !isLetter(text[0]) ? 0 : formed(text, {"N+"});
  if (length == 0 || isHexWord(text.substr(0, length))) return 0;
  length += formed(text.substr(length), {"[9+]"});
  length += formed(text.substr(length), {":"});
  return length == text.size() || isBlank(text[length]) ? length : 0;
}

}  // namespace

bool Groups::split(std::string_view text, size_t gap) {
  all.clear();
  const U8 last = gap == 0 ? separator : blank;  // of what may stand between groups
  U32 allWidths = 0, padded = 0;
  size_t most = 0;
  bool hasColon = false, hasBlank = false, hasOther = false;
  for (size_t at = 0;;) {
    const size_t end = at;
    while (at < text.size() && kindOf(text[at]) >= blank && kindOf(text[at]) <= last) ++at;
    const bool isEnd = at == text.size() || (gap == 0 && text[at] == '#');
    if (gap != 0 && at - end != (isEnd ? 0 : gap)) return false;
    if (isEnd) break;
    const bool isColon = at - end == 1 && text[end] == ':';
    if (!all.empty()) (isColon ? hasColon : hasBlank) = true;
    const bool isPython = text[at] == 'b' && text.substr(at + 1, 1).find_first_of("'\"") == 0;
    if (isPython) {
      ++at;
      continue;
    }
    char before = 0;
    const bool isPrefixed = at + 2 < text.size() && (text[at + 1] | 0x20) == 'x';
    if (isPrefixed && (text[at] == '0' || text[at] == '\\')) {
      before = text[at] == '0' ? 'x' : '\\';
      at += 2;
    }
    const size_t begin = at;
    while (at < text.size() && kindOf(text[at]) < blank) ++at;
    const size_t digits = at - begin;
    if (digits == 0) return false;
    if (at < text.size() && kindOf(text[at]) == other && text[at] != '\\' && text[at] != '#') {
      return false;
    }
    if (digits > 1 && text[begin] == '0') padded |= width(digits);
    allWidths |= width(digits);
    most = std::max(most, digits);
    all.push_back({text.substr(begin, digits), before});
    hasOther = hasOther || before != all[0].prefix;
  }
  widths = allWidths;
  paddedWidths = padded;
  longest = most;
  isMixed = hasOther;
  return !(hasColon && hasBlank);
}

void appendBytes(std::string_view digits, std::vector<U8>& bytes) {
  if (digits.size() == 2) return bytes.push_back(byteAt(digits.data()));  // the usual case
  for (size_t at = 0; at + 1 < digits.size(); at += 2) bytes.push_back(byteAt(&digits[at]));
}

void appendNumber(std::string_view digits, size_t count, std::vector<U8>& bytes) {
  for (; count != 0; --count) {
    const size_t before = digits.size() - std::min<size_t>(digits.size(), 2);
    const std::string_view byte = digits.substr(before);
    bytes.push_back(byte.size() == 2 ? byteAt(byte.data())
                    : byte.empty()   ? U8{0}
                                     : kindOf(byte[0]));
    digits.remove_suffix(byte.size());
  }
}

std::optional<std::string> cleaned(std::string_view text) {
  // Three searches for one character are much faster than one for any of three.
  const auto has = [text](char character) { return text.find(character) != text.npos; };
  if (!has('\x1b') && !has('\xc2') && !has('\xef')) return std::nullopt;
  std::string clean;
  const auto takes = [&text](std::string_view what) {
    const bool isThere = text.substr(0, what.size()) == what;
    if (isThere) text.remove_prefix(what.size());
    return isThere;
  };
  while (!text.empty()) {
    if (takes("\x1b[")) {
      const size_t end = text.find_first_not_of("0123456789;:?");
      text.remove_prefix(std::min(end, text.size() - 1) + 1);
    } else if (takes("\xc2\xa0")) {
      clean += ' ';
    } else if (!takes("\xef\xbb\xbf")) {
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
    size_t length = timeStamp(rest);
    bool isTime = length != 0;
    if (!isTime) length = bracketed(rest, isTime);
    length += length != 0 ? formed(rest.substr(length), {":"}) : nameWord(rest);
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
  Groups groups;
  std::string shape;
  Line line;
  while (shape_.empty() && nextRaw(line)) {
    const std::string_view data = line.text.substr(logPrefix(line.text, shape));
    const std::string_view word = data.substr(0, data.find_first_of(" \t:|"));
    // An index, or a name with one, or digits.
    const size_t open = word.find('[');
    const bool isData = groups.split(word.substr(open == word.npos ? 0 : open)) &&
                        groups.count() != 0 && !isForeign(data);
    if (isData) shape_ = shape;
  }
  const bool isStamped = shape_.find("[time]") != shape_.npos || shape_.find_first_of("[<(") == 0;
  // One line with a name alone may be an entry whose index was lost.
  bool isRepeated = isStamped;
  while (!shape_.empty() && !isRepeated && nextRaw(line)) {
    logPrefix(line.text, shape);
    isRepeated = shape == shape_;
  }
  if (!isRepeated) shape_.clear();
  restart();
  return !shape_.empty();
}

}  // namespace Core
}  // namespace Velmar
