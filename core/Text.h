#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "AsicUtils/Types.h"
#include "Velmar/FieldValue.h"
#include "core/Formatting.h"

namespace Velmar {
namespace Core {

/// A text of limited length that is built without allocating. One that is too long ends in "...".
class Text {
 public:
  Text() { clear(); }
  Text(const Text& other) { *this = other; }
  Text& operator=(const Text& other);

  template <class... Arguments>
  void append(fmt::format_string<Arguments...> text, Arguments&&... arguments) {
    appendAll(text, fmt::make_format_args(arguments...));
  }
  void appendAll(fmt::string_view text, fmt::format_args arguments);
  /// An item of a list.
  void appendItem(std::string_view item, const char* separator = ", ");
  void clear() { cut(0); }
  /// Leaves the first characters.
  void cut(std::size_t size) { characters_[size_ = size] = '\0'; }

  bool isEmpty() const { return size_ == 0; }
  const char* text() const { return characters_; }
  std::string_view view() const { return {characters_, size_}; }

 private:
  static constexpr std::size_t capacity = 768;

  char characters_[capacity];
  std::size_t size_;
};

/// A text in quotes, for messages: shortened, and "?" for each byte that is not printable ASCII.
Text quoted(std::string_view text);
inline std::string inQuotes(std::string_view text) { return quoted(text).text(); }

/// The character, or "?" for a byte that is not printable ASCII.
constexpr char printableCharacter(char character) {
  return character >= ' ' && character <= '~' ? character : '?';
}
std::string printable(std::string_view text);

/// A decimal number, or a hexadecimal one after "0x"; nothing else, and at most 64 bits.
std::optional<U64> parseNumber(std::string_view text);
/// A number in decimal, or in hexadecimal if `typed` has a hexadecimal number.
std::string numberLike(std::string_view typed, U64 number);

constexpr bool isBlank(char character) {
  return character == ' ' || character == '\t' || character == '\r';
}
constexpr bool isDecimalDigit(char character) { return character >= '0' && character <= '9'; }
/// Value of a hexadecimal digit; negative for any other character.
constexpr int hexDigit(char character) {
  if (isDecimalDigit(character)) return character - '0';
  if (character >= 'a' && character <= 'f') return character - 'a' + 10;
  if (character >= 'A' && character <= 'F') return character - 'A' + 10;
  return -1;
}
/// How many hexadecimal digits a text begins with.
constexpr std::size_t hexDigitsOf(std::string_view text) {
  std::size_t digits = 0;
  while (digits < text.size() && hexDigit(text[digits]) >= 0) ++digits;
  return digits;
}
constexpr bool isHexDigit(char character) { return hexDigit(character) >= 0; }

std::string_view trim(std::string_view text);
/// The parts between the separators, without surrounding blanks.
std::vector<std::string> split(std::string_view text, char separator);
std::string join(const std::vector<std::string>& parts, std::string_view separator);
inline const char* pluralEnd(U64 count) { return count == 1 ? "" : "s"; }

/// Numbers as ranges, such as "0-3,17".
std::string rangesText(std::vector<U32> numbers);

}  // namespace Core
}  // namespace Velmar
