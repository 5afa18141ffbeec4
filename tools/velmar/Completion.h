#pragma once

#include <string>
#include <vector>

namespace Tool {

/// Prints what may stand in place of the last of the words, one proposal a line, for the shell. The
/// words are those of a command line after "velmar".
int complete(const std::vector<std::string>& words);

}  // namespace Tool
