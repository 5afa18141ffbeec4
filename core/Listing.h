#pragma once

#include <string>
#include <vector>

#include "core/Json.h"

// Rows under named columns: what lists, comparisons and differences are made of, whatever the format.

namespace Velmar {
namespace Core {

/// One value of a row: JSON, and the text for people and CSV.
class Cell {
 public:
  Cell(std::string text) : text_(std::move(text)) {}
  Cell(const char* text) : text_(text) {}
  Cell(U32 number) : Cell(U64{number}) {}
  Cell(U64 number) : json_(std::to_string(number)), text_(json_) {}
  Cell(bool value) : Cell(value ? "true" : "false", value ? "yes" : "no") {}
  Cell(std::nullptr_t) : Cell("null", "-") {}
  Cell(const std::vector<std::string>& list) : Cell(jsonList(list), join(list, " ")) {}
  static Cell ofJson(std::string json) { return {std::move(json), ""}; }

  /// The same value with another text.
  Cell shownAs(std::string text) && { return {json(), std::move(text)}; }

  std::string json() const { return json_.empty() ? jsonText(text_) : json_; }
  const std::string& text() const { return text_; }
  bool isNull() const { return json_ == "null"; }

 private:
  Cell(std::string json, std::string text) : json_(std::move(json)), text_(std::move(text)) {}

  std::string json_;  ///< empty: the text as a JSON string
  std::string text_;
};

using Row = std::vector<Cell>;

/// A row as a JSON object. A row that is shorter than the names has no members for the last ones.
std::string jsonObject(const std::vector<std::string>& names, const Row& row);

/// What surrounds the rows of a JSON document.
struct JsonFrame {
  std::string head;
  std::string tail = "]}";
  std::string indent = "  ";
};

/// A document that begins with its format and version: {"format": "velmar-tables", ...}. `members`
/// come before the rows, which are those of its last member: `"chip": "BCM56990_B0"`.
JsonFrame frameOf(const char* name, const char* rows, const std::string& members = "");

enum class RowFormat { json, jsonLines, csv };

/// Writes rows at the end of a text as they come.
class RowWriter {
 public:
  RowWriter(std::string& to, RowFormat format, std::vector<std::string> columns, JsonFrame frame);

  /// A row may be shorter than the columns: the last members are then missing, or fields empty.
  void write(const Row& row);
  /// Around a row that is written as a JSON object at the end of the text; not for CSV.
  void openRow();
  void closeRow() {
    if (format_ == RowFormat::jsonLines) to_ += '\n';
  }
  void end();

 private:
  std::string& to_;
  RowFormat format_;
  std::vector<std::string> columns_;
  JsonFrame frame_;
  bool isEmpty_ = true;
};

/// A text as CSV has it, in quotes if it needs them.
void appendCsv(std::string& to, std::string_view text);

/// A list of rows under named columns.
struct Listing {
  explicit Listing(std::vector<std::string> names) : columns(std::move(names)) {}

  void add(Row row) { rows.push_back(std::move(row)); }
  bool isEmpty() const { return rows.empty(); }
  /// The whole document.
  std::string written(RowFormat format, const JsonFrame& frame) const;

  std::vector<std::string> columns;
  std::vector<Row> rows;
};

}  // namespace Core
}  // namespace Velmar
