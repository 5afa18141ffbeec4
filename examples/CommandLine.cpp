#include "CommandLine.h"

#include <cstdio>

namespace Examples {

int runWithPath(int argc, char** argv, const char* usage, bool (*work)(const std::string& path)) {
  const std::string path = argc == 2 ? argv[1] : "";
  if (path == "--help") {
    std::fputs(usage, stdout);
    return 0;
  }
  if (path.empty() || path[0] == '-') {
    std::fputs(usage, stderr);
    return 2;
  }
  return work(path) ? 0 : 2;
}

}  // namespace Examples
