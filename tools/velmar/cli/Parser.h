#pragma once

#include "cli/Verb.h"

namespace Tool {

/// What the words after the verb's name say. Fails for words that the verb does not take, and where
/// something required is missing, unless the help is asked for.
Arguments parseArguments(const Verb& verb, const std::vector<std::string>& words);

}  // namespace Tool
