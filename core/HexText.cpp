#include <algorithm>

#include "core/TextReading.h"

// Hex text: an entry on each line, optionally after its index, or one stream of bytes or words.

namespace Velmar {
namespace Core {
namespace {

class HexReader : public TextReader {
 public:
  HexReader(const Layout& layout, const ReadOptions& options, const TextReading& reading)
      : TextReader(layout, options, reading), index_(options.first.value_or(0)) {
    dump = Dump(layout.entryBytes());
  }

 private:
  enum class Shape { unknown, entries, stream };

  bool hasData() const override { return shape_ != Shape::unknown; }

  Taken take(std::string_view line) override {
    std::string_view text = line;
    std::optional<U64> index;
    if (isOffset(line) || !takeIndex(text, index) || !splitGroups(text, groups_)) return Taken::no;
    if (groups_.empty()) {
      if (!index) return Taken::yes;
      fail("no digits after the index; check the line for lost digits");
      return Taken::fault;
    }
    for (const Group& group : groups_) {
      if (group.prefix == groups_.front().prefix) continue;
      fail("some numbers have 0x and others not; write all of them alike");
      return Taken::fault;
    }
    if (index && *index >= layout_.indexCount() && !options_.beyondEnd) {
      reach(3);
      fault_ = beyondEnd(layout_, *index).onLine(line_.number);
      return Taken::fault;
    }
    bytes_.clear();
    reach(1);
    if (!takeDigits(index.has_value())) return Taken::fault;
    reach(2);
    if (!takeLine(line, index) || (index && !takeNumber(line, *index))) return Taken::fault;
    reach(3);
    if (shape_ == Shape::stream) {
      stream_.insert(stream_.end(), bytes_.begin(), bytes_.end());
    } else if (auto fault = addEntry(dump, layout_, options_, index_, bytes_.data())) {
      fault_ = fault->onLine(line_.number);
      return Taken::fault;
    }
    ++index_;
    ++lines_;
    return Taken::yes;
  }

  std::optional<Fault> finish() override {
    if (!hasData()) {
      return Fault(Code::input,
                   "no entry; hex text has one entry per line, such as \"00 01 02 03\"; $1 reads "
                   "binary dumps")
          .offer("input", {"raw"});
    }
    if (needsHexDigit_ && !hasHexDigit_ && !isTold()) {
      return Fault(Code::ambiguous,
                   "these may be decimal numbers; give $1 if they are hexadecimal, or print the "
                   "dump again with xxd")
          .onLine(firstLine_)
          .offer("hex-order", {reading_.order == HexOrder::bytes ? "bytes" : "words"});
    }
    if (asksOrder_) return orderQuestion().onLine(firstLine_);
    if (isPaddedByte_ && !hasShortByte_ && reading_.order == HexOrder::words) lower(Rank::unlikely);
    const bool isPlainBytes = !hasShortByte_ && (isPaddedByte_ || !mayFillWords_);
    if (reading_.order == HexOrder::bytes && !hasNumbers_ && isPaddedByte_ && hasShortByte_) {
      return Fault(Code::input, "one digit among bytes that have two; check for lost digits");
    }
    if (hasNumbers_ && reading_.order == HexOrder::bytes && !isPlainBytes) {
      lower(Rank::possible);
      if (entryBytes_ == 4 && !isTold()) return orderQuestion().onLine(firstLine_);
    }
    if (shape_ == Shape::stream) return addEntries(stream_, options_.first.value_or(0));
    return std::nullopt;
  }

  Fault refusal(std::string_view line) const override {
    std::string_view text = line;
    std::optional<U64> index;
    if (!takeIndex(text, index)) {
      return Fault(Code::input, "{} is not an entry index; give a number, or leave out the colon",
                   quoted(trim(line.substr(0, line.find_first_of("]:")))).view());
    }
    std::vector<Group> groups;
    while (!text.empty()) {
      const size_t end = std::min(text.find_first_of(" \t"), text.size());
      if (!splitGroups(text.substr(0, end), groups)) {
        Fault fault(Code::input, "{} is not a hexadecimal number",
                    quoted(text.substr(0, end)).view());
        if (line.find_first_of("0123456789") != line.npos) {
          return fault.advise("check the digits, and remove what is not data");
        }
        return fault.advise("$1 reads binary dumps").offer("input", {"raw"});
      }
      text = trim(text.substr(end));
    }
    return Fault(Code::input, "{} is not data; remove the line", quoted(line).view());
  }

