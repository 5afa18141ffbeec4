#pragma once

#include "cli/Options.h"
#include "input/EntryReader.h"
#include "model/Families.h"
#include "model/IndexSet.h"
#include "output/EntryWriter.h"
#include "output/Listing.h"

// The options that several verbs share, as values.

namespace Tool {

/// The chip of --chip, which must be given once.
Catalogue::Chip chipOf(const Arguments& arguments);
/// The chip of --chip; all where it is not given.
std::vector<Catalogue::Chip> chipsOf(const Arguments& arguments);
/// Whether --table names the table, or is not given.
bool isAskedFor(const Arguments& arguments, const Catalogue::Table& table);
/// The number of --variant.
U8 variantOf(const Arguments& arguments);
/// The table on the chip and variant.
Layout layoutOf(const Arguments& arguments);
/// --input, --hex-order, --stride and --first.
InputOptions inputOptionsOf(const Arguments& arguments);
/// The same for one of two dumps.
InputOptions inputOptionsOf(const Arguments& arguments, bool isNew);
/// The number of an option, at most `largest`; `absent` where the option is not given.
U64 numberOf(const char* option, const std::string& text, U64 largest, U64 absent);
/// Prints a listing as --format, --output and --color say.
void print(const Arguments& arguments, const Listing& listing, const JsonFrame& frame);
/// The fields of --fields; all where it is not given, for people in the order of their bits.
std::vector<FieldPlace> fieldsOf(const Arguments& arguments, const Layout& layout);
/// Fields in the order of their bits.
std::vector<FieldPlace> inOrderOfBits(std::vector<FieldPlace> places);
/// --index; all where it is not given.
IndexSet indexesOf(const Arguments& arguments);
/// Fails unless the table has the entries that an option selects.
void checkIndexes(const Layout& layout, const IndexSet& indexes, const char* option,
                  const std::string& typed);
/// --format, --plain and --expand.
EntryStyle styleOf(const Arguments& arguments);

}  // namespace Tool
