#pragma once

#include <string>
#include <vector>

#include "AsicUtils/Types.h"

namespace Tool {

/// One value of a row: JSON, and the text for people and CSV.
class Cell {
 public:
  Cell(std::string text) : text_(std::move(text)) {}
  Cell(const char* text) : text_(text) {}
  Cell(U32 number) : Cell(U64{number}) {}
  Cell(U64 number);
  Cell(bool value) : Cell(value ? "true" : "false", value ? "yes" : "no") {}
  Cell(std::nullptr_t) : Cell("null", "-") {}
  Cell(const std::vector<std::string>& list);
  static Cell ofJson(std::string json) { return {std::move(json), ""}; }

  /// The same value with another text.
  Cell shownAs(std::string text) &&;

  std::string json() const;
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

}  // namespace Tool
