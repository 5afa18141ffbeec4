#pragma once

#include <memory>

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
enum class Rank : U8 { convention, possible, unlikely };

/// A reading at work: it takes the lines one after another.
class TextReader {
 public:
  enum class Taken { yes, no, fault };

  TextReader(const Layout& layout, const ReadOptions& options, const TextReading& reading)
      : layout_(layout),
        options_(options),
        reading_(reading),
        entryBytes_(layout.entryBytes()),
        stride_(options.stride != 0 ? options.stride : layout.entryBytes()) {}
  virtual ~TextReader() = default;

  /// Reads all lines, as long as the rank is not worse than `worst`. The dump is in `dump` if there is no
  /// fault.
  std::optional<Fault> read(Lines& lines, Rank worst);
  /// How far it got: the line, and the step in it.
  U64 progress() const { return steps * line_.number + step_; }
  Rank rank() const { return rank_; }
  /// The first line of data.
  U64 firstLine() const { return firstLine_; }
  Dump dump;

 protected:
  /// Takes a line; `no` if it is not of the notation.
  virtual Taken take(std::string_view line) = 0;
  /// The fault of a line that is not of the notation.
  virtual Fault refusal(std::string_view line) const = 0;
  virtual bool hasData() const = 0;
  /// Whether a mark such as "*" stands for something.
  virtual bool takeMark(std::string_view) { return false; }
  virtual std::optional<Fault> finish() = 0;

  static constexpr U64 steps = 4;
  /// Steps of a line: lead and groups, digits, place, entry.
  void reach(U64 step) { step_ = step; }

  template <class... Arguments>
  Fault& fail(fmt::format_string<Arguments...> text, Arguments&&... arguments) {
    return fault_.emplace(Code::input, text, std::forward<Arguments>(arguments)...)
        .onLine(line_.number);
  }
  void lower(Rank rank) { rank_ = std::max(rank_, rank); }
  bool isTold() const { return options_.hexOrder != HexOrder::byGroups; }
  /// The indexes of a dump are given: --first would have no effect.
  std::optional<Fault> checkFirst() const;
  /// Bytes that are entries without gaps, or with those of the stride.
  std::optional<Fault> addEntries(const std::vector<U8>& bytes, U64 first);

  const Layout& layout_;
  const ReadOptions& options_;
  const TextReading reading_;
  const size_t entryBytes_;
  const size_t stride_;  ///< bytes from one entry to the next
  Lines::Line line_;
  U64 step_ = 0;
  std::optional<Fault> fault_;
  Rank rank_ = Rank::convention;
  U64 firstLine_ = 0;
};

std::unique_ptr<TextReader> makeHexReader(const Layout& layout, const ReadOptions& options,
                                          const TextReading& reading);
std::unique_ptr<TextReader> makeOffsetReader(const Layout& layout, const ReadOptions& options,
                                             const TextReading& reading);

/// Reads text in the notation that fits.
Expected<Dump> readText(const Layout& layout, const ReadOptions& options, std::string_view text);

// What the notations share.

/// "16, an entry of VlanEntry on BCM56990_B0".
std::string entrySizeText(size_t stride, const Layout& layout);
/// Entries do not fill the bytes of the dump.
Fault badSize(U64 bytes, size_t stride, const Layout& layout);
/// The index is beyond the end. `count` is the number of entries, if it is known.
Fault beyondEnd(const Layout& layout, U64 index, U64 count = 0);
/// Adds an entry; a fault if it is beyond the end of the table, or if its index has more than 32 bits.
std::optional<Fault> addEntry(Dump& dump, const Layout& layout, const ReadOptions& options,
                              U64 index, const U8* bytes);

}  // namespace Core
}  // namespace Velmar
