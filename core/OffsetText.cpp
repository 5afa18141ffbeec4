#include <algorithm>
#include <charconv>

#include "core/TextReading.h"

// Text with an offset or an address on each line: the output of xxd, hexdump and od, of debuggers and of
// boot loaders. In all of them a "*" may stand for lines like the one before.

namespace Velmar {
namespace Core {
namespace {

class OffsetReader : public TextReader {
 public:
  OffsetReader(const Layout& layout, const ReadOptions& options, const TextReading& reading)
      : TextReader(layout, options, reading) {
    dump = Dump(layout.entryBytes());
  }

 private:
  /// A line: its offset, its groups, and the column of text behind them.
  struct Row {
    U64 offset = 0;
    std::string_view digits;  ///< the offset as it stands there
    bool isSymbol = false;    ///< the offset is that of a symbol: "<table+16>"
    std::vector<Group> groups;
    std::optional<std::string_view> text;
    std::vector<U8> bytes;
  };

  bool hasData() const override { return started_; }

  Taken take(std::string_view line) override {
    std::string_view rest = line;
    if (!takeOffset(rest) || !takeColumns(rest)) return fault_ ? Taken::fault : Taken::no;
    // Before a text column there is no index. An offset alone ends a dump.
    if ((isBare_ && !row_.text) || (!started_ && row_.groups.empty())) return Taken::no;
    reach(1);
    row_.bytes.clear();
    const bool isTaken = takeDigits() && checkText() && takeRow();
    return isTaken ? Taken::yes : Taken::fault;
  }

  bool takeMark(std::string_view line) override {
    const bool isRepeat = line == "*" && started_ && !ended_;
    repeats_ = repeats_ || isRepeat;
    return isRepeat;
  }

  Fault refusal(std::string_view line) const override {
    Fault fault(Code::input, "{} is not a line of {}", quoted(line).view(),
                started_ ? "the dump" : "a dump with offsets");
    if (options_.origin) return fault.advise("check the line, or leave out $1").offer("origin");
    if (started_) return fault.advise("check the line");
    return fault.advise("check the line, or give $1 for hex text without offsets")
        .offer("input", {"hex"});
  }

  std::optional<Fault> finish() override {
    if (bytes_.empty()) {
      return Fault(Code::input, "no line with an offset and digits; check the file");
    }
    if (repeats_) {
      return Fault(Code::input,
                   "ends after \"*\", which a line with an offset must follow; check the file")
          .onLine(line_.number);
    }
    const bool isPlainXxd = isXxd_ && hasPrintable_ && reading_.order == HexOrder::bytes;
    if (hasWideGroups_ && !isPlainXxd) lower(Rank::possible);
    return addEntries(bytes_, first_);
  }

  // Offsets.

  bool takeOffset(std::string_view& rest) {
    const bool isHex = rest.size() > 2 && rest[0] == '0' && (rest[1] | 0x20) == 'x';
    if (isHex) rest.remove_prefix(2);
    const size_t digits = hexDigitsOf(rest);
    row_.digits = rest.substr(0, digits);
    rest.remove_prefix(digits);
    row_.isSymbol = false;
    row_.text.reset();
    if (digits == 0 || digits > 16) return false;
    const bool isAsked = options_.notation != Notation::automatic || options_.origin;
    const bool isPadded = digits >= 7 && row_.digits[0] == '0';
    if (reading_.lead == Lead::colon) {
      if (!takeSymbol(rest) || rest.empty() || rest[0] != ':') return false;
      rest.remove_prefix(1);
      isBare_ = isHex && !isAsked && !started_ && !row_.isSymbol;
      return (isAsked || started_ || isHex || isPadded || digits == 8) && parseOffset();
    }
    const bool isEnd = rest.empty() || isBlank(rest[0]);
    return isEnd && (digits >= 6 || options_.origin) && !isHex && parseOffset();
  }

  /// Takes "<table+16>", as debuggers print it behind an address.
  bool takeSymbol(std::string_view& rest) {
    const std::string_view text = trim(rest);
    if (text.empty() || text[0] != '<') return true;
    const size_t close = text.find('>');
    if (close == text.npos) return false;
    const std::string_view symbol = text.substr(1, close - 1);
    const size_t plus = std::min(symbol.rfind('+'), symbol.size());
    const std::string_view name = symbol.substr(0, plus);
    const std::optional<U64> offset =
        plus == symbol.size() ? U64{0} : parseNumber(symbol.substr(plus + 1));
    if (!offset || (started_ && name != symbol_)) return false;
    symbol_ = name;
    row_.isSymbol = !options_.origin;
    row_.offset = *offset;
    rest = trim(text.substr(close + 1));
    return true;
  }

