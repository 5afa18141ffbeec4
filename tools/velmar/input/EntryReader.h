#pragma once

#include <memory>
#include <string>

#include "input/ByteStream.h"
#include "model/Entry.h"
#include "model/Layout.h"

namespace Tool {

enum class HexOrder { byGroups, bytes, words, integer };

/// What the command line says of a dump.
struct InputOptions {
  std::string format = "auto";
  HexOrder hexOrder = HexOrder::byGroups;
  U32 stride = 0;  ///< bytes from one entry to the next; 0: the bytes of an entry
  U64 first = 0;   ///< index of the first entry
};

/// Reads the entries of a dump in bounded memory, whatever the size of the dump.
class EntryReader {
 public:
  virtual ~EntryReader() = default;

  /// Reads the next entry; false at the end. Fails for an index of more than 32 bits.
  bool next(Entry& entry);
  /// Whether the format guarantees that indexes ascend.
  virtual bool isAscending() const { return false; }

 private:
  virtual bool read(Entry& entry) = 0;
};

/// Opens a dump in any of the formats.
std::unique_ptr<EntryReader> openEntries(std::unique_ptr<ByteStream> stream, const Layout& layout,
                                         const InputOptions& options);

// The formats, each in a file of its own.
std::unique_ptr<EntryReader> openRaw(std::unique_ptr<ByteStream> stream, const Layout& layout,
                                     const InputOptions& options);
std::unique_ptr<EntryReader> openHex(std::unique_ptr<ByteStream> stream, const Layout& layout,
                                     const InputOptions& options);
std::unique_ptr<EntryReader> openXxd(std::unique_ptr<ByteStream> stream, const Layout& layout,
                                     const InputOptions& options);
std::unique_ptr<EntryReader> openJson(std::unique_ptr<ByteStream> stream, const Layout& layout,
                                      const InputOptions& options);

/// Bytes from one entry to the next; fails for a stride that is shorter than an entry.
U32 strideOf(const InputOptions& options, const Layout& layout);

/// The bytes of an entry in words, for messages: "16, an entry of VlanEntry on BCM56990_B0".
std::string entrySizeText(U32 stride, const Layout& layout);

}  // namespace Tool