  // Indexes.

  /// A padded number of seven or more digits is an offset, unless the notation was chosen.
  bool isOffset(std::string_view line) const {
    const size_t digits = hexDigitsOf(line);
    return options_.notation == Notation::automatic && digits >= 7 && line[0] == '0' &&
           line.substr(digits, 1) == ":";
  }

  /// Takes "index:", "[index]" or "NAME[index]:" from a line; false if it has another number or word
  /// there.
  static bool takeIndex(std::string_view& text, std::optional<U64>& index) {
    const size_t open = text.find('[');
    const size_t close = text.find(']', std::min(open, text.size()));
    if (close != text.npos && close + 1 < text.size() && text.find_first_of(" \t:=,") > open) {
      index = parseNumber(trim(text.substr(open + 1, close - open - 1)));
      std::string_view rest = trim(text.substr(close + 1));
      const bool hasEnd = !rest.empty() && (rest[0] == ':' || rest[0] == '=');
      if (index && (open == 0 || hasEnd)) {
        if (hasEnd) rest.remove_prefix(1);
        text = rest;
        return *index <= 0xffffffff;
      }
      index.reset();
    }
    const size_t colon = text.find(':');
    if (colon == text.npos) return true;
    // A colon without a blank after it and with others behind it is between two bytes.
    const bool isEnd = colon + 1 == text.size() || isBlank(text[colon + 1]);
    if (!isEnd && text.find(':', colon + 1) != text.npos) return true;
    index = parseNumber(trim(text.substr(0, colon)));
    text.remove_prefix(colon + 1);
    return index && *index <= 0xffffffff;
  }

  bool takeNumber(std::string_view line, U64 index) {
    if (!seen_.insert(index)) {
      fail("entry {} is given twice; give it once", index).ofEntry(index);
      return false;
    }
    if (const auto fault = checkFirst()) {
      fault_ = *fault;
      return false;
    }
    index_ = index;
    return checkOffset(line);
  }

  /// Padded numbers, and those after 0x, that grow by the bytes of a line may be offsets.
  bool checkOffset(std::string_view line) {
    const bool isHex = line[0] == '0' && line.size() > 1 && (line[1] | 0x20) == 'x';
    const std::string_view number = line.substr(isHex ? 2 : 0);
    const size_t digits = hexDigitsOf(number);
    U64 offset = 0;
    for (const char character : number.substr(0, digits)) {
      offset = 16 * offset + static_cast<U64>(hexDigit(character));
    }
    const bool isPadded = isHex || (line[0] == '0' && digits >= 4);
    const bool follows = isPadded && hasOffset_ && offset == offset_ + bytes_.size();
    if (follows && options_.notation == Notation::automatic) {
      fail(
          "the numbers before the data may be indexes or offsets; give $1 if they are indexes, $2 "
          "if they are offsets")
          .offer("input", {"hex"})
          .offer("input", {"xxd"});
      fault_->code = Code::ambiguous;
      return false;
    }
    hasOffset_ = isPadded;
    offset_ = offset;
    return true;
  }

  // Lines as entries, or as pieces of a stream.

  bool takeLine(std::string_view line, const std::optional<U64>& index) {
    const bool isEntry = bytes_.size() == entryBytes_ || bytes_.size() == stride_;
    const bool isFirst = shape_ == Shape::unknown;
    if (isFirst) {
      shape_ = isEntry || index ? Shape::entries : Shape::stream;
      hasIndex_ = index.has_value();
      lineBytes_ = bytes_.size();
      isRun_ = isRun();
      if (shape_ == Shape::stream && line.back() != ',' && !checkStream(line)) return false;
    }
    if (index.has_value() != hasIndex_) {
      fail("an entry {} index among entries {}; give an index to each entry or none",
           index ? "with an" : "without", index ? "without" : "with an index");
      return false;
    }
    if (shape_ == Shape::stream) return isFirst || checkNext();
    if (isEntry) return true;
    Fault& fault = fail("{} byte{}, not {}", bytes_.size(), pluralEnd(bytes_.size()),
                        entrySizeText(stride_, layout_));
    fault.advise("check {}",
                 lines_ > 0 ? "the line for lost digits" : "table and chip, and the line");
    return false;
  }

