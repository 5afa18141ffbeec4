#pragma once

#include "core/Documents.h"
#include "core/Families.h"
#include "output/Output.h"

namespace Tool {

/// How entries are written.
struct EntryStyle {
  Format format = Format::table;
  bool isPlain = false;     ///< JSON with values alone: numbers, lists of ports, hexadecimal text
  bool asFamilies = false;  ///< for people: a line for each family of fields
  bool isCompact = false;   ///< JSON with a member for each family of fields
};

/// Writes the given fields of entries of a dump, in one of the formats but hex, words and raw.
void writeEntries(Output& output, const Layout& layout, const std::vector<FieldPlace>& fields,
                  const EntryStyle& style, const Dump& dump, const std::vector<size_t>& positions);
/// The same for all entries.
void writeEntries(Output& output, const Layout& layout, const EntryStyle& style, const Dump& dump);
/// Writes the bytes of entries: hex, words or raw.
void writeBytes(Output& output, Format format, bool withIndex, const Dump& dump);

/// The line that names an entry, such as "VlanEntry 100  address 0x0c7c0064  access 17  block 1".
void writeEntryHead(Output& output, const Layout& layout, U64 index);

/// Bit ranges as tables show them, with the colons below each other.
std::string alignedBits(const Layout& layout, const std::string& bits);

/// The type of a value for people, such as "U16" or "bitmap".
inline const char* shortNameOf(Catalogue::ValueType type) {
  return type == Catalogue::ValueType::bitmap ? "bitmap" : Catalogue::valueTypeName(type);
}

}  // namespace Tool
