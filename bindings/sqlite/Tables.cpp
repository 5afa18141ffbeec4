#include "bindings/sqlite/Tables.h"

#include <algorithm>
#include <cstring>

#include "bindings/sqlite/Cursor.h"
#include "bindings/sqlite/Ports.h"

// The tables are virtual ones of SQLite: it asks for a plan, then for rows and their columns.

namespace Velmar {
namespace Sqlite {

namespace {

constexpr const char* moduleName = "velmar";

struct Table : sqlite3_vtab {
  Table(std::shared_ptr<Data> allData, TableData& tableData)
      : sqlite3_vtab(), data(std::move(allData)), of(tableData) {}

  /// The number of a plan, for xFilter.
  int numberOf(const Plan& plan);

  std::shared_ptr<Data> data;
  TableData& of;
  std::vector<std::unique_ptr<Plan>> plans;
};

bool isSame(const Plan& a, const Plan& b) {
  const auto isSameTest = [](const Plan::Test& x, const Plan::Test& y) {
    return x.column == y.column && x.operation == y.operation;
  };
  const auto isSameOrder = [](const Plan::Order& x, const Plan::Order& y) {
    return x.column == y.column && x.isDescending == y.isDescending;
  };
  return a.isDistinct == b.isDistinct && a.usage.needsBytes == b.usage.needsBytes &&
         a.usage.numbers == b.usage.numbers &&
         std::equal(a.tests.begin(), a.tests.end(), b.tests.begin(), b.tests.end(), isSameTest) &&
         std::equal(a.order.begin(), a.order.end(), b.order.begin(), b.order.end(), isSameOrder);
}

int Table::numberOf(const Plan& plan) {
  for (size_t i = 0; i < plans.size(); ++i) {
    if (isSame(*plans[i], plan)) return static_cast<int>(i);
  }
  plans.push_back(std::make_unique<Plan>(plan));
  return static_cast<int>(plans.size() - 1);
}

int report(sqlite3_vtab* table, const BadFile& bad) {
  sqlite3_free(table->zErrMsg);
  table->zErrMsg = sqlite3_mprintf("%s", Core::printable(messageOf(bad)).c_str());
  return SQLITE_ERROR;
}

int codeOf(const Readable<void>& result, sqlite3_vtab* table) {
  return result ? SQLITE_OK : report(table, *result.error());
}

std::string quotedName(const std::string& name) { return "\"" + name + "\""; }

std::string declarationOf(const TableData& data) {
  std::string text = "create table t(";
  for (const Column& column : data.columns) {
    if (&column != &data.columns.front()) text += ", ";
    text += quotedName(column.name);
    text += column.kind == ColumnKind::ports ? " blob hidden"
            : column.isNumber                ? " integer"
                                             : " text";
  }
  return text + ")";
}

int connect(sqlite3* database, void* context, int count, const char* const* words,
            sqlite3_vtab** table, char** error) {
  return guarded([&] {
    const auto& data = *static_cast<std::shared_ptr<Data>*>(context);
    constexpr int firstArgument = 3;
    const std::optional<U64> number =
        count == firstArgument + 1 ? Core::parseNumber(words[firstArgument]) : std::nullopt;
    if (!number || *number >= data->tables().size()) {
      *error = sqlite3_mprintf("no data for the table; make tables with velmar_data()");
      return SQLITE_ERROR;
    }
    TableData& of = data->tables()[static_cast<size_t>(*number)];
    const int code = sqlite3_declare_vtab(database, declarationOf(of).c_str());
    if (code == SQLITE_OK) *table = new Table(data, of);
    return code;
  });
}

int disconnect(sqlite3_vtab* table) {
  delete static_cast<Table*>(table);
  return SQLITE_OK;
}

/// Whether the table can test a column itself.
bool isTestable(const Column& column, U8 operation, const char* collation) {
  const bool isEqual = operation == SQLITE_INDEX_CONSTRAINT_EQ;
  if (operation == hasPortCondition) return column.hasPorts;
  if (column.kind == ColumnKind::placeholder) {
    return isEqual && std::strcmp(collation, "BINARY") == 0;
  }
  return column.isNumber &&
         (isEqual || operation == SQLITE_INDEX_CONSTRAINT_LT ||
          operation == SQLITE_INDEX_CONSTRAINT_LE || operation == SQLITE_INDEX_CONSTRAINT_GT ||
          operation == SQLITE_INDEX_CONSTRAINT_GE);
}

/// What a plan costs: rows that are looked at, and rows that are given.
struct Estimate {
  double dumps, entries, rows;

