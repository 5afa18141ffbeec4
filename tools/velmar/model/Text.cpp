#include "model/Text.h"

#include <algorithm>

#include "model/Formatting.h"

namespace Tool {

bool isBlank(char letter) { return letter == ' ' || letter == '\t' || letter == '\r'; }

int hexDigit(char letter) {
  if (letter >= '0' && letter <= '9') return letter - '0';
  if (letter >= 'a' && letter <= 'f') return letter - 'a' + 10;
  if (letter >= 'A' && letter <= 'F') return letter - 'A' + 10;
  return -1;
}

std::string numberLike(std::string_view typed, U64 number) {
  const bool isHex =
      typed.find("0x") != std::string_view::npos || typed.find("0X") != std::string_view::npos;
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
  for (const std::string& part : parts) {
    if (!text.empty()) text += separator;
    text += part;
  }
  return text;
}

std::vector<std::string> wrap(const std::string& text, size_t width) {
  std::vector<std::string> lines;
  size_t from = 0;
  while (text.size() - from > width) {
    size_t to = text.rfind(' ', from + width);
    if (to == std::string::npos || to <= from) {
      // A list that is longer than the line.
      to = text.rfind(',', from + width - 1) + 1;
      if (to <= from) to = text.find_first_of(" ,", from + width);
      if (to == std::string::npos) break;
    }
    lines.push_back(text.substr(from, to - from));
    from = to + (text[to] == ' ' ? 1 : 0);
  }
  lines.push_back(text.substr(from));
  return lines;
}

std::string rangesText(std::vector<U32> numbers) {
  std::sort(numbers.begin(), numbers.end());
  std::string text;
  for (size_t first = 0, next; first < numbers.size(); first = next) {
    for (next = first + 1; next < numbers.size() && numbers[next] - numbers[next - 1] <= 1;) ++next;
    text += (text.empty() ? "" : ",") + std::to_string(numbers[first]);
    if (numbers[next - 1] != numbers[first]) text += '-' + std::to_string(numbers[next - 1]);
  }
  return text;
}

std::string printable(std::string_view text) {
  std::string safe;
  for (const char letter : text) safe += Velmar::Binding::printableLetter(letter);
  return safe;
}

std::string inQuotes(std::string_view text) { return Velmar::Binding::quoted(text).text(); }

}  // namespace Tool
