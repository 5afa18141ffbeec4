#pragma once

#include <string>
#include <vector>

namespace Reference {

/// A Markdown table whose columns are aligned, so that it reads well in raw form too.
class MarkdownTable {
 public:
  enum class Align { left, right };
  struct Column {
    std::string title;
    Align align;
  };
  using Row = std::vector<std::string>;

  /// Columns of words, then columns of numbers.
  MarkdownTable(const Row& words, const Row& numbers);

  void addColumn(const std::string& title, Align align) { columns_.push_back({title, align}); }
  /// Adds a row with a cell for each column.
  void addRow(const Row& cells) { rows_.push_back(cells); }
  /// The table, ended by a newline.
  std::string text() const;

 private:
  std::vector<Column> columns_;
  std::vector<Row> rows_;
};

}  // namespace Reference
