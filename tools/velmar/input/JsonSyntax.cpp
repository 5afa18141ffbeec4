#include "input/JsonSyntax.h"

#include <algorithm>
#include <vector>

#include "model/Text.h"

namespace Tool {
namespace {

class Checker {
 public:
  explicit Checker(std::string_view text) : text_(text) {}

  void value() {
    skipBlanks();
    const char letter = peek();
    if (letter == '{') return object();
    if (letter == '[') return list();
    if (letter == '"') {
      text();
      return;
    }
    for (const std::string_view word : {"true", "false", "null"}) {
      if (text_.substr(at_, word.size()) != word) continue;
      at_ += word.size();
      return;
    }
    number();
  }

 private:
  char peek() const { return at_ < text_.size() ? text_[at_] : '\0'; }
  bool takeIf(char letter) {
    if (peek() != letter) return false;
    ++at_;
    return true;
  }
  void skipBlanks() {
    while (at_ < text_.size() && (isBlank(peek()) || peek() == '\n')) ++at_;
  }
  [[noreturn]] void expect(std::string what) const { throw JsonFault{at_, std::move(what)}; }

  void object() {
    std::vector<std::string_view> names;
    ++at_;
    skipBlanks();
    if (takeIf('}')) return;
    do {
      skipBlanks();
      if (peek() != '"') expect("a name in quotes is expected");
      const size_t begin = at_;
      const std::string_view name = text();
      if (std::find(names.begin(), names.end(), name) != names.end()) {
        at_ = begin;
        expect("the name " + printable(name) + " is given twice; give it once");
      }
      names.push_back(name);
      skipBlanks();
      if (!takeIf(':')) expect("a colon is expected after the name");
      value();
      skipBlanks();
    } while (takeIf(','));
    if (!takeIf('}')) expect("a comma or } is expected");
  }

  void list() {
    ++at_;
    skipBlanks();
    if (takeIf(']')) return;
    do {
      value();
      skipBlanks();
    } while (takeIf(','));
    if (!takeIf(']')) expect("a comma or ] is expected");
  }

  /// A text with its quotes.
  std::string_view text() {
    const size_t begin = at_++;
    while (peek() != '"') {
      if (static_cast<unsigned char>(peek()) < ' ')
        expect("a letter or the closing quote is expected");
      if (takeIf('\\') && std::string_view("\"\\/bfnrtu").find(peek()) == std::string_view::npos) {
        expect("one of \" \\ / b f n r t u is expected after a backslash");
      }
      ++at_;
    }
    ++at_;
    return text_.substr(begin, at_ - begin);
  }

  void digits() {
    if (peek() < '0' || peek() > '9') expect("a value is expected");
    while (peek() >= '0' && peek() <= '9') ++at_;
  }

  void number() {
    takeIf('-');
    if (!takeIf('0')) digits();
    if (takeIf('.')) digits();
    if (!takeIf('e') && !takeIf('E')) return;
    if (!takeIf('+')) takeIf('-');
    digits();
  }

  std::string_view text_;
  size_t at_ = 0;
};

}  // namespace

JsonFault faultOf(std::string_view text) {
  try {
    Checker(text).value();
  } catch (const JsonFault& fault) {
    return fault;
  }
  return {0, "a number is too large, a text is not UTF-8, or a name is given twice"};
}

}  // namespace Tool
