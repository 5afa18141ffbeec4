#pragma once

#include <charconv>
#include <cstring>
#include <string_view>

#include "AsicUtils/Types.h"

// Each function appends text to a buffer with enough room, and returns the new end of the text.

namespace Tool {

inline char* append(char* at, std::string_view text) {
  std::memcpy(at, text.data(), text.size());
  return at + text.size();
}

inline char* appendDecimal(char* at, U64 number) {
  constexpr size_t longestNumber = 20;
  return std::to_chars(at, at + longestNumber, number).ptr;
}

/// Appends such as "0x0c7c0064".
inline char* appendAddress(char* at, U32 address) {
  at = append(at, "0x");
  for (int shift = 28; shift >= 0; shift -= 4) *at++ = "0123456789abcdef"[address >> shift & 15];
  return at;
}

inline char* appendHex(char* at, U64 number) {
  int shift = number == 0 ? 0 : (63 - __builtin_clzll(number)) & ~3;
  for (; shift >= 0; shift -= 4) *at++ = "0123456789abcdef"[number >> shift & 15];
  return at;
}

}  // namespace Tool
