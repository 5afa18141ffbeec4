#pragma once

#include "Velmar/Export.h"

// The version of the library. This is the only place where the number stands: the build reads it here.

#define VELMAR_VERSION_MAJOR 0
#define VELMAR_VERSION_MINOR 2
#define VELMAR_VERSION_PATCH 0
#define VELMAR_VERSION_STRING "0.2.0"

namespace Velmar {

/// The version of the library that the program is linked to, such as "0.2.0". It may be later than
/// VELMAR_VERSION_STRING, with which the program was compiled.
VELMAR_EXPORT const char* version();

}  // namespace Velmar
