#include <rapidjson/reader.h>

#include "core/Names.h"
#include "core/TraceLine.h"

// Logs of records: CSV with a header, and JSON lines.

namespace Velmar {
namespace Core {
namespace {

/// Which column or member a name is. Columns of words may have numbers.
LogColumn columnNamed(std::string_view typed) {
  constexpr std::pair<std::string_view, LogColumn> names[] = {
      {"time", LogColumn::time},       {"timestamp", LogColumn::time},
      {"op", LogColumn::operation},    {"operation", LogColumn::operation},
      {"address", LogColumn::address}, {"addr", LogColumn::address},
      {"data", LogColumn::words},      {"words", LogColumn::words},
      {"word", LogColumn::words},      {"len", LogColumn::length},
      {"access", LogColumn::access},   {"accesstype", LogColumn::access},
      {"block", LogColumn::block}};
  const SimpleName simple(typed);
  const std::string_view text = simple.text();
  const std::string_view name = text.substr(0, text.find_last_not_of("0123456789") + 1);
  for (const auto& [known, column] : names) {
    if (text == known || (column == LogColumn::words && name == known)) return column;
  }
  return LogColumn::ignored;
}

/// Puts a cell or a text of JSON in its place.
bool put(LogColumn column, std::string_view text, LogStyle& style, BusLine& to) {
  switch (column) {
    case LogColumn::ignored:
      return true;
    case LogColumn::time:
      to.time = text;
      return true;
    case LogColumn::operation:
      return takeOperation(text, to);
    case LogColumn::address: {
      const std::optional<U32> address = takeHex(text, style.addresses);
      to.address = address.value_or(0);
      return address.has_value();
    }
    case LogColumn::words:
      return text.empty() || takeWords(text, style.words, to.words);
    case LogColumn::length:
      return takeCount(text, to.length);
    case LogColumn::access:
      return text.empty() || takeCount(text, to.accessType);
    case LogColumn::block:
      return text.empty() || takeCount(text, to.block);
  }
  return false;
}

/// The cells of a line; false for quotes that are not closed.
bool splitCells(std::string_view line, char separator, std::vector<std::string>& cells) {
  cells.assign(1, "");
  bool isQuoted = false;
  for (const char character : line) {
    if (character == '"') {
      isQuoted = !isQuoted;
    } else if (character == separator && !isQuoted) {
      cells.emplace_back();
    } else {
      cells.back() += character;
    }
  }
  return !isQuoted;
}

Taken takeCsvHead(std::string_view line, LogStyle& style) {
  const size_t end = line.find_first_of(",;\t");
  if (end == std::string_view::npos) return Taken::no;
  std::vector<std::string> cells;
  if (!splitCells(line, line[end], cells)) return Taken::no;
  std::vector<LogColumn> columns;
  for (const std::string& cell : cells) columns.push_back(columnNamed(trim(cell)));
  U32 counts[8] = {};
  for (const LogColumn column : columns) ++counts[static_cast<size_t>(column)];
  for (const LogColumn needed : {LogColumn::operation, LogColumn::address}) {
    if (counts[static_cast<size_t>(needed)] != 1) return Taken::no;
  }
  for (const LogColumn single :
       {LogColumn::time, LogColumn::length, LogColumn::access, LogColumn::block}) {
    if (counts[static_cast<size_t>(single)] > 1) return Taken::no;
  }
  if (counts[static_cast<size_t>(LogColumn::words)] == 0) return Taken::no;
  style.separator = line[end];
  style.columns = std::move(columns);
  return Taken::header;
}

/// Takes the members of a JSON object: numbers as their digits.
class RecordHandler : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, RecordHandler> {
 public:
  RecordHandler(LogStyle& style, BusLine& to) : style_(style), to_(to) {}

  bool isComplete() const {
    constexpr U32 needed = 1U << static_cast<U32>(LogColumn::operation) |
                           1U << static_cast<U32>(LogColumn::address) |
                           1U << static_cast<U32>(LogColumn::words);
    return (seen_ & needed) == needed;
  }

  // The names are RapidJSON's.
  bool StartObject() { return ++depth_ == 1 || column_ == LogColumn::ignored; }
  bool Key(const char* text, unsigned size, bool) {
    if (depth_ != 1) return true;
    column_ = columnNamed({text, size});
    if (column_ == LogColumn::ignored) return true;
    const U32 bit = 1U << static_cast<U32>(column_);
    if ((seen_ & bit) != 0) return false;
    seen_ |= bit;
    return true;
  }
  bool EndObject(unsigned) { return depth_-- != 0; }
  bool StartArray() {
    ++depth_;
    return column_ == LogColumn::ignored || (depth_ == 2 && column_ == LogColumn::words);
  }
  bool EndArray(unsigned) { return depth_-- != 0; }
  bool String(const char* text, unsigned size, bool) {
    if (depth_ == 0) return false;
    const std::string_view value(text, size);
    if (column_ == LogColumn::words && depth_ == 1 && value.empty()) return false;
    return put(column_, value, style_, to_);
  }
  bool RawNumber(const char* text, unsigned size, bool) {
    if (depth_ == 0) return false;
    const std::string_view value(text, size);
    const bool isNumber = column_ == LogColumn::address || column_ == LogColumn::words;
    if (!isNumber) return put(column_, value, style_, to_);
    const std::optional<U64> number = parseNumber(value);
    if (!number || *number > 0xffffffff) return false;
    if (column_ == LogColumn::address) {
      to_.address = static_cast<U32>(*number);
    } else {
      to_.words.push_back(static_cast<U32>(*number));
    }
    return to_.words.size() <= mostWords;
  }
  bool Null() { return depth_ != 0 && isOptional(); }
  bool Bool(bool) { return depth_ != 0 && column_ == LogColumn::ignored; }

 private:
  bool isOptional() const {
    return column_ != LogColumn::operation && column_ != LogColumn::address &&
           column_ != LogColumn::words;
  }

  LogStyle& style_;
  BusLine& to_;
  U32 depth_ = 0;
  U32 seen_ = 0;
  LogColumn column_ = LogColumn::ignored;
};

}  // namespace

Taken takeCsvLine(std::string_view line, LogStyle& style, BusLine& to) {
  if (style.columns.empty()) return takeCsvHead(line, style);
  std::vector<std::string> cells;
  if (!splitCells(line, style.separator, cells)) return Taken::no;
  // Entries have different sizes, so columns of words may be missing at the end.
  if (cells.size() > style.columns.size()) return Taken::no;
  for (size_t i = 0; i < style.columns.size(); ++i) {
    const LogColumn column = style.columns[i];
    if (i >= cells.size() && column != LogColumn::words) return Taken::no;
    const std::string_view cell = i < cells.size() ? trim(cells[i]) : std::string_view();
    if (!put(column, cell, style, to)) return Taken::no;
  }
  return to.words.empty() ? Taken::no : Taken::transaction;
}

Taken takeJsonLine(std::string_view line, LogStyle& style, BusLine& to) {
  if (trim(line).substr(0, 1) != "{") return Taken::no;
  const std::string text(line);
  rapidjson::StringStream stream(text.c_str());
  rapidjson::Reader reader;
  RecordHandler handler(style, to);
  constexpr unsigned flags = rapidjson::kParseIterativeFlag | rapidjson::kParseNumbersAsStringsFlag;
  if (reader.Parse<flags>(stream, handler).IsError()) return Taken::no;
  if (stream.Tell() != text.size() || !handler.isComplete() || to.words.empty()) return Taken::no;
  return Taken::transaction;
}

}  // namespace Core
}  // namespace Velmar
