#pragma once

#include <string>

namespace Tool {

/// The manual page, made from the same texts as the help.
std::string manPage();

}  // namespace Tool
