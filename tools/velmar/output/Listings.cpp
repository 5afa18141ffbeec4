#include "output/Listings.h"

#include <algorithm>

#include "output/Wrapping.h"

namespace Tool {
namespace {

constexpr size_t gap = 2;
constexpr size_t indent = 4;

/// A table for people. Columns that do not fit beside each other fall below their row, with their
/// names where there are several. Nothing is broken but at blanks.
class TextTable {
 public:
  TextTable(Output& output, const std::vector<std::string>& columns, const std::vector<Row>& rows)
      : output_(output), columns_(columns), rows_(rows) {
    const size_t room = output.columns() == 0 ? std::string::npos : output.columns();
    size_t end = 0;
    for (size_t i = 0; i < columns.size(); ++i) {
      size_t width = columns[i].size();
      for (const Row& row : rows) {
        if (i < row.size()) width = std::max(width, row[i].text().size());
      }
      // The first column stands where it is, however long.
      const bool fits = i == 0 || end + width <= room;
      (fits ? beside_ : below_).push_back(i);
      if (fits) widths_.push_back(width);
      if (fits) end += width + gap;
    }
  }

  void print() {
    std::vector<std::string> head;
    for (const size_t column : beside_) head.push_back(columns_[column]);
    printLine(head, Style::strong);
    for (const Row& row : rows_) {
      std::vector<std::string> texts;
      for (const size_t column : beside_) texts.push_back(textOf(row, column));
      printLine(texts, Style::plain);
      printBelow(row);
      output_.flushIfLarge();
    }
  }

 private:
  static std::string textOf(const Row& row, size_t column) {
    return column < row.size() ? row[column].text() : "";
  }

  void printLine(const std::vector<std::string>& texts, Style style) {
    std::string line;
    for (size_t i = 0; i < texts.size(); ++i) {
      line += texts[i];
      if (i + 1 < texts.size()) line.append(widths_[i] + gap - texts[i].size(), ' ');
    }
    output_.write(line.substr(0, line.find_last_not_of(' ') + 1), style);
    output_.write("\n");
  }

  void printBelow(const Row& row) {
    std::string text;
    for (const size_t column : below_) {
      const std::string value = textOf(row, column);
      if (value.empty() || value == "-") continue;
      if (!text.empty()) text += "; ";
      text += below_.size() == 1 ? value : columns_[column] + ": " + value;
    }
    if (text.empty()) return;
    const size_t width = std::max<size_t>(output_.columns(), indent + 1) - indent;
    for (const std::string& line : wrap(text, width)) {
      output_.print("{:{}}{}\n", "", indent, line.substr(0, line.find_last_not_of(' ') + 1));
    }
  }

  Output& output_;
  const std::vector<std::string>& columns_;
  const std::vector<Row>& rows_;
  std::vector<size_t> beside_, below_;  ///< columns
  std::vector<size_t> widths_;          ///< those of the columns that stand beside each other
};

}  // namespace

void write(Output& output, const Listing& listing, Format format, const JsonFrame& frame) {
  if (format == Format::table) return TextTable(output, listing.columns, listing.rows).print();
  output.write(listing.written(rowFormatOf(format), frame));
}

}  // namespace Tool