  /// Whether the line is bytes without blanks, as of xxd -p.
  bool isRun() const {
    return groups_.size() == 1 && groups_[0].prefix == 0 && reading_.order == HexOrder::bytes;
  }

  bool checkNext() {
    constexpr size_t digitsOfXxd = 60;
    if (isRun_ && 2 * lineBytes_ != digitsOfXxd) {
      fail(
          "lines without blanks, of {} digits and not of an entry, may have been cut; join all "
          "lines to one",
          2 * lineBytes_);
      return false;
    }
    const size_t before = stream_.size() % lineBytes_;
    if (before == 0 && bytes_.size() <= lineBytes_) return true;
    fail("{} bytes after lines of {}; only the last line of a stream may be shorter; check both",
         bytes_.size(), before != 0 ? before : lineBytes_);
    return false;
  }

  /// Lines that are no entries here may be entries on another chip. od indents a stream.
  bool checkStream(std::string_view line) {
    if (line_.isIndented) return true;
    const std::string size = entrySizeText(stride_, layout_);
    if (lineBytes_ == stride_ + 1 && line.find(':') != line.npos) {
      fail("{} byte{}, not {}; if the first is an index, put a blank after its colon", lineBytes_,
           pluralEnd(lineBytes_), size);
      return false;
    }
    for (const Catalogue::Chip& chip : allChips()) {
      const Catalogue::Table& table = layout_.table();
      if (!table.isOn(chip.number, layout_.variant())) continue;
      if (4U * table.geometry(chip.number).words != lineBytes_) continue;
      fail(
          "{} byte{}, not {}, but an entry of {} on {}; check $1 or, if they are a stream, join "
          "all "
          "lines to one",
          lineBytes_, pluralEnd(lineBytes_), size, layout_.name(), chip.name)
          .offer("chip");
      return false;
    }
    if (groups_.size() > 1 && lineBytes_ % stride_ != 0) {
      fail(
          "{} byte{}, not {}; check the line for lost digits or, if the lines are a stream, join "
          "all lines to one",
          lineBytes_, pluralEnd(lineBytes_), size);
      return false;
    }
    return true;
  }

  // What the digits of a line are.

  /// Whether the groups, each of so many bytes, are an entry.
  bool fill(size_t bytesEach) const {
    const size_t bytes = bytesEach * groups_.size();
    return bytes == entryBytes_ || bytes == stride_;
  }
  size_t longest() const {
    size_t digits = 0;
    for (const Group& group : groups_) digits = std::max(digits, group.digits.size());
    return digits;
  }

  bool takeDigits(bool hasIndex) {
    note(hasIndex);
    switch (reading_.order) {
      case HexOrder::bytes:
        return (isTold() || mayBeBytes()) && appendAsBytes();
      case HexOrder::words:
        return (isTold() || mayBeWords()) && appendAsWords();
      default:
        return (isTold() || mayBeInteger()) && appendAsNumber();
    }
  }

  /// Collects what shows the base of the digits, and whether numbers are padded.
  void note(bool hasIndex) {
    hasNumbers_ = hasNumbers_ || groups_.front().prefix == 'x';
    mayFillWords_ = mayFillWords_ || fill(4);
    if (isPaddedByte_ && hasHexDigit_ && haveDigits(groups_, 2)) return;  // nothing new
    for (const Group& group : groups_) {
      const size_t digits = group.digits.size();
      const bool isPadded = digits > 1 && group.digits[0] == '0';
      isPaddedByte_ = isPaddedByte_ || (isPadded && digits == 2);
      hasShortByte_ = hasShortByte_ || digits < 2;
      isPaddedWord_ = isPaddedWord_ || (isPadded && digits == 8);
      hasShortWord_ = hasShortWord_ || (digits != 8 && digits != 2);
      hasLostDigits_ = (isPadded && digits != 8 && digits != 2) || (isPaddedWord_ && hasShortWord_);
      if (hasLostDigits_) lostDigits_ = digits;
      if (hasLostDigits_) break;
      hasHexDigit_ = hasHexDigit_ || isPadded || group.prefix != 0 ||
                     group.digits.find_first_not_of("0123456789") != group.digits.npos;
      needsHexDigit_ = needsHexDigit_ || (!hasIndex && digits > 1 && digits < 8);
    }
  }

