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
            const JsonFrame& frame = {});

  /// A row may be shorter than the columns: the last members are then missing, or fields empty.
  void write(const Row& row);
  void end();

 private:
  std::vector<std::string> columns_;
  std::optional<JsonRows> json_;
  std::optional<CsvRows> csv_;
};

}  // namespace Tool
