#include "core/JsonText.h"

#include <algorithm>

namespace Velmar {
namespace Core {
namespace {

/// How much of a text is a number, true, false or null; 0 if none is there.
size_t scalarSize(std::string_view text) {
  for (const std::string_view word : {"true", "false", "null"}) {
    if (text.substr(0, word.size()) == word) return word.size();
  }
  if (text.empty() || (text[0] != '-' && !isDecimalDigit(text[0]))) return 0;
  const bool hasZeros = text.size() > 1 && text[0] == '0' && isDecimalDigit(text[1]);
  // Only whole numbers are of use: whoever takes one refuses any other.
  return hasZeros ? 1 : std::min(text.find_first_not_of("+-.0123456789eE"), text.size());
}

}  // namespace

bool JsonText::takeIf(char character) {
  if (peek() != character || at_ == text_.size()) return false;
  ++at_;
  return true;
}

bool JsonText::fail(std::string_view what) {
  if (here() == '\0' && !isAtEnd()) what = "NUL byte in JSON";
  const size_t column = at_ - (text_.substr(0, at_).rfind('\n') + 1) + 1;
  const size_t semicolon = std::min(what.find("; "), what.size());
  const std::string_view advice = semicolon < what.size() ? what.substr(semicolon + 2)
                                  : at_ == text_.size()   ? "the JSON ends too early"
                                                          : "check the JSON";
  fault_ =
      Fault(Code::input, "{}; {}", what.substr(0, semicolon), advice).onLine(lineOf(at_), column);
  return false;
}

U64 JsonText::lineOf(size_t mark) const {
  const std::string_view before = text_.substr(0, mark);
  return static_cast<U64>(std::count(before.begin(), before.end(), '\n')) + 1;
}

bool JsonText::readText(std::string_view& text) {
  if (!expect('"', "a text in quotes is expected")) return false;
  const auto isEnd = [](char character) {
    return character == '"' || character == '\\' || static_cast<unsigned char>(character) < ' ';
  };
  std::string* unescaped = nullptr;
  for (;;) {
    const size_t begin = at_;
    const auto end = std::find_if(text_.begin() + begin, text_.end(), isEnd);
    at_ = static_cast<size_t>(end - text_.begin());
    text = text_.substr(begin, at_ - begin);
    if (here() != '"' && here() != '\\') return fail("a closing quotation mark is expected");
    if (here() == '\\' && unescaped == nullptr) unescaped = &unescaped_.emplace_back();
    if (unescaped != nullptr) *unescaped += text;
    if (here() == '"') break;
    if (!takeEscape(*unescaped)) return false;
  }
  ++at_;
  if (unescaped != nullptr) text = *unescaped;
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

bool JsonText::readScalar(std::string_view& scalar) {
  if (peek() == '"') return readText(scalar);
  const size_t size = scalarSize(text_.substr(at_));
  if (size == 0) return fail("a value is expected");
  scalar = text_.substr(at_, size);
  at_ += size;
  return true;
}

bool JsonText::skip(U32 depth) {
  constexpr U32 deepest = 16;
  std::string_view ignored;
  if (depth > deepest) return fail("objects nested too deeply");
  if (peek() == '{') return readMembers([&](std::string_view) { return skip(depth + 1); });
  if (here() == '[') return readItems([&] { return skip(depth + 1); });
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
