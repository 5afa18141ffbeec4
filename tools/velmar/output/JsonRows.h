#pragma once

#include "output/Output.h"

namespace Tool {

/// What surrounds the rows of a JSON document.
struct JsonFrame {
  std::string head;
  std::string tail = "]}";
  std::string indent = "  ";
};

/// A document that begins with its format and version: {"format": "velmar-tables", ...}. `members`
/// come before the rows, which are those of its last member: `"chip": "BCM56990_B0"`.
inline JsonFrame frameOf(const char* name, const char* rows, const std::string& members = "") {
  return {formatText(R"({{"format": "velmar-{}", "version": 1,{}{} "{}": [)", name,
                     members.empty() ? "" : " ", members.empty() ? "" : members + ",", rows)};
}

/// JSON objects as the array of one document, or as lines that are documents of their own.
class JsonRows {
 public:
  JsonRows(Output& output, bool asLines, const JsonFrame& frame)
      : output_(output),
        asLines_(asLines),
        separator_(",\n" + frame.indent),
        tail_("\n" + frame.tail + "\n") {
    if (!asLines) output_.write(frame.head);
  }

  void write(std::string_view object) {
    // The first row has no comma before it.
    if (!asLines_) output_.write(std::string_view(separator_).substr(isEmpty_ ? 1 : 0));
    isEmpty_ = false;
    output_.write(object);
    if (asLines_) output_.write("\n");
  }

  void end() {
    if (!asLines_) output_.write(std::string_view(tail_).substr(isEmpty_ ? 1 : 0));
  }

 private:
  Output& output_;
  bool asLines_;
  bool isEmpty_ = true;
  std::string separator_;
  std::string tail_;
};

}  // namespace Tool
