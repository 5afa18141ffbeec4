#pragma once

#include <string>
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

  /// A text, in quotes where it needs them.
  static std::string quoted(const std::string& text) {
    if (text.find_first_of(",\"\n") == std::string::npos) return text;
    std::string safe = "\"";
    for (const char letter : text) {
      if (letter == '"') safe += '"';
      safe += letter;
    }
    return safe + '"';
  }

  void field(const std::string& text) {
    if (!isFirst_) output_.write(",");
    isFirst_ = false;
    output_.write(quoted(text));
  }
  void endRow() {
    output_.write("\n");
    isFirst_ = true;
  }

 private:
  Output& output_;
  bool isFirst_ = true;
};

}  // namespace Tool
