#include "FailDefault.h"

// Not <cassert>: its declaration promises not to throw.
extern "C" [[noreturn]] void __assert_fail(const char* expression, const char* file,
                                           unsigned int line, const char* function);

namespace AsicUtils {

void failDefault(const char* expression, const char* file, U32 line, const char* signature) {
  __assert_fail(expression, file, line, signature);
}

}  // namespace AsicUtils
