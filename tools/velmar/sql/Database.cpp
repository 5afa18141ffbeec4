#include "sql/Database.h"

#include <dlfcn.h>

#include <array>

#include "cli/Failure.h"

SQLITE_EXTENSION_INIT1

namespace Tool {
namespace {

constexpr const char* libraryName = "libsqlite3.so.0";

/// What SQLite calls for each new connection: it hands over its routines.
int takeRoutines(sqlite3*, char**, const sqlite3_api_routines* routines) {
  SQLITE_EXTENSION_INIT2(routines);
  return SQLITE_OK;
}

template <class Function>
Function found(void* library, const char* name) {
  auto* const function = reinterpret_cast<Function>(dlsym(library, name));
  if (function == nullptr) {
    fail("{} has no {}; install SQLite's library, version 3.38 or later", libraryName, name);
  }
  return function;
}

sqlite3* openDatabase() {
  void* const library = dlopen(libraryName, RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) {
    fail("SQL needs SQLite's library, and {} is not there; install it (Debian: libsqlite3-0)",
         libraryName);
  }
  using Entry = void (*)();
  const auto extend = found<int (*)(Entry)>(library, "sqlite3_auto_extension");
  const auto open =
      found<int (*)(const char*, sqlite3**, int, const char*)>(library, "sqlite3_open_v2");
  const auto version = found<int (*)()>(library, "sqlite3_libversion_number");
  constexpr int oldest = 3038000;
  if (version() < oldest) {
    fail("{} is older than 3.38; install a later version of SQLite's library", libraryName);
  }
  extend(reinterpret_cast<Entry>(takeRoutines));
  sqlite3* database = nullptr;
  const int code = open(":memory:", &database, SQLITE_OPEN_READWRITE, nullptr);
  if (code != SQLITE_OK || database == nullptr) throw std::bad_alloc();
  return database;
}

/// Statements read the tables, and say what columns they have; they do nothing else.
int authorize(void*, int action, const char* first, const char* second, const char*, const char*) {
  switch (action) {
    case SQLITE_SELECT:
    case SQLITE_READ:
    case SQLITE_RECURSIVE:
      return SQLITE_OK;
    case SQLITE_FUNCTION:
      for (const char* name : {"load_extension", "velmar_data"}) {
        if (sqlite3_stricmp(second, name) == 0) return SQLITE_DENY;
      }
      return SQLITE_OK;
    case SQLITE_PRAGMA:
      for (const char* name : {"table_info", "table_xinfo", "table_list", "function_list"}) {
        if (sqlite3_stricmp(first, name) == 0) return SQLITE_OK;
      }
      return SQLITE_DENY;
    default:
      return SQLITE_DENY;
  }
}

}  // namespace

Database::Database(const SqlRequest& request) : handle_(openDatabase()) {
  // A name in double quotes that is no column would count as a text.
  sqlite3_db_config(handle_, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
  if (Sqlite::install(handle_, data_) != SQLITE_OK) throw std::bad_alloc();
  data_->skipsBad = request.skipsBad;
  for (const std::string& text : request.data) {
    const auto names = Sqlite::addTables(handle_, *data_, text, request.chip, request.variant);
    if (!names) throw Failure(names.error()->fault, names.error()->path);
  }
  // These tables are made when they are first named, which is more than reading.
  for (const char* statement :
       {"select * from ports('none')", "select * from pragma_table_info('')",
        "select * from pragma_table_xinfo('')", "select * from pragma_table_list('')"}) {
    sqlite3_exec(handle_, statement, nullptr, nullptr, nullptr);
  }
  sqlite3_set_authorizer(handle_, authorize, nullptr);
}

Database::~Database() { sqlite3_close_v2(handle_); }

}  // namespace Tool
