#pragma once

#include <vector>

#include "core/Dump.h"
#include "core/IndexSet.h"
#include "core/Value.h"

namespace Velmar {
namespace Core {

/// A condition on the value of a field, such as "stg=2,3", "fidId>=0x10" or "portBitmap~20-22". It
/// holds for several fields, such as "spTreePort0-3=2", if it holds for each of them.
class Condition {
 public:
  static Expected<Condition> of(const Layout& layout, std::string_view text);

  bool holdsFor(const U8* entry) const;

 private:
  enum class Relation { equal, notEqual, less, lessOrEqual, greater, greaterOrEqual, has, hasNone };

  bool holdsFor(const Value& value) const;

  U32 entryBytes_ = 0;
  std::vector<FieldPlace> places_;
  Relation relation_ = Relation::equal;
  std::vector<Value> values_;  ///< more than one for equal and notEqual only
};

/// Which entries of a dump are meant.
class Selection {
 public:
  Selection() = default;
  /// Conditions that must all hold.
  static Expected<Selection> of(const Layout& layout, const std::vector<std::string>& conditions);

  /// The entries, as positions in the dump, in its order.
  std::vector<size_t> in(const Dump& dump) const;
  bool hasConditions() const { return !conditions_.empty(); }

  IndexSet indexes;
  bool nonzero = false;

 private:
  std::vector<Condition> conditions_;
};

}  // namespace Core
}  // namespace Velmar
