#pragma once

#include <random>

#include "Velmar/Generic.h"

namespace Velmar {
namespace Testing {

/// Random entries of a class for property tests. Every value fits its field, and the reserved bits
/// are zero. The extremes come often: zero, all bits, one bit. The same seed gives the same entries
/// everywhere.
template <class View>
class RandomEntries {
 public:
  explicit RandomEntries(ChipType_ chip, U8 variant = 0, U32 seed = 1)
      : zero_(chip, variant), random_(seed) {}

  Entry<View> next() {
    const Catalogue::Table table = AnyView(zero_).table();
    const U32 bytes = static_cast<U32>(zero_.size());
    Entry<View> entry = zero_;
    for (U32 i = 0; i < table.fieldCount(); ++i) {
      const Catalogue::BitRange range = table.range(i, zero_.chip());
      if (range.width != 0) valueOf(range.width).write(range, entry.data(), bytes);
    }
    return entry;
  }

 private:
  FieldValue valueOf(U32 width) {
    FieldValue value(width);
    const U32 kind = static_cast<U32>(random_()) % 8;
    if (kind == 1) value.setBit(static_cast<U32>(random_()) % width);
    for (U32 bit = 0; kind > 1 && bit < width; ++bit) {
      if (kind == 2 || (random_() >> 7 & 1) != 0) value.setBit(bit);
    }
    return value;
  }

  Entry<View> zero_;
  std::mt19937 random_;
};

}  // namespace Testing
}  // namespace Velmar
