#include "core/TraceText.h"

#include <algorithm>

#include "core/Documents.h"
#include "core/Families.h"
#include "core/TextBuffer.h"

namespace Velmar {
namespace Core {
namespace {

bool isKnown(const TraceEvent& event) { return event.origin != Origin::unknown; }
bool hasEntry(const TraceEvent& event) { return event.after != nullptr; }
const char* operationOf(const TraceEvent& event) { return event.bus->isRead ? "read" : "write"; }

std::string nearestTo(const Catalogue::Chip& chip, U8 variant, U32 address) {
  const std::optional<NearEntry> near = nearestEntry(chip, variant, address);
  return near ? near->shown() : "";
}

std::string accessText(const Layout& layout) {
  const Catalogue::Geometry& geometry = layout.geometry();
  return formatText("the table has access {}, block {}", geometry.accessType, geometry.block);
}

bool changeAlike(const TraceEvent& event, const FieldPlace& a, const FieldPlace& b) {
  const U32 size = event.layout->entryBytes();
  return Value::read(a, event.before, size) == Value::read(b, event.before, size) &&
         Value::read(a, event.after, size) == Value::read(b, event.after, size);
}

void addValue(TextBuffer& to, const TraceEvent& event, const FieldPlace* place, const U8* entry) {
  if (place != nullptr && place->isScalar() && place->width <= exactBits) {
    to.addDecimal(readScalar(*place, entry, event.layout->entryBytes()));
  } else {
    to.add(changedCell(*event.layout, place, entry).text());
  }
}

const char* asKnown(Origin origin) {
  return origin == Origin::written ? "as written"
         : origin == Origin::read  ? "as read"
                                   : "as before";
}

void addWords(TextBuffer& to, size_t count) {
  to.addDecimal(count).add(" word").add(pluralEnd(count));
}

void addNoTable(TextBuffer& to, const Catalogue::Chip& chip, U8 variant, const BusLine& bus) {
  to.add("0x").addHex(bus.address, 8).add("  no table of ").add(chip.name);
  addWords(to.add(" has an entry there; "), bus.words.size());
  const std::string near = nearestTo(chip, variant, bus.address);
  if (!near.empty()) to.add("; ").add(near);
}

std::vector<std::string> columnsOf(RowFormat format) {
  if (format != RowFormat::csv) return {};
  return {"line",    "time",  "op",  "table", "index", "element", "identifier",
          "address", "field", "old", "new",   "words", "findings"};
}

std::string sourceOf(const Catalogue::Chip& chip, U8 variant) {
  return formatText(R"("chip": "{}", "variant": {})", chip.name, variant);
}

std::string wordText(U32 word) { return formatText("0x{:08x}", word); }

std::vector<std::string> wordTexts(const std::vector<U32>& words) {
  std::vector<std::string> texts;
  for (const U32 word : words) texts.push_back(wordText(word));
  return texts;
}

/// A number, or null.
void addNumber(JsonWriter& json, const char* key, std::optional<U32> number) {
  json.key(key);
  if (number) json.number(*number);
  if (!number) json.null();
}

}  // namespace

void TraceLines::add(std::string& to, const TraceEvent& event) {
  TextBuffer text(to);
  const BusLine& bus = *event.bus;
  if (!bus.time.empty()) text.add(bus.time).add("  ");
  text.add(bus.isRead ? "read   " : "write  ");
  if (event.layout == nullptr) {
    addNoTable(text, chip_, variant_, bus);
  } else {
    const Layout& layout = *event.layout;
    if (layout.isRegisterArray()) text.add("element ").addDecimal(event.index).add(" of ");
    text.add(layout.name());
    if (!layout.isRegisterArray()) text.add(' ').addDecimal(event.index);
    addOutcome(text.add("  "), event);
  }
  text.add('\n').flush();
}

/// What became of an entry.
void TraceLines::addOutcome(TextBuffer& to, const TraceEvent& event) {
  if (!hasEntry(event)) {
    addWords(to, event.bus->words.size());
    to.add(": the entry has ").addDecimal(event.layout->geometry().words);
  } else if (event.findings.has(TraceFinding::unchanged)) {
    to.add("unchanged");
  } else if (!event.fields.empty()) {
    addChanges(to, event);
    if (event.findings.has(TraceFinding::readDiffers)) to.add("; not ").add(asKnown(event.origin));
  } else {
    to.add(isKnown(event) ? asKnown(event.origin) : "all zero");
  }
  if (event.findings.has(TraceFinding::reservedBits)) to.add("; bits outside all fields");
  if (event.findings.has(TraceFinding::accessCode)) to.add("; ").add(accessText(*event.layout));
  for (const U32 table : event.others) to.add("; also ").add(Catalogue::table(table).name());
}

/// The fields that differ, in the order of their bits. Those of a family that change alike are one.
void TraceLines::addChanges(TextBuffer& to, const TraceEvent& event) {
  const auto isBefore = [](const FieldPlace* a, const FieldPlace* b) {
    return a != nullptr && (b == nullptr || a->offset < b->offset);
  };
  fields_ = event.fields;
  if (!std::is_sorted(fields_.begin(), fields_.end(), isBefore)) {
    std::stable_sort(fields_.begin(), fields_.end(), isBefore);
  }
  isDone_.assign(fields_.size(), false);
  for (size_t i = 0; i < fields_.size(); ++i) {
    if (isDone_[i]) continue;
    if (i != 0) to.add(", ");
    addName(to, event, i);
    if (isKnown(event)) addValue(to.add(' '), event, fields_[i], event.before);
    addValue(to.add(isKnown(event) ? " -> " : " = "), event, fields_[i], event.after);
  }
}

/// The name of a field, or of those of its family that change like it.
void TraceLines::addName(TextBuffer& to, const TraceEvent& event, size_t i) {
  const FieldPlace* const first = fields_[i];
  if (first == nullptr || !first->isOfFamily()) {
    to.add(nameOf(first));
    return;
  }
  FieldGroup group{{*first}};
  for (size_t j = i + 1; j < fields_.size(); ++j) {
    const FieldPlace* const other = fields_[j];
    if (isDone_[j] || other == nullptr || !other->isOfFamilyOf(*first)) continue;
    if (other->width != first->width || !changeAlike(event, *first, *other)) continue;
    group.members.push_back(*other);
    isDone_[j] = true;
  }
  to.add(group.name());
}

TraceDocument::TraceDocument(std::string& to, RowFormat format, const Catalogue::Chip& chip,
                             U8 variant)
    : to_(to),
      format_(format),
      chip_(chip),
      variant_(variant),
      rows_(to, format, columnsOf(format), frameOf("trace", "events", sourceOf(chip, variant))) {}

void TraceDocument::write(const TraceEvent& event) {
  if (format_ == RowFormat::csv) return writeCsv(event);
  rows_.openRow();
  writeObject(event);
  rows_.closeRow();
}

void TraceDocument::writeObject(const TraceEvent& event) {
  const BusLine& bus = *event.bus;
  const Layout* const layout = event.layout;
  const bool isElement = layout != nullptr && layout->isRegisterArray();
  const std::optional<U32> index =
      layout == nullptr ? std::nullopt : std::optional<U32>(event.index);
  JsonWriter json(to_);
  json.openObject().key("line").number(bus.line).key("time");
  if (bus.time.empty()) json.null();
  if (!bus.time.empty()) json.text(printable(bus.time));
  json.key("op").text(operationOf(event)).key("table");
  if (layout == nullptr) json.null();
  if (layout != nullptr) json.text(layout->name());
  if (format_ == RowFormat::jsonLines) {
    json.key("chip").text(chip_.name).key("variant").number(variant_);
  }
  addNumber(json, "index", isElement ? std::nullopt : index);
  addNumber(json, "element", isElement ? index : std::nullopt);
  addNumber(json, "identifier", layout == nullptr ? std::nullopt : std::optional<U32>(0));
  json.key("address").text(addressText(bus.address)).key("fields");
  if (hasEntry(event)) {
    json.raw(
        changesJson(*layout, event.fields, isKnown(event) ? event.before : nullptr, event.after));
  } else {
    json.raw("{}").key("words").raw(jsonList(wordTexts(bus.words)));
  }
  json.key("findings").raw(jsonList(event.findings.names()));
  if (!event.others.empty()) {
    std::vector<std::string> names;
    for (const U32 table : event.others) names.emplace_back(Catalogue::table(table).name());
    json.key("others").raw(jsonList(names));
  }
  const std::string near = layout == nullptr ? nearestTo(chip_, variant_, bus.address) : "";
  if (!near.empty()) json.key("nearest").text(near);
  json.closeObject();
}

void TraceDocument::writeCsv(const TraceEvent& event) {
  const BusLine& bus = *event.bus;
  const Layout* const layout = event.layout;
  const bool isElement = layout != nullptr && layout->isRegisterArray();
  const Cell none(nullptr);
  const Cell index = layout == nullptr ? none : Cell(event.index);
  const Row head = {bus.line,
                    bus.time.empty() ? none : Cell(printable(bus.time)),
                    operationOf(event),
                    layout == nullptr ? none : Cell(layout->name()),
                    isElement ? none : index,
                    isElement ? index : none,
                    layout == nullptr ? none : Cell(U32{0}),
                    addressText(bus.address)};
  const Cell findings = join(event.findings.names(), " ");
  const auto add = [&](const Cell& field, const Cell& old, const Cell& now, const Cell& words) {
    Row row = head;
    row.insert(row.end(), {field, old, now, words, findings});
    rows_.write(row);
  };
  if (event.fields.empty()) {
    add(none, none, none, hasEntry(event) ? none : Cell(join(wordTexts(bus.words), " ")));
  }
  for (const FieldPlace* place : event.fields) {
    add(nameOf(place), isKnown(event) ? changedCell(*layout, place, event.before) : none,
        changedCell(*layout, place, event.after), none);
  }
}

void TraceCounts::add(const TraceEvent& event) {
  if (event.bus->isRead) return;
  const std::string table = event.layout == nullptr ? "" : event.layout->name();
  const U32 order = event.layout == nullptr ? ~U32{0} : event.table;
  ++counts_[{order, 0}].writes;
  counts_[{order, 0}].table = table;
  for (const FieldPlace* place : event.fields) {
    Count& count = counts_[{order, place == nullptr ? ~U32{0} : place->index + 1}];
    count.table = table;
    count.field = nameOf(place);
    ++count.writes;
  }
}

Listing TraceCounts::listing() const {
  Listing listing({"table", "field", "writes"});
  for (const auto& [place, count] : counts_) {
    listing.add({count.table.empty() ? Cell(nullptr) : Cell(count.table),
                 count.field.empty() ? Cell(nullptr) : Cell(count.field), count.writes});
  }
  return listing;
}

}  // namespace Core
}  // namespace Velmar