  bool checkPadding() {
    if (!hasLostDigits_) return true;
    fail("{} digits among numbers that have zeros before them; check for lost digits", lostDigits_);
    return false;
  }

  static Fault orderQuestion() {
    return Fault(Code::ambiguous, "these numbers may be bytes or words; give $1")
        .offer("hex-order", {"bytes", "words"});
  }

  bool askOrder() {
    fault_ = orderQuestion().onLine(line_.number);
    return false;
  }

  bool refuseWide(size_t digits, const char* expected) {
    fail("{} digits after 0x where {} are expected; give $1 if the number is an entry", digits,
         expected)
        .offer("hex-order", {"int"});
    return false;
  }

  bool refuseDigits() {
    fail(
        "these digits are neither bytes of 2 nor words of 8 digits; check the line for lost digits "
        "or, if they are decimal or octal, print the dump again with xxd");
    return false;
  }

  bool mayBeBytes() {
    const char prefix = groups_.front().prefix;
    const size_t digits = longest();
    if (prefix == 'x') {
      if (!checkPadding()) return false;
      if (digits > 2) return refuseWide(digits, "2");
      const bool isLikely = groups_.size() > 1 && (fill(1) || haveDigits(groups_, 2));
      if (!isLikely) lower(Rank::unlikely);
      return true;
    }
    if (haveDigits(groups_, 2)) return true;
    if (prefix != 0) {
      fail("\\x has two digits; write all bytes so");
      return false;
    }
    needsHexDigit_ = needsHexDigit_ && digits <= 2;
    if (groups_.size() == 1 && digits % 2 == 0) {
      const bool isStream = shape_ == Shape::stream && isRun_;
      if (digits == 8 && !isStream) lower(Rank::unlikely);
      if ((digits == 4 || digits == 16) && line_.isIndented) lower(Rank::possible);
      return true;
    }
    lower(Rank::possible);
    const bool isEven = digits == 4 || digits == 8 || digits == 16;
    return (isEven && haveDigits(groups_, digits)) || refuseDigits();
  }

  bool mayBeWords() {
    const char prefix = groups_.front().prefix;
    const size_t digits = longest();
    if (haveDigits(groups_, 8) && prefix != '\\') {
      needsHexDigit_ = false;
      return checkPadding();
    }
    const bool isSmall = digits <= 2 && groups_.size() > 1 && !fill(4);
    if (prefix == 'x') {
      if (!checkPadding()) return false;
      if (digits > 8) return refuseWide(digits, "up to 8");
      if (digits <= 2 && groups_.size() > 1) lower(Rank::possible);
      return fill(4) || groups_.size() == 1 || askOrder();
    }
    const bool isEven = digits == 4 || digits == 16;
    if (isEven && prefix == 0 && haveDigits(groups_, digits)) {
      needsHexDigit_ = false;
      lower(groups_.size() > 1 || line_.isIndented ? Rank::possible : Rank::unlikely);
      return true;
    }
    const bool isPadded = std::any_of(groups_.begin(), groups_.end(), [](const Group& group) {
      return group.digits.size() > 1 && group.digits.size() < 8 && group.digits[0] == '0';
    });
    const bool isTable = groups_.size() * 4 == stride_ * layout_.indexCount();
    const bool isCounted = fill(4) || isTable || groups_.size() == 1;
    // On one word for each entry, four small numbers are the bytes of one or the words of four.
    const bool isOpen = prefix == 0 && isSmall && fill(1) && entryBytes_ == 4;
    if (isOpen && !isPadded && !haveDigits(groups_, 2)) return asksOrder_ = true;
    if (prefix != 0 || digits > 8 || !isCounted || isPadded || haveDigits(groups_, 2)) {
      return checkPadding() && refuseDigits();
    }
    if (digits <= 2) lower(Rank::possible);
    if (groups_.size() == 1) lower(Rank::unlikely);
    return checkPadding();
  }

  bool mayBeInteger() {
    const bool isOne = groups_.size() == 1 && groups_.front().prefix == 'x' &&
                       groups_.front().digits.size() == 2 * entryBytes_;
    return isOne || refuseDigits();
  }

