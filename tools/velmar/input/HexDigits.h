#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "input/EntryReader.h"
#include "model/Failure.h"

// What hex text and xxd output share: groups of digits on a line.

namespace Tool {

/// Names the line of an input that an error message is about.
struct LinePlace {
  const std::string& file;
  U64 line;

  template <class... Arguments>
  [[noreturn]] void fail(fmt::format_string<Arguments...> text, Arguments&&... arguments) const {
    Tool::fail("{}:{}: {}", file, line, formatted(text, fmt::make_format_args(arguments...)));
  }
};

/// The groups of hexadecimal digits in a text, without "0x".
std::vector<std::string_view> hexGroups(std::string_view text, const LinePlace& place);

/// Whether each group has this many digits.
bool haveDigits(const std::vector<std::string_view>& groups, size_t digits);

/// Appends the bytes of the groups, read as bytes or as words.
void appendBytes(const std::vector<std::string_view>& groups, HexOrder order,
                 const LinePlace& place, std::vector<U8>& bytes);

/// Appends the `count` bytes of the number that all groups together make.
void appendNumber(const std::vector<std::string_view>& groups, size_t count, const LinePlace& place,
                  std::vector<U8>& bytes);

}  // namespace Tool
