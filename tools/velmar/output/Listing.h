#pragma once

#include "output/RowWriter.h"

namespace Tool {

/// A list of rows under named columns, in any of the formats that list things.
class Listing {
 public:
  explicit Listing(std::vector<std::string> columns) : columns_(std::move(columns)) {}

  void add(Row row) { rows_.push_back(std::move(row)); }
  bool isEmpty() const { return rows_.empty(); }

  void print(Output& output, Format format, const JsonFrame& frame = {}) const;

 private:
  void printTable(Output& output) const;

  std::vector<std::string> columns_;
  std::vector<Row> rows_;
};

}  // namespace Tool
