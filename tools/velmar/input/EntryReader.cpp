#include "input/EntryReader.h"

#include <algorithm>
#include <limits>

#include "model/Failure.h"
#include "model/Text.h"

namespace Tool {
namespace {

U32 strideOf(const InputOptions& options, const Layout& layout) {
  if (options.stride == 0) return layout.entryBytes();
  if (options.stride < layout.entryBytes()) {
    fail("--stride {} is shorter than an entry of {} on {}, which has {} bytes; give at least {}",
         options.stride, layout.name(), layout.chip().name, layout.entryBytes(),
         layout.entryBytes());
  }
  return options.stride;
}

/// The chips on which the table has entries of this size and is long enough; with a `count`, those
/// with as many entries.
std::vector<std::string> fittingChips(const Layout& layout, U64 index, U64 count) {
  std::vector<std::string> names;
  for (const Catalogue::Chip& chip : allChips()) {
    if (!layout.table().isOn(chip.number, layout.variant())) continue;
    const Layout other(layout.table(), chip, layout.variant());
    const bool fits = count != 0 ? other.indexCount() == count : other.indexCount() > index;
    if (fits && other.entryBytes() == layout.entryBytes()) names.push_back(chip.name);
  }
  return names;
}

}  // namespace

EntryReader::EntryReader(std::unique_ptr<ByteStream> stream, const Layout& layout,
                         const InputOptions& options)
    : stream_(std::move(stream)),
      layout_(layout),
      options_(options),
      stride_(strideOf(options, layout)) {}

bool EntryReader::next(Entry& entry) {
  if (!read(entry)) return false;
  if (entry.index >= layout_.indexCount()) {
    if (!options_.beyondEnd) failBeyond(entry.index);
    if (entry.index > std::numeric_limits<U32>::max()) {
      fail(
          "entry {}: the largest index is {}; check --first, and the offsets or indexes of the "
          "dump",
          entry.index, std::numeric_limits<U32>::max());
    }
  }
  if (options_.bigEndian) {
    swapped_.assign(entry.bytes, entry.bytes + layout_.entryBytes());
    for (auto word = swapped_.begin(); word != swapped_.end(); word += 4) {
      std::reverse(word, word + 4);
    }
    entry.bytes = swapped_.data();
  }
  return true;
}

void EntryReader::failBeyond(U64 index, U64 count) const {
  const std::string where = count != 0
                                ? formatText("{} entries are more", count)
                                : formatText("entry {} (0x{:x}) is beyond the end", index, index);
  const std::vector<std::string> chips = fittingChips(layout_, index, count);
  const std::string remedy =
      !chips.empty() ? formatText("{} {} as many as the dump: check --chip", join(chips, ", "),
                                  chips.size() == 1 ? "has" : "have")
      : count != 0   ? "check table and chip, which \"velmar identify\" lists"
                     : "no chip has as many as the dump: if the numbers before the data are "
                       "addresses, remove them";
  fail("{}: {}{} {} on {}, which has {} {}; {}", name(), where,
       count != 0 ? " than those of" : " of", layout_.name(), layout_.chip().name,
       layout_.indexCount(), layout_.isRegisterArray() ? "elements" : "entries", remedy);
}

void EntryReader::checkFirst() const {
  if (options_.first == 0 || options_.shared.first) return;
  fail("{}: --first has no effect where the entries have their indexes; leave it out", name());
}

void EntryReader::failSize(U64 bytes) const {
  fail(
      "{}: {} bytes are not a multiple of {}; check table and chip, which \"velmar identify\" "
      "lists, "
      "or give --stride",
      stream_->name(), bytes, entrySizeText(stride_, layout_));
}

std::string entrySizeText(U32 stride, const Layout& layout) {
  if (stride != layout.entryBytes()) return formatText("{}, the stride", stride);
  return formatText("{}, an entry of {} on {}", stride, layout.name(), layout.chip().name);
}

}  // namespace Tool
