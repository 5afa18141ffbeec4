#pragma once

#include <string>
#include <vector>

namespace Tool {

/// A text in lines of at most a width, broken at blanks; in a longer list also after commas.
std::vector<std::string> wrap(const std::string& text, size_t width);

}  // namespace Tool
