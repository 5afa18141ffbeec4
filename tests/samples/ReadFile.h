#pragma once

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "AsicUtils/Types.h"

/// The bytes of a file; none where it cannot be read.
inline std::vector<U8> readFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}
