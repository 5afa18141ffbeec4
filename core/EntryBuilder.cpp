#include "core/EntryBuilder.h"

#include "core/Families.h"

namespace Velmar {
namespace Core {

void EntryBuilder::start(const U8* bytes) {
  bytes_.assign(bytes, bytes + layout_.entryBytes());
  forget();
}

void EntryBuilder::startFromZero() {
  bytes_.assign(layout_.entryBytes(), 0);
  forget();
}

Done EntryBuilder::set(const Assignment& assignment) {
  const FieldPlace& place = assignment.place;
  if (assignment.kind == Assignment::Kind::set) return set(place, assignment.value);
  if (assignment.kind == Assignment::Kind::setIfOther) {
    return had(place, assignment.value) ? Done() : set(place, assignment.value);
  }
  Value value = Value::read(place, bytes_.data(), layout_.entryBytes());
  if (assignment.kind == Assignment::Kind::add) value.add(assignment.value);
  if (assignment.kind == Assignment::Kind::remove) value.remove(assignment.value);
  // Ports may be added to what was set before.
  given_[place.index] = false;
  return set(place, value);
}

Done EntryBuilder::set(const FieldPlace& place, const Value& value) {
  if (given_[place.index]) {
    if (const Done done = checkAgainst(place, place, value); !done) return done;
  }
  if (place.field.overlaps) {
    for (const FieldPlace& earlier : overlapping_) {
      if (earlier.index == place.index || !earlier.sharesBitsWith(place)) continue;
      if (const Done done = checkAgainst(earlier, place, value); !done) return done;
    }
    overlapping_.push_back(place);
  }
  value.write(place, bytes_.data(), layout_.entryBytes());
  given_[place.index] = true;
  return succeeded();
}

Done EntryBuilder::checkAgainst(const FieldPlace& earlier, const FieldPlace& place,
                                const Value& value) const {
  std::vector<U8> changed = bytes_;
  value.write(place, changed.data(), layout_.entryBytes());
  const Value before = Value::read(earlier, bytes_.data(), layout_.entryBytes());
  if (before == Value::read(earlier, changed.data(), layout_.entryBytes())) return succeeded();
  if (earlier.index == place.index) {
    return failed(
        Fault(Code::value, "{} is given twice, with two values; give it once", earlier.name())
            .ofField(earlier.name()));
  }
  return failed(Fault(Code::value,
                      "{} and {} share bits and their values disagree; give one of them, or values "
                      "that agree",
                      earlier.name(), place.name())
                    .ofField(place.name()));
}

void EntryBuilder::setReservedBits(const std::vector<U8>& bits) {
  const std::vector<U8>& mask = layout_.reservedMask();
  for (size_t i = 0; i < bits.size(); ++i) {
    bytes_[i] = static_cast<U8>((bytes_[i] & ~mask[i]) | bits[i]);
  }
}

namespace {

/// Adds an assignment for each of the fields.
Done assign(std::vector<Assignment>& assignments, const std::vector<FieldPlace>& places,
            std::string_view text, Assignment::Kind kind) {
  for (const FieldPlace& place : places) {
    if (kind != Assignment::Kind::set && !place.isBitmap()) {
      return failed(Fault(Code::value,
                          "{} is not a bitmap, only ports are added and removed; give {}=VALUE",
                          place.name(), place.name())
                        .ofField(place.name()));
    }
    const Expected<Value> value = parseValue(place, text);
    if (!value) return failed(value);
    assignments.push_back({place, *value, kind});
  }
  return {};
}

}  // namespace

Expected<std::vector<Assignment>> parseAssignments(const Layout& layout, const std::string& text) {
  size_t end = text.find('=');
  if (end == std::string::npos || end == 0) {
    return failed(
        Fault(Code::value, "{} sets no field; give FIELD=VALUE, or @FILE", quoted(text).view()));
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
    const auto found = findFields(layout, name);
    if (!found) return failed(found);
    if (const Done done = assign(assignments, *found, trim(value), kind); !done)
      return failed(done);
    return assignments;
  }
  std::vector<FieldPlace> places;
  for (const std::string& part :
       split(std::string_view(text).substr(numbered->prefix.size()), ',')) {
    const size_t sign = part.find('=');
    const std::string numbers(trim(std::string_view(part).substr(0, sign)));
    const auto found = findFields(layout, std::string(numbered->prefix) + numbers);
    if (!found) return failed(found);
    places.insert(places.end(), found->begin(), found->end());
    if (sign == std::string::npos) continue;
    const std::string_view typed = trim(std::string_view(part).substr(sign + 1));
    if (const Done done = assign(assignments, places, typed, kind); !done) return failed(done);
    places.clear();
  }
  if (!places.empty()) {
    return failed(Fault(Code::value, "{}: {} is given no value; give {}=VALUE", quoted(text).view(),
                        places.front().name(), places.front().name()));
  }
  return assignments;
}

}  // namespace Core
}  // namespace Velmar
