#pragma once

#include "AsicUtils/Types.h"

namespace AsicUtils {

/// The one way in which a base default fails. May be left by an exception: a test may replace the
/// C library's report with one that throws.
[[noreturn]] void failDefault(const char* expression, const char* file, U32 line,
                              const char* signature);

}  // namespace AsicUtils
