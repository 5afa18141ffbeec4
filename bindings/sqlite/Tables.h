#pragma once

#include "bindings/sqlite/Data.h"
#include "bindings/sqlite/Sqlite.h"

namespace Velmar {
namespace Sqlite {

/// Adds the functions and the module of the tables to a database connection. The tables are those of the
/// data.
int install(sqlite3* database, const std::shared_ptr<Data>& data);

/// Opens what a text names, and makes its tables known: each under the name of its class and under that
/// without "Entry" or "Control". Returns the names of the classes.
Readable<std::string> addTables(sqlite3* database, Data& data, const std::string& text,
                                const std::optional<Catalogue::Chip>& chip, U8 variant);

}  // namespace Sqlite
}  // namespace Velmar
