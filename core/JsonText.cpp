#include "core/JsonText.h"

#include <algorithm>

namespace Velmar {
namespace Core {

bool JsonText::takeIf(char character) {
  if (peek() != character || at_ == text_.size()) return false;
  ++at_;
  return true;
}

bool JsonText::fail(std::string_view what) {
  if (fault_) return false;
  const size_t column = at_ - (text_.substr(0, at_).rfind('\n') + 1) + 1;
  const size_t semicolon = std::min(what.find("; "), what.size());
  const std::string_view advice = semicolon < what.size() ? what.substr(semicolon + 2)
                                  : at_ == text_.size()   ? "the JSON ends too early"
                                                          : "check the JSON";
  fault_ =
      Fault(Code::input, "{}; {}", what.substr(0, semicolon), advice).onLine(lineOf(at_), column);
  return false;
}

bool JsonText::checkNoZeros() {
  const size_t zero = text_.find('\0');
  if (zero == text_.npos) return true;
  at_ = zero;
  return fail("NUL byte in JSON");
}

U64 JsonText::lineOf(size_t mark) const {
  const std::string_view before = text_.substr(0, mark);
  return static_cast<U64>(std::count(before.begin(), before.end(), '\n')) + 1;
}

bool JsonText::readText(std::string_view& text) {
  if (!expect('"', "a text in quotes is expected")) return false;
  const size_t begin = at_;
  const auto isEnd = [](char character) {
    return character == '"' || character == '\\' || static_cast<unsigned char>(character) < ' ';
  };
  at_ = static_cast<size_t>(std::find_if(text_.begin() + at_, text_.end(), isEnd) - text_.begin());
  if (here() == '\\') return readEscaped(begin, text);
  text = text_.substr(begin, at_ - begin);
  return expect('"', "a closing quotation mark is expected");
}

bool JsonText::readEscaped(size_t begin, std::string_view& text) {
  std::string& result = unescaped_.emplace_back(text_.substr(begin, at_ - begin));
  while (here() != '"') {
    if (static_cast<unsigned char>(here()) < ' ') {
      return fail("a closing quotation mark is expected");
    }
    if (here() != '\\') {
      result += text_[at_++];
    } else if (!takeEscape(result)) {
      return false;
    }
  }
  ++at_;
  text = result;
  return true;
}

bool JsonText::takeEscape(std::string& to) {
  constexpr std::string_view signs = "\"\\/bfnrt", characters = "\"\\/\b\f\n\r\t";
  const char sign = at_ + 1 < text_.size() ? text_[at_ + 1] : '\0';
  const size_t found = signs.find(sign);
  if (found != signs.npos) {
    to += characters[found];
    at_ += 2;
    return true;
  }
  if (sign != 'u') return fail("one of \" \\ / b f n r t u is expected after a backslash");
  const std::string_view digits = text_.substr(at_ + 2, 4);
  if (hexDigitsOf(digits) < 4) return fail("\\u needs four hexadecimal digits");
  int unit = 0;
  for (const char digit : digits) unit = 16 * unit + hexDigit(digit);
  // No name or value has other characters: messages show them as this.
  to += unit < 0x80 ? static_cast<char>(unit) : '?';
  at_ += 6;
  return true;
}

bool JsonText::takeDigits() {
  if (!isDecimalDigit(here())) return fail("a digit is expected");
  while (isDecimalDigit(here())) ++at_;
  return true;
}

bool JsonText::takeNumber() {
  if (here() == '-') ++at_;
  const bool isZero = here() == '0';
  if (isZero) ++at_;
  if (!isZero && !takeDigits()) return false;
  if (here() == '.') {
    ++at_;
    if (!takeDigits()) return false;
  }
  if (here() != 'e' && here() != 'E') return true;
  ++at_;
  if (here() == '+' || here() == '-') ++at_;
  return takeDigits();
}

bool JsonText::readScalar(std::string_view& scalar) {
  if (peek() == '"') return readText(scalar);
  const size_t begin = at_;
  for (const std::string_view word : {"true", "false", "null"}) {
    if (text_.substr(at_, word.size()) == word) at_ += word.size();
    if (at_ != begin) break;
  }
  if (at_ == begin && here() != '-' && !isDecimalDigit(here())) {
    return fail("a value is expected");
  }
  if (at_ == begin && !takeNumber()) return false;
  scalar = text_.substr(begin, at_ - begin);
  return true;
}

bool JsonText::skip() {
  std::string_view ignored;
  if (peek() == '{') return readMembers([this](std::string_view) { return skip(); });
  if (here() == '[') return readItems([this] { return skip(); });
  return readScalar(ignored);
}

bool JsonText::checkNames(std::vector<std::string_view>& names, size_t begin) {
  // In order, equal names are neighbours.
  std::sort(names.begin(), names.end());
  const auto twice = std::adjacent_find(names.begin(), names.end());
  if (twice == names.end()) return true;
  at_ = begin;
  return fail(formatText("the name {} is given twice; give it once", quoted(*twice).view()));
}

}  // namespace Core
}  // namespace Velmar
