#pragma once

#include "cli/Options.h"
#include "input/EntryReader.h"
#include "model/Layout.h"
#include "output/Listing.h"

// The options that several verbs share, as values.

namespace Tool {

/// The chip of --chip, which must be given once.
Catalogue::Chip chipOf(const Arguments& arguments);
/// The number of --variant.
U8 variantOf(const Arguments& arguments);
/// The table on the chip and variant.
Layout layoutOf(const Arguments& arguments);
/// --input, --hex-order, --stride and --first.
InputOptions inputOptionsOf(const Arguments& arguments);
/// The number of an option, at most `largest`; `absent` where the option is not given.
U64 numberOf(const char* option, const std::string& text, U64 largest, U64 absent);
/// Prints a listing as --format, --output and --color say.
void print(const Arguments& arguments, const Listing& listing);
/// The fields of --fields; all where it is not given.
std::vector<FieldPlace> fieldsOf(const Arguments& arguments, const Layout& layout);

}  // namespace Tool
