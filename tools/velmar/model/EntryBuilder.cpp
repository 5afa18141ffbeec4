#include "model/EntryBuilder.h"

#include "model/Failure.h"
#include "model/Families.h"
#include "model/Text.h"

namespace Tool {

void EntryBuilder::start(const U8* bytes) {
  bytes_.assign(bytes, bytes + layout_.entryBytes());
  forget();
}

void EntryBuilder::startFromZero() {
  bytes_.assign(layout_.entryBytes(), 0);
  forget();
}

Value EntryBuilder::newValueOf(const Assignment& assignment) const {
  if (assignment.kind == Assignment::Kind::set) return assignment.value;
  Value value = Value::read(assignment.place, bytes_.data(), layout_.entryBytes());
  if (assignment.kind == Assignment::Kind::add) value.add(assignment.value);
  if (assignment.kind == Assignment::Kind::remove) value.remove(assignment.value);
  return value;
}

void EntryBuilder::set(const Assignment& assignment) {
  const FieldPlace& place = assignment.place;
  const Assignment change = {place, newValueOf(assignment)};
  for (const FieldPlace& earlier : set_) {
    const bool isSame = earlier.field.id == place.field.id;
    if (isSame && assignment.kind != Assignment::Kind::set) continue;
    if (earlier.sharesBitsWith(place)) checkAgainst(earlier, change);
  }
  change.value.write(place, bytes_.data(), layout_.entryBytes());
  set_.push_back(place);
}

void EntryBuilder::checkAgainst(const FieldPlace& earlier, const Assignment& assignment) const {
  std::vector<U8> changed = bytes_;
  assignment.value.write(assignment.place, changed.data(), layout_.entryBytes());
  const Value before = Value::read(earlier, bytes_.data(), layout_.entryBytes());
  if (before == Value::read(earlier, changed.data(), layout_.entryBytes())) return;
  if (earlier.field.id == assignment.place.field.id) {
    fail("{} is given twice, with two values; give it once", earlier.name());
  }
  fail("{} and {} share bits and their values disagree; give one of them, or values that agree",
       earlier.name(), assignment.place.name());
}

void EntryBuilder::setReservedBits(const std::vector<U8>& bits) {
  const std::vector<U8>& mask = layout_.reservedMask();
  for (size_t i = 0; i < bits.size(); ++i) {
    bytes_[i] = static_cast<U8>((bytes_[i] & ~mask[i]) | bits[i]);
  }
}

namespace {

Assignment assignmentOf(const FieldPlace& place, std::string_view value, Assignment::Kind kind) {
  if (kind != Assignment::Kind::set && !place.isBitmap()) {
    fail("{} is not a bitmap, only ports are added and removed; give {}=VALUE", place.name(),
         place.name());
  }
  return {place, parseValue(place, value), kind};
}

}  // namespace

std::vector<Assignment> parseAssignments(const Layout& layout, const std::string& text) {
  size_t end = text.find('=');
  if (end == std::string::npos || end == 0) {
    fail("{} sets no field; give FIELD=VALUE, or @FILE", inQuotes(text));
  }
  const std::string_view value = std::string_view(text).substr(end + 1);
  auto kind = Assignment::Kind::set;
  if (text[end - 1] == '+') kind = Assignment::Kind::add;
  if (text[end - 1] == '-') kind = Assignment::Kind::remove;
  if (kind != Assignment::Kind::set) --end;
  const std::string_view name = trim(std::string_view(text).substr(0, end));
  // "spTreePort0-3,7=3,10=2": the numbers before a sign get the value after it.
  const size_t comma = name.find(',');
  const std::optional<NumberedName> numbered =
      numberedName(name.substr(0, name.find_first_of(",-")));
  const bool isList =
      numbered && (comma != std::string_view::npos || value.find('=') != value.npos);
  std::vector<Assignment> assignments;
  if (!isList) {
    for (const FieldPlace& place : findFields(layout, name)) {
      assignments.push_back(assignmentOf(place, trim(value), kind));
    }
    return assignments;
  }
  std::vector<FieldPlace> places;
  for (const std::string& part :
       split(std::string_view(text).substr(numbered->prefix.size()), ',')) {
    const size_t sign = part.find('=');
    const std::string numbers(trim(std::string_view(part).substr(0, sign)));
    for (const FieldPlace& place : findFields(layout, std::string(numbered->prefix) + numbers)) {
      places.push_back(place);
    }
    if (sign == std::string::npos) continue;
    for (const FieldPlace& place : places) {
      assignments.push_back(
          assignmentOf(place, trim(std::string_view(part).substr(sign + 1)), kind));
    }
    places.clear();
  }
  if (!places.empty()) {
    fail("{}: {} is given no value; give {}=VALUE", inQuotes(text), places.front().name(),
         places.front().name());
  }
  return assignments;
}

}  // namespace Tool
