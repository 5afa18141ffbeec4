#include "core/Families.h"

#include <algorithm>

#include "core/Value.h"

namespace Velmar {
namespace Core {

std::string familyName(const FieldPlace& member, const std::vector<U32>& numbers) {
  return std::string(member.prefix()) + rangesText(numbers);
}

std::string FieldGroup::name() const {
  if (!isFamily()) return front().name();
  std::vector<U32> numbers;
  for (const FieldPlace& place : members) numbers.push_back(place.family.number);
  return familyName(front(), numbers);
}

std::string FieldGroup::hardwareName() const {
  const std::string_view first = front().field.hardwareName;
  if (!isFamily()) return std::string(first);
  const size_t prefix = first.find_last_not_of("0123456789") + 1;
  return std::string(first.substr(0, prefix)) + name().substr(front().family.prefixLength);
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
           fields[end].isOfFamilyOf(fields[begin])) {
      ++end;
    }
    if (!asFamilies) end = begin + 1;
    groups.push_back(
        {{fields.begin() + static_cast<long>(begin), fields.begin() + static_cast<long>(end)}});
    begin = end;
  }
  return groups;
}

Expected<std::vector<FieldPlace>> findFields(const Layout& layout, std::string_view name) {
  std::vector<FieldPlace> found;
  if (name.find_first_of("*?[") != std::string_view::npos) {
    const Expected<NamePattern> pattern = NamePattern::of(name);
    if (!pattern) return failed(pattern);
    for (const FieldPlace& place : layout.fields()) {
      if (pattern->matches(place.name())) found.push_back(place);
    }
    if (found.empty()) {
      return failed(Fault(
          Code::unknown, "{} has no field like {}; \"velmar layout {} --chip {}\" lists the fields",
          layout.name(), quoted(name).view(), layout.name(), layout.chip().name));
    }
    return found;
  }
  // "spTreePort0-3": numbers after the name of a family. Other hyphens are part of a name.
  const size_t dash = std::min(name.rfind('-'), name.size());
  const std::optional<NumberedName> first = numberedName(name.substr(0, dash));
  const std::optional<U64> last = parseNumber(name.substr(std::min(dash + 1, name.size())));
  if (!first || !last) {
    return layout.find(name).map([](const FieldPlace* place) { return std::vector{*place}; });
  }
  if (*last < first->number) {
    return failed(Fault(Code::unknown, "{} runs backwards; give the lower number first",
                        quoted(name).view()));
  }
  const auto end = layout.find(formatText("{}{}", first->prefix, *last));
  if (!end) return failed(end);
  for (U64 number = first->number; number <= *last; ++number) {
    const auto place = layout.find(formatText("{}{}", first->prefix, number));
    if (!place) return failed(place);
    found.push_back(**place);
  }
  return found;
}

std::vector<std::pair<U64, std::vector<U32>>> numbersByValue(const std::vector<FieldPlace>& members,
                                                             const U8* entry, U32 entryBytes) {
  std::vector<std::pair<U64, std::vector<U32>>> values;
  for (const FieldPlace& place : members) {
    const U64 value = readScalar(place, entry, entryBytes);
    auto found = std::find_if(values.begin(), values.end(),
                              [value](const auto& one) { return one.first == value; });
    if (found == values.end()) found = values.insert(values.end(), {value, {}});
    found->second.push_back(place.family.number);
  }
  return values;
}

std::string familyText(const std::vector<FieldPlace>& members, const U8* entry, U32 entryBytes) {
  std::string text;
  for (const auto& [value, numbers] : numbersByValue(members, entry, entryBytes)) {
    text += formatText("{}{}: {}", text.empty() ? "" : "  ", value, rangesText(numbers));
  }
  return text;
}

Expected<std::vector<FieldPlace>> findMembers(const Layout& layout, std::string_view name) {
  std::vector<FieldPlace> members;
  const SimpleName simple(name);
  for (const FieldPlace& place : layout.fields()) {
    if (!place.isOfFamily() || SimpleName(place.prefix()).text() != simple.text()) continue;
    members.push_back(place);
  }
  return members.empty() ? findFields(layout, name) : members;
}

}  // namespace Core
}  // namespace Velmar
