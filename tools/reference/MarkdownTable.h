#pragma once

#include <string>
#include <vector>

namespace Reference {

/// A Markdown table whose columns are aligned, so that the source is readable too.
class MarkdownTable {
 public:
  enum class Align { left, right };
  struct Column {
    std::string title;
    Align align;
  };
  using Row = std::vector<std::string>;

  /// Text columns, then number columns.
  MarkdownTable(const Row& words, const Row& numbers);

  void addColumn(const std::string& title, Align align) { columns_.push_back({title, align}); }
  /// Adds a row with a cell for each column.
  void addRow(const Row& cells) { rows_.push_back(cells); }
  /// The table, with a final newline.
  std::string text() const;

 private:
  std::vector<Column> columns_;
  std::vector<Row> rows_;
};

}  // namespace Reference
