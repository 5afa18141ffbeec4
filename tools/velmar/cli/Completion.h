#pragma once

#include <string>
#include <vector>

#include "cli/Verb.h"

namespace Tool {

/// What the shell can put in place of the last of the words, one proposal a line. The words are
/// those of a command line after "velmar".
std::string completion(const VerbList& verbs, const std::vector<std::string>& words);

}  // namespace Tool
