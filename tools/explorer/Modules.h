#pragma once

#include <string>

namespace Explorer {

/// The contents of a file; throws where it cannot be read.
std::string readFile(const std::string& path);

/// One module in place of many: a module and all that it imports, each after what it needs, without
/// the lines of import and the word "export". A page that is opened from a disk cannot import files.
std::string joinedModules(const std::string& directory, const std::string& name);

}  // namespace Explorer
