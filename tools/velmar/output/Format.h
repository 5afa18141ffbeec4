#pragma once

#include <string>

namespace Tool {

enum class Format { table, json, jsonl, csv, hex, words, raw };

/// The format of a value of --format; the table where there is none.
Format formatOf(const std::string& name);

}  // namespace Tool
