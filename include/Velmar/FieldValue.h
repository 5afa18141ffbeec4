#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Velmar/Catalogue.h"
#include "Velmar/Span.h"

namespace Velmar {

static_assert(__cplusplus >= 201703L, "Velmar/FieldValue.h needs C++17");

/// The value of a field of any width, as 32-bit words from the lowest bits up.
class VELMAR_EXPORT FieldValue {
 public:
  /// The most bits that a value may have.
  static constexpr U32 mostBits = 1024;
  /// The largest number of bits that text shows in decimal: every reader keeps such a number exact.
  static constexpr U32 exactBits = 53;

  /// Zero.
  explicit FieldValue(U32 width);
  FieldValue(const FieldValue& other) : width_(other.width_) { *this = other; }
  /// Copies the words of the width alone: most values have one.
  FieldValue& operator=(const FieldValue& other) {
    width_ = other.width_;
    for (U32 i = 0; i < wordCount(); ++i) words_[i] = other.words_[i];
    return *this;
  }
  /// Reads a range of bits of an entry.
  static FieldValue read(Catalogue::BitRange range, const U8* entry, U32 entryBytes);
  /// Writes the value into an entry. The range must have the width of the value.
  void write(Catalogue::BitRange range, U8* entry, U32 entryBytes) const;

  U32 width() const { return width_; }
  Words words() const { return {words_.data(), wordCount()}; }

  bool isZero() const;
  /// The same number as a value of another width; nothing where it does not fit.
  std::optional<FieldValue> resized(U32 width) const;
  friend VELMAR_EXPORT bool operator==(const FieldValue& a, const FieldValue& b);
  friend bool operator!=(const FieldValue& a, const FieldValue& b) { return !(a == b); }
  /// Compares the numbers.
  friend VELMAR_EXPORT bool operator<(const FieldValue& a, const FieldValue& b);
  /// Whether all bits of the other are set.
  bool contains(const FieldValue& other) const;
  /// Whether any bit of the other is set.
  bool overlaps(const FieldValue& other) const;
  /// Sets or clears the bits of the other, which has the same width.
  void add(const FieldValue& other);
  void remove(const FieldValue& other);

  /// Hexadecimal digits without leading zeros and without "0x".
  std::string hexDigits() const;
  std::string hex() const { return "0x" + hexDigits(); }
  /// The value as a number, where it fits 64 bits.
  std::optional<U64> number() const;
  /// The value as a set of ports.
  std::vector<U32> ports() const;
  /// The ports as ranges such as "0-3,17"; "none" for no ports.
  std::string portRanges() const;
  /// The value of a field of this type as text: a bitmap as ports, a number in decimal if that is
  /// exact everywhere, otherwise in hexadecimal.
  std::string text(Catalogue::ValueType type) const;

  /// The first bit from `bit` on that is set; the width where there is none.
  U32 nextBit(U32 bit) const;
  void setBit(U32 bit);
  /// Sets a value of zero to a number; false where it does not fit the width.
  bool setNumber(U64 number);
  /// Sets the value from hexadecimal digits; false where it does not fit the width.
  bool setHexDigits(std::string_view digits);

 private:
  U32 wordCount() const { return (width_ + 31) / 32; }

  U32 width_;
  std::array<U32, mostBits / 32> words_;
};

/// Ascending numbers as ranges: "0-3,17"; empty for none.
VELMAR_EXPORT std::string rangesText(Span<U32> numbers);

}  // namespace Velmar