  bool appendAsBytes() {
    for (const Group& group : groups_) {
      const size_t digits = group.digits.size();
      if (digits == 1 && (group.prefix == 'x' || fill(1))) {
        appendNumber(group.digits, 1, bytes_);
      } else if (digits % 2 != 0) {
        fail("{} digits are not whole bytes; check the line for lost digits", digits);
        return false;
      } else {
        appendBytes(group.digits, bytes_);
      }
    }
    return true;
  }

  bool appendAsWords() {
    const size_t digits = longest();
    const bool isOne = groups_.size() == 1;
    const bool isShort =
        groups_.front().prefix == 'x' || groups_.size() * 4 % stride_ == 0 || fill(4);
    if (haveDigits(groups_, 2) && groups_.front().prefix != 'x') {
      fail(
          "groups of 2 digits are bytes; leave out $1, or give $2 if the highest byte of each word "
          "comes first")
          .offer("hex-order")
          .offer("byte-order", {"big"});
      return false;
    }
    if (haveDigits(groups_, 4) && groups_.front().prefix != 'x') {
      for (const Group& group : groups_) appendNumber(group.digits, 2, bytes_);
    } else if (haveDigits(groups_, 16) && !isOne) {
      for (const Group& group : groups_) appendNumber(group.digits, 8, bytes_);
    } else if (digits <= 8 && (isShort || haveDigits(groups_, 8))) {
      for (const Group& group : groups_) appendNumber(group.digits, 4, bytes_);
    } else if (isOne && digits % 8 == 0) {
      const std::string_view text = groups_.front().digits;
      for (size_t at = 0; at < digits; at += 8) appendNumber(text.substr(at, 8), 4, bytes_);
    } else {
      fail("{} digits are not whole 32-bit words; check the line for lost digits", digits);
      return false;
    }
    return true;
  }

  bool appendAsNumber() {
    const bool isList = groups_.front().prefix == 'x' && groups_.size() > 1;
    const size_t each = !isList ? 0 : fill(4) ? 8 : 2;
    if (isList && (longest() > each || (each == 2 && !fill(1)))) {
      fail("{} numbers are neither the words nor the bytes of an entry; check the line",
           groups_.size());
      return false;
    }
    std::string digits;
    for (const Group& group : groups_) {
      if (isList) digits.append(each - group.digits.size(), '0');
      digits += group.digits;
    }
    digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size()));
    if (digits.size() > 2 * entryBytes_) {
      fail("the number does not fit an entry of {} bytes; check table and chip", entryBytes_);
      return false;
    }
    appendNumber(digits, entryBytes_, bytes_);
    return true;
  }

  U64 index_;
  SeenIndexes seen_;
  Shape shape_ = Shape::unknown;
  U64 lines_ = 0;  ///< that were taken
  bool hasIndex_ = false;
  bool hasOffset_ = false;  ///< the last index may be an offset
  U64 offset_ = 0;
  std::vector<Group> groups_;
  std::vector<U8> bytes_;  ///< those of a line
  std::vector<U8> stream_;
  size_t lineBytes_ = 0;  ///< bytes of each line of a stream but the last
  bool isRun_ = false;    ///< the first line is bytes without blanks

  // What the groups so far have shown.
  bool hasNumbers_ = false;     ///< with 0x
  bool isPaddedByte_ = false;   ///< two digits, the first of them zero
  bool hasShortByte_ = false;   ///< one digit
  bool mayFillWords_ = false;   ///< a line has as many groups as an entry has words
  bool isPaddedWord_ = false;   ///< eight digits, the first of them zero
  bool hasShortWord_ = false;   ///< fewer digits than a word, and not those of a byte
  bool hasLostDigits_ = false;  ///< both in one dump
  size_t lostDigits_ = 0;
  bool asksOrder_ = false;      ///< small numbers that may be bytes or words
  bool needsHexDigit_ = false;  ///< the groups may be decimal numbers
  bool hasHexDigit_ = false;
};

}  // namespace

std::unique_ptr<TextReader> makeHexReader(const Layout& layout, const ReadOptions& options,
                                          const TextReading& reading) {
  return std::make_unique<HexReader>(layout, options, reading);
}

}  // namespace Core
}  // namespace Velmar
