#include "output/Listing.h"

#include <algorithm>

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

RowWriter::RowWriter(Output& output, Format format, std::vector<std::string> columns,
                     const JsonFrame& frame)
    : columns_(std::move(columns)) {
  if (format == Format::csv) csv_.emplace(output, columns_);
  if (format == Format::json || format == Format::jsonl) {
    json_.emplace(output, format == Format::jsonl, frame);
  }
}

void RowWriter::write(const Row& row) {
  if (json_) json_->write(jsonObject(columns_, row));
  if (!csv_) return;
  for (size_t i = 0; i < columns_.size(); ++i) {
    csv_->field(i < row.size() && !row[i].isNull() ? row[i].text() : "");
  }
  csv_->endRow();
}

void RowWriter::end() {
  if (json_) json_->end();
}

void Listing::printTable(Output& output) const {
  std::vector<size_t> widths;
  for (size_t i = 0; i < columns_.size(); ++i) {
    widths.push_back(columns_[i].size());
    for (const Row& row : rows_) widths[i] = std::max(widths[i], row[i].text().size());
  }
  fit(widths, output.columns());
  printRow(output, columns_, widths, Style::strong);
  for (const Row& row : rows_) {
    std::vector<std::string> texts;
    for (const Cell& cell : row) texts.push_back(cell.text());
    printRow(output, texts, widths, Style::plain);
    output.flushIfLarge();
  }
}

void Listing::print(Output& output, Format format, const JsonFrame& frame) const {
  if (format == Format::table) return printTable(output);
  RowWriter writer(output, format, columns_, frame);
  for (const Row& row : rows_) {
    writer.write(row);
    output.flushIfLarge();
  }
  writer.end();
}

}  // namespace Tool
