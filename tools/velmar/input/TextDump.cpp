#include "input/TextDump.h"

#include <algorithm>
#include <exception>

#include "model/Text.h"

namespace Tool {
namespace {

bool isLetter(char letter) {
  return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z');
}

bool isDecimal(char letter) { return letter >= '0' && letter <= '9'; }

/// The next word of a line that is more than punctuation; empty at the end.
std::string_view takeWord(std::string_view& line) {
  const size_t begin = line.find_first_not_of(" \t\r\n,;:{}[]()\"");
  line.remove_prefix(std::min(begin, line.size()));
  const std::string_view word = line.substr(0, line.find_first_of(" \t\r\n,;:{}[]()\""));
  line.remove_prefix(word.size());
  return word;
}

/// Whether a word is a hexadecimal number, or one with mistyped digits: after 0x anything, otherwise
/// a word of which a quarter is no digit at most, and at least one is a decimal digit.
bool isHexWord(std::string_view word) {
  if (word[0] == '\\') return true;
  if (word.size() > 2 && word[0] == '0' && (word[1] | 0x20) == 'x') return true;
  const auto digits = static_cast<size_t>(
      std::count_if(word.begin(), word.end(), [](char letter) { return hexDigit(letter) >= 0; }));
  return digits == word.size() ||
         (4 * digits >= 3 * word.size() && std::any_of(word.begin(), word.end(), isDecimal));
}

}  // namespace

std::string cleaned(std::string_view text) {
  std::string clean;
  const auto startsWith = [&text](const char* what) { return text.rfind(what, 0) == 0; };
  while (!text.empty()) {
    if (startsWith("\xef\xbb\xbf")) {
      text.remove_prefix(3);
    } else if (startsWith("\xc2\xa0")) {
      clean += ' ';
      text.remove_prefix(2);
    } else if (startsWith("\x1b[")) {
      const size_t end = text.find_first_not_of("0123456789;:?", 2);
      text.remove_prefix(std::min(end, text.size() - 1) + 1);
    } else {
      clean += text.front();
      text.remove_prefix(1);
    }
  }
  return clean;
}

bool mayBeBase64(std::string_view line) {
  line = trim(line);
  const size_t end = line.find_last_not_of('=') + 1;
  if (line.size() < 8 || line.size() % 4 != 0 || line.size() - end > 2) return false;
  bool hasDigit = false, hasLower = false, hasOther = false;
  for (const char letter : line.substr(0, end)) {
    if (!isLetter(letter) && !isDecimal(letter) && letter != '+' && letter != '/') return false;
    hasDigit = hasDigit || isDecimal(letter);
    hasLower = hasLower || (letter >= 'a' && letter <= 'z');
    hasOther = hasOther || hexDigit(letter) < 0;
  }
  if (end < line.size()) return true;
  if (line.size() == 8) return false;
  return hasOther ? hasDigit || (hasLower && line.find_first_of("ABCDEFGHIQ") != line.npos)
                  : !hasDigit && !hasLower;
}

bool isForeign(std::string_view line) {
  if (mayBeBase64(line)) return false;
  const size_t digits = line.find_first_not_of("0123456789abcdefABCDEF");
  const std::string_view start = line.substr(0, digits);
  if (start.size() >= 4 && std::any_of(start.begin(), start.end(), isDecimal)) return false;
  // The values of a list in source code are data.
  const std::string_view list = line.substr(std::min(line.find('{'), line.size()));
  if (list.find_first_of("0123456789") != std::string_view::npos) return false;
  size_t words = 0, hexWords = 0;
  for (std::string_view word = takeWord(line); !word.empty(); word = takeWord(line)) {
    ++words;
    if (isHexWord(word)) ++hexWords;
  }
  return 2 * hexWords < words;
}

TextReader::~TextReader() {
  if (foreignLines_ == 0 || std::uncaught_exceptions() > 0 || !options_.note) return;
  options_.note(formatText("{}: {} line{} around the data skipped", stream_->name(), foreignLines_,
                           foreignLines_ == 1 ? "" : "s"));
}

bool TextReader::takeLine() {
  for (std::string_view line; lines_.next(line);) {
    isIndented_ = !line.empty() && isBlank(line[0]);
    line = trim(line);
    if (line.empty()) continue;
    if (foreignAfter_ == 0 && parse(line)) return true;
    const std::string clean = cleaned(line);
    line = trim(clean);
    if (line.empty() || line[0] == '#' || takeForeign(line)) continue;
    if (foreignAfter_ != 0) {
      failLine("data after line {}, which is not data; remove the lines between the data",
               foreignAfter_);
    }
    if (parse(line)) return true;
    refuse(line);
  }
  return false;
}

bool TextReader::takeForeign(std::string_view line) {
  if (!isForeign(line)) return false;
  ++foreignLines_;
  if (hasData() && foreignAfter_ == 0) foreignAfter_ = lines_.number();
  return true;
}

}  // namespace Tool
