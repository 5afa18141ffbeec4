// Runs a fuzz target over all files of a folder, for builds without libFuzzer.

#include <cstdio>

#include "support/Files.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size);

int main(int count, char** words) {
  const auto files = VelmarTest::filesIn(words[count - 1]);
  for (const auto& [name, data] : files) {
    std::fprintf(stderr, "%s\n", name.c_str());
    LLVMFuzzerTestOneInput(reinterpret_cast<const unsigned char*>(data.data()), data.size());
  }
  return files.empty() ? 1 : 0;
}
