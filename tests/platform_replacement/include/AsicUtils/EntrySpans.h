#pragma once

#include "AsicUtils/Types.h"

namespace AsicUtils {

struct EntrySpan {
  U32 first, count;
};
struct EntrySpans {
  const EntrySpan* spans;
  U32 count;
};

}  // namespace AsicUtils
