#include <algorithm>

#include "input/HexDigits.h"
#include "input/TextDump.h"
#include "model/IndexSet.h"
#include "model/Text.h"

// Hex text: an entry on each line, optionally after its index, or one stream of lines of equal
// length.

namespace Tool {
namespace {

class HexReader : public TextReader {
 public:
  HexReader(std::unique_ptr<ByteStream> stream, const Layout& layout, const InputOptions& options)
      : TextReader(std::move(stream), layout, options),
        entryBytes_(layout.entryBytes()),
        index_(options.first) {}

 private:
  enum class Shape { unknown, entries, stream };

  bool read(Entry& entry) override {
    pending_.erase(pending_.begin(), pending_.begin() + taken_);
    taken_ = 0;
    const auto needed = [this] { return shape_ == Shape::stream ? size_t{stride_} : 1; };
    while (pending_.size() < needed()) {
      if (!takeLine()) return atEnd();
    }
    taken_ = static_cast<long>(shape_ == Shape::stream ? stride_ : pending_.size());
    entry = {index_++, pending_.data()};
    return true;
  }

  bool atEnd() const {
    if (!hasData()) {
      fail("{}: no entry; hex text has one entry per line, such as \"00 01 02 03\"{}",
           stream_->name(), hasForeign() ? ", and --input raw reads binary dumps" : "");
    }
    if (!pending_.empty()) failSize(streamBytes_);
    return false;
  }

  bool hasData() const override { return shape_ != Shape::unknown; }

  bool parse(std::string_view line) override {
    std::string_view text = line;
    std::optional<U64> index;
    if (!takeIndex(text, index) || !splitGroups(text, groups_)) return false;
    if (groups_.empty()) {
      if (index) failLine("no digits after the index; check the line for lost digits");
      return true;
    }
    bytes_.clear();
    appendLine(index.has_value());
    const bool isEntry = bytes_.size() == entryBytes_ || bytes_.size() == stride_;
    if (shape_ == Shape::unknown) {
      shape_ = isEntry || index ? Shape::entries : Shape::stream;
      lineBytes_ = bytes_.size();
      isRun_ = groups_.size() == 1 && groups_[0].digits.size() != 8;
      if (shape_ == Shape::stream && line.back() != ',') checkStream(line);
    }
    if (shape_ == Shape::stream) {
      if (index)
        failLine("an index in the middle of a stream; give an index to each entry or none");
      takeStreamLine();
    } else if (!isEntry) {
      failLine("{} bytes, not {}; check {}", bytes_.size(), entrySizeText(stride_, layout_),
               hasLines_ ? "the line for lost digits" : "table and chip, and the line");
    }
    if (index) {
      if (!seen_.insert(*index)) failLine("entry {} is given twice; give it once", *index);
      checkFirst();
      checkOffset(line);
      index_ = *index;
    }
    pending_.insert(pending_.end(), bytes_.begin(), bytes_.end());
    hasLines_ = true;
    return true;
  }

  /// Takes "index:", "[index]" or "NAME[index]:" from a line; false where it has another number or
  /// word there.
  static bool takeIndex(std::string_view& text, std::optional<U64>& index) {
    const size_t open = text.find('[');
    const size_t close = text.find(']', std::min(open, text.size()));
    if (close != std::string_view::npos && close + 1 < text.size() &&
        text.find_first_of(" \t:=,") > open) {
      index = parseNumber(trim(text.substr(open + 1, close - open - 1)));
      if (index) {
        text = trim(text.substr(close + 1));
        if (!text.empty() && (text[0] == ':' || text[0] == '=')) text.remove_prefix(1);
        return *index <= 0xffffffff;
      }
    }
    const size_t colon = text.find(':');
    if (colon == std::string_view::npos) return true;
    // A colon without a blank after it and with others behind it is between two bytes.
    const bool isEnd = colon + 1 == text.size() || isBlank(text[colon + 1]);
    if (!isEnd && text.find(':', colon + 1) != std::string_view::npos) return true;
    index = parseNumber(trim(text.substr(0, colon)));
    text.remove_prefix(colon + 1);
    return index && *index <= 0xffffffff;
  }

