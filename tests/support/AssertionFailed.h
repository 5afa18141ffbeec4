#pragma once

#include <string>

namespace VelmarTest {

/// Thrown instead of the C library's report: a program that links the test support replaces
/// __assert_fail.
struct AssertionFailed {
  std::string expression;
  std::string file;
  unsigned line;
  std::string function;
};

/// Calls `action` and returns the assertion that it failed; one with empty texts if it failed none.
template <class Action>
AssertionFailed assertionOf(Action action) {
  try {
    action();
  } catch (const AssertionFailed& failure) {
    return failure;
  }
  return {"", "", 0, ""};
}

}  // namespace VelmarTest
