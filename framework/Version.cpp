#include "Velmar/Version.h"

namespace Velmar {

const char* version() { return VELMAR_VERSION_STRING; }

}  // namespace Velmar
