#pragma once

#include "core/Dump.h"
#include "core/EntryBuilder.h"

// Dumps and values from bytes and text.

namespace Velmar {
namespace Core {

/// Inputs may have as many bytes.
constexpr size_t longestInput = size_t{64} << 20;

/// What hexadecimal digits are: by their groups, or as it is told.
enum class HexOrder : U8 { byGroups, bytes, words, integer };
std::optional<HexOrder> hexOrderNamed(std::string_view name);

constexpr U32 longestStride = 65536;

/// What is known of a dump before it is read.
struct ReadOptions {
  Notation notation = Notation::automatic;
  HexOrder hexOrder = HexOrder::byGroups;
  bool bigEndian = false;     ///< the highest byte of each 32-bit word comes first
  bool beyondEnd = false;     ///< entries beyond the end of the table are given, not refused
  U32 stride = 0;             ///< bytes from one entry to the next; 0: those of an entry
  std::optional<U32> first;   ///< index of the first entry
  std::optional<U64> origin;  ///< address of entry 0
  struct {
    bool hexOrder = false, byteOrder = false, stride = false, first = false, origin = false;
  } shared;  ///< given for two dumps: one of them may make no use of it
};

/// Reads a dump in any notation. A raw dump borrows `input`, which must outlive it.
Expected<Dump> readDump(const Layout& layout, const ReadOptions& options, std::string_view input);

/// What a document gives to encode.
struct DocumentValues {
  Dump entries;                    ///< whole ones
  std::vector<Assignment> common;  ///< of an object of values alone
};

/// Reads JSON or CSV as decode writes them, or one JSON object of values. Entries have all fields, or
/// change those of the base, which may be null.
Expected<DocumentValues> readValues(const Layout& layout, std::string_view input, const Dump* base);

}  // namespace Core
}  // namespace Velmar
