#pragma once

#include "cli/Verb.h"

namespace Tool {

/// Runs the verb that the words after "velmar" name. Returns the exit code; failures are thrown.
int runCommandLine(const VerbList& verbs, const std::vector<std::string>& words);

}  // namespace Tool
