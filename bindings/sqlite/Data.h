#pragma once

#include <deque>
#include <unordered_map>

#include "bindings/sqlite/Columns.h"
#include "bindings/sqlite/Patterns.h"

namespace Velmar {
namespace Sqlite {

/// A dump that a table takes its rows from.
struct DumpFile {
  std::string folder;  ///< of the snapshot; empty: `file` is a path of its own
  std::string file;
  Core::Notation notation = Core::Notation::automatic;
  const ChipColumns* chip = nullptr;
  U32 identifier = 0;
  std::vector<U32> values{};  ///< of the placeholders, as numbers in Table::values
  bool isBad = false;         ///< it cannot be read, and is skipped
  std::shared_ptr<Entries> entries{};

  std::string path() const;
};

/// The values of a placeholder, and the dumps that have them.
struct PlaceholderValues {
  std::vector<std::string> texts;
  std::unordered_map<std::string, U32> numbers;  ///< of the texts
  std::vector<std::vector<U32>> dumps;           ///< of each text
};

/// A table of SQL: a class, with the entries of all its dumps as rows.
struct TableData {
  TableData(const Catalogue::Table& ofClass, std::vector<std::string> names)
      : table(ofClass), placeholders(std::move(names)), values(placeholders.size()) {}

  const ChipColumns& chipOf(const Core::Layout& layout);
  void add(DumpFile dump, const Match& match);
  /// Entries that the dumps have if they are whole.
  U64 mostRows() const;
  U64 mostBytes() const;

  Catalogue::Table table;
  std::vector<std::string> placeholders;
  std::vector<std::unique_ptr<ChipColumns>> chips;
  std::vector<Column> columns;
  std::vector<DumpFile> dumps;
  std::vector<PlaceholderValues> values;  ///< of each placeholder
};

/// Where a file is wrong, and how.
struct BadFile {
  std::string path;
  Core::Fault fault;
};
/// A fault is large, and most results have none.
template <class Result>
using Readable = tl::expected<Result, std::shared_ptr<const BadFile>>;

/// What SQL asks of: tables, their dumps, and what of them is in memory.
class Data {
 public:
  /// Opens what a text names: snapshots as "lab/" or "fleet/{switch}/", or the dumps of one table as
  /// "vlan=dumps/{switch}.bin", which need a chip. Returns the new tables.
  Readable<std::vector<TableData*>> open(const std::string& text,
                                         const std::optional<Catalogue::Chip>& chip, U8 variant);

  /// The entries of a dump, as far as they are used; null for one that is skipped. Without a need for the
  /// bytes only the numbers are kept.
  Readable<std::shared_ptr<Entries>> load(const TableData& table, DumpFile& dump,
                                          const Usage& usage);

  std::deque<TableData>& tables() { return tables_; }
  const std::deque<TableData>& tables() const { return tables_; }

  bool skipsBad = false;
  U64 skipped = 0;  ///< files
  std::string firstSkipped;

 private:
  static constexpr U64 mostBytes = U64{512} << 20;

  Readable<void> takeDump(const Match& match, const Catalogue::Table& table,
                          const std::optional<Catalogue::Chip>& chip, U8 variant);
  Readable<void> takeSnapshot(const Match& match, const std::optional<Catalogue::Table>& table);
  Readable<void> take(const Match& match, const std::optional<Catalogue::Table>& table,
                      const std::optional<Catalogue::Chip>& chip, U8 variant);
  TableData& tableOf(const Catalogue::Table& table);
  Readable<void> refused(const std::string& path, const Core::Fault& fault);
  void keep(DumpFile& dump, const std::shared_ptr<Entries>& entries);
  void forget(DumpFile& dump);

  std::deque<TableData> tables_;
  std::vector<std::string> placeholders_;  ///< of what is being opened
  size_t openedBefore_ = 0;                ///< tables of what was opened before
  std::deque<DumpFile*> loaded_;
  U64 loadedBytes_ = 0;
};

/// "path: what is wrong; what to do", as SQL says it.
std::string messageOf(const BadFile& bad);

}  // namespace Sqlite
}  // namespace Velmar
