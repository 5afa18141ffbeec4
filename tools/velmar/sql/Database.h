#pragma once

#include "bindings/sqlite/Tables.h"
#include "sql/Sql.h"

namespace Tool {

namespace Sqlite = Velmar::Sqlite;

/// SQLite, loaded when it is needed, with a database in memory that has the tables of a request. After
/// that it only reads.
class Database {
 public:
  explicit Database(const SqlRequest& request);
  ~Database();
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  sqlite3* handle() const { return handle_; }
  const Sqlite::Data& data() const { return *data_; }

 private:
  sqlite3* handle_ = nullptr;
  std::shared_ptr<Sqlite::Data> data_ = std::make_shared<Sqlite::Data>();
};

}  // namespace Tool
