#pragma once

#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "core/Families.h"
#include "core/Snapshot.h"

namespace Velmar {
namespace Sqlite {

enum class ColumnKind : U8 {
  placeholder,
  index,
  identifier,
  address,
  nonzero,
  reserved,
  field,   ///< a number, or a bitmap or wide field as text
  family,  ///< as text
  ports    ///< hidden: a bitmap or family as bytes, with a bit for each port
};

/// A column of a table in SQL.
struct Column {
  std::string name;
  ColumnKind kind;
  size_t number = 0;      ///< of a placeholder, or of a field among those of the table
  bool isNumber = false;  ///< on every chip that has it
  U32 bits = 0;           ///< the most that a number has
  bool mayBeNull = false;
  bool hasPorts = false;  ///< of a bitmap or a family
};

/// A column on one chip.
struct ColumnPlace {
  const Core::FieldPlace* field = nullptr;  ///< null: the chip does not have it
  std::vector<Core::FieldPlace> members;    ///< of a family

  bool isMissing() const { return field == nullptr && members.empty(); }
};

/// A chip and variant, and where its columns are.
struct ChipColumns {
  explicit ChipColumns(const Core::Layout& layoutOfChip) : layout(layoutOfChip) {}

  Core::Layout layout;
  std::vector<ColumnPlace> places;  ///< of each column
};

/// Whether the value of a field is a number of SQL, which has 63 bits and a sign.
inline bool isNumber(const Core::FieldPlace& place) {
  return !place.isBitmap() && place.width < 64;
}

/// The columns of a table on some chips: the union of what the chips have. Fills in the places.
std::vector<Column> columnsOf(const std::vector<std::string>& placeholders,
                              std::vector<std::unique_ptr<ChipColumns>>& chips);

/// The numbers of a column in all entries of a dump, as narrow as they fit.
class Numbers {
 public:
  using Values =
      std::variant<std::vector<U8>, std::vector<U16>, std::vector<U32>, std::vector<U64>>;

  template <class NumberOf>
  Numbers(U32 bits, size_t count, const NumberOf& numberOf) {
    if (bits > 32) values_ = std::vector<U64>();
    if (bits <= 32) values_ = std::vector<U32>();
    if (bits <= 16) values_ = std::vector<U16>();
    if (bits <= 8) values_ = std::vector<U8>();
    std::visit(
        [&](auto& values) {
          using Number = typename std::decay_t<decltype(values)>::value_type;
          values.resize(count);
          for (size_t row = 0; row < count; ++row) values[row] = static_cast<Number>(numberOf(row));
        },
        values_);
  }

  const Values& values() const { return values_; }
  U64 at(size_t row) const {
    return std::visit([row](const auto& values) -> U64 { return values[row]; }, values_);
  }

 private:
  Values values_;
};

/// What a query uses of the entries.
struct Usage {
  std::vector<size_t> numbers;  ///< columns of numbers that are decoded
  bool needsBytes = false;      ///< and other columns
};

/// A dump in memory, with the columns that were asked for.
class Entries {
 public:
  /// Keeps the bytes, which the dump may borrow.
  static Core::Expected<std::shared_ptr<Entries>> read(const ChipColumns& chip, U32 identifier,
                                                       Core::Notation notation, std::string bytes);

  const Core::Dump& dump() const { return dump_; }
  const ChipColumns& chip() const { return chip_; }
  /// The numbers of a column of numbers; null if the chip does not have the field.
  const Numbers* numbers(const std::vector<Column>& columns, size_t column) {
    const Numbers* const numbers = knownNumbers(column);
    return numbers != nullptr ? numbers : makeNumbers(columns, column);
  }
  /// The same if they were asked for before; otherwise null.
  const Numbers* knownNumbers(size_t column) const { return numbers_[column].get(); }
  /// Frees the bytes, if the dump borrows them. After that there are no other numbers than before.
  void dropBytes();
  /// Whether the bytes are there, or all that is used is decoded.
  bool has(const std::vector<Column>& columns, const Usage& usage) const;
  U64 address(size_t row) const;
  U32 identifier() const { return identifier_; }
  /// Whether each index is one more than the one before.
  bool isContiguous() const { return isContiguous_; }

 private:
  Entries(const ChipColumns& chip, U32 identifier, std::string bytes)
      : chip_(chip),
        identifier_(identifier),
        bytes_(std::move(bytes)),
        numbers_(chip.places.size()) {}
  const Numbers* makeNumbers(const std::vector<Column>& columns, size_t column);
  std::unique_ptr<Numbers> numbersOf(const Column& column, const ColumnPlace& place) const;

  const ChipColumns& chip_;
  U32 identifier_;
  std::string bytes_;
  Core::Dump dump_;
  bool isContiguous_ = true;
  bool hasBytes_ = true;
  std::vector<std::unique_ptr<Numbers>> numbers_;  ///< of each column
};

}  // namespace Sqlite
}  // namespace Velmar
