#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "core/Layout.h"

namespace Velmar {
namespace Core {

/// The value of a field of any width, as 32-bit words from the lowest bits up.
class Value {
 public:
  /// Zero.
  explicit Value(U32 width);
  Value(const Value& other) : width_(other.width_) { *this = other; }
  /// Copies the words of the width alone: most values have one.
  Value& operator=(const Value& other) {
    width_ = other.width_;
    for (U32 i = 0; i < wordCount(); ++i) words_[i] = other.words_[i];
    return *this;
  }
  static Value read(const FieldPlace& place, const U8* entry, U32 entryBytes);
  /// Writes the value into an entry. The field must have the width of the value.
  void write(const FieldPlace& place, U8* entry, U32 entryBytes) const;

  bool isZero() const;
  /// The same number as a value of another width; nothing where it does not fit.
  std::optional<Value> resized(U32 width) const;
  friend bool operator==(const Value& a, const Value& b);
  friend bool operator!=(const Value& a, const Value& b) { return !(a == b); }
  /// Compares the numbers.
  friend bool operator<(const Value& a, const Value& b);
  /// Whether all bits of the other are set.
  bool contains(const Value& other) const;
  /// Whether any bit of the other is set.
  bool overlaps(const Value& other) const;
  /// Sets or clears the bits of the other, which has the same width.
  void add(const Value& other);
  void remove(const Value& other);

  /// Hexadecimal digits without leading zeros and without "0x".
  std::string hexDigits() const;
  std::string hex() const { return "0x" + hexDigits(); }
  /// The value as a number, where it fits 64 bits.
  std::optional<U64> number() const;
  /// The value as a set of ports.
  std::vector<U32> ports() const;
  /// The ports as ranges such as "0-3,17"; "none" for no ports.
  std::string portRanges() const;

  /// The first bit from `bit` on that is set; the width where there is none.
  U32 nextBit(U32 bit) const;
  void setBit(U32 bit);
  /// Sets a value of zero to a number; false where it does not fit the width.
  bool setNumber(U64 number);
  /// Sets the value from hexadecimal digits; false where it does not fit the width.
  bool setHexDigits(std::string_view digits);

 private:
  static constexpr U32 maxWords = 32;

  U32 wordCount() const { return (width_ + 31) / 32; }

  U32 width_;
  std::array<U32, maxWords> words_;
};

/// The largest number of bits for which every JSON reader keeps a decimal number exact.
constexpr U32 exactBits = 53;

/// A scalar field's value, for the loops that must be fast.
U64 readScalar(const FieldPlace& place, const U8* entry, U32 entryBytes);

/// A value as it is typed: a number, decimal or hexadecimal; for a bitmap a list of ports such as
/// "0-3,17", "none", or a hexadecimal number. A fault if it does not fit the field.
Expected<Value> parseValue(const FieldPlace& place, std::string_view text);
/// The value of a number; a fault if it does not fit the field.
Expected<Value> makeValue(const FieldPlace& place, U64 number);
/// Adds a port to a bitmap's value; a fault if the bitmap does not have it.
Done addPort(const FieldPlace& place, Value& value, U64 port);

/// The reserved bits that are set in an entry, as a hexadecimal number of the whole entry.
std::string reservedBits(const Layout& layout, const U8* entry);
/// A value for spreadsheets: decimal if that is exact, bitmaps as ports.
std::string plainText(const FieldPlace& place, const Value& value);

}  // namespace Core
}  // namespace Velmar
