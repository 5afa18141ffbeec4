#pragma once

#include "bindings/sqlite/Data.h"
#include "bindings/sqlite/Sqlite.h"

namespace Velmar {
namespace Sqlite {

/// What a query asks of a table, as far as the table can answer itself. SQLite checks each row again.
struct Plan {
  struct Test {
    int column;
    U8 operation;  ///< of SQLite, such as SQLITE_INDEX_CONSTRAINT_EQ
  };
  struct Order {
    int column;
    bool isDescending;
  };

  std::vector<Test> tests;
  std::vector<Order> order;
  Usage usage;
  bool isDistinct = false;  ///< of rows with the same values in the order, one is enough
};

/// Goes through the rows of a table that fit a plan.
class Cursor : public sqlite3_vtab_cursor {
 public:
  Cursor(Data& data, TableData& table) : sqlite3_vtab_cursor(), data_(data), table_(table) {}

  /// Starts with the first row. `values` are those of the tests.
  Readable<void> start(const Plan& plan, sqlite3_value** values);
  Readable<void> next();
  bool isAtEnd() const { return isAtEnd_; }
  void giveColumn(sqlite3_context* context, int column) const;
  sqlite3_int64 rowNumber() const {
    return static_cast<sqlite3_int64>(U64{dump_} << 32 | U64{row_});
  }

 private:
  /// A test with its value.
  struct Bounds {
    size_t column;
    sqlite3_int64 first, last;
  };
  struct PortTest {
    size_t column;
    sqlite3_int64 port;
  };
  struct ValueTest {
    size_t placeholder;
    U32 value;
  };

  void addTest(const Column& column, size_t number, U8 operation, sqlite3_value* value);
  void addBounds(size_t column, U8 operation, sqlite3_int64 number);
  Readable<bool> nextDump();
  bool isMeant(const DumpFile& dump) const;
  void selectRows();
  void limitByIndex();
  void keepRows(const Bounds& bounds);
  void keepRows(const PortTest& test);
  template <class Keep>
  void keepIf(const Keep& keep);
  void step();
  Readable<void> sort(const Plan& plan);
  void goToSorted();
  void giveField(sqlite3_context* context, size_t column) const;

  Data& data_;
  const Plan* plan_ = nullptr;
  TableData& table_;
  bool isAtEnd_ = true;

  std::vector<Bounds> bounds_;
  std::vector<PortTest> ports_;
  std::vector<ValueTest> values_;
  bool isEmpty_ = false;                     ///< no row can fit
  const std::vector<U32>* dumps_ = nullptr;  ///< the dumps to go through; null: all
  size_t nextDump_ = 0;

  U32 dump_ = 0;  ///< the current one
  std::shared_ptr<Entries> entries_;
  std::vector<U32> rows_;  ///< of the current dump, unless all from next_ to end_ fit
  bool isRange_ = true;
  size_t next_ = 0, end_ = 0;
  U32 row_ = 0;

  std::vector<U64> sorted_;                              ///< dump and row of each
  std::vector<std::shared_ptr<Entries>> sortedEntries_;  ///< of each dump
  bool isSorted_ = false;
};

/// How many bits all values of the columns of an order have together.
U32 orderBits(const TableData& table, const std::vector<Plan::Order>& order);

}  // namespace Sqlite
}  // namespace Velmar
