#include "support/AssertionFailed.h"

#include <cassert>

// <cassert> declares __assert_fail as a function that never throws. A definition under another name
// for the same symbol may.
extern "C" [[noreturn]] __attribute__((visibility("default"))) void throwAssertion(
    const char* expression, const char* file, unsigned int line,
    const char* function) __asm__("__assert_fail");

extern "C" void throwAssertion(const char* expression, const char* file, unsigned int line,
                               const char* function) {
  throw VelmarTest::AssertionFailed{expression, file, line, function};
}
