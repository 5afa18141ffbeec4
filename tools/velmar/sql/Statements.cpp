#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "cli/Failure.h"
#include "output/Listings.h"
#include "sql/Database.h"
#include "verbs/Inputs.h"

namespace Tool {
namespace {

/// A prepared statement.
class Statement {
 public:
  explicit Statement(sqlite3_stmt* handle) : handle_(handle) {}
  ~Statement() { sqlite3_finalize(handle_); }
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;

  sqlite3_stmt* handle() const { return handle_; }

 private:
  sqlite3_stmt* handle_;
};

std::vector<std::string> columnsOf(sqlite3_stmt* statement) {
  std::vector<std::string> names;
  for (int i = 0; i < sqlite3_column_count(statement); ++i) {
    names.emplace_back(sqlite3_column_name(statement, i));
  }
  return names;
}

Cell cellOf(sqlite3_stmt* statement, int column) {
  const int type = sqlite3_column_type(statement, column);
  if (type == SQLITE_NULL) return nullptr;
  if (type == SQLITE_BLOB) {
    const auto* const bytes = static_cast<const U8*>(sqlite3_column_blob(statement, column));
    std::string text;
    for (int i = 0; i < sqlite3_column_bytes(statement, column); ++i) {
      text += formatText("{:02x}", bytes[i]);
    }
    return text;
  }
  const auto* const characters =
      reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
  if (characters == nullptr) throw std::bad_alloc();
  std::string text(characters, static_cast<size_t>(sqlite3_column_bytes(statement, column)));
  if (type == SQLITE_TEXT) return text;
  // SQLite writes an infinite number as Inf, which JSON does not have.
  const bool isInfinite = text.find('n') != std::string::npos;
  return Cell::ofJson(isInfinite ? "null" : text).shownAs(text);
}

/// The statements of a text, answered one after another.
class Session {
 public:
  explicit Session(const SqlRequest& request) : request_(request), database_(request) {}

  void answer(const std::string& text, Output& output) {
    bool isFirst = true;
    for (const char* rest = text.c_str(); *rest != '\0';) {
      const char* const start = rest;
      sqlite3_stmt* handle = nullptr;
      const int code = sqlite3_prepare_v2(database(), start, -1, &handle, &rest);
      const Statement statement(handle);
      if (code != SQLITE_OK) failIn(text, static_cast<size_t>(start - text.c_str()));
      if (handle == nullptr) continue;
      if (!std::exchange(isFirst, false)) checkSeveral();
      answer(handle, output);
    }
  }

  std::string tables() const {
    std::vector<std::string> names;
    for (const Sqlite::TableData& table : database_.data().tables()) {
      names.emplace_back(table.table.name());
    }
    return names.empty() ? "none: give --data" : join(names, ", ");
  }

  /// Whether a statement ends in a text.
  bool isComplete(const std::string& text) const { return sqlite3_complete(text.c_str()) != 0; }

  void reportSkipped() const {
    const Sqlite::Data& data = database_.data();
    if (data.skipped == 0) return;
    std::fprintf(stderr, "velmar: note: %s, the first is %s\n",
                 formatText("{} file{} skipped", data.skipped, pluralEnd(data.skipped)).c_str(),
                 printable(data.firstSkipped).c_str());
  }

 private:
  sqlite3* database() const { return database_.handle(); }

  void checkSeveral() const {
    const Format format = request_.output.format;
    if (format == Format::json) fail("more than one statement; give one, or --format jsonl");
    if (format == Format::csv) fail("more than one statement; give one");
  }

  void answer(sqlite3_stmt* statement, Output& output) {
    const std::vector<std::string> columns = columnsOf(statement);
    if (columns.empty()) {
      throw Failure(Fault(Code::input, "no answer; statements only read: give a select"), "SQL");
    }
    const Format format = request_.output.format;
    if (format == Format::json || format == Format::jsonl) checkNames(columns);
    const auto row = [&] {
      Row cells;
      for (int i = 0; i < static_cast<int>(columns.size()); ++i) {
        cells.push_back(cellOf(statement, i));
      }
      return cells;
    };
    if (format == Format::table) {
      Listing listing(columns);
      while (hasRow(statement)) listing.add(row());
      return write(output, listing, format, {});
    }
    RowWriter rows(output.text(), rowFormatOf(format), columns, frameOf("rows", "rows"));
    while (hasRow(statement)) {
      rows.write(row());
      output.flushIfLarge();
    }
    rows.end();
  }

  /// A name that comes twice would be two members of an object.
  static void checkNames(std::vector<std::string> names) {
    std::sort(names.begin(), names.end());
    const auto twice = std::adjacent_find(names.begin(), names.end());
    if (twice == names.end()) return;
    fail("two columns have the name {}; name one of them with AS", inQuotes(*twice));
  }

