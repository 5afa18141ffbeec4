#include "model/Condition.h"

#include <algorithm>

#include "model/Failure.h"
#include "model/Families.h"
#include "model/Text.h"

namespace Tool {

namespace {

/// What is typed after the sign, as values of the field.
std::vector<Value> valuesOf(const FieldPlace& place, std::string_view text, bool isList) {
  if (place.isBitmap()) return {parseValue(place, text)};
  const bool isRange = text.find_first_of("- ") != std::string_view::npos;
  if (isRange) {
    fail(
        "--where {}: {} is not one number; give a range as two conditions, one with >= and one "
        "with <=",
        place.name(), inQuotes(text));
  }
  std::vector<Value> values;
  for (const std::string& one : isList ? split(text, ',') : std::vector{std::string(text)}) {
    values.push_back(parseValue(place, one));
  }
  return values;
}

}  // namespace

Condition::Condition(const Layout& layout, const std::string& text)
    : entryBytes_(layout.entryBytes()), relation_(Relation::equal) {
  struct Sign {
    std::string_view sign;
    Relation relation;
  };
  // A sign that begins with another one comes first.
  constexpr Sign signs[] = {
      {"!=", Relation::notEqual}, {"!~", Relation::hasNone},        {"<=", Relation::lessOrEqual},
      {"<", Relation::less},      {">=", Relation::greaterOrEqual}, {">", Relation::greater},
      {"==", Relation::equal},    {"=", Relation::equal},           {"~", Relation::has}};
  const size_t at = std::min(text.find_first_of("=!<>~"), text.size());
  const std::string_view rest = std::string_view(text).substr(at);
  const auto sign = std::find_if(std::begin(signs), std::end(signs), [rest](const Sign& candidate) {
    return rest.rfind(candidate.sign, 0) == 0;
  });
  if (at == 0 || sign == std::end(signs)) {
    fail("--where {}: no condition; give FIELD=VALUE, or another of != < <= > >= ~ !~",
         inQuotes(text));
  }
  places_ = findFields(layout, trim(std::string_view(text).substr(0, at)));
  relation_ = sign->relation;
  const FieldPlace& first = places_.front();
  const bool isForPorts = relation_ == Relation::has || relation_ == Relation::hasNone;
  const bool isForAll = relation_ == Relation::equal || relation_ == Relation::notEqual;
  for (const FieldPlace& place : places_) {
    if (place.width != first.width || place.isBitmap() != first.isBitmap()) {
      fail("--where {}: {} and {} are of different kind; give a condition for each", inQuotes(text),
           first.name(), place.name());
    }
  }
  if (first.isBitmap() != isForPorts && !isForAll) {
    fail("--where {}: {} is {}; give {}", inQuotes(text), first.name(),
         first.isBitmap() ? "a bitmap" : "a number",
         first.isBitmap() ? "~ (it has these ports), !~ (it has none of them), = or !="
                          : "one of = != < <= > >=");
  }
  values_ = valuesOf(first, trim(rest.substr(sign->sign.size())), isForAll);
  if (isForPorts && values_.front().isZero()) {
    fail("--where {}: every bitmap has no ports; for an empty one give {}=none", inQuotes(text),
         first.name());
  }
}

bool Condition::holdsFor(const U8* entry) const {
  return std::all_of(places_.begin(), places_.end(), [&](const FieldPlace& place) {
    return holdsFor(Value::read(place, entry, entryBytes_));
  });
}

bool Condition::holdsFor(const Value& value) const {
  const Value& other = values_.front();
  switch (relation_) {
    case Relation::equal:
      return std::find(values_.begin(), values_.end(), value) != values_.end();
    case Relation::notEqual:
      return std::find(values_.begin(), values_.end(), value) == values_.end();
    case Relation::less:
      return value < other;
    case Relation::lessOrEqual:
      return !(other < value);
    case Relation::greater:
      return other < value;
    case Relation::greaterOrEqual:
      return !(value < other);
    case Relation::has:
      return value.contains(other);
    case Relation::hasNone:
      return !value.overlaps(other);
  }
  return false;
}

}  // namespace Tool
