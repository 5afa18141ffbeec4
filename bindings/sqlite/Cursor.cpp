#include "bindings/sqlite/Cursor.h"

#include <algorithm>
#include <limits>

#include "bindings/sqlite/Ports.h"

namespace Velmar {
namespace Sqlite {

namespace {

constexpr sqlite3_int64 smallest = std::numeric_limits<sqlite3_int64>::min();
constexpr sqlite3_int64 largest = std::numeric_limits<sqlite3_int64>::max();

/// A sort key of rows, made of the numbers of several columns; NULL is the smallest.
class KeyOf {
 public:
  KeyOf(const std::vector<Column>& columns, const std::vector<Plan::Order>& order,
        Entries& entries) {
    for (const Plan::Order& one : order) {
      const Column& column = columns[static_cast<size_t>(one.column)];
      const U32 bits = column.bits + (column.mayBeNull ? 1 : 0);
      parts_.push_back({entries.numbers(columns, static_cast<size_t>(one.column)), bits,
                        column.mayBeNull, one.isDescending});
    }
  }

  size_t at(size_t row) const {
    U64 key = 0;
    for (const Part& part : parts_) {
      U64 value = part.numbers == nullptr ? 0 : part.numbers->at(row) + (part.mayBeNull ? 1 : 0);
      if (part.isDescending) value = (U64{1} << part.bits) - 1 - value;
      key = key << part.bits | value;
    }
    return static_cast<size_t>(key);
  }

 private:
  struct Part {
    const Numbers* numbers;
    U32 bits;
    bool mayBeNull;
    bool isDescending;
  };

