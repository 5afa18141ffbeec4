// How a test of an agent catches misuse of a view: it replaces the C library's report of a failed
// assertion by a function that throws. Views allow it; link the replacement into the test only.

#include <cstdio>
#include <stdexcept>
#include <string>

#include "Velmar/VlanEntry.h"

// A name of our own for the symbol: <cassert>, which other headers may include, declares it as a
// function that never throws.
extern "C" [[noreturn]] __attribute__((visibility("default"))) void throwAssertion(
    const char* expression, const char* file, unsigned line, const char* function)
    __asm__("__assert_fail");

extern "C" void throwAssertion(const char* expression, const char*, unsigned, const char* function) {
  throw std::logic_error(std::string(function) + ": " + expression);
}

int main() {
  U8 entry[16] = {};
  Velmar::VlanEntry vlan(BCM56990_B0, entry, sizeof(entry), false, 0);
  try {
    vlan.stgIs(64);
  } catch (const std::logic_error& misuse) {
    std::printf("caught %s; the group is still %u\n", misuse.what(), vlan.stg());
    return 0;
  }
  return 1;
}
