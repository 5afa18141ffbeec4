#pragma once

#include <optional>
#include <string>
#include <vector>

#include "model/Layout.h"

// Families of fields: those of all ports, such as spTreePort0 to spTreePort159.

namespace Tool {

using Binding::areOfOneFamily;
using Binding::numberedName;
using Binding::NumberedName;

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

/// Fields as groups, in the order given. `asFamilies` false: each alone.
std::vector<FieldGroup> grouped(const std::vector<FieldPlace>& fields, bool asFamilies);

/// The fields that a name on the command line stands for: a field, a part of a family such as
/// "spTreePort0-3", or all that match a name with * and ?. Fails where there is none.
std::vector<FieldPlace> findFields(const Layout& layout, std::string_view name);

}  // namespace Tool
