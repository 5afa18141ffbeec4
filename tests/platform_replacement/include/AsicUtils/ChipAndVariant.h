#pragma once

#include "AsicUtils/Types.h"

// clang-format off
namespace AsicUtils {
struct ChipAndVariant { U32 chipType; U8 variant; };
}  // namespace AsicUtils
