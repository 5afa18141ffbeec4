#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/Layout.h"

// Families of fields: those of all ports, such as spTreePort0 to spTreePort159. The catalogue says
// which fields are of one. Names such as "spTreePort0-3" are patterns over names, of any fields.

namespace Velmar {
namespace Core {

/// A family of fields of one width, or one field alone.
struct FieldGroup {
  std::vector<FieldPlace> members;

  bool isFamily() const { return members.size() > 1; }
  const FieldPlace& front() const { return members.front(); }
  const FieldPlace& back() const { return members.back(); }
  /// Such as "spTreePort0-63,68"; the accessor of a field alone.
  std::string name() const;
  /// Such as "SP_TREE_PORT0-63,68".
  std::string hardwareName() const;
  std::vector<U32> ids() const;
  /// The bits from the first to the last member's, as FieldPlace::bits() has them.
  std::string bits() const;
};

/// Fields as groups, in the order given: those of one family and width that follow each other share
/// a group. `asFamilies` false: each alone.
std::vector<FieldGroup> grouped(const std::vector<FieldPlace>& fields, bool asFamilies);

/// The name of such a group, by its first member and the numbers of all.
std::string familyName(const FieldPlace& member, const std::vector<U32>& numbers);

/// The values of a family in an entry, each with the numbers of its fields, in the order of the first
/// ones.
std::vector<std::pair<U64, std::vector<U32>>> numbersByValue(const std::vector<FieldPlace>& members,
                                                             const U8* entry, U32 entryBytes);
/// The same as text: "3: 1-9,11-20  0: 0,10".
std::string familyText(const std::vector<FieldPlace>& members, const U8* entry, U32 entryBytes);

/// Groups items that are alike: `areAlike(i, j)` compares an item with the first of a group. The groups
/// are in the order of their first items, which need not follow each other.
template <class AreAlike>
std::vector<std::vector<size_t>> joined(size_t count, const AreAlike& areAlike) {
  std::vector<std::vector<size_t>> groups;
  for (size_t i = 0; i < count; ++i) {
    bool isTaken = false;
    for (std::vector<size_t>& group : groups) {
      isTaken = areAlike(group.front(), i);
      if (isTaken) group.push_back(i);
      if (isTaken) break;
    }
    if (!isTaken) groups.push_back({i});
  }
  return groups;
}

/// The fields that a typed name stands for: a field, numbered fields such as "spTreePort0-3", or all
/// that match a name with * and ?. A fault if there is none.
Expected<std::vector<FieldPlace>> findFields(const Layout& layout, std::string_view name);

/// The members of a family by its name, such as "spTreePort", or what findFields() finds.
Expected<std::vector<FieldPlace>> findMembers(const Layout& layout, std::string_view name);

}  // namespace Core
}  // namespace Velmar
