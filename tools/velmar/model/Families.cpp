#include "model/Families.h"

#include <algorithm>

#include "model/Failure.h"
#include "model/Text.h"

namespace Tool {
namespace {

/// Fewer numbered fields than these are shown one by one.
constexpr size_t smallestFamily = 4;

}  // namespace

std::string FieldGroup::name() const {
  if (!isFamily()) return front().name();
  std::vector<U32> numbers;
  for (const FieldPlace& place : members) numbers.push_back(numberedName(place.name())->number);
  return std::string(numberedName(front().name())->prefix) + rangesText(numbers);
}

std::string FieldGroup::hardwareName() const {
  const std::string first = front().field.hardwareName;
  if (!isFamily()) return first;
  const size_t prefix = numberedName(front().name())->prefix.size();
  return std::string(numberedName(first)->prefix) + name().substr(prefix);
}

std::vector<U32> FieldGroup::ids() const {
  std::vector<U32> ids;
  for (const FieldPlace& place : members) ids.push_back(place.field.id);
  return ids;
}

std::string FieldGroup::bits() const {
  FieldPlace all = front();
  for (const FieldPlace& place : members) {
    const U32 end = std::max(all.offset + all.width, place.offset + place.width);
    all.offset = std::min(all.offset, place.offset);
    all.width = end - all.offset;
  }
  return all.bits();
}

std::vector<FieldGroup> grouped(const std::vector<FieldPlace>& fields, bool asFamilies) {
  std::vector<FieldGroup> groups;
  for (size_t begin = 0; begin < fields.size();) {
    size_t end = begin + 1;
    while (end < fields.size() && fields[end].width == fields[begin].width &&
           areOfOneFamily(fields[begin].field, fields[end].field)) {
      ++end;
    }
    if (!asFamilies || end - begin < smallestFamily) end = begin + 1;
    groups.push_back(
        {{fields.begin() + static_cast<long>(begin), fields.begin() + static_cast<long>(end)}});
    begin = end;
  }
  return groups;
}

std::vector<FieldPlace> findFields(const Layout& layout, std::string_view name) {
  std::vector<FieldPlace> found;
  if (name.find_first_of("*?[") != std::string_view::npos) {
    const NamePattern pattern(name);
    for (const FieldPlace& place : layout.fields()) {
      if (pattern.matches(place.name())) found.push_back(place);
    }
    if (found.empty()) {
      fail("{} has no field like {}; {}", layout.name(), inQuotes(name), layout.seeFields());
    }
    return found;
  }
  // "spTreePort0-3": numbers after the name of a family. Other hyphens are part of a name.
  const size_t dash = std::min(name.rfind('-'), name.size());
  const std::optional<NumberedName> first = numberedName(name.substr(0, dash));
  const std::optional<U64> last = parseNumber(name.substr(std::min(dash + 1, name.size())));
  if (!first || !last) return {layout.find(name)};
  if (*last < first->number) {
    fail("{} runs backwards; give the lower number first", inQuotes(name));
  }
  layout.find(formatText("{}{}", first->prefix, *last));
  for (U64 number = first->number; number <= *last; ++number) {
    found.push_back(layout.find(formatText("{}{}", first->prefix, number)));
  }
  return found;
}

}  // namespace Tool
