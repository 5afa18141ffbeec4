#include "core/Condition.h"

#include <algorithm>

#include "core/Families.h"

namespace Velmar {
namespace Core {
namespace {

Fault wrong(std::string_view condition, std::string_view what) {
  return Fault(Code::value, "{}: {}", quoted(condition).view(), what);
}

/// What is typed after the sign, as values of the field.
Expected<std::vector<Value>> valuesOf(const FieldPlace& place, std::string_view text, bool isList) {
  std::vector<Value> values;
  const bool isRange = !place.isBitmap() && text.find_first_of("- ") != text.npos;
  if (isRange) {
    return failed(
        Fault(
            Code::value,
            "{}: {} is not one number; give a range as two conditions, one with >= and one with <=",
            place.name(), quoted(text).view())
            .ofField(place.name()));
  }
  const bool isOne = place.isBitmap() || !isList;
  for (const std::string& one : isOne ? std::vector{std::string(text)} : split(text, ',')) {
    const Expected<Value> value = parseValue(place, one);
    if (!value) return failed(value);
    values.push_back(*value);
  }
  return values;
}

}  // namespace

Expected<Condition> Condition::of(const Layout& layout, std::string_view text) {
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
  const std::string_view rest = text.substr(at);
  const auto sign = std::find_if(std::begin(signs), std::end(signs), [rest](const Sign& candidate) {
    return rest.rfind(candidate.sign, 0) == 0;
  });
  if (at == 0 || sign == std::end(signs)) {
    return failed(
        wrong(text, "no condition").advise("give FIELD=VALUE, or another of != < <= > >= ~ !~"));
  }
  const auto places = findFields(layout, trim(text.substr(0, at)));
  if (!places) return failed(places);
  Condition condition;
  condition.entryBytes_ = layout.entryBytes();
  condition.places_ = *places;
  condition.relation_ = sign->relation;
  const FieldPlace& first = places->front();
  for (const FieldPlace& place : *places) {
    if (place.width == first.width && place.isBitmap() == first.isBitmap()) continue;
    const std::string what =
        formatText("{} and {} are of different kind", first.name(), place.name());
    return failed(wrong(text, what).advise("give a condition for each"));
  }
  const bool isForPorts = sign->relation == Relation::has || sign->relation == Relation::hasNone;
  const bool isForAll = sign->relation == Relation::equal || sign->relation == Relation::notEqual;
  if (first.isBitmap() != isForPorts && !isForAll) {
    const std::string what =
        formatText("{} is {}", first.name(), first.isBitmap() ? "a bitmap" : "a number");
    return failed(
        wrong(text, what)
            .advise("give {}", first.isBitmap()
                                   ? "~ (it has these ports), !~ (it has none of them), = or !="
                                   : "one of = != < <= > >="));
  }
  const auto values = valuesOf(first, trim(rest.substr(sign->sign.size())), isForAll);
  if (!values) return failed(values);
  if (isForPorts && values->front().isZero()) {
    return failed(wrong(text, "no ports are given, so the condition always holds")
                      .advise("for empty bitmaps write {}=none", first.name()));
  }
  condition.values_ = *values;
  return condition;
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

Expected<Selection> Selection::of(const Layout& layout,
                                  const std::vector<std::string>& conditions) {
  Selection selection;
  for (const std::string& text : conditions) {
    const Expected<Condition> condition = Condition::of(layout, text);
    if (!condition) return failed(condition);
    selection.conditions_.push_back(*condition);
  }
  return selection;
}

std::vector<size_t> Selection::in(const Dump& dump) const {
  const std::vector<U8> zeros(dump.entryBytes());
  std::vector<size_t> positions;
  for (size_t i = 0; i < dump.count(); ++i) {
    const U8* const bytes = dump.bytes(i);
    if (!indexes.has(dump.index(i))) continue;
    if (nonzero && std::equal(zeros.begin(), zeros.end(), bytes)) continue;
    const bool holds =
        std::all_of(conditions_.begin(), conditions_.end(),
                    [bytes](const Condition& condition) { return condition.holdsFor(bytes); });
    if (holds) positions.push_back(i);
  }
  return positions;
}

}  // namespace Core
}  // namespace Velmar
