#include <stdexcept>
#include <string>

#include "Detail/MaskBuf.h"
#include "Morvo/VectorOutOfRange.h"

void maskBuf(const U32* src, int srcWords, U32* dst, int dstWords, const U32* mask, int maskWords) {
  for (int i = 0; i < dstWords; ++i) dst[i] = i < srcWords && i < maskWords ? src[i] & mask[i] : 0;
}

void Morvo::Impl::throwVectorOutOfRangeException(std::size_t index, std::size_t count) {
  throw std::out_of_range(std::to_string(index) + " of " + std::to_string(count));
}
