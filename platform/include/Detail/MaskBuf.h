#pragma once

#include "AsicUtils/Export.h"
#include "AsicUtils/Types.h"

/// Fills `dst` with `src` AND `mask`, word by word; lengths are in 32-bit words. Words of `dst`
/// beyond `src` or `mask` become 0. `src` may be unaligned.
VELMAR_PLATFORM_EXPORT void maskBuf(const U32* src, int srcWords, U32* dst, int dstWords,
                                    const U32* mask, int maskWords);
