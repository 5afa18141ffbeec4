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

/// What the columns of a document are.
struct Columns {
  std::optional<size_t> index, address, accessType, block, outsideFields;
  std::vector<std::pair<size_t, const FieldPlace*>> fields;
  size_t count = 0;
};

Expected<Columns> columnsOf(const Layout& layout, const std::vector<std::string>& head) {
  Columns columns;
  columns.count = head.size();
  const std::pair<std::string_view, std::optional<size_t> Columns::*> known[] = {
      {"index", &Columns::index},
      {"address", &Columns::address},
      {"accessType", &Columns::accessType},
      {"block", &Columns::block},
      {"outsideFields", &Columns::outsideFields}};
  for (size_t i = 0; i < head.size(); ++i) {
    const auto of = std::find_if(std::begin(known), std::end(known),
                                 [&](const auto& one) { return one.first == head[i]; });
    if (std::find(head.begin(), head.begin() + static_cast<long>(i), head[i]) !=
        head.begin() + static_cast<long>(i)) {
      return failed(
          Fault(Code::input, "column {} is given twice; give it once", quoted(head[i]).view())
              .onLine(1));
    }
    if (of != std::end(known)) {
      columns.*of->second = i;
      continue;
    }
    auto place = layout.find(head[i]);
    if (!place) return failed(place.error().onLine(1));
    columns.fields.emplace_back(i, *place);
  }
  if (!columns.index) {
    return failed(
        Fault(Code::input, "column \"index\" is missing; give CSV as decode --format csv prints it")
            .onLine(1));
  }
  return columns;
}

/// A cell that is the same in every row.
Done checkFact(const std::optional<size_t>& column, const std::vector<std::string>& cells,
               const char* name, U32 expected) {
  if (!column || parseNumber(cells[*column]) == expected) return {};
  return failed(Fault(Code::input, "{}: {}, not {}; check the file, and table and chip", name,
                      quoted(cells[*column]).view(), expected));
}

Expected<EntryValues> entryOf(const Layout& layout, const Columns& columns,
                              const std::vector<std::string>& cells, EntryMaker& maker) {
  EntryValues entry;
  const std::string& typed = cells[*columns.index];
  const std::optional<U64> index = parseNumber(typed);
  if (!index || *index > 0xffffffff) {
    return failed(Fault(Code::input, "index: {} is not a number; give the index of the entry",
                        quoted(typed).view()));
  }
  entry.index = static_cast<U32>(*index);
  entry.isNumbered = true;
  if (columns.address && *index < layout.indexCount()) {
    const Done done = checkAddress(layout, *index, cells[*columns.address]);
    if (!done) return failed(done);
  }
  const Catalogue::Geometry& geometry = layout.geometry();
  Done done = checkFact(columns.accessType, cells, "accessType", geometry.accessType);
  if (done) done = checkFact(columns.block, cells, "block", geometry.block);
  if (!done) return failed(done);
  maker.start();
  for (const auto& [column, place] : columns.fields) {
    const Expected<Value> value = parseValue(*place, cells[column]);
    if (!value) return failed(value);
    if (const Done set = maker.set(*place, *value, entry); !set) return failed(set);
  }
  maker.finish(entry);
  const std::string outside = columns.outsideFields ? cells[*columns.outsideFields] : "";
  if (columns.outsideFields) {
    const auto bits = parseReservedBits(layout, outside.empty() ? "0x0" : outside);
    if (!bits) return failed(bits);
    entry.reservedBits = *bits;
  }
  return entry;
}

}  // namespace

bool isCsv(std::string_view text) {
  std::vector<std::string> cells;
  return CsvText(text.substr(0, text.find('\n'))).next(cells) &&
         std::find(cells.begin(), cells.end(), "index") != cells.end();
}

Done readCsv(const Layout& layout, std::string_view text, const EntrySink& sink) {
  CsvText csv(text);
  std::vector<std::string> cells;
  if (!csv.next(cells)) return failed(Fault(Code::input, "no row; check the file"));
  const Expected<Columns> columns = columnsOf(layout, cells);
  if (!columns) return failed(columns);
  EntryMaker maker(layout);
  SeenIndexes seen;
  while (csv.next(cells)) {
    if (cells.size() != columns->count) {
      return failed(Fault(Code::input,
                          "{} cells, not {}; check the row, and quotes around texts with commas",
                          cells.size(), columns->count)
                        .onLine(csv.line()));
    }
    Expected<EntryValues> entry = entryOf(layout, *columns, cells, maker);
    if (!entry) return failed(entry.error().onLine(csv.line()));
    if (!seen.insert(*entry->index)) {
      return failed(Fault(Code::input, "entry {} is given twice; give it once", *entry->index)
                        .ofEntry(*entry->index)
                        .onLine(csv.line()));
    }
    entry->line = csv.line();
    if (Done done = sink(*entry); !done) return failed(done.error().onLine(csv.line()));
  }
  if (csv.isOpen()) {
    return failed(Fault(Code::input, "quotes are not closed; check the row").onLine(csv.line()));
  }
  if (seen.isEmpty()) return failed(Fault(Code::input, "no entry; check the file"));
  return {};
}

}  // namespace Core
}  // namespace Velmar
