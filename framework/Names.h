#pragma once

#include "AsicUtils/Types.h"

namespace Velmar {
namespace Framework {

constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }
constexpr char toLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }
constexpr char toUpper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; }

constexpr bool sameText(const char* a, const char* b) {
  while (*a != '\0' && *a == *b) ++a, ++b;
  return *a == *b;
}

/// Whether two texts of at least `length` characters begin alike.
constexpr bool sameStart(const char* a, const char* b, U32 length) {
  for (U32 i = 0; i < length; ++i) {
    if (a[i] != b[i]) return false;
  }
  return true;
}

/// Writes the accessor name of a hardware name: lower case, each underscore dropped and the
/// character after it in upper case. `accessor` has room for `hardwareName` and its terminator.
constexpr void writeAccessorName(char* accessor, const char* hardwareName) {
  bool afterUnderscore = false;
  for (; *hardwareName != '\0'; ++hardwareName) {
    if (*hardwareName != '_') {
      *accessor++ = afterUnderscore ? *hardwareName : toLower(*hardwareName);
    }
    afterUnderscore = *hardwareName == '_';
  }
  *accessor = '\0';
}

constexpr U32 lengthOf(const char* text) {
  U32 length = 0;
  while (text[length] != '\0') ++length;
  return length;
}

/// The number of characters before a decimal number without leading zeros that ends `text`; 0 where
/// the number does not end it, is only a part of a longer one, or has nothing before it.
constexpr U32 lengthBefore(const char* text, U32 number) {
  U32 length = lengthOf(text);
  do {
    if (length == 0 || text[length - 1] != static_cast<char>('0' + number % 10)) return 0;
    --length;
    number /= 10;
  } while (number != 0);
  return length != 0 && isDigit(text[length - 1]) ? 0 : length;
}

/// Natural order of names: a run of digits compares as a number.
constexpr bool naturallyBefore(const char* a, const char* b) {
  while (*a != '\0' && *b != '\0') {
    if (isDigit(*a) && isDigit(*b)) {
      U64 left = 0;
      U64 right = 0;
      while (isDigit(*a)) left = left * 10 + static_cast<U64>(*a++ - '0');
      while (isDigit(*b)) right = right * 10 + static_cast<U64>(*b++ - '0');
      if (left != right) return left < right;
    } else {
      if (*a != *b) return *a < *b;
      ++a, ++b;
    }
  }
  return *a == '\0' && *b != '\0';
}

}  // namespace Framework
}  // namespace Velmar