  std::vector<Part> parts_;
};

bool hasPortSet(const ColumnPlace& place, const U8* entry, U32 entryBytes, sqlite3_int64 port) {
  if (place.field != nullptr) {
    if (port < 0 || port >= place.field->width) return false;
    const U32 bit = place.field->offset + static_cast<U32>(port);
    return (entry[bit / 8] & 1U << bit % 8) != 0;
  }
  for (const Core::FieldPlace& member : place.members) {
    if (member.family.number == port) return Core::readScalar(member, entry, entryBytes) != 0;
  }
  return false;
}

/// A bit for each port.
std::vector<U8> portBytes(const ColumnPlace& place, const U8* entry, U32 entryBytes) {
  const U32 count =
      place.field != nullptr ? place.field->width : place.members.back().family.number + 1;
  std::vector<U8> bytes((count + 7) / 8);
  for (U32 port = 0; port < count; ++port) {
    if (hasPortSet(place, entry, entryBytes, port)) Core::setBit(bytes.data(), port);
  }
  return bytes;
}

void give(sqlite3_context* context, std::string_view text) {
  sqlite3_result_text(context, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

}  // namespace

U32 orderBits(const TableData& table, const std::vector<Plan::Order>& order) {
  U32 bits = 0;
  for (const Plan::Order& one : order) {
    const Column& column = table.columns[static_cast<size_t>(one.column)];
    bits += column.bits + (column.mayBeNull ? 1 : 0);
  }
  return bits;
}

Readable<void> Cursor::start(const Plan& plan, sqlite3_value** values) {
  plan_ = &plan;
  bounds_.clear();
  ports_.clear();
  values_.clear();
  dumps_ = nullptr;
  nextDump_ = next_ = end_ = 0;
  isEmpty_ = isSorted_ = false;
  isAtEnd_ = true;
  for (size_t i = 0; i < plan.tests.size(); ++i) {
    const auto column = static_cast<size_t>(plan.tests[i].column);
    addTest(table_.columns[column], column, plan.tests[i].operation, values[i]);
  }
  if (isEmpty_) return {};
  if (!plan.order.empty()) return sort(plan);
  return next();
}

/// Only what SQLite would compare alike is a test here; it checks the rest itself.
void Cursor::addTest(const Column& column, size_t number, U8 operation, sqlite3_value* value) {
  const int type = sqlite3_value_type(value);
  if (column.kind == ColumnKind::placeholder) {
    if (type != SQLITE_TEXT) return;
    const PlaceholderValues& known = table_.values[column.number];
    const auto found = known.numbers.find(reinterpret_cast<const char*>(sqlite3_value_text(value)));
    if (found == known.numbers.end()) {
      isEmpty_ = true;
      return;
    }
    values_.push_back({column.number, found->second});
    const std::vector<U32>& dumps = known.dumps[found->second];
    if (dumps_ == nullptr || dumps.size() < dumps_->size()) dumps_ = &dumps;
    return;
  }
  if (type != SQLITE_INTEGER) return;
  if (operation == hasPortCondition) {
    ports_.push_back({number, sqlite3_value_int64(value)});
  } else {
    addBounds(number, operation, sqlite3_value_int64(value));
  }
}

void Cursor::addBounds(size_t column, U8 operation, sqlite3_int64 number) {
  Bounds bounds{column, smallest, largest};
  const bool isUpper =
      operation == SQLITE_INDEX_CONSTRAINT_LT || operation == SQLITE_INDEX_CONSTRAINT_LE;
  if (operation == SQLITE_INDEX_CONSTRAINT_EQ || !isUpper) bounds.first = number;
  if (operation == SQLITE_INDEX_CONSTRAINT_EQ || isUpper) bounds.last = number;
  if (operation == SQLITE_INDEX_CONSTRAINT_GT && number == largest) isEmpty_ = true;
  if (operation == SQLITE_INDEX_CONSTRAINT_LT && number == smallest) isEmpty_ = true;
  if (isEmpty_) return;
  if (operation == SQLITE_INDEX_CONSTRAINT_GT) ++bounds.first;
  if (operation == SQLITE_INDEX_CONSTRAINT_LT) --bounds.last;
  bounds_.push_back(bounds);
}

bool Cursor::isMeant(const DumpFile& dump) const {
  return std::all_of(values_.begin(), values_.end(), [&dump](const ValueTest& test) {
    return dump.values[test.placeholder] == test.value;
  });
}

/// Goes to the next dump with rows that fit; false if there is none.
Readable<bool> Cursor::nextDump() {
  const size_t count = dumps_ == nullptr ? table_.dumps.size() : dumps_->size();
  while (nextDump_ < count) {
    dump_ = dumps_ == nullptr ? static_cast<U32>(nextDump_) : (*dumps_)[nextDump_];
    ++nextDump_;
    DumpFile& file = table_.dumps[dump_];
    if (!isMeant(file)) continue;
    Readable<std::shared_ptr<Entries>> entries = data_.load(table_, file, plan_->usage);
    if (!entries) return tl::make_unexpected(entries.error());
    if (*entries == nullptr) continue;
    entries_ = std::move(*entries);
    selectRows();
    if (next_ < end_) return true;
  }
  return false;
}

void Cursor::selectRows() {
  isRange_ = true;
  next_ = 0;
  end_ = entries_->dump().count();
  limitByIndex();
  for (const Bounds& bounds : bounds_) {
    const bool isByIndex = table_.columns[bounds.column].kind == ColumnKind::index;
    if (!isByIndex || !entries_->isContiguous()) keepRows(bounds);
  }
  for (const PortTest& test : ports_) keepRows(test);
}

/// Where the indexes follow each other, those that are asked for are a range of rows.
void Cursor::limitByIndex() {
  if (!entries_->isContiguous() || end_ == 0) return;
  const sqlite3_int64 first = entries_->dump().index(0);
  for (const Bounds& bounds : bounds_) {
    if (table_.columns[bounds.column].kind != ColumnKind::index) continue;
    const auto begin = static_cast<sqlite3_int64>(next_);
    const auto end = static_cast<sqlite3_int64>(end_);
    const bool isOutside = bounds.first >= first + end || bounds.last < first + begin;
    if (isOutside) end_ = next_;
    if (isOutside) return;
    end_ = static_cast<size_t>(std::min(end - 1, bounds.last - first) + 1);
    next_ = static_cast<size_t>(std::max(begin, bounds.first < first ? 0 : bounds.first - first));
  }
}

template <class Keep>
void Cursor::keepIf(const Keep& keep) {
  size_t kept = 0;
  if (isRange_) {
    if (rows_.size() < end_ - next_) rows_.resize(end_ - next_);
    for (size_t row = next_; row < end_; ++row) {
      rows_[kept] = static_cast<U32>(row);
      kept += keep(row) ? 1 : 0;
    }
  } else {
    for (size_t i = 0; i < end_; ++i) {
      const U32 row = rows_[i];
      rows_[kept] = row;
      kept += keep(row) ? 1 : 0;
    }
  }
  isRange_ = false;
  next_ = 0;
  end_ = kept;
}

void Cursor::keepRows(const Bounds& bounds) {
  const Numbers* const numbers = entries_->numbers(table_.columns, bounds.column);
  const bool fitsNone = numbers == nullptr || bounds.last < 0 || bounds.last < bounds.first;
  if (fitsNone) end_ = next_;
  if (fitsNone || next_ == end_) return;
  const auto first = static_cast<U64>(std::max<sqlite3_int64>(bounds.first, 0));
  const U64 span = static_cast<U64>(bounds.last) - first;
  if (static_cast<U64>(bounds.last) < first) {
    end_ = next_;
    return;
  }
  std::visit(
      [&](const auto& values) {
        const auto* const data = values.data();
        keepIf([data, first, span](size_t row) { return data[row] - first <= span; });
      },
      numbers->values());
}

void Cursor::keepRows(const PortTest& test) {
  const ColumnPlace& place = entries_->chip().places[test.column];
  const Core::Dump& dump = entries_->dump();
  keepIf(
      [&](size_t row) { return hasPortSet(place, dump.bytes(row), dump.entryBytes(), test.port); });
}

Readable<void> Cursor::next() {
  if (isSorted_) {
    goToSorted();
    return {};
  }
  if (next_ >= end_) {
    const Readable<bool> isFound = nextDump();
    if (!isFound) return tl::make_unexpected(isFound.error());
    isAtEnd_ = !*isFound;
    if (isAtEnd_) return {};
  }
  step();
  return {};
}

void Cursor::step() {
  row_ = isRange_ ? static_cast<U32>(next_) : rows_[next_];
  ++next_;
}

/// Sorts the rows by counting: their keys are small.
Readable<void> Cursor::sort(const Plan& plan) {
  constexpr U64 none = ~U64{0};
  std::vector<U64> counts((size_t{1} << orderBits(table_, plan.order)) + 1);
  std::vector<std::pair<U32, std::vector<U32>>>
      selected;  // rows of dumps; empty: from next_ to end_
  std::vector<U64> firsts(plan.isDistinct ? counts.size() : 0, none);
  sortedEntries_.assign(table_.dumps.size(), nullptr);
  const bool keepsRows = !bounds_.empty() || !ports_.empty();
  for (;;) {
    const Readable<bool> isFound = nextDump();
    if (!isFound) return tl::make_unexpected(isFound.error());
    if (!*isFound) break;
    const KeyOf key(table_.columns, plan.order, *entries_);
    sortedEntries_[dump_] = entries_;
    selected.emplace_back(dump_, std::vector<U32>());
    while (next_ < end_) {
      step();
      const size_t at = key.at(row_);
      ++counts[at + 1];
      if (plan.isDistinct && firsts[at] == none) firsts[at] = static_cast<U64>(rowNumber());
      if (keepsRows && !plan.isDistinct) selected.back().second.push_back(row_);
    }
  }
  sorted_.clear();
  if (plan.isDistinct) {
    std::copy_if(firsts.begin(), firsts.end(), std::back_inserter(sorted_),
                 [](U64 first) { return first != none; });
  } else {
    for (size_t i = 1; i < counts.size(); ++i) counts[i] += counts[i - 1];
    sorted_.resize(counts.back());
    for (const auto& [dump, rows] : selected) {
      const std::shared_ptr<Entries>& entries = sortedEntries_[dump];
      const KeyOf key(table_.columns, plan.order, *entries);
      const size_t count = keepsRows ? rows.size() : entries->dump().count();
      for (size_t i = 0; i < count; ++i) {
        const U64 row = keepsRows ? rows[i] : i;
        sorted_[counts[key.at(row)]++] = U64{dump} << 32 | row;
      }
    }
  }
  isSorted_ = true;
  next_ = 0;
  goToSorted();
  return {};
}

void Cursor::goToSorted() {
  isAtEnd_ = next_ == sorted_.size();
  if (isAtEnd_) return;
  const U64 number = sorted_[next_++];
  row_ = static_cast<U32>(number);
  const auto dump = static_cast<U32>(number >> 32);
  if (dump == dump_ && entries_ != nullptr) return;
  dump_ = dump;
  entries_ = sortedEntries_[dump];
}

void Cursor::giveColumn(sqlite3_context* context, int column) const {
  const auto at = static_cast<size_t>(column);
  if (const Numbers* const numbers = entries_->knownNumbers(at)) {
    return sqlite3_result_int64(context, static_cast<sqlite3_int64>(numbers->at(row_)));
  }
  const Column& asked = table_.columns[at];
  const U8* const entry = entries_->dump().bytes(row_);
  const U32 size = entries_->dump().entryBytes();
  const ColumnPlace& place = entries_->chip().places[at];
  switch (asked.kind) {
    case ColumnKind::placeholder: {
      const U32 value = table_.dumps[dump_].values[asked.number];
      return give(context, table_.values[asked.number].texts[value]);
    }
    case ColumnKind::index:
      return sqlite3_result_int64(context, entries_->dump().index(row_));
    case ColumnKind::identifier:
      return sqlite3_result_int64(context, entries_->identifier());
    case ColumnKind::address:
      return sqlite3_result_int64(context, static_cast<sqlite3_int64>(entries_->address(row_)));
    case ColumnKind::field:
      return giveField(context, at);
    case ColumnKind::family:
      if (place.isMissing()) return;
      return give(context, Core::familyText(place.members, entry, size));
    case ColumnKind::ports: {
      if (place.isMissing()) return;
      const std::vector<U8> bytes = portBytes(place, entry, size);
      return sqlite3_result_blob(context, bytes.data(), static_cast<int>(bytes.size()),
                                 SQLITE_TRANSIENT);
    }
    case ColumnKind::nonzero:
    case ColumnKind::reserved:
      break;
  }
  const U64 number = entries_->numbers(table_.columns, at)->at(row_);
  sqlite3_result_int64(context, static_cast<sqlite3_int64>(number));
}

void Cursor::giveField(sqlite3_context* context, size_t column) const {
  const Core::FieldPlace* const field = entries_->chip().places[column].field;
  if (field == nullptr) return;
  if (table_.columns[column].isNumber) {
    const U64 number = entries_->numbers(table_.columns, column)->at(row_);
    return sqlite3_result_int64(context, static_cast<sqlite3_int64>(number));
  }
  const Core::Dump& dump = entries_->dump();
  if (isNumber(*field)) {
    const U64 number = Core::readScalar(*field, dump.bytes(row_), dump.entryBytes());
    return sqlite3_result_int64(context, static_cast<sqlite3_int64>(number));
  }
  const Core::Value value = Core::Value::read(*field, dump.bytes(row_), dump.entryBytes());
  give(context, field->isBitmap() ? value.portRanges() : value.hex());
}

}  // namespace Sqlite
}  // namespace Velmar
