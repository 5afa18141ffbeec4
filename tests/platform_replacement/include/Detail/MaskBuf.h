#pragma once

#include "AsicUtils/Types.h"

void maskBuf(const U32* src, int srcWords, U32* dst, int dstWords, const U32* mask, int maskWords);
