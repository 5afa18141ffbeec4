#pragma once

#include <string>
#include <vector>

#include "model/Value.h"

namespace Tool {

/// A field and the value that it is to have.
struct Assignment {
  FieldPlace place;
  Value value;
};

/// An entry that is being encoded.
class EntryBuilder {
 public:
  /// All zero.
  explicit EntryBuilder(const Layout& layout) : layout_(layout), bytes_(layout.entryBytes()) {}

  /// Starts from an existing entry, or from zero.
  void start(const U8* bytes);
  void startFromZero();
  /// Fields set from now on may replace those set before.
  void forget() { set_.clear(); }
  /// Sets a field; fails if it changes bits of a field that was set before.
  void set(const Assignment& assignment);
  /// Sets the bits outside all fields; `bits` has no others, and may be empty.
  void setReservedBits(const std::vector<U8>& bits);

  const std::vector<U8>& bytes() const { return bytes_; }

 private:
  void checkAgainst(const FieldPlace& earlier, const Assignment& assignment) const;

  const Layout& layout_;
  std::vector<U8> bytes_;
  std::vector<FieldPlace> set_;
};

/// "field=value" as it is typed.
Assignment parseAssignment(const Layout& layout, const std::string& text);

}  // namespace Tool
