#pragma once

#include <string>
#include <vector>

#include "output/Output.h"

namespace Tool {

enum class Format { table, json, jsonl, csv, hex, words, raw };
Format formatOf(const std::string& name);

/// One value of a listing: JSON, and the text for people.
class Cell {
 public:
  Cell(const char* value) : Cell(std::string(value)) {}
  Cell(const std::string& value);
  Cell(U32 value);
  Cell(bool value);
  Cell(std::nullptr_t) : json_("null"), text_("-") {}
  Cell(const std::vector<std::string>& list);
  Cell(const std::vector<U32>& list);

  /// The same value with another text for people.
  Cell shownAs(std::string text) &&;

  const std::string& json() const { return json_; }
  const std::string& text() const { return text_; }
  bool isNull() const { return json_ == "null"; }

 private:
  std::string json_;
  std::string text_;
};

/// A list of rows under named columns, in any of the formats that list things.
class Listing {
 public:
  explicit Listing(std::vector<std::string> columns) : columns_(std::move(columns)) {}

  void add(std::vector<Cell> row) { rows_.push_back(std::move(row)); }
  bool isEmpty() const { return rows_.empty(); }

  void print(Output& output, Format format) const;
  void printTable(Output& output) const;
  /// The rows as a JSON array of objects.
  std::string json() const;
  /// One row as a JSON object.
  std::string json(size_t row) const;

 private:
  std::string rowAsJson(const std::vector<Cell>& row) const;
  void printCsv(Output& output) const;

  std::vector<std::string> columns_;
  std::vector<std::vector<Cell>> rows_;
};

/// A CSV field, in quotes where it needs them.
std::string csvField(const std::string& text);

}  // namespace Tool
