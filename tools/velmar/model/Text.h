#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "c/Text.h"

// Operations on text that several verbs and input formats share.

namespace Tool {

using Velmar::Binding::parseNumber;

/// The parts between the separators, without surrounding blanks.
std::vector<std::string> split(std::string_view text, char separator);
std::string join(const std::vector<std::string>& parts, std::string_view separator);

std::string_view trim(std::string_view text);
bool isBlank(char letter);

/// Value of a hexadecimal digit; negative for any other letter.
int hexDigit(char letter);

/// Cuts a text into lines of at most `width` columns at blanks; a word that is longer is cut
/// after a comma, or stays whole.
std::vector<std::string> wrap(const std::string& text, size_t width);

/// A number in decimal, or in hexadecimal where `typed` has a hexadecimal number.
std::string numberLike(std::string_view typed, U64 number);

/// Numbers as ranges, such as "0-3,17".
std::string rangesText(std::vector<U32> numbers);

/// A text with "?" in place of each byte that is not printable ASCII.
std::string printable(std::string_view text);

/// A text as error messages quote it: shortened, and printable.
std::string inQuotes(std::string_view text);

}  // namespace Tool
