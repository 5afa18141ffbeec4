#include "cli/Failure.h"
#include "sql/Sql.h"

// Instead of the other files of this folder, in a build without the headers of SQLite.

namespace Tool {

int runSql(const SqlRequest&) {
  fail("this velmar was built without SQL; build it where libsqlite3-dev is installed");
}

}  // namespace Tool
