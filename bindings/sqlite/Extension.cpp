#include "bindings/sqlite/Tables.h"

SQLITE_EXTENSION_INIT1

extern "C" [[gnu::visibility("default")]] int sqlite3_velmar_init(
    sqlite3* database, char** error, const sqlite3_api_routines* routines);

/// What load_extension('velmar') calls.
int sqlite3_velmar_init(sqlite3* database, char** error, const sqlite3_api_routines* routines) {
  using namespace Velmar::Sqlite;
  SQLITE_EXTENSION_INIT2(routines);
  constexpr int oldest = 3038000;
  if (sqlite3_libversion_number() < oldest) {
    *error = sqlite3_mprintf("velmar needs SQLite 3.38 or later; this is %s", sqlite3_libversion());
    return SQLITE_ERROR;
  }
  return guarded([database] { return install(database, std::make_shared<Data>()); });
}
