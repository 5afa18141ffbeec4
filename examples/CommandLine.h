#pragma once

#include <string>

namespace Examples {

/// The body of main for a program that takes one path: `work` does the program's work and returns
/// whether it succeeded. Returns the exit code: 0, or 2 for bad usage or failed work.
int runWithPath(int argc, char** argv, const char* usage, bool (*work)(const std::string& path));

}  // namespace Examples
