#include "bindings/sqlite/Columns.h"

#include <algorithm>

#include "core/Reading.h"

namespace Velmar {
namespace Sqlite {

namespace {

/// The field of a chip that is declared under a number; null if the chip does not have it.
const Core::FieldPlace* fieldOf(const ChipColumns& chip, size_t number) {
  for (const Core::FieldPlace& place : chip.layout.fields()) {
    if (place.index == number) return &place;
  }
  return nullptr;
}

std::vector<Core::FieldPlace> membersOf(const ChipColumns& chip, std::string_view prefix) {
  std::vector<Core::FieldPlace> members;
  for (const Core::FieldPlace& place : chip.layout.fields()) {
    if (place.isOfFamily() && place.prefix() == prefix) members.push_back(place);
  }
  return members;
}

class ColumnList {
 public:
  explicit ColumnList(std::vector<std::unique_ptr<ChipColumns>>& chips) : chips_(chips) {}

  void add(Column column) {
    for (const auto& chip : chips_) chip->places.emplace_back();
    columns_.push_back(std::move(column));
  }

  /// The fields that any of the chips has, in the order in which they are declared.
  void addFields() {
    const U32 count = chips_.front()->layout.table().fieldCount();
    for (U32 number = 0; number < count; ++number) {
      Column column{"", ColumnKind::field, number, true};
      for (const auto& chip : chips_) {
        const Core::FieldPlace* const place = fieldOf(*chip, number);
        if (place == nullptr) column.mayBeNull = true;
        if (place == nullptr) continue;
        column.name = place->name();
        column.isNumber = column.isNumber && isNumber(*place);
        column.hasPorts = place->isBitmap();
        column.bits = std::max(column.bits, place->width);
        note(*place);
      }
      if (column.name.empty()) continue;
      add(column);
      for (const auto& chip : chips_) chip->places.back().field = fieldOf(*chip, number);
    }
  }

  /// Families as text, then the hidden columns.
  void addFamilies() {
    for (const std::string& name : families_) addFamily(name, ColumnKind::family);
    for (const std::string& name : families_) addFamily(name, ColumnKind::ports);
    for (const size_t number : bitmaps_) {
      const auto isOfField = [number](const Column& column) {
        return column.kind == ColumnKind::field && column.number == number;
      };
      const auto field = std::find_if(columns_.begin(), columns_.end(), isOfField);
      add({field->name + "_blob", ColumnKind::ports, number});
      columns_.back().hasPorts = true;
      for (const auto& chip : chips_) chip->places.back().field = fieldOf(*chip, number);
    }
  }

  std::vector<Column> take() { return std::move(columns_); }

 private:
  void note(const Core::FieldPlace& place) {
    const std::string family(place.prefix());
    const bool isNew = std::count(families_.begin(), families_.end(), family) == 0;
    if (place.isOfFamily() && isNew) families_.push_back(family);
    const bool isKnown = std::count(bitmaps_.begin(), bitmaps_.end(), place.index) != 0;
    if (place.isBitmap() && !isKnown) bitmaps_.push_back(place.index);
  }

  void addFamily(const std::string& name, ColumnKind kind) {
    add({kind == ColumnKind::ports ? name + "_blob" : name, kind});
    columns_.back().hasPorts = true;
    for (const auto& chip : chips_) chip->places.back().members = membersOf(*chip, name);
  }

