#include "input/EntryReader.h"
#include "input/HexDigits.h"
#include "model/Text.h"

// Hex text: one entry per line, optionally after "index:"; comments after "#".

namespace Tool {
namespace {

class HexReader : public EntryReader {
 public:
  HexReader(std::unique_ptr<ByteStream> stream, const Layout& layout, const InputOptions& options)
      : stream_(std::move(stream)),
        lines_(*stream_),
        entryBytes_(layout.entryBytes()),
        stride_(strideOf(options, layout)),
        sizeText_(entrySizeText(stride_, layout)),
        order_(options.hexOrder),
        index_(options.first) {}

  bool read(Entry& entry) override {
    for (std::string_view line; lines_.next(line);) {
      line = trim(line.substr(0, line.find('#')));
      if (line.empty()) continue;
      read(line);
      entry = {index_++, bytes_.data()};
      hasEntries_ = true;
      return true;
    }
    if (!hasEntries_) {
      fail("{}: no entry; hex text has one entry per line, such as \"00 01 02 03\"",
           stream_->name());
    }
    return false;
  }

 private:
  void read(std::string_view line) {
    const LinePlace place{stream_->name(), lines_.number()};
    const size_t colon = line.find(':');
    if (colon != std::string_view::npos) {
      const std::string_view prefix = trim(line.substr(0, colon));
      const std::optional<U64> index = parseNumber(prefix);
      if (!index || *index > 0xffffffff) {
        place.fail("{} is not an entry index; give a number, or leave out the colon",
                   inQuotes(prefix));
      }
      index_ = *index;
      line.remove_prefix(colon + 1);
    }
    const std::vector<std::string_view> groups = hexGroups(line, place);
    if (groups.empty()) place.fail("no digits after the index; check the line for lost digits");
    bytes_.clear();
    if (order_ == HexOrder::integer) {
      appendNumber(groups, entryBytes_, place, bytes_);
    } else {
      appendBytes(groups, orderOf(groups, place), place, bytes_);
    }
    if (bytes_.size() != entryBytes_ && bytes_.size() != stride_) {
      place.fail("{} bytes, not {}; check table and chip", bytes_.size(), sizeText_);
    }
  }

  HexOrder orderOf(const std::vector<std::string_view>& groups, const LinePlace& place) const {
    if (order_ != HexOrder::byGroups) return order_;
    if (haveDigits(groups, 2)) return HexOrder::bytes;
    if (haveDigits(groups, 8)) return HexOrder::words;
    place.fail(
        "the order of these digits is ambiguous; give --hex-order bytes, words or int (groups of 2 "
        "digits are bytes, groups of 8 are words)");
  }

  std::unique_ptr<ByteStream> stream_;
  LineReader lines_;
  U32 entryBytes_;
  U32 stride_;
  std::string sizeText_;
  HexOrder order_;
  U64 index_;
  bool hasEntries_ = false;
  std::vector<U8> bytes_;
};

}  // namespace

std::unique_ptr<EntryReader> openHex(std::unique_ptr<ByteStream> stream, const Layout& layout,
                                     const InputOptions& options) {
  return std::make_unique<HexReader>(std::move(stream), layout, options);
}

}  // namespace Tool
