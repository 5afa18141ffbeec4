#pragma once

#include "AsicUtils/Types.h"

namespace AsicUtils {

/// A chip type number and a table variant, as reports print them.
struct ChipAndVariant {
  U32 chipType;
  U8 variant;
};

}  // namespace AsicUtils
