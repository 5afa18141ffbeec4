#pragma once

#include "AsicUtils/Types.h"

namespace AsicUtils {

struct ChipAndVariant {
  U32 chipType;
  U8 variant;
};

}  // namespace AsicUtils
