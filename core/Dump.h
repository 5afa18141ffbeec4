#pragma once

#include <string>
#include <unordered_set>
#include <vector>

#include "core/Layout.h"

namespace Velmar {
namespace Core {

/// The notations of dumps. Those of text are one reading each, or several; see Reading.cpp.
enum class Notation : U8 { automatic, raw, hex, xxd, hexdump, od, json, csv };
/// As --input and the interfaces name them, such as "raw".
const char* nameOf(Notation notation);
std::optional<Notation> notationNamed(std::string_view name);

/// How JSON has entries.
struct JsonForm {
  bool isLines = false;    ///< each is a document of its own
  bool isPlain = false;    ///< values alone, without their forms
  bool isCompact = false;  ///< a family is one member
};

/// The entries of one table: a value. Each has an index and entryBytes() bytes.
class Dump {
 public:
  Dump() = default;
  /// Entries one after another from an index on. The bytes are borrowed: they must outlive the dump.
  Dump(U32 entryBytes, U32 first, const U8* bytes, size_t count)
      : entryBytes_(entryBytes), first_(first), count_(count), borrowed_(bytes) {}
  /// Entries that are added one by one.
  explicit Dump(U32 entryBytes) : entryBytes_(entryBytes) {}

  void add(U32 index, const U8* bytes);

  size_t count() const { return count_; }
  /// Whether the indexes follow each other in ascending order.
  bool isConsecutive() const { return indexes_.empty(); }
  U32 index(size_t i) const {
    return indexes_.empty() ? first_ + static_cast<U32>(i) : indexes_[i];
  }
  const U8* bytes(size_t i) const { return data() + i * entryBytes_; }
  /// The bytes of all entries, without gaps.
  const U8* data() const { return borrowed_ != nullptr ? borrowed_ : owned_.data(); }
  size_t size() const { return count_ * entryBytes_; }
  U32 entryBytes() const { return entryBytes_; }

  /// What was left out of the input, or is worth saying, one sentence each.
  std::vector<std::string> notes;
  /// In which notation the input was.
  Notation notation = Notation::raw;
  JsonForm jsonForm;  ///< if it was JSON

 private:
  U32 entryBytes_ = 0;
  U32 first_ = 0;
  size_t count_ = 0;
  const U8* borrowed_ = nullptr;
  std::vector<U8> owned_;
  std::vector<U32> indexes_;  ///< empty: they follow each other from first_ on
};

/// The indexes that an input has given.
class SeenIndexes {
 public:
  /// False if it was inserted before.
  bool insert(U64 index) {
    constexpr U64 few = U64{1} << 20;
    if (index >= few) return others_.insert(index).second;
    const auto at = static_cast<size_t>(index);
    if (at >= few_.size()) few_.resize(at + 1);
    const bool isNew = !few_[at];
    few_[at] = true;
    return isNew;
  }
  bool isEmpty() const { return few_.empty() && others_.empty(); }

 private:
  std::vector<bool> few_;
  std::unordered_set<U64> others_;
};

}  // namespace Core
}  // namespace Velmar
