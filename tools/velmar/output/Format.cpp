#include "output/Format.h"

namespace Tool {

Format formatOf(const std::string& name) {
  if (name == "json") return Format::json;
  if (name == "jsonl") return Format::jsonl;
  if (name == "csv") return Format::csv;
  if (name == "hex") return Format::hex;
  if (name == "words") return Format::words;
  if (name == "raw") return Format::raw;
  return Format::table;
}

}  // namespace Tool
