#include "core/Listing.h"

#include <algorithm>

namespace Velmar {
namespace Core {

std::string jsonObject(const std::vector<std::string>& names, const Row& row) {
  std::string object;
  JsonWriter json(object);
  json.openObject();
  for (size_t i = 0; i < row.size(); ++i) json.key(names[i]).raw(row[i].json());
  json.closeObject();
  return object;
}

JsonFrame frameOf(const char* name, const char* rows, const std::string& members) {
  return {formatText(R"({{"format": "velmar-{}", "version": 1,{}{} "{}": [)", name,
                     members.empty() ? "" : " ", members.empty() ? "" : members + ",", rows)};
}

void appendCsv(std::string& to, std::string_view text) {
  const bool isPlain = std::none_of(text.begin(), text.end(), [](char character) {
    return character == ',' || character == '"' || character == '\r' || character == '\n';
  });
  if (isPlain) {
    to += text;
    return;
  }
  to += '"';
  for (const char character : text) {
    if (character == '"') to += '"';
    to += character;
  }
  to += '"';
}

RowWriter::RowWriter(std::string& to, RowFormat format, std::vector<std::string> columns,
                     JsonFrame frame)
    : to_(to), format_(format), columns_(std::move(columns)), frame_(std::move(frame)) {
  if (format == RowFormat::json) to_ += frame_.head;
  if (format != RowFormat::csv) return;
  for (const std::string& column : columns_) {
    if (&column != &columns_.front()) to_ += ',';
    appendCsv(to_, column);
  }
  to_ += '\n';
}

void RowWriter::write(const Row& row) {
  if (format_ != RowFormat::csv) {
    openRow();
    to_ += jsonObject(columns_, row);
    return closeRow();
  }
  for (size_t i = 0; i < columns_.size(); ++i) {
    if (i != 0) to_ += ',';
    if (i < row.size() && !row[i].isNull()) appendCsv(to_, row[i].text());
  }
  to_ += '\n';
}

void RowWriter::openRow() {
  if (format_ != RowFormat::json) return;
  to_ += isEmpty_ ? "\n" : ",\n";
  to_ += frame_.indent;
  isEmpty_ = false;
}

void RowWriter::end() {
  if (format_ != RowFormat::json) return;
  if (!isEmpty_) to_ += '\n';
  to_ += frame_.tail;
  to_ += '\n';
}

std::string Listing::written(RowFormat format, const JsonFrame& frame) const {
  std::string text;
  RowWriter writer(text, format, columns, frame);
  for (const Row& row : rows) writer.write(row);
  writer.end();
  return text;
}

}  // namespace Core
}  // namespace Velmar
