#pragma once

#include <gtest/gtest.h>

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

/// Calls `action` and returns the assertion that failed; its texts are empty if none did.
template <class Action>
AssertionFailed assertionOf(const Action& action) {
  try {
    action();
  } catch (const AssertionFailed& failure) {
    return failure;
  }
  return {"", "", 0, ""};
}

/// Expects that `action` fails this assertion, or none if the text is empty.
template <class Action>
void expectFailure(const Action& action, const std::string& text, const std::string& function,
                   const std::string& file = "VelmarMetaInfo") {
  const AssertionFailed failure = assertionOf(action);
  EXPECT_EQ(failure.expression, text);
  EXPECT_EQ(failure.function, text.empty() ? "" : function);
  EXPECT_EQ(failure.file, text.empty() ? "" : file);
  EXPECT_EQ(failure.line != 0, !text.empty());
}

}  // namespace VelmarTest
