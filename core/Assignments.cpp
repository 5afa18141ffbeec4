#include "core/EntryBuilder.h"
#include "core/Families.h"

namespace Velmar {
namespace Core {
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
