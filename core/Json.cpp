#include "core/Json.h"

#include <charconv>

namespace Velmar {
namespace Core {

void JsonWriter::newLine() {
  to_ += '\n';
  to_.append(static_cast<size_t>(indent_) * level_, ' ');
}

void JsonWriter::separate() {
  if (isAfterKey_) {
    isAfterKey_ = false;
    return;
  }
  if (!isFirst_) to_ += ',';
  if (indent_ != 0 && level_ != 0) newLine();
  isFirst_ = false;
}

JsonWriter& JsonWriter::open(char bracket) {
  separate();
  to_ += bracket;
  ++level_;
  isFirst_ = true;
  return *this;
}

JsonWriter& JsonWriter::close(char bracket) {
  --level_;
  if (indent_ != 0 && !isFirst_) newLine();
  to_ += bracket;
  isFirst_ = false;
  return *this;
}

JsonWriter& JsonWriter::key(std::string_view name) {
  text(name);
  to_ += indent_ != 0 ? ": " : ":";
  isAfterKey_ = true;
  return *this;
}

JsonWriter& JsonWriter::text(std::string_view value) {
  separate();
  to_ += '"';
  for (const char character : value) {
    const auto code = static_cast<unsigned char>(character);
    switch (character) {
      case '"':
      case '\\':
        to_ += '\\';
        to_ += character;
        break;
      case '\n':
        to_ += "\\n";
        break;
      case '\t':
        to_ += "\\t";
        break;
      default:
        if (code < ' ') {
          to_ += formatText("\\u{:04X}", code);
        } else {
          to_ += character;
        }
    }
  }
  to_ += '"';
  return *this;
}

JsonWriter& JsonWriter::number(U64 value) {
  separate();
  char digits[20];
  to_.append(digits, std::to_chars(digits, digits + sizeof(digits), value).ptr);
  return *this;
}

JsonWriter& JsonWriter::raw(std::string_view json) {
  separate();
  to_ += json;
  return *this;
}

std::string jsonText(std::string_view text) {
  std::string json;
  JsonWriter(json).text(text);
  return json;
}

std::string jsonList(const std::vector<std::string>& list) {
  std::string json;
  JsonWriter writer(json);
  writer.openList();
  for (const std::string& text : list) writer.text(text);
  writer.closeList();
  return json;
}

}  // namespace Core
}  // namespace Velmar
