#pragma once

#include "AsicUtils/Types.h"

namespace Tool {

/// An entry of a dump.
struct Entry {
  U64 index;
  const U8* bytes;  ///< as many as the layout's entryBytes(); valid until the next entry is read
};

}  // namespace Tool
