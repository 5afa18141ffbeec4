#pragma once

#include "bindings/sqlite/Sqlite.h"
#include "core/Value.h"

namespace Velmar {
namespace Sqlite {

/// The ports of a value of SQL: a text of ranges such as "0-3,17" or "none", that of a family, whose fields
/// that are not zero count, or bytes with a bit for each port. Nothing if it is none of them.
std::optional<std::vector<U32>> portsOf(sqlite3_value* value);

/// has_port(), port_count(), hex() and the table ports().
int addFunctions(sqlite3* database);
/// has_port(), as a condition on a column: its code there, and the function.
constexpr int hasPortCondition = SQLITE_INDEX_CONSTRAINT_FUNCTION;
using ScalarFunction = void (*)(sqlite3_context*, int, sqlite3_value**);
extern const ScalarFunction hasPort;

}  // namespace Sqlite
}  // namespace Velmar
