#include "Oru/PerUnitBitmap.h"

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <string>

#include "Morvo/VectorOutOfRange.h"

namespace Oru {

void PerUnitBitmap::set(U32 port) {
  if (port / 32 >= wordCount_) growTo(port / 32);
  words()[port / 32] |= 1U << port % 32;
}

void PerUnitBitmap::clear(U32 port) {
  if (port / 32 < wordCount_) words()[port / 32] &= ~(1U << port % 32);
}

bool PerUnitBitmap::test(U32 port) const {
  return port / 32 < wordCount_ && (words()[port / 32] >> port % 32 & 1U) != 0;
}

U32 PerUnitBitmap::nextPort(U32 from) const {
  for (U32 index = from / 32; index < wordCount_; ++index) {
    U32 word = words()[index];
    if (index == from / 32) word &= ~0U << from % 32;
    if (word != 0) return index * 32 + static_cast<U32>(__builtin_ctz(word));
  }
  return noPort;
}

Morvo::String PerUnitBitmap::ranges() const {
  std::string text;
  for (U32 first = nextPort(0); first != noPort;) {
    U32 last = first;
    while (test(last + 1)) ++last;
    if (!text.empty()) text += ',';
    text += std::to_string(first);
    if (last != first) text += '-' + std::to_string(last);
    first = nextPort(last + 1);
  }
  return {text.data(), text.size()};
}

bool operator==(const PerUnitBitmap& a, const PerUnitBitmap& b) {
  for (U32 i = 0; i < std::max(a.wordCount_, b.wordCount_); ++i) {
    const U32 left = i < a.wordCount_ ? a.words()[i] : 0;
    const U32 right = i < b.wordCount_ ? b.words()[i] : 0;
    if (left != right) return false;
  }
  return true;
}

void PerUnitBitmap::moveToHeap(U32 index) {
  if (index == std::numeric_limits<U32>::max()) {
    throw std::length_error("Oru::PerUnitBitmap: more words than a count of 32 bits holds");
  }
  // Doubling: a list that grows word by word is not copied each time.
  const U32 room = std::max(index + 1, 2 * heapWords_);
  U32* larger = new U32[room];
  std::copy_n(words(), wordCount_, larger);
  release();
  heap_ = larger;
  heapWords_ = room;
}

void PerUnitBitmap::freeHeap() noexcept { delete[] heap_; }

void PerUnitBitmap::throwOutOfRange(U32 index) const {
  Morvo::Impl::throwVectorOutOfRangeException(index, wordCount_);
}

}  // namespace Oru
