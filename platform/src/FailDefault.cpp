#include "FailDefault.h"

// The C library's report of a failed assertion, under a name of our own: <cassert> declares it as one
// that never throws, but a test may replace it by one that does.
extern "C" [[noreturn]] void velmarAssertFail(const char* expression, const char* file,
                                              unsigned int line,
                                              const char* function) __asm__("__assert_fail");

namespace AsicUtils {

void failDefault(const char* expression, const char* file, U32 line, const char* signature) {
  velmarAssertFail(expression, file, line, signature);
}

}  // namespace AsicUtils
