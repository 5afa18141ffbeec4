#pragma once

#include <charconv>
#include <cstring>
#include <string>
#include <string_view>

#include "AsicUtils/Types.h"

namespace Velmar {
namespace Core {

/// Collects text that flush() appends to a string: for small pieces this takes a third of the time.
class TextBuffer {
 public:
  explicit TextBuffer(std::string& to) : to_(to) {}
  TextBuffer(const TextBuffer&) = delete;
  TextBuffer& operator=(const TextBuffer&) = delete;

  /// Appends what was collected. What is not flushed is lost.
  void flush() {
    if (at_ == text_) return;
    to_.append(text_, static_cast<size_t>(at_ - text_));
    at_ = text_;
  }

  TextBuffer& add(char character) {
    need(1);
    *at_++ = character;
    return *this;
  }
  TextBuffer& add(std::string_view text) {
    if (text.size() > size) return addLarge(text);
    need(text.size());
    std::memcpy(at_, text.data(), text.size());
    at_ += text.size();
    return *this;
  }
  TextBuffer& addDecimal(U64 number) {
    // Most values have one digit.
    if (number < 10) return add(static_cast<char>('0' + number));
    return addLongDecimal(number);
  }
  /// Copies a text of at most 1,000 characters; the caller may change the copy until it adds more.
  char* addCopy(std::string_view text) {
    add(text);
    return at_ - text.size();
  }
  /// In hexadecimal, with at least so many digits.
  TextBuffer& addHex(U64 number, int digits = 1) {
    need(longestNumber);
    char* at = at_;
    if (number < 16 && digits == 1) {
      *at = "0123456789abcdef"[number];
      at_ = at + 1;
      return *this;
    }
    const int needed = number == 0 ? 1 : (67 - __builtin_clzll(number)) / 4;
    for (int shift = 4 * (needed < digits ? digits : needed) - 4; shift >= 0; shift -= 4) {
      *at++ = "0123456789abcdef"[number >> shift & 15];
    }
    at_ = at;
    return *this;
  }
  /// At most 100.
  TextBuffer& addBlanks(size_t count) {
    need(count);
    std::memset(at_, ' ', count);
    at_ += count;
    return *this;
  }

 private:
  static constexpr size_t size = 1024;
  static constexpr size_t longestNumber = 20;

  void need(size_t room) {
    if (static_cast<size_t>(text_ + size - at_) < room) flush();
  }
  [[gnu::noinline]] TextBuffer& addLongDecimal(U64 number) {
    need(longestNumber);
    at_ = std::to_chars(at_, at_ + longestNumber, number).ptr;
    return *this;
  }
  TextBuffer& addLarge(std::string_view text) {
    flush();
    to_ += text;
    return *this;
  }

  std::string& to_;
  char* at_ = text_;
  char text_[size] = {};
};

}  // namespace Core
}  // namespace Velmar