  void refuse(std::string_view line) const override {
    std::string_view text = line;
    std::optional<U64> index;
    if (!takeIndex(text, index)) {
      failLine("{} is not an entry index; give a number, or leave out the colon",
               inQuotes(trim(line.substr(0, line.find_first_of("]:")))));
    }
    std::vector<HexGroup> groups;
    while (!text.empty()) {
      const size_t end = std::min(text.find_first_of(" \t"), text.size());
      if (!splitGroups(text.substr(0, end), groups)) {
        failLine("{} is not a hexadecimal number; {}", inQuotes(text.substr(0, end)),
                 line.find_first_of("0123456789") != std::string_view::npos
                     ? "check the digits, and remove what is not data"
                     : "--input raw reads binary dumps");
      }
      text = trim(text.substr(end));
    }
    failLine("{} is not data; remove the line", inQuotes(line));
  }

  /// Padded numbers that grow by the bytes of a line may be offsets.
  void checkOffset(std::string_view line) {
    const size_t digits = line.find_first_not_of("0123456789");
    U64 offset = 0;
    for (const char letter : line.substr(0, digits)) {
      offset = 16 * offset + static_cast<U64>(hexDigit(letter));
    }
    const bool isPadded = line[0] == '0' && digits >= 4 && digits != std::string_view::npos;
    if (isPadded && hasOffset_ && offset == offset_ + bytes_.size()) {
      failLine(
          "the numbers before the data may be offsets; give --input xxd if they are, or else "
          "write indexes without zeros before them");
    }
    hasOffset_ = isPadded;
    offset_ = offset;
  }

  void takeStreamLine() {
    if (streamBytes_ % lineBytes_ != 0 || bytes_.size() > lineBytes_) {
      failLine(
          "{} bytes after lines of {}; only the last line of a stream may be shorter; check both",
          bytes_.size(), streamBytes_ % lineBytes_ != 0 ? streamBytes_ % lineBytes_ : lineBytes_);
    }
    streamBytes_ += bytes_.size();
  }

  /// Lines that are no entries here may be entries on another chip. od indents a stream.
  void checkStream(std::string_view line) const {
    if (isIndented()) return;
    if (lineBytes_ == stride_ + 1 && line.find(':') != std::string_view::npos) {
      failLine("{} bytes, not {}; if the first is an index, put a blank after its colon",
               lineBytes_, entrySizeText(stride_, layout_));
    }
    for (const Catalogue::Chip& chip : allChips()) {
      if (!layout_.table().isOn(chip.number, layout_.variant())) continue;
      if (Layout(layout_.table(), chip, layout_.variant()).entryBytes() != lineBytes_) continue;
      failLine(
          "{} bytes, not {}, but an entry of {} on {}; check --chip or, if they are a "
          "stream, join all lines to one",
          lineBytes_, entrySizeText(stride_, layout_), layout_.name(), chip.name);
    }
    if (groups_.size() > 1 && lineBytes_ % stride_ != 0) {
      failLine(
          "{} bytes, not {}; check the line for lost digits or, if the lines are a stream, join "
          "all "
          "lines to one",
          lineBytes_, entrySizeText(stride_, layout_));
    }
  }

  // What the digits of a line are.

  bool fill(size_t bytesEach) const {
    const size_t bytes = bytesEach * groups_.size();
    return bytes == entryBytes_ || bytes == stride_;
  }
  size_t longest() const {
    size_t digits = 0;
    for (const HexGroup& group : groups_) digits = std::max(digits, group.digits.size());
    return digits;
  }

