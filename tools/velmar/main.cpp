#include <cstdio>
#include <exception>
#include <new>

#include "CommandLine.h"
#include "Failure.h"
#include "Output.h"

int main(int count, char** words) {
  Tool::installSignalHandlers();
  try {
    return Tool::runCommandLine(count, words);
  } catch (const std::bad_alloc&) {
    std::fputs("velmar: out of memory; free some and try again\n", stderr);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "velmar: %s\n", failure.what());
  }
  return Tool::exitFailure;
}
