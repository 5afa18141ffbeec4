#pragma once

#include <array>
#include <vector>

#include "core/Dump.h"
#include "core/IndexSet.h"
#include "core/Value.h"

namespace Velmar {
namespace Core {

/// What is asked of an entry, such as "stg=2-5,9 and not valid=0", "portBitmap~20-22",
/// "any spTreePort=2" or "index>=100; nonzero". "not" binds first, then "and", "or" and at last ";",
/// which means "and" too.
class Condition {
 public:
  /// What entries are asked about: only those of a trace have changed, so that "changed stg" is of use.
  enum class Words : U8 { ofEntries, ofChanges };

  static Expected<Condition> of(const Layout& layout, std::string_view text,
                                Words words = Words::ofEntries);

  /// `changes`: the bits that have changed, for Words::ofChanges.
  bool holdsFor(U32 index, const U8* entry, const U8* changes = nullptr) const;

 private:
  friend class ConditionReader;

  enum class Kind { allOf, anyOf, noneOf, bits, index, fields, changed };
  enum class Relation { among, has, equal };
  /// A number of up to 128 bits: the upper half, then the lower one, so that it compares as a number.
  using Number = std::array<U64, 2>;
  struct Range {
    Number first, last;
  };

  explicit Condition(Kind kind) : kind_(kind) {}

  bool holdsForField(const FieldPlace& place, const U8* entry) const;
  bool isAmong(const Number& number) const;

  Kind kind_;
  std::vector<Condition> parts_;  ///< of allOf, anyOf and noneOf
  std::vector<U8> mask_;          ///< of bits: one of these is set
  U32 entryBytes_ = 0;
  std::vector<FieldPlace> places_;
  bool anyPlace_ = false;  ///< it is enough that one of the places fits
  Relation relation_ = Relation::among;
  bool isNegated_ = false;
  std::vector<Range> ranges_;  ///< of numbers
  std::vector<Value> ports_;   ///< of bitmaps: one value
};

/// Which entries of a dump are meant.
class Selection {
 public:
  Selection() = default;
  /// Conditions that must all hold.
  static Expected<Selection> of(const Layout& layout, const std::vector<std::string>& conditions,
                                Condition::Words words = Condition::Words::ofEntries);

  /// Whether an entry is meant, as far as its bytes and the conditions say.
  bool fits(U32 index, const U8* entry, U32 entryBytes, const U8* changes = nullptr) const;
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
