#pragma once

#include <map>

#include "AsicUtils/Types.h"

namespace Oru {

class PerUnitBitmap {
 public:
  PerUnitBitmap() = default;
  explicit PerUnitBitmap(U32) {}
  U32 wordCount() const { return words_.empty() ? 0 : words_.rbegin()->first + 1; }
  U32 word(U32 index) const { return words_.count(index) != 0 ? words_.at(index) : 0; }
  void bitListIs(U32 index, U32 word) { words_[index] = word; }
  void set(U32 port) { words_[port / 32] |= 1U << port % 32; }
  friend bool operator==(const PerUnitBitmap& a, const PerUnitBitmap& b) {
    for (U32 i = 0; i < a.wordCount() || i < b.wordCount(); ++i) {
      if (a.word(i) != b.word(i)) return false;
    }
    return true;
  }

 private:
  std::map<U32, U32> words_;
};

}  // namespace Oru