  std::vector<std::unique_ptr<ChipColumns>>& chips_;
  std::vector<Column> columns_;
  std::vector<std::string> families_;
  std::vector<size_t> bitmaps_;
};

}  // namespace

std::vector<Column> columnsOf(const std::vector<std::string>& placeholders,
                              std::vector<std::unique_ptr<ChipColumns>>& chips) {
  constexpr U32 wordBits = 32;
  ColumnList list(chips);
  for (size_t i = 0; i < placeholders.size(); ++i) {
    list.add({placeholders[i], ColumnKind::placeholder, i});
  }
  U32 indexBits = 1;
  for (const auto& chip : chips) {
    while (chip->layout.indexCount() > U64{1} << indexBits) ++indexBits;
  }
  list.add({"index", ColumnKind::index, 0, true, indexBits});
  list.add({"identifier", ColumnKind::identifier, 0, true, wordBits});
  list.add({"address", ColumnKind::address, 0, true, wordBits});
  list.add({"nonzero", ColumnKind::nonzero, 0, true, 1});
  list.add({"reserved", ColumnKind::reserved, 0, true, 1});
  list.addFields();
  list.addFamilies();
  return list.take();
}

Core::Expected<std::shared_ptr<Entries>> Entries::read(const ChipColumns& chip, U32 identifier,
                                                       Core::Notation notation, std::string bytes) {
  std::shared_ptr<Entries> entries(new Entries(chip, identifier, std::move(bytes)));
  Core::ReadOptions options;
  options.notation = notation;
  Core::Expected<Core::Dump> dump = Core::readDump(chip.layout, options, entries->bytes_);
  if (!dump) return failed(dump);
  entries->dump_ = std::move(*dump);
  const Core::Dump& read = entries->dump_;
  const bool isListed = read.notation != Core::Notation::raw;
  for (size_t row = 1; isListed && row < read.count() && entries->isContiguous_; ++row) {
    entries->isContiguous_ = read.index(row) == read.index(row - 1) + 1;
  }
  return entries;
}

void Entries::dropBytes() {
  const bool borrows = dump_.data() == reinterpret_cast<const U8*>(bytes_.data());
  if (!borrows) return;
  hasBytes_ = false;
  std::string().swap(bytes_);  // an assignment would keep the memory
}

bool Entries::has(const std::vector<Column>& columns, const Usage& usage) const {
  const auto isKnown = [&](size_t column) {
    const bool isField = columns[column].kind == ColumnKind::field;
    return numbers_[column] != nullptr || (isField && chip_.places[column].isMissing());
  };
  return hasBytes_ ||
         (!usage.needsBytes && std::all_of(usage.numbers.begin(), usage.numbers.end(), isKnown));
}

U64 Entries::address(size_t row) const {
  return chip_.layout.addressOf(dump_.index(row), identifier_).address;
}

const Numbers* Entries::makeNumbers(const std::vector<Column>& columns, size_t column) {
  const ColumnPlace& place = chip_.places[column];
  if (columns[column].kind == ColumnKind::field && place.field == nullptr) return nullptr;
  numbers_[column] = numbersOf(columns[column], place);
  return numbers_[column].get();
}

std::unique_ptr<Numbers> Entries::numbersOf(const Column& column, const ColumnPlace& place) const {
  const auto make = [&](const auto& numberOf) {
    return std::make_unique<Numbers>(column.bits, dump_.count(), numberOf);
  };
  const U32 size = dump_.entryBytes();
  switch (column.kind) {
    case ColumnKind::index:
      return make([&](size_t row) { return dump_.index(row); });
    case ColumnKind::address:
      return make([&](size_t row) { return address(row); });
    case ColumnKind::nonzero:
      return make([&](size_t row) {
        const U8* const entry = dump_.bytes(row);
        return std::any_of(entry, entry + size, [](U8 byte) { return byte != 0; });
      });
    case ColumnKind::reserved:
      return make([&](size_t row) { return chip_.layout.hasReservedBits(dump_.bytes(row)); });
    case ColumnKind::field: {
      const U32 offset = place.field->offset, width = place.field->width;
      const U8* const bytes = dump_.data();
      const std::optional<Core::Window> window = Core::windowOf(size, offset, width);
      if (window) {
        return make(
            [bytes, size, one = *window](size_t row) { return one.read(bytes + row * size); });
      }
      return make(
          [&](size_t row) { return Core::readScalar(*place.field, dump_.bytes(row), size); });
    }
    default:
      return make([&](size_t) { return identifier_; });
  }
}

}  // namespace Sqlite
}  // namespace Velmar
