#pragma once

#include <stdexcept>
#include <string>

// Makes a failed assertion an exception, so that misuse of a view becomes a failed test instead of
// the end of the program. Include it in one source of the test program, or in more; never in the
// agent itself. It replaces the C library's report of all failed assertions of the program.

namespace Velmar {
namespace Testing {

/// A failed assertion: "void Velmar::VlanEntry::stgIs(U16): value <= 0x3f".
class Misuse : public std::logic_error {
 public:
  Misuse(const char* expression, const char* function)
      : std::logic_error(std::string(function) + ": " + expression), expression_(expression) {}

  /// The assertion alone: "value <= 0x3f".
  const std::string& expression() const { return expression_; }

 private:
  std::string expression_;
};

}  // namespace Testing
}  // namespace Velmar

// A name of our own for the symbol: <cassert>, which other headers may include, declares it as a
// function that never throws. Weak, since several sources may include this header.
extern "C" [[noreturn]] __attribute__((visibility("default"), weak)) void velmarThrowMisuse(
    const char* expression, const char* file, unsigned line,
    const char* function) __asm__("__assert_fail");

extern "C" void velmarThrowMisuse(const char* expression, const char*, unsigned,
                                  const char* function) {
  throw Velmar::Testing::Misuse(expression, function);
}
