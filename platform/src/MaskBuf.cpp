#include "Detail/MaskBuf.h"

#include <cstring>

namespace {

/// A word of a buffer that need not be aligned.
U32 wordAt(const U32* buffer, int index) {
  U32 word;
  std::memcpy(&word, reinterpret_cast<const U8*>(buffer) + 4 * index, sizeof(word));
  return word;
}

}  // namespace

void maskBuf(const U32* src, int srcWords, U32* dst, int dstWords, const U32* mask, int maskWords) {
  for (int i = 0; i < dstWords; ++i) {
    const U32 word = i < srcWords && i < maskWords ? wordAt(src, i) & wordAt(mask, i) : 0;
    std::memcpy(reinterpret_cast<U8*>(dst) + 4 * i, &word, sizeof(word));
  }
}
