#include "support/AssertionFailed.h"

extern "C" [[noreturn]] __attribute__((visibility("default"))) void __assert_fail(
    const char* expression, const char* file, unsigned int line, const char* function);

extern "C" void __assert_fail(const char* expression, const char* file, unsigned int line,
                              const char* function) {
  throw VelmarTest::AssertionFailed{expression, file, line, function};
}
