#pragma once

#include <string_view>
#include <vector>

#include "AsicUtils/Types.h"

// Groups of hexadecimal digits, and the bytes that they are.

namespace Tool {

struct HexGroup {
  std::string_view digits;  ///< without what is before them
  char prefix;              ///< 'x' after "0x", '\\' after "\x", otherwise 0
};

/// The groups of a text up to a "#", separated by blanks, commas, semicolons, colons, brackets and
/// quotes; false where there is anything else.
bool splitGroups(std::string_view text, std::vector<HexGroup>& groups);

/// The groups of digits between single blanks; false where there is anything else. With a `gap`
/// there are as many blanks before each group.
bool splitColumns(std::string_view text, std::vector<HexGroup>& groups, size_t gap = 1);

/// Whether each group has this many digits.
bool haveDigits(const std::vector<HexGroup>& groups, size_t digits);

/// Appends bytes from digits of which the first byte comes first; the number of digits is even.
void appendBytes(std::string_view digits, std::vector<U8>& bytes);

/// Appends the `count` bytes, the lowest first, of a number of at most 2 * `count` digits.
void appendNumber(std::string_view digits, size_t count, std::vector<U8>& bytes);

}  // namespace Tool
