#pragma once

#include <vector>

#include "model/Value.h"

namespace Tool {

/// A condition on the value of a field, such as "stg=2,3", "fidId>=0x10" or "portBitmap~20-22". It
/// holds for a part of a family, such as "spTreePort0-3=2", if it holds for each field of it.
class Condition {
 public:
  Condition(const Layout& layout, const std::string& text);

  bool holdsFor(const U8* entry) const;

 private:
  enum class Relation { equal, notEqual, less, lessOrEqual, greater, greaterOrEqual, has, hasNone };

  bool holdsFor(const Value& value) const;

  U32 entryBytes_;
  std::vector<FieldPlace> places_;
  Relation relation_;
  std::vector<Value> values_;  ///< more than one for equal and notEqual only
};

}  // namespace Tool
