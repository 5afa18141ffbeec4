#pragma once

#include "AsicUtils/Types.h"

namespace AsicUtils {

/// Every default of the base classes fails through this. May throw: a test may replace the C
/// library's report with one that throws.
[[noreturn]] void failDefault(const char* expression, const char* file, U32 line,
                              const char* signature);

}  // namespace AsicUtils
