#include "output/RowWriter.h"

namespace Tool {

RowWriter::RowWriter(Output& output, Format format, std::vector<std::string> columns,
                     const JsonFrame& frame)
    : columns_(std::move(columns)) {
  if (format == Format::csv) csv_.emplace(output, columns_);
  if (format == Format::json || format == Format::jsonl) {
    json_.emplace(output, format == Format::jsonl, frame);
  }
}

void RowWriter::write(const Row& row) {
  if (json_) json_->write(jsonObject(columns_, row));
  if (!csv_) return;
  for (size_t i = 0; i < columns_.size(); ++i) {
    csv_->field(i < row.size() && !row[i].isNull() ? row[i].text() : "");
  }
  csv_->endRow();
}

void RowWriter::end() {
  if (json_) json_->end();
}

}  // namespace Tool
