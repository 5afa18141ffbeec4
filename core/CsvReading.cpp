#include <algorithm>

#include "core/ValuesReading.h"

namespace Velmar {
namespace Core {
namespace {

/// Cells are separated by what separates the first two columns: spreadsheets write semicolons too.
class CsvText {
 public:
  explicit CsvText(std::string_view text) : text_(text) {
    if (text_.substr(0, 3) == "\xef\xbb\xbf") text_.remove_prefix(3);
    const size_t end = text_.find_first_of(",;\t\n");
    if (end != text_.npos && text_[end] != '\n') separator_ = text_[end];
  }

  /// The cells of the next row that is not empty; false at the end, or at quotes that are not closed.
  bool next(std::vector<std::string>& cells) {
    do {
      if (text_.empty()) return false;
      cells.clear();
      line_ = nextLine_;
      while (takeCell(cells)) {
      }
      if (isOpen_) return false;
    } while (cells.size() == 1 && cells[0].empty());
    return true;
  }
  U64 line() const { return line_; }
  bool isOpen() const { return isOpen_; }

 private:
  /// Takes a cell; false if it is the last of its row.
  bool takeCell(std::vector<std::string>& cells) {
    std::string cell;
    bool isQuoted = false;
    size_t at = 0;
    for (; at < text_.size(); ++at) {
      const char character = text_[at];
      if (character == '\n') ++nextLine_;
      if (character == '"') {
        if (isQuoted && text_.substr(at + 1, 1) == "\"")
          cell += text_[at++];
        else
          isQuoted = !isQuoted;
      } else if (!isQuoted && (character == separator_ || character == '\n')) {
        break;
      } else {
        cell += character;
      }
    }
    isOpen_ = isQuoted;
    const bool isLast = at >= text_.size() || text_[at] == '\n';
    text_.remove_prefix(std::min(at + 1, text_.size()));
    cells.emplace_back(trim(cell));
    return !isLast;
  }

  std::string_view text_;
  char separator_ = ',';
  U64 line_ = 1;
  U64 nextLine_ = 1;
  bool isOpen_ = false;
};

/// The fields of the columns; null for a member that entries have beside them.
using Columns = std::vector<const FieldPlace*>;

Expected<Columns> columnsOf(const EntryReader& reader, const std::vector<std::string>& head) {
  Columns columns;
  for (auto name = head.begin(); name != head.end(); ++name) {
    if (std::find(head.begin(), name, *name) != name) {
      return failed(
          Fault(Code::input, "column {} is given twice; give it once", quoted(*name).view()));
    }
    const bool isMember = reader.isMember(*name);
    const auto place =
        isMember ? Expected<const FieldPlace*>(nullptr) : reader.layout().find(*name);
    if (!place) return failed(place);
    columns.push_back(*place);
  }
  if (std::find(head.begin(), head.end(), "index") != head.end()) return columns;
  return failed(
      Fault(Code::input, "column \"index\" is missing; give CSV as decode --format csv prints it"));
}

Done readRow(const std::vector<std::string>& head, const Columns& columns,
             const std::vector<std::string>& cells, EntryReader& reader) {
  if (cells.size() != columns.size()) {
    return failed(Fault(Code::input,
                        "{} cells, not {}; check the row, and quotes around texts with commas",
                        cells.size(), columns.size()));
  }
  for (size_t i = 0; i < cells.size(); ++i) {
    const FieldPlace* const place = columns[i];
    if (place == nullptr) {
      if (const Done done = reader.takeMember(head[i], cells[i]); !done) return done;
      continue;
    }
    const Expected<Value> value = parseValue(*place, cells[i]);
    if (!value) return failed(value);
    if (const Done done = reader.take(*place, *value); !done) return done;
  }
  return reader.finish();
}

}  // namespace

bool isCsv(std::string_view text) {
  std::vector<std::string> cells;
  return CsvText(text.substr(0, text.find('\n'))).next(cells) &&
         std::find(cells.begin(), cells.end(), "index") != cells.end();
}

Done readCsv(std::string_view text, EntryReader& reader) {
  CsvText csv(text);
  std::vector<std::string> head, cells;
  if (!csv.next(head)) return failed(Fault(Code::input, "no row; check the file"));
  auto columns = columnsOf(reader, head);
  if (!columns) return failed(columns.error().onLine(1));
  bool isEmpty = true;
  for (; csv.next(cells); isEmpty = false) {
    reader.start(true);
    Done done = readRow(head, *columns, cells, reader);
    if (!done) return failed(done.error().onLine(csv.line()));
  }
  if (csv.isOpen()) {
    return failed(Fault(Code::input, "quotes are not closed; check the row").onLine(csv.line()));
  }
  if (isEmpty) return failed(Fault(Code::input, "no entry; check the file"));
  return {};
}

}  // namespace Core
}  // namespace Velmar
