#pragma once

#include <stdexcept>
#include <string>
#include <utility>

#include "Tool.h"
#include "core/Fault.h"

namespace Tool {

/// Ends the command with exit code 2. The text names the place and what is wrong and, after a
/// semicolon, what to do about it.
class Failure : public std::runtime_error {
 public:
  explicit Failure(const std::string& text);
  /// A fault of what is read, in the words of the command; `source` may be empty.
  explicit Failure(const Fault& fault, const std::string& source = "");

  /// As programs read it, on one line.
  const std::string& json() const { return json_; }

 private:
  std::string json_;
};

template <class... Arguments>
[[noreturn]] void fail(fmt::format_string<Arguments...> text, Arguments&&... arguments) {
  throw Failure(formatText(text, std::forward<Arguments>(arguments)...));
}

/// The result, or the Failure of its fault.
template <class Result>
Result taken(Expected<Result> result, const std::string& source = "") {
  if (!result) throw Failure(result.error(), source);
  return std::move(*result);
}
inline void check(const Done& done, const std::string& source = "") {
  if (!done) throw Failure(done.error(), source);
}

constexpr int exitSuccess = 0;
constexpr int exitFinding = 1;
constexpr int exitFailure = 2;

}  // namespace Tool
