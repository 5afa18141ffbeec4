#include "cli/Options.h"

#include <limits>

#include "cli/Failure.h"

namespace Tool {

U64 numberOf(const std::string& option, const std::string& text, U64 largest) {
  const std::optional<U64> number = parseNumber(text);
  if (number && *number <= largest) return *number;
  fail("{} {}: not a number from {} to {}; give it in decimal, or in hexadecimal after 0x", option,
       inQuotes(text), numberLike(text, 0), numberLike(text, largest));
}

void takeNotation(ReadOptions& options, const std::string& text, bool) {
  options.notation = *notationNamed(text);
}

void takeHexOrder(ReadOptions& options, const std::string& text, bool isShared) {
  options.hexOrder = *hexOrderNamed(text);
  options.shared.hexOrder = isShared;
}

void takeByteOrder(ReadOptions& options, const std::string& text, bool isShared) {
  options.bigEndian = text == "big";
  options.shared.byteOrder = isShared;
}

void takeStride(ReadOptions& options, const std::string& text, bool isShared) {
  options.stride = static_cast<U32>(numberOf("--stride", text, longestStride));
  if (options.stride == 0) {
    fail("--stride 0 repeats one entry; give the bytes from one entry to the next");
  }
  options.shared.stride = isShared;
}

void takeFirst(ReadOptions& options, const std::string& text, bool isShared) {
  options.first = static_cast<U32>(numberOf("--first", text, std::numeric_limits<U32>::max()));
  options.shared.first = isShared;
}

void takeOrigin(ReadOptions& options, const std::string& text, bool isShared) {
  options.origin = numberOf("--origin", text, std::numeric_limits<U64>::max());
  options.shared.origin = isShared;
}

}  // namespace Tool
