#pragma once

#include <optional>

#include "output/Cell.h"
#include "output/CsvRows.h"
#include "output/JsonRows.h"

namespace Tool {

/// Writes rows under named columns as they come: as JSON, JSON lines or CSV. In other formats it
/// writes nothing.
class RowWriter {
 public:
  RowWriter(Output& output, Format format, std::vector<std::string> columns,
            const JsonFrame& frame);

  /// A row may be shorter than the columns: the last members are then missing, or fields empty.
  void write(const Row& row);
  void end();

 private:
  std::vector<std::string> columns_;
  std::optional<JsonRows> json_;
  std::optional<CsvRows> csv_;
};

/// A list of rows under named columns, printed as a table for people or by a RowWriter.
class Listing {
 public:
  explicit Listing(std::vector<std::string> columns) : columns_(std::move(columns)) {}

  void add(Row row) { rows_.push_back(std::move(row)); }
  void add(Listing rows) {
    for (Row& row : rows.rows_) rows_.push_back(std::move(row));
  }
  bool isEmpty() const { return rows_.empty(); }

  void print(Output& output, Format format, const JsonFrame& frame) const;

 private:
  std::vector<std::string> columns_;
  std::vector<Row> rows_;
};

}  // namespace Tool