  bool parseOffset() {
    if (row_.isSymbol) return true;
    const char* const end = row_.digits.data() + row_.digits.size();
    const auto result = std::from_chars(row_.digits.data(), end, row_.offset, reading_.base);
    if (result.ec == std::errc{} && result.ptr == end) return takeOrigin();
    fail("offset {} is not a number of base {} as those before it; check the line",
         quoted(row_.digits).view(), reading_.base);
    return false;
  }

  bool takeOrigin() {
    const U64 origin = options_.origin.value_or(0);
    if (row_.offset < origin) {
      fail("address 0x{:x} is before the origin 0x{:x}; give $1 with the address of entry 0",
           row_.offset, origin)
          .offer("origin");
      return false;
    }
    row_.offset -= origin;
    return true;
  }

  // Columns.

  bool takeColumns(std::string_view rest) {
    if (reading_.lead == Lead::colon) return takeColonColumns(rest);
    if (reading_.notation == Notation::hexdump) {
      return takeCanonical(rest, std::min(rest.find('|'), rest.size()));
    }
    const size_t text = rest.find("  >");
    const std::string_view columns = rest.substr(0, rest.find_last_not_of(' ', text) + 1);
    const bool isWide = columns.substr(0, 4) == "    ";
    const size_t gap = isWide ? 4 : 1;
    const bool isSplit = splitColumns(columns, row_.groups, gap);
    const size_t digits = row_.groups.empty() ? 2 : row_.groups.front().digits.size();
    const bool isEven = digits == 2 || digits == 4 || digits == 8 || digits == 16;
    if (!isSplit || !isEven || (isWide && digits != 4) || !haveDigits(row_.groups, digits)) {
      fail("these are not hexadecimal bytes or words; print the dump again with od -A x -t x1");
      return false;
    }
    // hexdump writes 7 hexadecimal digits before words of 16 bits; od writes 7 octal or decimal ones.
    const bool isOctal = row_.digits.size() == 7 && digits != 4;
    if (!started_ && isOctal && reading_.base == 16 && !options_.origin) return false;
    if (text == rest.npos) return true;
    if (rest.back() != '<') return false;
    row_.text = rest.substr(text + 3, rest.size() - text - 4);
    return true;
  }

  /// As of hexdump -C: the text stands between bars.
  bool takeCanonical(std::string_view rest, size_t bar) {
    const bool isOpen = bar < rest.size() && (rest.back() != '|' || bar + 1 == rest.size());
    const bool isBytes = !isOpen && row_.digits.size() >= 8 &&
                         splitGroups(rest.substr(0, bar), row_.groups) &&
                         haveDigits(row_.groups, 2);
    if (!isBytes) return false;
    if (bar < rest.size()) row_.text = rest.substr(bar + 1, rest.size() - bar - 2);
    return true;
  }

  bool takeColonColumns(std::string_view rest) {
    const char* const begin = rest.data();
    rest.remove_prefix(std::min(rest.find_first_not_of(" \t"), rest.size()));
    const size_t end = std::min(rest.find("  "), rest.size());
    const std::string_view text = trim(rest.substr(end));
    if (end == 0) {
      fail("no digits after the offset; check the line for lost digits");
      return false;
    }
    // Before each group, also the first, there is one blank.
    if (rest.data() == begin || !splitColumns({rest.data() - 1, end + 1}, row_.groups, 1))
      return false;
    if (!text.empty()) row_.text = text;
    if (!isBinary(text)) return true;
    fail("binary digits; print the dump again with xxd without -b");
    return false;
  }

  bool isBinary(std::string_view text) const {
    const auto isBits = [](const Group& group) {
      return group.digits.size() == 8 && group.digits.find_first_not_of("01") == group.digits.npos;
    };
    return !text.empty() && text.size() <= row_.groups.size() &&
           std::all_of(row_.groups.begin(), row_.groups.end(), isBits);
  }

  // Digits.

  bool takeDigits() {
    const size_t digits = row_.groups.empty() ? 2 : row_.groups.front().digits.size();
    const bool isNumbers = !row_.groups.empty() && row_.groups.front().prefix == 'x';
    const bool isWords = reading_.order == HexOrder::words;
    if (isWords && !isTold() && digits == 2 && !isNumbers && !row_.groups.empty()) {
      fail("groups of 2 digits are bytes; check the line");
      return false;
    }
    if (digits > 2 && !isNumbers && !isTold()) hasWideGroups_ = true;
    isXxd_ = (row_.groups.empty() || digits == 4) && reading_.lead == Lead::colon &&
             row_.digits.size() >= 7 && row_.digits[0] == '0' && (!started_ || isXxd_);
    for (const Group& group : row_.groups) {
      const size_t count = group.digits.size();
      if (count % 2 != 0 || isNumbers != (group.prefix == 'x') || (isNumbers && count != digits)) {
        fail("{} digits are not whole bytes; check the line", count);
        return false;
      }
      if (isWords || isNumbers) {
        appendNumber(group.digits, count / 2, row_.bytes);
      } else {
        appendBytes(group.digits, row_.bytes);
      }
    }
    return true;
  }

