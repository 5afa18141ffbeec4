#pragma once

#include <string>
#include <vector>

#include "AsicUtils/Types.h"

namespace Examples {

/// Writes a file completely or not at all: an existing file stays unchanged until the new one is
/// complete. On failure prints one line that starts with `program` to standard error and returns
/// false.
bool writeFile(const char* program, const std::string& path, const std::vector<U8>& bytes);

}  // namespace Examples
