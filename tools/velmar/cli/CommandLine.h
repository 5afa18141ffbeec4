#pragma once

#include "cli/Verb.h"

namespace Tool {

/// Parses the command line and runs its verb. Returns the exit code; failures are thrown.
int runCommandLine(const VerbList& verbs, int count, char** words);

}  // namespace Tool
