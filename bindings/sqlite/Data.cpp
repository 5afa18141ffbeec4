#include "bindings/sqlite/Data.h"

#include <algorithm>

#include "files/Files.h"

namespace Velmar {
namespace Sqlite {

using Core::Code;
using Core::Fault;

namespace {

tl::unexpected<std::shared_ptr<const BadFile>> bad(const std::string& path, const Fault& fault) {
  return tl::make_unexpected(std::make_shared<const BadFile>(BadFile{path, fault}));
}

/// A placeholder must not hide a column.
std::optional<Fault> checkPlaceholders(const TableData& data) {
  for (size_t i = 0; i < data.columns.size(); ++i) {
    if (data.columns[i].kind != ColumnKind::placeholder) continue;
    for (size_t j = 0; j < data.columns.size(); ++j) {
      const bool isSame =
          Core::simplified(data.columns[i].name) == Core::simplified(data.columns[j].name);
      if (i == j || !isSame) continue;
      return Fault(Code::option,
                   "placeholder {{{}}} has the name of a column of {}; choose another name",
                   data.columns[i].name, data.table.name());
    }
  }
  return std::nullopt;
}

}  // namespace

std::string DumpFile::path() const { return folder.empty() ? file : Files::pathIn(folder, file); }

const ChipColumns& TableData::chipOf(const Core::Layout& layout) {
  for (const auto& chip : chips) {
    if (chip->layout.chip().number == layout.chip().number &&
        chip->layout.variant() == layout.variant()) {
      return *chip;
    }
  }
  chips.push_back(std::make_unique<ChipColumns>(layout));
  return *chips.back();
}

void TableData::add(DumpFile dump, const Match& match) {
  for (size_t i = 0; i < placeholders.size(); ++i) {
    PlaceholderValues& of = values[i];
    const auto [found, isNew] =
        of.numbers.emplace(match.values[i], static_cast<U32>(of.texts.size()));
    if (isNew) of.texts.push_back(match.values[i]);
    if (isNew) of.dumps.emplace_back();
    of.dumps[found->second].push_back(static_cast<U32>(dumps.size()));
    dump.values.push_back(found->second);
  }
  dumps.push_back(std::move(dump));
}

U64 TableData::mostRows() const {
  U64 rows = 0;
  for (const DumpFile& dump : dumps) rows += dump.chip->layout.indexCount();
  return rows;
}

U64 TableData::mostBytes() const {
  U64 bytes = 0;
  for (const DumpFile& dump : dumps) {
    bytes += U64{dump.chip->layout.indexCount()} * dump.chip->layout.entryBytes();
  }
  return bytes;
}

TableData& Data::tableOf(const Catalogue::Table& table) {
  for (size_t i = openedBefore_; i < tables_.size(); ++i) {
    if (tables_[i].table.name() == std::string_view(table.name())) return tables_[i];
  }
  return tables_.emplace_back(table, placeholders_);
}

Readable<void> Data::refused(const std::string& path, const Fault& fault) {
  if (!skipsBad) return bad(path, fault);
  if (skipped++ == 0) firstSkipped = path;
  return {};
}

Readable<void> Data::takeDump(const Match& match, const Catalogue::Table& table,
                              const std::optional<Catalogue::Chip>& chip, U8 variant) {
  if (!chip) {
    return bad(
        "", Fault(Code::option, "no chip is known for {}; give $1", Core::quoted(match.path).view())
                .offer("chip"));
  }
  const auto layout = Core::Layout::of(table, *chip, variant);
  if (!layout) return bad("", layout.error());
  TableData& data = tableOf(table);
  data.add({"", match.path, Core::Notation::automatic, &data.chipOf(*layout)}, match);
  return {};
}

Readable<void> Data::takeSnapshot(const Match& match,
                                  const std::optional<Catalogue::Table>& table) {
  const auto snapshot = Files::readManifest(match.path);
  if (!snapshot) {
    return refused(Files::pathIn(match.path, Core::manifestName), snapshot.error());
  }
  for (const Core::SnapshotDump& dump : snapshot->dumps) {
    if (table && table->name() != std::string_view(dump.table.name())) continue;
    const auto layout = Core::Layout::of(dump.table, snapshot->chip, snapshot->variant);
    if (!layout) return bad(match.path, layout.error());
    TableData& data = tableOf(dump.table);
    data.add({match.path, dump.file, dump.notation, &data.chipOf(*layout), dump.identifier}, match);
  }
  return {};
}

Readable<void> Data::take(const Match& match, const std::optional<Catalogue::Table>& table,
                          const std::optional<Catalogue::Chip>& chip, U8 variant) {
  const bool isFolder = Files::isFolder(match.path);
  if (table && !isFolder) return takeDump(match, *table, chip, variant);
  if (!isFolder && Files::exists(match.path)) {
    return bad("", Fault(Code::option, "{} is a dump; name its table, such as vlan={}",
                         Core::quoted(match.path).view(), match.path));
  }
  return takeSnapshot(match, table);
}

Readable<std::vector<TableData*>> Data::open(const std::string& text,
                                             const std::optional<Catalogue::Chip>& chip,
                                             U8 variant) {
  const size_t sign = text.find('=');
  const bool isNamed = sign < text.find_first_of("/{");
  const std::string path = isNamed ? text.substr(sign + 1) : text;
  std::optional<Catalogue::Table> table;
  if (isNamed) {
    const auto found = Core::findTable(text.substr(0, sign));
    if (!found) return bad(text, found.error());
    table = *found;
  }
  const auto pattern = PathPattern::of(path);
  if (!pattern) return bad("", pattern.error());
  openedBefore_ = tables_.size();
  placeholders_ = pattern->placeholders();
  for (const Match& match : pattern->matches()) {
    const Readable<void> taken = take(match, table, chip, variant);
    if (!taken) return tl::make_unexpected(taken.error());
  }
  if (openedBefore_ == tables_.size()) {
    return bad(text, Fault(Code::option, "nothing to read; check the path, or see what is there"));
  }
  std::vector<TableData*> opened;
  for (size_t i = openedBefore_; i < tables_.size(); ++i) {
    TableData& data = tables_[i];
    data.columns = columnsOf(data.placeholders, data.chips);
    if (const auto fault = checkPlaceholders(data)) return bad("", *fault);
    for (size_t other = 0; other < openedBefore_; ++other) {
      if (tables_[other].table.name() != std::string_view(data.table.name())) continue;
      return bad(text, Fault(Code::option,
                             "{} is there already; give one path with a placeholder for all its "
                             "dumps, such as {{name}}/",
                             data.table.name()));
    }
    opened.push_back(&data);
  }
  return opened;
}

void Data::forget(DumpFile& dump) {
  loadedBytes_ -= dump.entries->dump().size();
  dump.entries.reset();
  loaded_.erase(std::find(loaded_.begin(), loaded_.end(), &dump));
}

void Data::keep(DumpFile& dump, const std::shared_ptr<Entries>& entries) {
  if (dump.entries != nullptr) forget(dump);
  dump.entries = entries;
  loaded_.push_back(&dump);
  loadedBytes_ += entries->dump().size();
  while (loadedBytes_ > mostBytes && loaded_.size() > 1) forget(*loaded_.front());
}

Readable<std::shared_ptr<Entries>> Data::load(const TableData& table, DumpFile& dump,
                                              const Usage& usage) {
  const bool isLoaded = dump.entries != nullptr && dump.entries->has(table.columns, usage);
  if (isLoaded || dump.isBad) return dump.entries;
  Core::Expected<std::string> bytes =
      dump.folder.empty() ? Files::readFile(dump.file) : Files::readInside(dump.folder, dump.file);
  const auto entries =
      bytes ? Entries::read(*dump.chip, dump.identifier, dump.notation, std::move(*bytes))
            : Core::Expected<std::shared_ptr<Entries>>(failed(bytes));
  if (entries) {
    for (const size_t column : usage.numbers) (*entries)->numbers(table.columns, column);
    if (!usage.needsBytes) (*entries)->dropBytes();
    keep(dump, *entries);
    return *entries;
  }
  const Readable<void> isSkipped = refused(dump.path(), entries.error());
  if (!isSkipped) return tl::make_unexpected(isSkipped.error());
  dump.isBad = true;
  return std::shared_ptr<Entries>();
}

std::string messageOf(const BadFile& bad) {
  const auto wording = [](Core::Text& to, const Core::Remedy& remedy) {
    to.append("{}{}", remedy.option == std::string_view("chip") ? "" : "--", remedy.option);
    const char* separator = " ";
    for (const char* choice : remedy.choices) {
      if (choice != nullptr) to.append("{}{}", std::exchange(separator, " or "), choice);
    }
    const bool isOfReading = remedy.option != std::string_view("chip");
    to.append(isOfReading ? " to \"velmar snapshot\", which writes a clear dump"
                          : " as the second argument");
  };
  return Core::worded(bad.fault, bad.path, wording);
}

}  // namespace Sqlite
}  // namespace Velmar
