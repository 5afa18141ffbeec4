#pragma once

#include "core/Reading.h"
#include "core/TextLines.h"

// Text is read in several ways, each over all lines; a judge compares the results.

namespace Velmar {
namespace Core {

/// What stands before the data of a line.
enum class Lead : U8 {
  index,   ///< nothing or an index: "12:", "[12]", "NAME[12]:"
  colon,   ///< an offset or address before a colon, as of xxd, debuggers and boot loaders
  offset,  ///< an offset and a blank, as of od and hexdump
};

/// One way to read all lines of a text.
struct TextReading {
  Notation notation;
  Lead lead;
  U8 base;  ///< of the offsets
  HexOrder order;
};

/// How well documented a reading is. Rank decides between documented conventions only; what two readings
/// of one rank take differently is asked about.
enum class Rank : U8 { convention, possible, unlikely, impossible };

/// What became of a reading.
struct Attempt {
  TextReading reading;
  Dump dump;
  std::optional<Fault> fault;
  Rank rank = Rank::convention;
  U64 progress = 0;   ///< how far it got: the line, and the step in it
  U64 firstLine = 0;  ///< of data
};

/// Reads all lines in one way, as long as the rank is not worse than `worst`.
Attempt attempt(const TextReading& reading, const Layout& layout, const ReadOptions& options,
                Lines& lines, Rank worst);

/// Reads text in the notation that fits.
Expected<Dump> readText(const Layout& layout, const ReadOptions& options, std::string_view text);

// What the notations share.

/// Bytes from one entry of a dump to the next.
size_t strideOf(const Layout& layout, const ReadOptions& options);
/// "16, an entry of VlanEntry on BCM56990_B0".
std::string entrySizeText(size_t stride, const Layout& layout);
/// The chips on which the table has entries of so many bytes and is long enough; with a `count`, those
/// with as many entries.
std::vector<std::string> chipsWith(const Layout& layout, size_t bytes, U64 index = 0,
                                   U64 count = 0);
/// The indexes of a dump are given: --first would have no effect.
std::optional<Fault> checkFirst(const ReadOptions& options);
/// The index is beyond the end. `count` is the number of entries, if it is known.
Fault beyondEnd(const Layout& layout, U64 index, U64 count = 0);
/// Adds an entry; a fault if it is beyond the end of the table, or if its index has more than 32 bits.
std::optional<Fault> addEntry(Dump& dump, const Layout& layout, const ReadOptions& options,
                              U64 index, const U8* bytes);
/// Adds bytes that are entries without gaps, or with those of the stride.
std::optional<Fault> addEntries(Dump& dump, const Layout& layout, const ReadOptions& options,
                                U64 first, const U8* bytes, size_t size);

}  // namespace Core
}  // namespace Velmar
