#include "core/Formatting.h"

#include <fmt/format.h>

#include <iterator>

namespace Velmar {
namespace Core {

std::string formatted(fmt::string_view text, fmt::format_args arguments) {
  return fmt::vformat(text, arguments);
}

void appendFormatted(std::string& to, fmt::string_view text, fmt::format_args arguments) {
  fmt::vformat_to(std::back_inserter(to), text, arguments);
}

std::size_t formatTo(char* to, std::size_t room, fmt::string_view text,
                     fmt::format_args arguments) {
  return fmt::vformat_to_n(to, room, text, arguments).size;
}

}  // namespace Core
}  // namespace Velmar