  bool hasRow(sqlite3_stmt* statement) const {
    const int code = sqlite3_step(statement);
    if (code != SQLITE_ROW && code != SQLITE_DONE) throw Failure(fault(), "SQL");
    return code == SQLITE_ROW;
  }

  /// What is wrong with a statement of a text, and where.
  [[noreturn]] void failIn(const std::string& text, size_t start) const {
    Fault wrong = fault();
    const int offset = sqlite3_error_offset(database());
    if (offset >= 0) {
      const std::string before = text.substr(0, start + static_cast<size_t>(offset));
      wrong.onLine(static_cast<U64>(std::count(before.begin(), before.end(), '\n')) + 1,
                   before.size() - (before.rfind('\n') + 1) + 1);
    }
    throw Failure(wrong, "SQL");
  }

  Fault fault() const {
    const std::string message = printable(sqlite3_errmsg(database()));
    if (sqlite3_errcode(database()) == SQLITE_NOMEM) throw std::bad_alloc();
    Fault wrong(Code::input, "{}", message);
    if (!wrong.advice.isEmpty()) return wrong;
    const bool isColumn = message.rfind("no such column: ", 0) == 0;
    if (message.find("authoriz") != message.npos || message.find("may not be") != message.npos) {
      wrong.advise("statements only read: give a select");
    } else if (message.rfind("no such table: ", 0) == 0) {
      wrong.advise("the tables are {}", tables());
    } else if (isColumn) {
      wrong.advise("{}\"pragma table_info(TABLE)\" lists the columns of a table",
                   columnHint(message.substr(message.find_last_of(" .") + 1)));
    } else if (message.rfind("ambiguous column name", 0) == 0) {
      wrong.advise("write the table and a point before it, such as vlan.\"index\"");
    } else if (message.find("near \"index\"") != message.npos) {
      wrong.advise("write \"index\" in double quotes, because it is a word of SQL");
    } else {
      wrong.advise("correct the statement");
    }
    return wrong;
  }

  /// Which tables have a column that a statement does not find, or what it may be called.
  std::string columnHint(const std::string& name) const {
    std::vector<std::string> owners;
    for (const Sqlite::TableData& table : database_.data().tables()) {
      for (const Sqlite::Column& column : table.columns) {
        if (sqlite3_stricmp(column.name.c_str(), name.c_str()) == 0)
          owners.emplace_back(table.table.name());
      }
    }
    if (!owners.empty()) return formatText("it is a column of {}; ", join(owners, ", "));
    return didYouMean(name, columns());
  }

  std::vector<std::string> columns() const {
    std::vector<std::string> names;
    for (const Sqlite::TableData& table : database_.data().tables()) {
      for (const Sqlite::Column& column : table.columns) names.push_back(column.name);
    }
    std::sort(names.begin(), names.end());
    names.erase(std::unique(names.begin(), names.end()), names.end());
    return names;
  }

  const SqlRequest& request_;
  Database database_;
};

/// Answers what is typed, statement by statement. What is wrong ends only the statement.
void answerPrompt(Session& session, const SqlRequest& request) {
  std::fprintf(stderr, "Tables: %s. Statements end with a semicolon, the session with Ctrl-D.\n",
               session.tables().c_str());
  std::string text;
  char* line = nullptr;
  size_t size = 0;
  for (;;) {
    std::fputs(text.empty() ? "velmar> " : "   ...> ", stderr);
    const ssize_t read = getline(&line, &size, stdin);
    if (read < 0) break;
    text.append(line, static_cast<size_t>(read));
    if (!session.isComplete(text) && trim(text) != "\n" && !trim(text).empty()) continue;
    try {
      Output output("", request.output.color);
      session.answer(text, output);
      output.finish();
    } catch (const Failure& failure) {
      std::fprintf(stderr, "velmar: %s\n", printable(failure.what()).c_str());
    }
    text.clear();
  }
  std::free(line);
  std::fputs("\n", stderr);
}

}  // namespace

int runSql(const SqlRequest& request) {
  const bool isPrompt = request.statement.empty() && isatty(STDIN_FILENO) == 1;
  if (isPrompt && !request.output.file.empty()) {
    fail("--output is for statements that are given; give them, or pipe them in");
  }
  Session session(request);
  if (isPrompt) {
    answerPrompt(session, request);
  } else {
    Output output(request.output.file, request.output.color);
    session.answer(request.statement.empty() ? std::string(Input("-").bytes()) : request.statement,
                   output);
    output.finish();
  }
  session.reportSkipped();
  return exitSuccess;
}

}  // namespace Tool
