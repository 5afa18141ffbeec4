#include "MarkdownTable.h"

#include <algorithm>

namespace Reference {

MarkdownTable::MarkdownTable(const Row& words, const Row& numbers) {
  for (const std::string& title : words) addColumn(title, Align::left);
  for (const std::string& title : numbers) addColumn(title, Align::right);
}

std::string MarkdownTable::text() const {
  std::vector<std::size_t> widths;
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    widths.push_back(std::max<std::size_t>(columns_[i].title.size(), 3));
    for (const Row& row : rows_) widths[i] = std::max(widths[i], row.at(i).size());
  }
  std::string titles = "|";
  std::string rule = "|";
  std::string body;
  const auto padded = [&](const std::string& cell, std::size_t i) {
    const std::string blanks(widths[i] - cell.size(), ' ');
    return " " + (columns_[i].align == Align::left ? cell + blanks : blanks + cell) + " |";
  };
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    titles += padded(columns_[i].title, i);
    const bool isRight = columns_[i].align == Align::right;
    rule += std::string(widths[i] + (isRight ? 1 : 2), '-') + (isRight ? ":|" : "|");
  }
  for (const Row& row : rows_) {
    body += "|";
    for (std::size_t i = 0; i < row.size(); ++i) body += padded(row[i], i);
    body += "\n";
  }
  return titles + "\n" + rule + "\n" + body;
}

}  // namespace Reference