  void appendLine(bool hasIndex) {
    for (const HexGroup& group : groups_) {
      if (group.prefix != groups_.front().prefix) {
        failLine("some numbers have 0x and others not; write all of them alike");
      }
    }
    const bool isTold = options_.hexOrder != HexOrder::byGroups;
    const HexOrder order = isTold                          ? options_.hexOrder
                           : groups_.front().prefix == 'x' ? orderOfNumbers()
                                                           : orderOfDigits(hasIndex);
    if (order == HexOrder::bytes) return appendAsBytes();
    if (order == HexOrder::words) return appendAsWords();
    appendAsNumber();
  }

  /// Numbers after 0x may be shortened: what they are is decided by how many there are.
  HexOrder orderOfNumbers() {
    const size_t digits = longest();
    if (groups_.size() == 1 && digits == 2 * size_t{entryBytes_}) return HexOrder::integer;
    checkPadding();
    if (numbers_ == HexOrder::byGroups) numbers_ = firstOrderOfNumbers(digits);
    if (digits > (numbers_ == HexOrder::bytes ? 2 : 8)) {
      failLine(
          "{} digits after 0x where {} are expected; give --hex-order int if the number is an "
          "entry",
          digits, numbers_ == HexOrder::bytes ? "2" : "up to 8");
    }
    return numbers_;
  }

  /// Numbers that are filled up with zeros have all digits; a shorter one has lost some.
  void checkPadding() {
    for (const HexGroup& group : groups_) {
      const size_t digits = group.digits.size();
      const bool isFull = digits == 8 || digits == 2;
      const bool isPadded = digits > 1 && group.digits[0] == '0';
      isPadded_ = isPadded_ || (isPadded && digits == 8);
      hasShort_ = hasShort_ || !isFull;
      if ((isPadded && !isFull) || (isPadded_ && hasShort_)) {
        failLine("{} digits among numbers that have zeros before them; check for lost digits",
                 digits);
      }
    }
  }

  HexOrder firstOrderOfNumbers(size_t digits) const {
    if (groups_.size() == 1) return HexOrder::words;
    const bool mayBeWords = fill(4);
    if (fill(1) && !mayBeWords && digits <= 2) return HexOrder::bytes;
    if (haveDigits(groups_, 2)) {
      const bool isPadded = std::any_of(groups_.begin(), groups_.end(), [](const HexGroup& group) {
        return group.digits[0] == '0';
      });
      if (!mayBeWords || isPadded) return HexOrder::bytes;
    } else if (mayBeWords || haveDigits(groups_, 8)) {
      return HexOrder::words;
    }
    failLine("these numbers may be bytes or words; give --hex-order bytes or words");
  }

  /// Without 0x, two digits are a byte and eight are a word.
  HexOrder orderOfDigits(bool hasIndex) const {
    const size_t digits = groups_.front().digits.size();
    if (haveDigits(groups_, 2)) {
      if (!hasData() && !hasIndex && mayBeDecimal()) {
        failLine(
            "these may be decimal numbers; give --hex-order bytes if they are hexadecimal, or "
            "print the dump again with xxd");
      }
      return HexOrder::bytes;
    }
    if (groups_.front().prefix == '\\') failLine("\\x has two digits; write all bytes so");
    // The last line of a stream of bytes without blanks may have eight digits.
    const bool isRun = shape_ == Shape::stream && isRun_ && groups_.size() == 1;
    if (haveDigits(groups_, 8) && !isRun) return HexOrder::words;
    const bool mayBeWords = digits == 4 || (digits == 16 && isIndented());
    if (groups_.size() == 1 && digits % 2 == 0 && !(mayBeWords && isIndented())) {
      return HexOrder::bytes;
    }
    if (mayBeWords && haveDigits(groups_, digits)) {
      failLine("groups of {} digits may be bytes or words; give --hex-order bytes or words",
               digits);
    }
    failLine(
        "these digits are neither bytes of 2 nor words of 8 digits; check the line for lost digits "
        "or, if they are decimal or octal, print the dump again with xxd");
  }

