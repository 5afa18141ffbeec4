#include "core/Text.h"

#include <algorithm>
#include <charconv>
#include <cstring>

namespace Velmar {
namespace Core {

Text& Text::operator=(const Text& other) {
  size_ = other.size_;
  std::memcpy(characters_, other.characters_, size_ + 1);
  return *this;
}

void Text::appendAll(fmt::string_view text, fmt::format_args arguments) {
  const std::size_t room = capacity - 1 - size_;
  const std::size_t added = formatTo(characters_ + size_, room, text, arguments);
  size_ += std::min(added, room);
  if (added > room) std::memcpy(characters_ + size_ - 3, "...", 3);
  characters_[size_] = '\0';
}

void Text::appendItem(std::string_view item, const char* separator) {
  append("{}{}", isEmpty() ? "" : separator, item);
}

Text quoted(std::string_view text) {
  constexpr std::size_t longest = 60;
  const std::size_t size = std::min(text.size(), longest);
  char safe[longest];
  std::transform(text.begin(), text.begin() + size, safe, printableCharacter);
  Text result;
  result.append("\"{}{}\"", std::string_view(safe, size), text.size() > longest ? "..." : "");
  return result;
}

std::string printable(std::string_view text) {
  std::string safe(text);
  std::transform(safe.begin(), safe.end(), safe.begin(), printableCharacter);
  return safe;
}

std::optional<U64> parseNumber(std::string_view text) {
  int base = 10;
  if (text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X')) {
    base = 16;
    text.remove_prefix(2);
  }
  U64 value = 0;
  const char* end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, value, base);
  if (result.ec != std::errc{} || result.ptr != end) return std::nullopt;
  return value;
}

std::string numberLike(std::string_view typed, U64 number) {
  const bool isHex = typed.find("0x") != typed.npos || typed.find("0X") != typed.npos;
  return isHex ? formatText("0x{:x}", number) : formatText("{}", number);
}

std::string_view trim(std::string_view text) {
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

std::vector<std::string> split(std::string_view text, char separator) {
  std::vector<std::string> parts;
  for (;;) {
    const size_t end = text.find(separator);
    parts.emplace_back(trim(text.substr(0, end)));
    if (end == std::string_view::npos) return parts;
    text.remove_prefix(end + 1);
  }
}

std::string join(const std::vector<std::string>& parts, std::string_view separator) {
  std::string text;
  for (size_t i = 0; i < parts.size(); ++i) {
    if (i != 0) text += separator;
    text += parts[i];
  }
  return text;
}

std::string rangesText(std::vector<U32> numbers) {
  std::sort(numbers.begin(), numbers.end());
  return Velmar::rangesText(numbers);
}

}  // namespace Core
}  // namespace Velmar
