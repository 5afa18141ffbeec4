#pragma once

#include <string>
#include <vector>

#include "model/Value.h"

namespace Tool {

/// A field and the value that it is to have, or ports that a bitmap is to gain or lose.
struct Assignment {
  enum class Kind : U8 { set, add, remove };

  FieldPlace place;
  Value value;
  Kind kind = Kind::set;
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
  Value newValueOf(const Assignment& assignment) const;

  const Layout& layout_;
  std::vector<U8> bytes_;
  std::vector<FieldPlace> set_;
};

/// What is typed: "field=value"; "bitmap+=ports" and "bitmap-=ports"; for a family of fields
/// "spTreePort0-3=3,10=2".
std::vector<Assignment> parseAssignments(const Layout& layout, const std::string& text);

}  // namespace Tool