  void limit(const TableData& data, const Column& column, bool isEqual) {
    constexpr double fewest = 1;
    if (column.kind == ColumnKind::placeholder) {
      const auto values = static_cast<double>(data.values[column.number].texts.size());
      dumps /= values;
      entries /= values;
      rows /= values;
    } else if (column.kind == ColumnKind::index) {
      entries = isEqual ? dumps : entries / 2;
      rows = std::min(rows, entries);
    } else {
      rows /= isEqual ? 16 : 2;
    }
    rows = std::max(rows, fewest);
  }
};

/// The order that SQLite asks for, if the table can give it: of few small numbers, and not of more dumps
/// than memory keeps.
std::vector<Plan::Order> orderOf(const TableData& data, const sqlite3_index_info* info) {
  constexpr U32 mostBits = 20;
  constexpr U64 mostRows = U64{16} << 20, mostBytes = U64{256} << 20;
  std::vector<Plan::Order> order;
  for (int i = 0; i < info->nOrderBy; ++i) {
    const auto& one = info->aOrderBy[i];
    const bool isNumber =
        one.iColumn >= 0 && data.columns[static_cast<size_t>(one.iColumn)].isNumber;
    if (!isNumber) return {};
    order.push_back({one.iColumn, one.desc != 0});
  }
  const bool isSmall = orderBits(data, order) <= mostBits && data.mostRows() <= mostRows &&
                       data.mostBytes() <= mostBytes;
  return isSmall ? order : std::vector<Plan::Order>();
}

/// What a query needs of the entries: the columns that it uses, and those of the plan.
Usage usageOf(const TableData& data, const Plan& plan, U64 used) {
  constexpr size_t lastBit = 63;  // which stands for all further columns
  Usage usage;
  usage.needsBytes = (used >> lastBit & 1) != 0 && data.columns.size() > lastBit;
  for (const Plan::Order& one : plan.order)
    usage.numbers.push_back(static_cast<size_t>(one.column));
  for (const Plan::Test& one : plan.tests) usage.numbers.push_back(static_cast<size_t>(one.column));
  for (size_t i = 0; i < std::min(lastBit, data.columns.size()); ++i) {
    if ((used >> i & 1) != 0) usage.numbers.push_back(i);
  }
  const auto isElsewhere = [&](size_t column) {
    const ColumnKind kind = data.columns[column].kind;
    const bool isNumber = data.columns[column].isNumber;
    if (!isNumber && kind != ColumnKind::placeholder) usage.needsBytes = true;
    return !isNumber || kind == ColumnKind::index || kind == ColumnKind::identifier ||
           kind == ColumnKind::address;
  };
  std::vector<size_t>& numbers = usage.numbers;
  std::sort(numbers.begin(), numbers.end());
  numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
  numbers.erase(std::remove_if(numbers.begin(), numbers.end(), isElsewhere), numbers.end());
  return usage;
}

/// Whether the query uses no other columns than those of the order.
bool usesOnly(const std::vector<Plan::Order>& order, U64 used) {
  constexpr int lastBit = 63;  // which stands for all further columns
  for (const Plan::Order& one : order) {
    if (one.column < lastBit) used &= ~(U64{1} << one.column);
  }
  return used == 0;
}

int plan(sqlite3_vtab* table, sqlite3_index_info* info) {
  return guarded([&] {
    Table& to = *static_cast<Table*>(table);
    const TableData& data = to.of;
    Plan made;
    const auto whole = static_cast<double>(data.mostRows());
    Estimate estimate{static_cast<double>(data.dumps.size()), whole, whole};
    for (int i = 0; i < info->nConstraint; ++i) {
      const auto& constraint = info->aConstraint[i];
      if (constraint.usable == 0 || constraint.iColumn < 0) continue;
      const Column& column = data.columns[static_cast<size_t>(constraint.iColumn)];
      const char* const collation = sqlite3_vtab_collation(info, i);
      if (!isTestable(column, constraint.op, collation)) continue;
      made.tests.push_back({constraint.iColumn, constraint.op});
      info->aConstraintUsage[i].argvIndex = static_cast<int>(made.tests.size());
      estimate.limit(data, column, constraint.op == SQLITE_INDEX_CONSTRAINT_EQ);
    }
    made.order = orderOf(data, info);
    if (!made.order.empty()) {
      info->orderByConsumed = 1;
      made.isDistinct = sqlite3_vtab_distinct(info) >= 2 && usesOnly(made.order, info->colUsed);
    }
    made.usage = usageOf(data, made, info->colUsed);
    info->estimatedCost = 100 * estimate.dumps + estimate.entries + 4 * estimate.rows;
    info->estimatedRows = static_cast<sqlite3_int64>(estimate.rows);
    info->idxNum = to.numberOf(made);
    return SQLITE_OK;
  });
}

int open(sqlite3_vtab* table, sqlite3_vtab_cursor** cursor) {
  return guarded([&] {
    Table& of = *static_cast<Table*>(table);
    *cursor = new Cursor(*of.data, of.of);
    return SQLITE_OK;
  });
}

Cursor& cursorOf(sqlite3_vtab_cursor* cursor) { return *static_cast<Cursor*>(cursor); }

int close(sqlite3_vtab_cursor* cursor) {
  delete &cursorOf(cursor);
  return SQLITE_OK;
}

int filter(sqlite3_vtab_cursor* cursor, int number, const char*, int, sqlite3_value** values) {
  return guarded([&] {
    const Table& table = *static_cast<Table*>(cursor->pVtab);
    const Plan& plan = *table.plans[static_cast<size_t>(number)];
    return codeOf(cursorOf(cursor).start(plan, values), cursor->pVtab);
  });
}

int next(sqlite3_vtab_cursor* cursor) {
  return guarded([&] { return codeOf(cursorOf(cursor).next(), cursor->pVtab); });
}

int isAtEnd(sqlite3_vtab_cursor* cursor) { return cursorOf(cursor).isAtEnd() ? 1 : 0; }

int column(sqlite3_vtab_cursor* cursor, sqlite3_context* context, int number) {
  return guarded([&] {
    cursorOf(cursor).giveColumn(context, number);
    return SQLITE_OK;
  });
}

int rowNumber(sqlite3_vtab_cursor* cursor, sqlite3_int64* number) {
  *number = cursorOf(cursor).rowNumber();
  return SQLITE_OK;
}

/// has_port() is also a condition that the table tests.
int findFunction(sqlite3_vtab*, int arguments, const char* name, ScalarFunction* function, void**) {
  if (arguments != 2 || sqlite3_stricmp(name, "has_port") != 0) return 0;
  *function = hasPort;
  return hasPortCondition;
}

sqlite3_module tableModule() {
  sqlite3_module module{};
  module.xCreate = connect;
  module.xConnect = connect;
  module.xDisconnect = disconnect;
  module.xDestroy = disconnect;
  module.xBestIndex = plan;
  module.xOpen = open;
  module.xClose = close;
  module.xFilter = filter;
  module.xNext = next;
  module.xEof = isAtEnd;
  module.xColumn = column;
  module.xRowid = rowNumber;
  module.xFindFunction = findFunction;
  return module;
}

void release(void* data) { delete static_cast<std::shared_ptr<Data>*>(data); }

Readable<void> makeTable(sqlite3* database, const std::string& name, size_t number) {
  const std::string statement = Core::formatText("create virtual table temp.{} using {}({})",
                                                 quotedName(name), moduleName, number);
  if (sqlite3_exec(database, statement.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK) return {};
  const Core::Fault fault(Core::Code::option, "{}; drop the table that has the name",
                          Core::printable(sqlite3_errmsg(database)));
  return tl::make_unexpected(std::make_shared<const BadFile>(BadFile{name, fault}));
}

/// velmar_data(path), velmar_data(path, chip).
void addData(sqlite3_context* context, int count, sqlite3_value** arguments) {
  const auto textOf = [](sqlite3_value* value) {
    const auto* const text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return std::string(text == nullptr ? "" : text);
  };
  const auto fail = [context](const std::string& text) {
    sqlite3_result_error(context, Core::printable(text).c_str(), -1);
  };
  guarded([&] {
    Data& data = **static_cast<std::shared_ptr<Data>*>(sqlite3_user_data(context));
    std::optional<Catalogue::Chip> chip;
    if (count == 2) {
      const auto found = Core::findChip(textOf(arguments[1]));
      if (!found) fail(messageOf({"", found.error()}));
      if (!found) return SQLITE_ERROR;
      chip = *found;
    }
    const Readable<std::string> names =
        addTables(sqlite3_context_db_handle(context), data, textOf(arguments[0]), chip, 0);
    if (!names) fail(messageOf(*names.error()));
    if (!names) return SQLITE_ERROR;
    sqlite3_result_text(context, names->data(), static_cast<int>(names->size()), SQLITE_TRANSIENT);
    return SQLITE_OK;
  });
}

}  // namespace

Readable<std::string> addTables(sqlite3* database, Data& data, const std::string& text,
                                const std::optional<Catalogue::Chip>& chip, U8 variant) {
  const size_t before = data.tables().size();
  const auto opened = data.open(text, chip, variant);
  if (!opened) return tl::make_unexpected(opened.error());
  std::vector<std::string> names;
  for (size_t i = 0; i < opened->size(); ++i) {
    const std::string name = (*opened)[i]->table.name();
    const size_t size = Core::SimpleName(name).withoutSuffix().size();
    for (const std::string& one : {name, name.substr(0, size)}) {
      const Readable<void> made = makeTable(database, one, before + i);
      if (!made) return tl::make_unexpected(made.error());
    }
    names.push_back(name);
  }
  return Core::join(names, ", ");
}

int install(sqlite3* database, const std::shared_ptr<Data>& data) {
  static const sqlite3_module tables = tableModule();
  const int code = addFunctions(database);
  if (code != SQLITE_OK) return code;
  for (const int arguments : {1, 2}) {
    const int added = sqlite3_create_function_v2(
        database, "velmar_data", arguments, SQLITE_UTF8 | SQLITE_DIRECTONLY,
        new std::shared_ptr<Data>(data), addData, nullptr, nullptr, release);
    if (added != SQLITE_OK) return added;
  }
  return sqlite3_create_module_v2(database, moduleName, &tables, new std::shared_ptr<Data>(data),
                                  release);
}

}  // namespace Sqlite
}  // namespace Velmar
