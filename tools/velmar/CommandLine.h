#pragma once

namespace Tool {

/// Parses the command line and runs its verb. Returns the exit code; failures are thrown.
int runCommandLine(int count, char** words);

}  // namespace Tool
