#pragma once

#include <fmt/core.h>

#include <string>

namespace Tool {

/// All formatting goes through these two, so that one file compiles the formatting library.
std::string formatted(fmt::string_view text, fmt::format_args arguments);
void appendFormatted(std::string& to, fmt::string_view text, fmt::format_args arguments);

template <class... Arguments>
std::string formatText(fmt::format_string<Arguments...> text, Arguments&&... arguments) {
  return formatted(text, fmt::make_format_args(arguments...));
}

}  // namespace Tool
