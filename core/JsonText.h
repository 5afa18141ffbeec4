#pragma once

#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/Fault.h"

namespace Velmar {
namespace Core {

/// A JSON text, taken piece by piece from its beginning. What does not fit gives false and a fault.
class JsonText {
 public:
  explicit JsonText(std::string_view text) : text_(text) {}

  /// The next character that is not blank; NUL at the end.
  char peek() {
    while (at_ < text_.size() && (isBlank(text_[at_]) || text_[at_] == '\n')) ++at_;
    return here();
  }
  /// Takes the character if it comes next.
  bool takeIf(char character);
  bool expect(char character, const char* what) { return takeIf(character) || fail(what); }

  /// A text in quotes. It stays valid until forget().
  bool readText(std::string_view& text);
  /// A text, or a number, true, false or null as it is written.
  bool readScalar(std::string_view& scalar);
  /// The members of an object: `take(name)` takes each value. A name that is given twice is a fault.
  template <class Take>
  bool readMembers(const Take& take);
  /// The items of a list: `take()` takes each.
  template <class Take>
  bool readItems(const Take& take);
  /// A value of any kind, without a use for it.
  bool skip();

  /// Where the next piece begins, and back to there.
  size_t mark() {
    peek();
    return at_;
  }
  void goTo(size_t mark) { at_ = mark; }
  U64 lineOf(size_t mark) const;
  /// Texts that were read are not used any more.
  void forget() { unescaped_.clear(); }

  /// A text has no NUL: it would look like the end.
  bool checkNoZeros();
  bool fail(std::string_view what);
  /// The first fault.
  const std::optional<Fault>& fault() const { return fault_; }

 private:
  static constexpr U32 deepest = 16;

  /// An object or list is read while it lives.
  struct Nesting {
    explicit Nesting(U32& depthOfText) : depth(depthOfText) { ++depth; }
    ~Nesting() { --depth; }
    Nesting(const Nesting&) = delete;
    Nesting& operator=(const Nesting&) = delete;

    U32& depth;
  };

  char here() const { return at_ < text_.size() ? text_[at_] : '\0'; }
  bool takeDigits();
  bool takeNumber();
  bool readEscaped(size_t begin, std::string_view& text);
  bool takeEscape(std::string& to);
  bool checkNames(std::vector<std::string_view>& names, size_t begin);

  std::string_view text_;
  size_t at_ = 0;
  U32 depth_ = 0;  ///< of objects and lists in each other
  std::deque<std::string> unescaped_;
  std::optional<Fault> fault_;
};

template <class Take>
bool JsonText::readMembers(const Take& take) {
  const size_t begin = mark();
  if (!expect('{', "an object in braces is expected")) return false;
  const Nesting nesting(depth_);
  if (depth_ > deepest) return fail("objects nested too deeply");
  std::vector<std::string_view> names;
  names.reserve(16);
  for (bool isFirst = true; !takeIf('}'); isFirst = false) {
    if (!isFirst && !expect(',', "a comma or } is expected")) return false;
    if (peek() != '"') return fail("a name in quotes is expected");
    std::string_view name;
    if (!readText(name) || !expect(':', "a colon is expected after the name")) return false;
    names.push_back(name);
    if (!take(name)) return false;
  }
  return checkNames(names, begin);
}

template <class Take>
bool JsonText::readItems(const Take& take) {
  if (!expect('[', "a list in brackets is expected")) return false;
  const Nesting nesting(depth_);
  if (depth_ > deepest) return fail("objects nested too deeply");
  for (bool isFirst = true; !takeIf(']'); isFirst = false) {
    if (!isFirst && !expect(',', "a comma or ] is expected")) return false;
    if (!take()) return false;
  }
  return true;
}

}  // namespace Core
}  // namespace Velmar
