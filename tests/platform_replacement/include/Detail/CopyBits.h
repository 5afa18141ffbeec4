#pragma once

#include "AsicUtils/Types.h"

namespace Detail {

constexpr U32 windowBytes = 1;

inline void copyBits(U8* dst, int, const U8* src, int, int bits, int dstBit, int srcBit) {
  for (int i = 0; i < bits; ++i) {
    const int from = srcBit + i, to = dstBit + i;
    const int bit = src[from / 8] >> from % 8 & 1;
    dst[to / 8] = static_cast<U8>((dst[to / 8] & ~(1 << to % 8)) | bit << to % 8);
  }
}

}  // namespace Detail
