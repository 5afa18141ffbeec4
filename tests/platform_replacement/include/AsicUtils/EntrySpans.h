#pragma once

#include "AsicUtils/Types.h"

// clang-format off
namespace AsicUtils {
struct EntrySpan { U32 first, count; };
struct EntrySpans { const EntrySpan* spans; U32 count; };
}  // namespace AsicUtils
