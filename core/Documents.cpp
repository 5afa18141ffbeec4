#include "core/Documents.h"

#include <algorithm>

#include "core/TextBuffer.h"

namespace Velmar {
namespace Core {
namespace {

void addPorts(TextBuffer& to, const Value& value) {
  to.add('[');
  bool isFirst = true;
  for (const U32 port : value.ports()) {
    if (!isFirst) to.add(',');
    isFirst = false;
    to.addDecimal(port);
  }
  to.add(']');
}

/// What a value's object begins with: it is part of the text that is prepared.
constexpr std::string_view valueHead = R"({"hex":"0x)";

/// The rest of the object.
[[gnu::noinline]] void addScalarTail(TextBuffer& to, const FieldPlace& place, U64 number) {
  to.addHex(number);
  if (place.width <= exactBits) {
    to.add(R"(","decimal":)").addDecimal(number).add('}');
  } else {
    to.add("\"}");
  }
}

void addWideTail(TextBuffer& to, const FieldPlace& place, const Value& value) {
  to.add(value.hexDigits()).add('"');
  if (place.isBitmap()) addPorts(to.add(R"(,"ports":)"), value);
  to.add('}');
}

void addPlain(TextBuffer& to, const FieldPlace& place, const Value& value) {
  if (place.isBitmap()) {
    addPorts(to, value);
  } else if (place.width <= exactBits) {
    to.addDecimal(*value.number());
  } else {
    to.add('"').add(value.hex()).add('"');
  }
}

/// {"0":"4-159","3":"0-3"}: the values, and the numbers of the fields that have them.
void addFamily(TextBuffer& to, const FieldGroup& family, const U8* entry, U32 entryBytes) {
  auto values = numbersByValue(family.members, entry, entryBytes);
  std::sort(values.begin(), values.end());
  for (const auto& each : values) {
    to.add(&each == &values.front() ? "{\"" : ",\"").addDecimal(each.first);
    to.add("\":\"").add(rangesText(each.second)).add('"');
  }
  to.add('}');
}

bool isExactScalar(const FieldPlace& place) { return place.isScalar() && place.width <= exactBits; }

}  // namespace

std::string valueJson(const FieldPlace& place, const Value& value) {
  std::string json(valueHead);
  TextBuffer to(json);
  if (place.isScalar()) {
    addScalarTail(to, place, *value.number());
  } else {
    addWideTail(to, place, value);
  }
  to.flush();
  return json;
}

std::string sourceJson(const Layout& layout) {
  return formatText(R"("table": "{}", "chip": "{}", "variant": {})", layout.name(),
                    layout.chip().name, layout.variant());
}

EntryDocument::EntryDocument(std::string& to, const Layout& layout, std::vector<FieldPlace> fields,
                             Style style)
    : to_(to),
      layout_(layout),
      style_(style),
      showsReservedBits_(fields.size() == layout.fields().size()),
      rows_(to, style.format, columnNames(layout, fields),
            style.format == RowFormat::json ? frame(layout, fields) : JsonFrame()),
      head_(R"({"index":)"),
      tail_(formatText(R"(,"accessType":{},"block":{},"fields":{{)", layout.geometry().accessType,
                       layout.geometry().block)) {
  if (style.format == RowFormat::jsonLines) {
    head_ = formatText(R"({{"table":"{}","chip":"{}","variant":{},"index":)", layout.name(),
                       layout.chip().name, layout.variant());
  }
  if (style.format == RowFormat::csv) {
    tail_ = formatText(",{},{}", layout.geometry().accessType, layout.geometry().block);
  }
  for (const FieldPlace& place : fields) addColumn(place);
}

EntryDocument::Form EntryDocument::formOf(const FieldPlace& place) const {
  if (style_.isCompact && place.isOfFamily()) return Form::family;
  if (style_.isPlain) return isExactScalar(place) ? Form::plainNumber : Form::plainValue;
  if (isExactScalar(place)) return Form::exactNumber;
  return place.isScalar() ? Form::number : Form::value;
}

void EntryDocument::addColumn(const FieldPlace& place) {
  const Form form = formOf(place);
  const auto family = std::find_if(columns_.begin(), columns_.end(), [&](const Column& column) {
    return form == Form::family && place.isOfFamilyOf(column.place);
  });
  if (family != columns_.end()) return family->family.members.push_back(place);
  const std::string_view name = form == Form::family ? place.prefix() : place.name();
  std::string key;
  if (style_.format != RowFormat::csv) {
    const bool isFull = !style_.isPlain && form != Form::family;
    key = formatText(R"({}"{}":{})", columns_.empty() ? "" : ",", name,
                     isFull ? valueHead : std::string_view());
  }
  columns_.push_back({place, form, key, key + R"(0","decimal":0})", {{place}}});
}

std::vector<std::string> EntryDocument::columnNames(const Layout& layout,
                                                    const std::vector<FieldPlace>& fields) {
  std::vector<std::string> names = {"index", "address", "accessType", "block"};
  for (const FieldPlace& place : fields) names.emplace_back(place.name());
  if (fields.size() == layout.fields().size()) names.emplace_back("outsideFields");
  return names;
}

JsonFrame EntryDocument::frame(const Layout& layout, const std::vector<FieldPlace>& fields) {
  std::string head =
      formatText(R"({{"format":"velmar-entries","version":1,"table":"{}","chip":"{}","variant":{},)"
                 R"("entryBytes":{},"layout":{{)",
                 layout.name(), layout.chip().name, layout.variant(), layout.entryBytes());
  for (const FieldPlace& place : fields) {
    head += formatText(R"({}"{}":{{"offset":{},"width":{}}})", &place == &fields.front() ? "" : ",",
                       place.name(), place.offset, place.width);
  }
  return {head + R"(},"entries":[)", "]}", ""};
}

void EntryDocument::write(U64 index, const U8* bytes) {
  if (style_.format == RowFormat::csv) return writeCsv(index, bytes);
  rows_.openRow();
  writeObject(index, bytes);
  rows_.closeRow();
}

void EntryDocument::addExactNumber(TextBuffer& to, const Column& column, U64 number) {
  if (number >= 10) return addScalarTail(to.add(column.key), column.place, number);
  // Most values have one digit: their text is there already, but for the digit.
  char* const text = to.addCopy(column.keyAndDigit);
  const char digit = static_cast<char>('0' + number);
  text[column.key.size()] = digit;
  text[column.keyAndDigit.size() - 2] = digit;
}

void EntryDocument::writeObject(U64 index, const U8* bytes) {
  const U32 size = layout_.entryBytes();
  TextBuffer to(to_);
  to.add(head_).addDecimal(index).add(R"(,"address":)");
  if (index < layout_.indexCount()) {
    to.add("\"0x").addHex(layout_.addressOf(static_cast<U32>(index)).address, 8).add('"');
  } else {
    to.add("null");
  }
  to.add(tail_);
  for (const Column& column : columns_) {
    const FieldPlace& place = column.place;
    if (column.form != Form::exactNumber) to.add(column.key);
    switch (column.form) {
      case Form::exactNumber:
        addExactNumber(to, column, readScalar(place, bytes, size));
        break;
      case Form::number:
        addScalarTail(to, place, readScalar(place, bytes, size));
        break;
      case Form::value:
        addWideTail(to, place, Value::read(place, bytes, size));
        break;
      case Form::plainNumber:
        to.addDecimal(readScalar(place, bytes, size));
        break;
      case Form::plainValue:
        addPlain(to, place, Value::read(place, bytes, size));
        break;
      case Form::family:
        addFamily(to, column.family, bytes, size);
        break;
    }
  }
  to.add('}');
  if (showsReservedBits_ && layout_.hasReservedBits(bytes)) {
    to.add(R"(,"outsideFields":")").add(reservedBits(layout_, bytes)).add('"');
  }
  to.add('}');
  to.flush();
}

void EntryDocument::writeCsv(U64 index, const U8* bytes) {
  const U32 size = layout_.entryBytes();
  TextBuffer to(to_);
  to.addDecimal(index).add(',');
  if (index < layout_.indexCount()) {
    to.add("0x").addHex(layout_.addressOf(static_cast<U32>(index)).address, 8);
  }
  to.add(tail_);
  for (const Column& column : columns_) {
    const FieldPlace& place = column.place;
    to.add(',');
    if (isExactScalar(place)) {
      to.addDecimal(readScalar(place, bytes, size));
    } else {
      std::string field;
      appendCsv(field, plainText(place, Value::read(place, bytes, size)));
      to.add(field);
    }
  }
  if (showsReservedBits_) {
    to.add(',');
    if (layout_.hasReservedBits(bytes)) to.add(reservedBits(layout_, bytes));
  }
  to.add('\n');
  to.flush();
}

}  // namespace Core
}  // namespace Velmar