  /// Whether no digit shows that the bytes are hexadecimal.
  bool mayBeDecimal() const {
    return groups_.front().prefix == 0 &&
           std::all_of(groups_.begin(), groups_.end(), [](const HexGroup& group) {
             return group.digits[0] != '0' &&
                    group.digits.find_first_not_of("0123456789") == std::string_view::npos;
           });
  }

  void appendAsBytes() {
    for (const HexGroup& group : groups_) {
      const size_t digits = group.digits.size();
      if (digits == 1 && group.prefix == 'x') {
        appendNumber(group.digits, 1, bytes_);
      } else if (digits % 2 != 0) {
        failLine("{} digits are not whole bytes; check the line for lost digits", digits);
      } else {
        appendBytes(group.digits, bytes_);
      }
    }
  }

  void appendAsWords() {
    const size_t digits = longest();
    const bool isShort = groups_.front().prefix == 'x' || fill(4);
    if (haveDigits(groups_, 2) && groups_.front().prefix != 'x') {
      failLine(
          "groups of 2 digits are bytes; leave out --hex-order, or give --byte-order big if the "
          "highest byte of each word comes first");
    } else if (digits <= 8 && (isShort || haveDigits(groups_, 8))) {
      for (const HexGroup& group : groups_) appendNumber(group.digits, 4, bytes_);
    } else if (haveDigits(groups_, 4)) {
      for (const HexGroup& group : groups_) appendNumber(group.digits, 2, bytes_);
    } else if (groups_.size() == 1 && digits % 8 == 0) {
      const std::string_view text = groups_.front().digits;
      for (size_t at = 0; at < digits; at += 8) appendNumber(text.substr(at, 8), 4, bytes_);
    } else {
      failLine("{} digits are not whole 32-bit words; check the line for lost digits", digits);
    }
  }

  void appendAsNumber() {
    const bool isList = groups_.front().prefix == 'x' && groups_.size() > 1;
    const size_t each = !isList ? 0 : fill(4) ? 8 : 2;
    if (isList && (longest() > each || (each == 2 && !fill(1)))) {
      failLine("{} numbers are neither the words nor the bytes of an entry; check the line",
               groups_.size());
    }
    std::string digits;
    for (const HexGroup& group : groups_) {
      if (isList) digits.append(each - group.digits.size(), '0');
      digits += group.digits;
    }
    digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size()));
    if (digits.size() > 2 * size_t{entryBytes_}) {
      failLine("the number does not fit an entry of {} bytes; check table and chip", entryBytes_);
    }
    appendNumber(digits, entryBytes_, bytes_);
  }

  const size_t entryBytes_;
  U64 index_;
  SeenIndexes seen_;
  Shape shape_ = Shape::unknown;
  bool hasLines_ = false;   ///< a line was accepted
  bool hasOffset_ = false;  ///< the last index has zeros before it, and may be an offset
  U64 offset_ = 0;
  HexOrder numbers_ = HexOrder::byGroups;  ///< what numbers after 0x are, by the first line
  bool isPadded_ = false;  ///< a number after 0x has eight digits, the first of them zero
  bool hasShort_ = false;  ///< a number after 0x has fewer digits than a word or byte
  std::vector<HexGroup> groups_;
  std::vector<U8> bytes_;  ///< those of a line
  bool isRun_ = false;     ///< the first line is bytes without blanks
  size_t lineBytes_ = 0;   ///< bytes of each line of a stream but the last
  U64 streamBytes_ = 0;
  std::vector<U8> pending_;  ///< bytes that were read and not given
  long taken_ = 0;
};

}  // namespace

std::unique_ptr<EntryReader> openHex(std::unique_ptr<ByteStream> stream, const Layout& layout,
                                     const InputOptions& options) {
  return std::make_unique<HexReader>(std::move(stream), layout, options);
}

}  // namespace Tool
