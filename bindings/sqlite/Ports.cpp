#include "bindings/sqlite/Ports.h"

#include <algorithm>
#include <cstring>

#include "core/Text.h"

namespace Velmar {
namespace Sqlite {

namespace {

constexpr U32 mostPorts = 4096;

/// Takes a number from the beginning of a text.
std::optional<U32> takeNumber(std::string_view& text) {
  size_t digits = 0;
  U32 number = 0;
  while (digits < text.size() && Core::isDecimalDigit(text[digits]) && number < mostPorts) {
    number = 10 * number + static_cast<U32>(text[digits++] - '0');
  }
  text.remove_prefix(digits);
  return digits == 0 || number >= mostPorts ? std::nullopt : std::optional<U32>(number);
}

bool takeIf(std::string_view& text, char character) {
  const bool isNext = !text.empty() && text[0] == character;
  if (isNext) text.remove_prefix(1);
  return isNext;
}

/// Calls a function with each range of ports; false for a text of something else.
template <class Take>
bool takeRanges(std::string_view text, const Take& take) {
  if (text.empty() || text == "none") return true;
  bool counts = true;
  while (!text.empty()) {
    while (takeIf(text, ' ')) continue;
    const std::string_view start = text;
    std::string_view value = text;
    // Of a family: "3: 1-9".
    while (!value.empty() && Core::isDecimalDigit(value[0])) value.remove_prefix(1);
    if (value.size() != text.size() && takeIf(value, ':')) {
      counts = start[0] != '0';
      text = value;
      continue;
    }
    const std::optional<U32> first = takeNumber(text);
    const std::optional<U32> last = first && takeIf(text, '-') ? takeNumber(text) : first;
    if (!first || !last || *last < *first) return false;
    if (counts) take(*first, *last);
    if (!takeIf(text, ',') && !text.empty() && text[0] != ' ') return false;
  }
  return true;
}

std::string_view textOf(sqlite3_value* value) {
  const auto* const text = reinterpret_cast<const char*>(sqlite3_value_text(value));
  return {text == nullptr ? "" : text, static_cast<size_t>(sqlite3_value_bytes(value))};
}

/// Calls a function with each range of ports of a value.
template <class Take>
bool takePorts(sqlite3_value* value, const Take& take) {
  const int type = sqlite3_value_type(value);
  if (type == SQLITE_TEXT) return takeRanges(textOf(value), take);
  if (type != SQLITE_BLOB) return false;
  const auto* const bytes = static_cast<const U8*>(sqlite3_value_blob(value));
  const auto size = static_cast<U32>(sqlite3_value_bytes(value));
  for (U32 port = 0; port < 8 * size; ++port) {
    if ((bytes[port / 8] & 1U << port % 8) != 0) take(port, port);
  }
  return true;
}

void failNoPorts(sqlite3_context* context) {
  sqlite3_result_error(context, "not ports; give a bitmap, or a text of ranges such as '0-3,17'",
                       -1);
}

void hasPortFunction(sqlite3_context* context, int, sqlite3_value** arguments) {
  const bool hasNull = sqlite3_value_type(arguments[0]) == SQLITE_NULL ||
                       sqlite3_value_type(arguments[1]) == SQLITE_NULL;
  if (hasNull) return;
  if (sqlite3_value_type(arguments[1]) != SQLITE_INTEGER) {
    return sqlite3_result_error(context, "not a port; give a number to has_port", -1);
  }
  const sqlite3_int64 port = sqlite3_value_int64(arguments[1]);
  bool isFound = false;
  const auto look = [&](U32 first, U32 last) {
    isFound = isFound || (first <= port && port <= last);
  };
  if (!takePorts(arguments[0], look)) return failNoPorts(context);
  sqlite3_result_int(context, isFound ? 1 : 0);
}

void portCount(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (sqlite3_value_type(arguments[0]) == SQLITE_NULL) return;
  U32 count = 0;
  const auto look = [&](U32 first, U32 last) { count += last - first + 1; };
  if (!takePorts(arguments[0], look)) return failNoPorts(context);
  sqlite3_result_int64(context, count);
}

/// Of a number its hexadecimal digits after 0x; of anything else its bytes, as in SQLite.
void hex(sqlite3_context* context, int, sqlite3_value** arguments) {
  std::string text;
  if (sqlite3_value_type(arguments[0]) == SQLITE_INTEGER) {
    text = Core::formatText("0x{:x}", static_cast<U64>(sqlite3_value_int64(arguments[0])));
  } else {
    const auto* const bytes = static_cast<const U8*>(sqlite3_value_blob(arguments[0]));
    const int size = sqlite3_value_bytes(arguments[0]);
    for (int i = 0; i < size; ++i) text += Core::formatText("{:02X}", bytes[i]);
  }
  sqlite3_result_text(context, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

/// A function that SQL calls, guarded.
template <ScalarFunction function>
void called(sqlite3_context* context, int count, sqlite3_value** arguments) {
  try {
    function(context, count, arguments);
  } catch (const std::bad_alloc&) {
    sqlite3_result_error_nomem(context);
  }
}

// The table ports(bitmap): a row for each port.

struct PortsCursor : sqlite3_vtab_cursor {
  std::vector<U32> ports;
  size_t at = 0;
};

PortsCursor& cursorOf(sqlite3_vtab_cursor* cursor) { return *static_cast<PortsCursor*>(cursor); }

constexpr int argumentColumn = 1;

int connectPorts(sqlite3* database, void*, int, const char* const*, sqlite3_vtab** table, char**) {
  *table = new (std::nothrow) sqlite3_vtab();
  if (*table == nullptr) return SQLITE_NOMEM;
  return sqlite3_declare_vtab(database, "create table ports(port integer, argument hidden)");
}

int disconnectPorts(sqlite3_vtab* table) {
  delete table;
  return SQLITE_OK;
}

int planPorts(sqlite3_vtab*, sqlite3_index_info* info) {
  for (int i = 0; i < info->nConstraint; ++i) {
    const auto& constraint = info->aConstraint[i];
    if (constraint.iColumn != argumentColumn || constraint.op != SQLITE_INDEX_CONSTRAINT_EQ)
      continue;
    if (constraint.usable == 0) return SQLITE_CONSTRAINT;
    info->aConstraintUsage[i].argvIndex = 1;
    info->aConstraintUsage[i].omit = 1;
    info->estimatedRows = 64;
    info->estimatedCost = 64;
    info->idxNum = 1;
    return SQLITE_OK;
  }
  return SQLITE_OK;
}

int openPorts(sqlite3_vtab*, sqlite3_vtab_cursor** cursor) {
  *cursor = new (std::nothrow) PortsCursor();
  return *cursor == nullptr ? SQLITE_NOMEM : SQLITE_OK;
}

int closePorts(sqlite3_vtab_cursor* cursor) {
  delete &cursorOf(cursor);
  return SQLITE_OK;
}

int filterPorts(sqlite3_vtab_cursor* cursor, int plan, const char*, int, sqlite3_value** values) {
  return guarded([&] {
    PortsCursor& to = cursorOf(cursor);
    to.ports.clear();
    to.at = 0;
    const bool isNull = plan == 1 && sqlite3_value_type(values[0]) == SQLITE_NULL;
    if (isNull) return SQLITE_OK;
    const std::optional<std::vector<U32>> ports = plan == 1 ? portsOf(values[0]) : std::nullopt;
    if (ports) to.ports = *ports;
    if (ports) return SQLITE_OK;
    sqlite3_free(cursor->pVtab->zErrMsg);
    cursor->pVtab->zErrMsg = sqlite3_mprintf("ports: no ports; give a bitmap, as in ports(bitmap)");
    return SQLITE_ERROR;
  });
}

int nextPort(sqlite3_vtab_cursor* cursor) {
  ++cursorOf(cursor).at;
  return SQLITE_OK;
}

int isAtEndOfPorts(sqlite3_vtab_cursor* cursor) {
  return cursorOf(cursor).at >= cursorOf(cursor).ports.size() ? 1 : 0;
}

int portColumn(sqlite3_vtab_cursor* cursor, sqlite3_context* context, int column) {
  const PortsCursor& from = cursorOf(cursor);
  if (column != argumentColumn) sqlite3_result_int64(context, from.ports[from.at]);
  return SQLITE_OK;
}

int portRow(sqlite3_vtab_cursor* cursor, sqlite3_int64* row) {
  *row = static_cast<sqlite3_int64>(cursorOf(cursor).at);
  return SQLITE_OK;
}

sqlite3_module portsModule() {
  sqlite3_module module{};
  module.xConnect = connectPorts;
  module.xDisconnect = disconnectPorts;
  module.xBestIndex = planPorts;
  module.xOpen = openPorts;
  module.xClose = closePorts;
  module.xFilter = filterPorts;
  module.xNext = nextPort;
  module.xEof = isAtEndOfPorts;
  module.xColumn = portColumn;
  module.xRowid = portRow;
  return module;
}

}  // namespace

const ScalarFunction hasPort = called<hasPortFunction>;

std::optional<std::vector<U32>> portsOf(sqlite3_value* value) {
  std::vector<U32> ports;
  const auto add = [&](U32 first, U32 last) {
    for (U32 port = first; port <= last; ++port) ports.push_back(port);
  };
  if (!takePorts(value, add)) return std::nullopt;
  std::sort(ports.begin(), ports.end());
  ports.erase(std::unique(ports.begin(), ports.end()), ports.end());
  return ports;
}

int addFunctions(sqlite3* database) {
  static const sqlite3_module ports = portsModule();
  const struct {
    const char* name;
    int arguments;
    ScalarFunction function;
    int encoding;
  } functions[] = {
      {"has_port", 2, hasPort, SQLITE_UTF8},
      {"port_count", 1, called<portCount>,
       SQLITE_UTF8},  // One of SQLite's own is not replaced while load_extension() runs, but goes behind this.
      {"hex", 1, called<hex>, SQLITE_UTF16}};
  for (const auto& one : functions) {
    const int code = sqlite3_create_function_v2(
        database, one.name, one.arguments, one.encoding | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS,
        nullptr, one.function, nullptr, nullptr, nullptr);
    if (code != SQLITE_OK) return code;
  }
  return sqlite3_create_module_v2(database, "ports", &ports, nullptr, nullptr);
}

}  // namespace Sqlite
}  // namespace Velmar
