#pragma once

#include <memory>

#include "model/Entry.h"
#include "model/Families.h"
#include "output/Output.h"

namespace Tool {

/// Writes entries in one of the formats. What comes before the first entry is written when a writer
/// is made.
class EntryWriter {
 public:
  virtual ~EntryWriter() = default;
  virtual void write(const Entry& entry) = 0;
  /// Writes what comes after the last entry.
  virtual void end() {}
};

/// How entries are written.
struct EntryStyle {
  Format format = Format::table;
  bool isPlain = false;     ///< JSON with values alone: numbers, lists of ports, hexadecimal text
  bool asFamilies = false;  ///< for people: a line for each family of fields
};

/// Writes the given fields of entries, as a table for people, JSON, JSON lines or CSV. The layout
/// must outlive the writer.
std::unique_ptr<EntryWriter> makeEntryWriter(Output& output, const Layout& layout,
                                             const std::vector<FieldPlace>& fields,
                                             const EntryStyle& style);
/// Writes the bytes of entries: hex, words or raw.
std::unique_ptr<EntryWriter> makeBytesWriter(Output& output, const Layout& layout, Format format,
                                             bool withIndex);

// The larger ones, each in a file of its own.
std::unique_ptr<EntryWriter> makeTableWriter(Output& output, const Layout& layout,
                                             const std::vector<FieldGroup>& groups);
std::unique_ptr<EntryWriter> makeJsonWriter(Output& output, const Layout& layout,
                                            const std::vector<FieldPlace>& fields,
                                            const EntryStyle& style);

/// The line that names an entry, such as "VlanEntry 100  address 0x0c7c0064  access 17  block 1".
void writeEntryHead(Output& output, const Layout& layout, U64 index);

}  // namespace Tool
