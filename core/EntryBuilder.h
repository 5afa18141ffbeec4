#pragma once

#include <bitset>
#include <string>
#include <vector>

#include "core/Value.h"

namespace Velmar {
namespace Core {

/// A field and the value that it is to have, or ports that a bitmap is to gain or lose.
struct Assignment {
  enum class Kind : U8 {
    set,
    setIfOther,  ///< not given where the entry has the value
    add,
    remove
  };

  FieldPlace place;
  Value value;
  Kind kind = Kind::set;
};

/// An entry that is being encoded.
class EntryBuilder {
 public:
  /// All zero.
  explicit EntryBuilder(const Layout& layout)
      : layout_(layout), bytes_(layout.entryBytes()), start_(bytes_) {}

  /// Starts from an existing entry, or from zero.
  void start(const U8* bytes);
  void startFromZero();
  /// Fields set from now on may replace those set before.
  void forget() {
    given_.reset();
    overlapping_.clear();
    start_ = bytes_;
  }
  /// Whether the field had the value before any was set.
  bool had(const FieldPlace& place, const Value& value) const {
    return value == Value::read(place, start_.data(), layout_.entryBytes());
  }
  /// Sets a field; a fault if it changes bits of a field that was set before.
  Done set(const Assignment& assignment);
  Done set(const FieldPlace& place, const Value& value);
  /// Sets the bits outside all fields; `bits` has no others, and may be empty.
  void setReservedBits(const std::vector<U8>& bits);

  const std::vector<U8>& bytes() const { return bytes_; }

 private:
  Done checkAgainst(const FieldPlace& earlier, const FieldPlace& place, const Value& value) const;

  const Layout& layout_;
  std::vector<U8> bytes_;
  std::vector<U8> start_;                ///< the entry before any field was set
  std::bitset<256> given_;               ///< fields that were set
  std::vector<FieldPlace> overlapping_;  ///< those of them that share bits with others
};

/// What is typed: "field=value"; "bitmap+=ports" and "bitmap-=ports"; for a family of fields
/// "spTreePort0-3=3,10=2".
Expected<std::vector<Assignment>> parseAssignments(const Layout& layout, const std::string& text);

}  // namespace Core
}  // namespace Velmar
