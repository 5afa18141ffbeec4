#include "output/Listing.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "model/Text.h"

namespace Tool {
namespace {

constexpr size_t gap = 2;
constexpr size_t narrowest = 4;

/// Narrows the widest columns until the table fits.
void fit(std::vector<size_t>& widths, size_t columns) {
  if (columns == 0) return;
  size_t total = gap * (widths.size() - 1);
  for (const size_t width : widths) total += width;
  for (; total > columns; --total) {
    size_t& widest = *std::max_element(widths.begin(), widths.end());
    if (widest <= narrowest) return;
    --widest;
  }
}

void printRow(Output& output, const std::vector<std::string>& texts,
              const std::vector<size_t>& widths, Style style) {
  std::vector<std::vector<std::string>> cells;
  size_t lines = 0;
  for (size_t i = 0; i < texts.size(); ++i) {
    cells.push_back(wrap(texts[i], widths[i]));
    lines = std::max(lines, cells.back().size());
  }
  for (size_t line = 0; line < lines; ++line) {
    std::string text;
    size_t column = 0;
    for (size_t i = 0; i < cells.size(); ++i) {
      text.resize(std::max(text.size(), column), ' ');
      if (line < cells[i].size()) text += cells[i][line];
      column += widths[i] + gap;
    }
    text.erase(text.find_last_not_of(' ') + 1);
    output.write(text, style);
    output.write("\n");
  }
}

}  // namespace

Format formatOf(const std::string& name) {
  if (name == "json") return Format::json;
  if (name == "jsonl") return Format::jsonl;
  if (name == "csv") return Format::csv;
  if (name == "hex") return Format::hex;
  if (name == "words") return Format::words;
  if (name == "raw") return Format::raw;
  return Format::table;
}

Cell::Cell(const std::string& value) : json_(nlohmann::json(value).dump()), text_(value) {}
Cell::Cell(U32 value) : json_(formatText("{}", value)), text_(json_) {}
Cell::Cell(bool value) : json_(value ? "true" : "false"), text_(value ? "yes" : "no") {}
Cell::Cell(const std::vector<std::string>& list)
    : json_(nlohmann::json(list).dump()), text_(join(list, " ")) {}
Cell::Cell(const std::vector<U32>& list)
    : json_(nlohmann::json(list).dump()), text_(joinNumbers(list, " ")) {}

Cell Cell::shownAs(std::string text) && {
  text_ = std::move(text);
  return std::move(*this);
}

std::string csvField(const std::string& text) {
  if (text.find_first_of(",\"\n") == std::string::npos) return text;
  std::string field = "\"";
  for (const char letter : text) {
    if (letter == '"') field += '"';
    field += letter;
  }
  return field + '"';
}

std::string Listing::rowAsJson(const std::vector<Cell>& row) const {
  std::string object = "{";
  for (size_t i = 0; i < columns_.size(); ++i) {
    object +=
        formatText("{}{}:{}", i == 0 ? "" : ",", nlohmann::json(columns_[i]).dump(), row[i].json());
  }
  return object + "}";
}

std::string Listing::json(size_t row) const { return rowAsJson(rows_[row]); }

std::string Listing::json() const {
  std::string rows = "[";
  for (const std::vector<Cell>& row : rows_) {
    rows += (&row == &rows_.front() ? "\n  " : ",\n  ") + rowAsJson(row);
  }
  return rows + (rows_.empty() ? "]" : "\n]");
}

void Listing::printTable(Output& output) const {
  std::vector<size_t> widths;
  for (size_t i = 0; i < columns_.size(); ++i) {
    widths.push_back(columns_[i].size());
    for (const std::vector<Cell>& row : rows_)
      widths[i] = std::max(widths[i], row[i].text().size());
  }
  fit(widths, output.columns());
  printRow(output, columns_, widths, Style::strong);
  for (const std::vector<Cell>& row : rows_) {
    std::vector<std::string> texts;
    for (const Cell& cell : row) texts.push_back(cell.text());
    printRow(output, texts, widths, Style::plain);
    output.flushIfLarge();
  }
}

void Listing::printCsv(Output& output) const {
  std::vector<std::string> fields;
  for (const std::string& column : columns_) fields.push_back(csvField(column));
  output.print("{}\n", join(fields, ","));
  for (const std::vector<Cell>& row : rows_) {
    std::string line;
    for (const Cell& cell : row) {
      if (&cell != &row.front()) line += ',';
      if (!cell.isNull()) line += csvField(cell.text());
    }
    output.print("{}\n", line);
    output.flushIfLarge();
  }
}

void Listing::print(Output& output, Format format) const {
  if (format == Format::table) return printTable(output);
  if (format == Format::csv) return printCsv(output);
  if (format == Format::json) return output.print("{}\n", json());
  for (const std::vector<Cell>& row : rows_) output.print("{}\n", rowAsJson(row));
}

}  // namespace Tool
