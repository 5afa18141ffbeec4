#pragma once

#include <memory>

#include "model/Entry.h"
#include "model/Value.h"
#include "output/Listing.h"

namespace Tool {

/// Writes decoded entries in one of the formats.
class EntryWriter {
 public:
  virtual ~EntryWriter() = default;
  /// What stands before the first entry.
  virtual void begin() = 0;
  virtual void write(const Entry& entry) = 0;
  /// What stands behind the last one.
  virtual void end() = 0;
};

/// A writer for the given fields of a layout, which must outlive it.
std::unique_ptr<EntryWriter> makeEntryWriter(Output& output, const Layout& layout,
                                             std::vector<FieldPlace> fields, Format format);

/// Whether a decimal number of so many bits is exact in every JSON reader.
constexpr bool isExactInJson(U32 bits) { return bits <= 53; }

/// A value for spreadsheets: decimal where that is exact, bitmaps as ports.
std::string plainText(const FieldPlace& place, const Value& value);

/// The bits of an entry outside all fields, as a hexadecimal number of the whole entry.
std::string bitsOutside(const Layout& layout, const U8* entry);
/// An entry, or part of it, as one hexadecimal number without leading zeros.
std::string entryAsHex(const std::vector<U8>& entry);

/// The line that names an entry, such as "VlanEntry 100  address 0x0c7c0064  access 17  block 1".
void writeEntryHead(Output& output, const Layout& layout, U64 index);

}  // namespace Tool
