#pragma once

#include <vector>

#include "output/Output.h"

namespace Tool {

/// Rows of comma-separated values under a header.
class CsvRows {
 public:
  CsvRows(Output& output, const std::vector<std::string>& columns) : output_(output) {
    for (const std::string& column : columns) field(column);
    endRow();
  }

  /// Appends a field to the row, in quotes where it needs them.
  void field(std::string_view text) {
    separate();
    if (text.find_first_of(",\"\n") == std::string_view::npos) return output_.write(text);
    output_.write("\"");
    for (const char letter : text) {
      if (letter == '"') output_.write("\"");
      output_.write({&letter, 1});
    }
    output_.write("\"");
  }
  void field(U64 number) {
    separate();
    output_.print("{}", number);
  }
  void endRow() {
    output_.write("\n");
    isFirst_ = true;
  }

 private:
  void separate() {
    if (!isFirst_) output_.write(",");
    isFirst_ = false;
  }

  Output& output_;
  bool isFirst_ = true;
};

}  // namespace Tool
