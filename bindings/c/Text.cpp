#include "c/Text.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstring>

namespace Velmar {
namespace Binding {

void Text::append(const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  append(format, arguments);
  va_end(arguments);
}

void Text::append(const char* format, std::va_list arguments) {
  const std::size_t room = capacity - size_;
  const int added = std::vsnprintf(letters_ + size_, room, format, arguments);
  if (added < 0) return;
  if (static_cast<std::size_t>(added) < room) {
    size_ += static_cast<std::size_t>(added);
    return;
  }
  size_ = capacity - 1;
  std::memcpy(letters_ + size_ - 3, "...", 3);
}

void Text::appendQuoted(std::string_view text) {
  constexpr std::size_t longest = 60;
  const std::size_t size = std::min(text.size(), longest);
  char safe[longest];
  std::transform(text.begin(), text.begin() + size, safe, printableLetter);
  append("\"%.*s%s\"", static_cast<int>(size), safe, text.size() > longest ? "..." : "");
}

void Text::appendItem(const char* item, const char* separator) {
  append("%s%s", isEmpty() ? "" : separator, item);
}

Text quoted(std::string_view text) {
  Text result;
  result.appendQuoted(text);
  return result;
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

}  // namespace Binding
}  // namespace Velmar