  /// The text column repeats the bytes.
  bool checkText() {
    isXxd_ = isXxd_ && row_.text;
    if (!row_.text) return true;
    expected_.clear();
    for (const U8 byte : row_.bytes) {
      const bool isPrintable = byte >= ' ' && byte <= '~';
      hasPrintable_ = hasPrintable_ || (isPrintable && byte != '.');
      expected_ += isPrintable ? static_cast<char>(byte) : '.';
    }
    if (trim(*row_.text) == trim(expected_)) return true;
    Fault& fault = fail("digits and text column disagree");
    if (isTold() || haveDigits(row_.groups, 2)) {
      fault.advise("check the line, and $1").offer("hex-order");
    } else {
      fault.advise("check the line or, if it is of xxd -e, give $1").offer("hex-order", {"words"});
    }
    return false;
  }

  // Lines that follow each other.

  bool takeRow() {
    reach(2);
    if (ended_) {
      fail("a line after the one that ends the dump; give one dump");
      return false;
    }
    if (!started_ && !start()) return false;
    if (repeats_ && !repeat()) return false;
    if (row_.offset != next_) {
      fail("offset 0x{:x}, but 0x{:x} comes next; check the dump for lost or repeated lines",
           row_.offset, next_);
      return false;
    }
    bytes_.insert(bytes_.end(), row_.bytes.begin(), row_.bytes.end());
    next_ += row_.bytes.size();
    if (row_.bytes.empty()) ended_ = true;
    last_ = row_.bytes;
    return true;
  }

  bool start() {
    const U64 index = row_.offset / stride_;
    if (index >= layout_.indexCount() && !options_.beyondEnd) {
      fail(
          "address 0x{:x} is no offset of {}, which has {} entries; give $1 with the address of "
          "entry 0",
          row_.offset, layout_.shown(), layout_.indexCount())
          .offer("origin");
      return false;
    }
    if (row_.offset % stride_ != 0) {
      fail("offset 0x{:x} is not the start of an entry; start at a multiple of {}",
           row_.offset + options_.origin.value_or(0), entrySizeText(stride_, layout_));
      return false;
    }
    if (row_.offset != 0 || options_.origin) {
      if (const auto fault = checkFirst()) {
        fault_ = *fault;
        return false;
      }
    }
    started_ = true;
    next_ = row_.offset;
    first_ = index + options_.first.value_or(0);
    return true;
  }

  /// Repeats the last line up to the offset of this one.
  bool repeat() {
    repeats_ = false;
    if (row_.offset <= next_ || last_.empty() || (row_.offset - next_) % last_.size() != 0)
      return true;
    if (row_.offset - next_ > longestInput || bytes_.size() > longestInput) {
      fail("the lines of \"*\" have more than {} MiB; check the offset", longestInput >> 20);
      return false;
    }
    for (; next_ < row_.offset; next_ += last_.size()) {
      bytes_.insert(bytes_.end(), last_.begin(), last_.end());
    }
    return true;
  }

  Row row_;
  std::string expected_;  ///< the text column, as the bytes have it
  std::string_view symbol_;
  bool isBare_ = false;  ///< an address after 0x that may also be an index
  bool started_ = false;
  bool ended_ = false;
  bool repeats_ = false;  ///< a "*" was read, and not yet the line after it
  U64 next_ = 0;          ///< the offset that comes next
  U64 first_ = 0;         ///< index of the first entry
  std::vector<U8> bytes_;
  std::vector<U8> last_;  ///< bytes of the line that a "*" repeats

  bool hasWideGroups_ = false;  ///< of four or more digits: bytes or words
  bool isXxd_ = false;          ///< the default layout of xxd
  bool hasPrintable_ = false;   ///< the text column is not dots alone
};

}  // namespace

std::unique_ptr<TextReader> makeOffsetReader(const Layout& layout, const ReadOptions& options,
                                             const TextReading& reading) {
  return std::make_unique<OffsetReader>(layout, options, reading);
}

}  // namespace Core
}  // namespace Velmar
