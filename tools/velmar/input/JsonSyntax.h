#pragma once

#include <string>
#include <string_view>

namespace Tool {

/// Where a JSON text is wrong, and what is expected there.
struct JsonFault {
  size_t at;
  std::string expected;
};

/// The first fault of an object: of syntax, or a name that is given twice. Reading is done by a
/// library; this explains what it refuses.
JsonFault faultOf(std::string_view text);

}  // namespace Tool
