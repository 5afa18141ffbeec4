#pragma once

#include <functional>
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
  bool bigEndian = false;  ///< the highest byte of each 32-bit word comes first
  bool beyondEnd = false;  ///< entries beyond the end of the table are given, not refused
  struct {
    bool hexOrder = false, byteOrder = false, stride = false, first = false;
  } shared;        ///< given for two dumps: one of them may make no use of it
  U32 stride = 0;  ///< bytes from one entry to the next; 0: the bytes of an entry
  U64 first = 0;   ///< index of the first entry
  std::function<void(const std::string&)> note;  ///< receives what is worth saying; may be empty
};

/// Reads the entries of a dump in bounded memory, whatever the size of the dump.
class EntryReader {
 public:
  EntryReader(std::unique_ptr<ByteStream> stream, const Layout& layout,
              const InputOptions& options);
  virtual ~EntryReader() = default;

  /// Reads the next entry; false at the end. Fails for an entry beyond the end of the table, and
  /// for an index of more than 32 bits.
  bool next(Entry& entry);
  /// Bytes of the dump, where it is a file; 0 where that is not known.
  virtual U64 sizeInBytes() const { return stream_->sizeInBytes(); }
  /// Bytes of it that were read and used.
  virtual U64 bytesTaken() const { return stream_->bytesTaken(); }
  /// Whether the format guarantees that indexes ascend.
  virtual bool isAscending() const { return false; }

 protected:
  /// Fails: the index is beyond the end. `count` is the number of entries, where it is known.
  [[noreturn]] void failBeyond(U64 index, U64 count = 0) const;
  /// Fails if --first is given: the entries of the dump have their indexes.
  void checkFirst() const;
  /// Fails: entries do not fill this many bytes.
  [[noreturn]] void failSize(U64 bytes) const;

  const std::unique_ptr<ByteStream> stream_;
  const Layout& layout_;
  const InputOptions options_;
  const U32 stride_;  ///< bytes from one entry to the next

 private:
  virtual bool read(Entry& entry) = 0;
  /// What error messages call the dump.
  virtual const std::string& name() const { return stream_->name(); }

  std::vector<U8> swapped_;
};

/// Opens a dump in any of the formats.
std::unique_ptr<EntryReader> openEntries(std::unique_ptr<ByteStream> stream, const Layout& layout,
                                         const InputOptions& options);

// The formats, each in a file of its own.
using OpenFormat = std::unique_ptr<EntryReader>(std::unique_ptr<ByteStream> stream,
                                                const Layout& layout, const InputOptions& options);
OpenFormat openRaw, openHex, openXxd, openHexdump, openOd, openJson;

/// The bytes of an entry in words, for messages: "16, an entry of VlanEntry on BCM56990_B0".
std::string entrySizeText(U32 stride, const Layout& layout);

}  // namespace Tool
