#pragma once

#include <stdexcept>
#include <string>
#include <utility>

#include "model/Formatting.h"

namespace Tool {

/// Ends the command with exit code 2. The text names the place and what is wrong and, after a
/// semicolon, what to do about it.
class Failure : public std::runtime_error {
 public:
  explicit Failure(const std::string& text) : std::runtime_error(text) {}
};

template <class... Arguments>
[[noreturn]] void fail(fmt::format_string<Arguments...> text, Arguments&&... arguments) {
  throw Failure(formatText(text, std::forward<Arguments>(arguments)...));
}

constexpr int exitSuccess = 0;
constexpr int exitFinding = 1;
constexpr int exitFailure = 2;

}  // namespace Tool
