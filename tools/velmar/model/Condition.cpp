#include "model/Condition.h"

#include <algorithm>

#include "model/Failure.h"
#include "model/Text.h"

namespace Tool {

Condition::Condition(const Layout& layout, const std::string& text)
    : entryBytes_(layout.entryBytes()), place_{}, relation_(Relation::equal) {
  struct Sign {
    std::string_view sign;
    Relation relation;
  };
  // A sign that begins with another one comes first.
  constexpr Sign signs[] = {
      {"!=", Relation::notEqual}, {"<=", Relation::lessOrEqual}, {">=", Relation::greaterOrEqual},
      {"<", Relation::less},      {">", Relation::greater},      {"=", Relation::equal},
      {"~", Relation::has}};
  const size_t at = std::min(text.find_first_of("=!<>~"), text.size());
  const std::string_view rest = std::string_view(text).substr(at);
  const auto sign = std::find_if(std::begin(signs), std::end(signs), [rest](const Sign& candidate) {
    return rest.rfind(candidate.sign, 0) == 0;
  });
  if (at == 0 || sign == std::end(signs)) {
    fail("--where {}: no condition; give FIELD=VALUE, or another of != < <= > >= ~",
         inQuotes(text));
  }
  place_ = layout.find(trim(std::string_view(text).substr(0, at)));
  relation_ = sign->relation;
  if (place_.isBitmap() != (relation_ == Relation::has) && relation_ != Relation::equal &&
      relation_ != Relation::notEqual) {
    fail("--where {}: {} is {}; give {}", inQuotes(text), place_.name(),
         place_.isBitmap() ? "a bitmap" : "a number",
         place_.isBitmap() ? "=, != or ~ (it has these ports)" : "one of = != < <= > >=");
  }
  const std::string_view value = trim(rest.substr(sign->sign.size()));
  const bool isList = relation_ == Relation::equal || relation_ == Relation::notEqual;
  if (place_.isBitmap() || !isList) {
    values_ = {parseValue(place_, value)};
  } else {
    for (const std::string& one : split(value, ',')) values_.push_back(parseValue(place_, one));
  }
}

bool Condition::holdsFor(const U8* entry) const {
  return holdsFor(Value::read(place_, entry, entryBytes_));
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
  }
  return false;
}

}  // namespace Tool
