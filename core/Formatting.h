#pragma once

#include <fmt/core.h>

#include <string>

namespace Velmar {
namespace Core {

/// All formatting goes through these three, so that one file compiles the formatting library.
std::string formatted(fmt::string_view text, fmt::format_args arguments);
void appendFormatted(std::string& to, fmt::string_view text, fmt::format_args arguments);
/// Writes at most `room` characters, and returns how many the whole text has. Allocates nothing.
std::size_t formatTo(char* to, std::size_t room, fmt::string_view text, fmt::format_args arguments);

template <class... Arguments>
std::string formatText(fmt::format_string<Arguments...> text, Arguments&&... arguments) {
  return formatted(text, fmt::make_format_args(arguments...));
}

}  // namespace Core
}  // namespace Velmar
