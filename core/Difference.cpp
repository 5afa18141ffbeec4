#include "core/Difference.h"

#include <algorithm>
#include <cstring>

#include "core/Documents.h"

namespace Velmar {
namespace Core {
namespace {

/// The entries of a dump by ascending index.
class Ordered {
 public:
  explicit Ordered(const Dump& dump) : dump_(dump) {
    if (dump.isConsecutive()) return;
    positions_.resize(dump.count());
    for (size_t i = 0; i < positions_.size(); ++i) positions_[i] = i;
    const auto isBefore = [&dump](size_t a, size_t b) { return dump.index(a) < dump.index(b); };
    std::sort(positions_.begin(), positions_.end(), isBefore);
  }

  bool hasEntry() const { return next_ < dump_.count(); }
  U32 index() const { return dump_.index(position()); }
  const U8* take() {
    const U8* const bytes = dump_.bytes(position());
    ++next_;
    return bytes;
  }

 private:
  size_t position() const { return positions_.empty() ? next_ : positions_[next_]; }

  const Dump& dump_;
  std::vector<size_t> positions_;
  size_t next_ = 0;
};

/// The next entry of one of the dumps, or of both.
EntryChange nextPair(Ordered& before, Ordered& after, bool isPartial) {
  using Kind = EntryChange::Kind;
  EntryChange change{0, Kind::changed, nullptr, nullptr, {}};
  const bool takesOld = before.hasEntry() && (!after.hasEntry() || before.index() <= after.index());
  const bool takesNew = after.hasEntry() && (!before.hasEntry() || after.index() <= before.index());
  change.index = takesOld ? before.index() : after.index();
  if (!takesNew) change.kind = isPartial ? Kind::unknownInNew : Kind::onlyInOld;
  if (!takesOld) change.kind = isPartial ? Kind::unknownInOld : Kind::onlyInNew;
  if (takesOld) change.before = before.take();
  if (takesNew) change.after = after.take();
  return change;
}

bool isSelected(const Selection& selection, const EntryChange& change, U32 size) {
  if (!selection.indexes.has(change.index)) return false;
  return (change.before != nullptr && selection.fits(change.index, change.before, size)) ||
         (change.after != nullptr && selection.fits(change.index, change.after, size));
}

bool differs(const FieldPlace& place, const EntryChange& change, U32 size) {
  if (place.isScalar()) {
    return readScalar(place, change.before, size) != readScalar(place, change.after, size);
  }
  return Value::read(place, change.before, size) != Value::read(place, change.after, size);
}

bool differsOutsideFields(const Layout& layout, const EntryChange& change) {
  for (size_t i = 0; i < layout.reservedMask().size(); ++i) {
    if (((change.before[i] ^ change.after[i]) & layout.reservedMask()[i]) != 0) return true;
  }
  return false;
}

std::vector<std::string> columnsOf(RowFormat format) {
  if (format == RowFormat::csv) return {"index", "change", "field", "old", "new"};
  if (format == RowFormat::json) return {"index", "change", "fields"};
  return {"table", "chip", "variant", "index", "change", "fields"};
}

void writeCsv(RowWriter& rows, const Layout& layout, const EntryChange& change) {
  const char* const kind = nameOf(change.kind);
  if (change.kind != EntryChange::Kind::changed) return rows.write({change.index, kind});
  for (const FieldPlace* place : change.fields) {
    rows.write({change.index, kind, nameOf(place), changedCell(layout, place, change.before),
                changedCell(layout, place, change.after)});
  }
}

void writeObject(RowWriter& rows, const Layout& layout, const EntryChange& change, bool isLine) {
  Row row;
  if (isLine) row = {layout.name(), layout.chip().name, U32{layout.variant()}};
  row.emplace_back(change.index);
  row.emplace_back(nameOf(change.kind));
  if (change.kind == EntryChange::Kind::changed) {
    row.push_back(Cell::ofJson(changesJson(layout, change.fields, change.before, change.after)));
  }
  rows.write(row);
}

}  // namespace

const char* nameOf(EntryChange::Kind kind) {
  switch (kind) {
    case EntryChange::Kind::onlyInOld:
      return "only in OLD";
    case EntryChange::Kind::onlyInNew:
      return "only in NEW";
    case EntryChange::Kind::unknownInNew:
      return "unknown in NEW";
    case EntryChange::Kind::unknownInOld:
      return "unknown in OLD";
    case EntryChange::Kind::changed:
      break;
  }
  return "changed";
}

std::string changesJson(const Layout& layout, const std::vector<const FieldPlace*>& fields,
                        const U8* before, const U8* after) {
  std::string text;
  JsonWriter json(text);
  json.openObject();
  for (const FieldPlace* place : fields) {
    json.key(nameOf(place)).openObject();
    json.key("old").raw(before == nullptr ? "null" : changedCell(layout, place, before).json());
    json.key("new").raw(changedCell(layout, place, after).json());
    json.closeObject();
  }
  json.closeObject();
  return text;
}

Cell changedCell(const Layout& layout, const FieldPlace* place, const U8* entry) {
  if (place == nullptr) {
    const std::string hex = reservedBits(layout, entry);
    return Cell::ofJson(formatText(R"({{"hex":"{}"}})", hex)).shownAs(hex);
  }
  const Value value = Value::read(*place, entry, layout.entryBytes());
  return Cell::ofJson(valueJson(*place, value)).shownAs(plainText(*place, value));
}

Difference difference(const Layout& layout, const Dump& before, const Dump& after,
                      const DifferenceOptions& options) {
  const bool comparesAll = options.fields.empty();
  const std::vector<FieldPlace>& fields = comparesAll ? layout.fields() : options.fields;
  const bool comparesReserved = comparesAll || options.reservedBits;
  const U32 size = layout.entryBytes();
  Difference result;
  Ordered old(before);
  Ordered now(after);
  while (old.hasEntry() || now.hasEntry()) {
    if (options.stopsAtFirst && !result.entries.empty()) return result;
    EntryChange change = nextPair(old, now, options.isPartial);
    if (!isSelected(options.selection, change, size)) continue;
    if (change.kind != EntryChange::Kind::changed) {
      if (options.common) continue;
      ++result.missing;
      result.entries.push_back(std::move(change));
      continue;
    }
    ++result.compared;
    if (std::memcmp(change.before, change.after, size) == 0) continue;
    for (const FieldPlace& place : fields) {
      if (differs(place, change, size)) change.fields.push_back(&place);
    }
    if (comparesReserved && differsOutsideFields(layout, change)) change.fields.push_back(nullptr);
    if (change.fields.empty()) continue;
    ++result.differing;
    result.entries.push_back(std::move(change));
  }
  result.unmet = options.selection.indexes.unmet();
  return result;
}

std::string differenceText(const Layout& layout, const Difference& difference, RowFormat format) {
  std::string text;
  RowWriter rows(text, format, columnsOf(format), frameOf("diff", "entries", sourceJson(layout)));
  for (const EntryChange& change : difference.entries) {
    if (format == RowFormat::csv) {
      writeCsv(rows, layout, change);
    } else {
      writeObject(rows, layout, change, format == RowFormat::jsonLines);
    }
  }
  rows.end();
  return text;
}

void addRows(Listing& to, const Layout& layout, U32 identifier, const Difference& difference) {
  for (const EntryChange& change : difference.entries) {
    const Row head = {layout.name(), identifier, change.index, nameOf(change.kind)};
    if (change.kind != EntryChange::Kind::changed) to.add(head);
    for (const FieldPlace* place : change.fields) {
      Row row = head;
      row.emplace_back(nameOf(place));
      row.push_back(changedCell(layout, place, change.before));
      row.push_back(changedCell(layout, place, change.after));
      to.add(std::move(row));
    }
  }
}

Listing differenceCounts(const Difference& difference) {
  std::vector<std::pair<const FieldPlace*, U64>> counts;
  for (const EntryChange& change : difference.entries) {
    for (const FieldPlace* place : change.fields) {
      const auto found = std::find_if(counts.begin(), counts.end(),
                                      [place](const auto& one) { return one.first == place; });
      if (found == counts.end()) {
        counts.emplace_back(place, 1);
      } else {
        ++found->second;
      }
    }
  }
  Listing listing({"field", "entries"});
  for (const auto& [place, count] : counts) listing.add({nameOf(place), count});
  return listing;
}

}  // namespace Core
}  // namespace Velmar
