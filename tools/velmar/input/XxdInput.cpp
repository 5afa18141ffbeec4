#include <algorithm>

#include "input/EntryReader.h"
#include "input/HexDigits.h"
#include "model/Text.h"

// The output of xxd: an offset, groups of digits, and after two blanks the bytes as text. "*"
// replaces lines of zeros.

namespace Tool {
namespace {

class XxdReader : public EntryReader {
 public:
  XxdReader(std::unique_ptr<ByteStream> stream, const Layout& layout, const InputOptions& options)
      : stream_(std::move(stream)),
        lines_(*stream_),
        layout_(layout),
        stride_(strideOf(options, layout)),
        order_(options.hexOrder),
        index_(options.first) {
    if (order_ == HexOrder::integer) {
      fail("--hex-order int does not apply to xxd output; give bytes or words");
    }
  }

  bool read(Entry& entry) override {
    pending_.erase(pending_.begin(), pending_.begin() + taken_);
    taken_ = 0;
    while (pending_.size() < stride_) {
      if (zeros_ > 0) {
        const U64 count = std::min<U64>(zeros_, stride_ - pending_.size());
        pending_.insert(pending_.end(), static_cast<size_t>(count), U8{0});
        zeros_ -= count;
        appendAfterZeros();
        continue;
      }
      std::string_view line;
      if (!lines_.next(line)) return atEnd();
      read(line);
    }
    entry = {index_++, pending_.data()};
    taken_ = stride_;
    return true;
  }

  bool isAscending() const override { return true; }

 private:
  LinePlace place() const { return {stream_->name(), lines_.number()}; }

  bool atEnd() const {
    if (!started_) fail("{}: no line of xxd output; check the file", stream_->name());
    if (skipping_) place().fail("ends after \"*\"; xxd prints a last line after it");
    if (!pending_.empty()) {
      fail("{}: {} bytes are not a multiple of {}; check table and chip, or give --stride",
           stream_->name(), offset_ - firstOffset_, entrySizeText(stride_, layout_));
    }
    return false;
  }

  void read(std::string_view line) {
    line = trim(line);
    if (line.empty()) return;
    if (line == "*" && started_) {
      skipping_ = true;
      return;
    }
    const size_t colon = line.find(':');
    U64 offset = 0;
    const bool isLong = colon == std::string_view::npos || colon > 16 || colon == 0;
    if (isLong || !parseOffset(line.substr(0, colon), offset)) {
      place().fail("not a line of xxd output; --input hex reads plain hex text");
    }
    checkOffset(offset);
    readBytes(line.substr(colon + 1));
  }

  static bool parseOffset(std::string_view text, U64& offset) {
    offset = 0;
    for (const char letter : text) {
      if (hexDigit(letter) < 0) return false;
      offset = offset << 4 | static_cast<U64>(hexDigit(letter));
    }
    return true;
  }

  void checkOffset(U64 offset) {
    if (!started_) {
      started_ = true;
      if (offset % stride_ != 0) {
        place().fail("offset 0x{:x} is not the start of an entry; start at a multiple of {}",
                     offset, entrySizeText(stride_, layout_));
      }
      offset_ = firstOffset_ = offset;
      index_ += offset / stride_;
      return;
    }
    if (skipping_ && offset > offset_ && offset / stride_ <= layout_.indexCount()) {
      zeros_ = offset - offset_;
      offset_ = offset;
    }
    skipping_ = false;
    if (offset != offset_) {
      place().fail(
          "offset 0x{:x}, but 0x{:x} comes next; check the dump for lost or repeated lines", offset,
          offset_);
    }
  }

  void readBytes(std::string_view rest) {
    if (!rest.empty() && rest.front() == ' ') rest.remove_prefix(1);
    const size_t end = rest.find("  ");
    const std::vector<std::string_view> groups = hexGroups(rest.substr(0, end), place());
    std::vector<U8> bytes;
    appendBytes(groups, orderOf(groups), place(), bytes);
    if (end != std::string_view::npos) checkText(trim(rest.substr(end)), bytes);
    offset_ += bytes.size();
    std::vector<U8>& into = zeros_ > 0 ? afterZeros_ : pending_;
    into.insert(into.end(), bytes.begin(), bytes.end());
  }

  void appendAfterZeros() {
    if (zeros_ > 0) return;
    pending_.insert(pending_.end(), afterZeros_.begin(), afterZeros_.end());
    afterZeros_.clear();
  }

  /// xxd writes groups of eight digits both for bytes and, with -e, for words.
  HexOrder orderOf(const std::vector<std::string_view>& groups) const {
    if (order_ != HexOrder::byGroups) return order_;
    if (!groups.empty() && groups.front().size() == 8) {
      place().fail(
          "groups of 8 digits may be bytes or, from xxd -e, words; give --hex-order bytes or "
          "words");
    }
    return HexOrder::bytes;
  }

  /// The text column repeats the bytes: a wrong order shows where they are printable.
  void checkText(std::string_view text, const std::vector<U8>& bytes) const {
    for (size_t i = 0; i < std::min(text.size(), bytes.size()); ++i) {
      if (text.size() == bytes.size() && text[i] != '.' && text[i] != static_cast<char>(bytes[i])) {
        place().fail(
            "digits and text column disagree; give --hex-order words for xxd -e, bytes "
            "otherwise");
      }
    }
  }

  std::unique_ptr<ByteStream> stream_;
  LineReader lines_;
  const Layout& layout_;
  U32 stride_;
  HexOrder order_;
  U64 index_;
  U64 offset_ = 0;
  U64 firstOffset_ = 0;
  bool started_ = false;
  bool skipping_ = false;
  U64 zeros_ = 0;  ///< zero bytes that a "*" still has to give
  std::vector<U8> pending_;
  std::vector<U8> afterZeros_;
  long taken_ = 0;
};

}  // namespace

std::unique_ptr<EntryReader> openXxd(std::unique_ptr<ByteStream> stream, const Layout& layout,
                                     const InputOptions& options) {
  return std::make_unique<XxdReader>(std::move(stream), layout, options);
}

}  // namespace Tool
