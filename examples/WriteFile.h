#pragma once

#include <string>
#include <vector>

#include "AsicUtils/Types.h"

namespace Examples {

/// Writes a file whole or not at all: a file that was there stays as it is until the new one is
/// complete. On failure prints one line that starts with `program` to standard error and returns
/// false.
bool writeFile(const char* program, const std::string& path, const std::vector<U8>& bytes);

}  // namespace Examples
