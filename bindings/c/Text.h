#pragma once

#include <cstdarg>
#include <cstddef>
#include <optional>
#include <string_view>

#include "AsicUtils/Types.h"

namespace Velmar {
namespace Binding {

/// A text of limited length that is built without allocating. One that is too long ends in "...".
class Text {
 public:
  constexpr Text() = default;

  [[gnu::format(printf, 2, 3)]] void append(const char* format, ...);
  void append(const char* format, std::va_list arguments);
  /// A text as messages quote it: shortened, and "?" for each byte that is not printable ASCII.
  void appendQuoted(std::string_view text);
  /// An item of a list.
  void appendItem(const char* item, const char* separator = ", ");
  void clear() { letters_[size_ = 0] = '\0'; }

  bool isEmpty() const { return size_ == 0; }
  const char* text() const { return letters_; }

 private:
  static constexpr std::size_t capacity = 1024;

  char letters_[capacity]{};
  std::size_t size_ = 0;
};

/// A text in quotes, for messages.
Text quoted(std::string_view text);

/// The letter, or "?" for a byte that is not printable ASCII.
constexpr char printableLetter(char letter) {
  return letter >= ' ' && letter <= '~' ? letter : '?';
}

/// A decimal number, or a hexadecimal one after "0x"; nothing else, and at most 64 bits.
std::optional<U64> parseNumber(std::string_view text);

}  // namespace Binding
}  // namespace Velmar
