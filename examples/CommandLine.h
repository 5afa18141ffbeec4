#pragma once

#include <string>

namespace Examples {

/// The whole of main for a program that takes one path: `work` does the program's work and tells
/// whether it succeeded. Returns the exit code: 0, or 2 for bad usage and for work that failed.
int runWithPath(int argc, char** argv, const char* usage, bool (*work)(const std::string& path));

}  // namespace Examples
