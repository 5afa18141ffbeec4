#pragma once

#include "AsicUtils/Types.h"

namespace AsicUtils {

/// One range of valid entry indices.
struct EntrySpan {
  U32 first;  ///< first index of the range
  U32 count;  ///< number of entries in the range
};

/// The ranges of valid entry indices of a table. The array lives as long as the library.
struct EntrySpans {
  const EntrySpan* spans;
  U32 count;  ///< number of spans
};

}  // namespace AsicUtils
