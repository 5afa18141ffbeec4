#include "model/Formatting.h"

#include <fmt/format.h>

#include <iterator>

namespace Tool {

std::string formatted(fmt::string_view text, fmt::format_args arguments) {
  return fmt::vformat(text, arguments);
}

void appendFormatted(std::string& to, fmt::string_view text, fmt::format_args arguments) {
  fmt::vformat_to(std::back_inserter(to), text, arguments);
}

}  // namespace Tool
