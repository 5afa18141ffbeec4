#include <algorithm>
#include <charconv>

#include "core/TextDigits.h"

// One reading at work: it takes the lines of a text one after another. A line has an index or offset,
// groups of digits and, behind offsets, a column of text.

namespace Velmar {
namespace Core {
namespace {

class TextReader {
 public:
  TextReader(Attempt& result, const Layout& layout, const ReadOptions& options)
      : result_(result), layout_(layout), options_(options) {}

  void read(Lines& lines, Rank worst) {
    lines.restart();
    while (!result_.fault && lines.next(line_)) {
      reach(0);
      const bool isTaken = line_.hasPrefix && foreign_.number == 0 && take(line_.text);
      lower(digits_.rank());
      if (result_.rank > worst) fail("another reading is likelier; take that one");
      if (!isTaken && !result_.fault) skip(line_.text);
    }
    if (result_.fault) return;
    result_.progress = steps * (line_.number + 1);
    if (!finish() || skipped_ == 0) return;
    result_.dump.notes.push_back(
        formatText("{} line{} around the data skipped", skipped_, pluralEnd(skipped_)));
  }

 private:
  // What takes or checks a part of a line returns false if the line is not of the notation or, with a
  // fault, if it is damaged.

  bool take(std::string_view line) {
    isHex_ = line.size() > 2 && line[0] == '0' && (line[1] | 0x20) == 'x';
    number_ = line.substr(isHex_ ? 2 : 0, 17);  // one digit more than an offset may have
    number_ = number_.substr(0, hexDigitsOf(number_));
    lead_.reset();
    text_.reset();
    if (!(isIndexed_ ? takeIndex(line) : takeOffset(line))) return false;
    if (groups_.count() == 0) {
      if (isIndexed_ && !lead_) return true;
      if (reading_.lead != Lead::offset) {
        return fail("no digits after the {}; check the line for lost digits",
                    isIndexed_ ? "index" : "offset");
      }
      if (!hasData()) return false;  // an offset alone ends a dump
    }
    reach(1);
    bytes_.clear();
    if (!(isIndexed_ ? takeDigits() : takeColumnDigits() && checkText())) return false;
    reach(2);
    return isIndexed_ ? placeEntry() : placeRow();
  }

  /// A line that was not taken: anything around the data, but nothing between them.
  void skip(std::string_view text) {
    if (text[0] == '#') return;
    const bool isRepeat = text == "*" && line_.hasPrefix && !isIndexed_ && hasData() && !ended_;
    const bool isBetween = hasData() && isMark(text);
    if (isRepeat) {
      repeats_ = true;
    } else if (!isBetween && isForeign(text)) {
      ++skipped_;
      if (hasData() && foreign_.number == 0) foreign_ = line_;
    } else if (!line_.hasPrefix || isBetween) {
      fail("{} stands where data was expected; remove the line, or print the dump again whole",
           quoted(text).view());
    } else if (foreign_.number != 0) {
      fail("data after line {}, which is not data: {}; remove the lines between the data",
           foreign_.number, quoted(foreign_.text).view());
    } else {
      refuseLine(text);
    }
  }

  bool refuseLine(std::string_view text) {
    if (!isIndexed_) {
      const bool isChosen = options_.origin || !isAutomatic_;
      return refuse(Code::input, {{options_.origin ? "origin" : "input"}},
                    "{} is not a line of a dump with offsets; check the line{}",
                    quoted(text).view(), isChosen ? ", or leave out $1" : "");
    }
    std::string_view rest = text;
    if (!splitIndex(rest, lead_)) {
      return fail("{} is not an entry index; give a number, or leave out the colon",
                  quoted(trim(text.substr(0, text.find_first_of("]:")))).view());
    }
    groups_.split(rest);
    if (groups_.count() != 0) {
      const std::string_view last = groups_.all.back().digits;
      rest = trim(rest.substr(static_cast<size_t>(last.data() + last.size() - rest.data())));
    }
    const std::string_view word = rest.substr(0, rest.find_first_of(" \t"));
    return fail("{} is not a hexadecimal number; check the digits, and remove what is not data",
                quoted(word.empty() ? text : word).view());
  }

  /// A fault of the line, with the remedies that its text names.
  template <class... Arguments>
  bool refuse(Code code, std::initializer_list<Remedy> remedies,
              fmt::format_string<Arguments...> text, Arguments&&... arguments) {
    Fault& fault = result_.fault.emplace(code, text, std::forward<Arguments>(arguments)...);
    std::copy(remedies.begin(), remedies.end(), fault.remedies.begin());
    fault.onLine(line_.number);
    return false;
  }
  template <class... Arguments>
  bool fail(fmt::format_string<Arguments...> text, Arguments&&... arguments) {
    return refuse(Code::input, {}, text, std::forward<Arguments>(arguments)...);
  }

  /// Whether there is no fault; one without a line is of this line.
  bool passes(const std::optional<Fault>& fault) {
    if (fault) result_.fault = fault;
    if (fault && fault->place.line == 0) result_.fault->onLine(line_.number);
    return !fault;
  }

  void lower(Rank rank) { result_.rank = std::max(result_.rank, rank); }
  /// Steps of a line: lead and groups, digits, place, entry.
  void reach(U64 step) { result_.progress = steps * line_.number + step; }
  bool hasData() const { return result_.firstLine != 0; }
  /// The line begins with a number that has a zero before it, and at least so many digits.
  bool isPadded(size_t digits) const { return number_.size() >= digits && number_[0] == '0'; }

  // Indexes, before hex text.

  bool takeIndex(std::string_view rest) {
    // A padded number of seven or more digits is an offset, unless the notation was chosen.
    const bool isOffset =
        isAutomatic_ && !isHex_ && isPadded(7) && rest.substr(number_.size(), 1) == ":";
    if (isOffset || !splitIndex(rest, lead_) || !groups_.split(rest)) return false;
    if (groups_.isMixed) {
      return fail("some numbers have 0x and others not; write all of them alike");
    }
    if (groups_.count() == 0 || !lead_ || *lead_ < layout_.indexCount() || options_.beyondEnd)
      return true;
    reach(3);
    return passes(beyondEnd(layout_, *lead_));
  }

  /// Takes "index:", "[index]" or "NAME[index]:" from a line; false if it has another number or word
  /// there.
  static bool splitIndex(std::string_view& text, std::optional<U64>& index) {
    const size_t open = text.find('[');
    const size_t close = text.find(']', std::min(open, text.size()));
    if (close != text.npos && close + 1 < text.size() && text.find_first_of(" \t:=,") > open) {
      index = parseNumber(trim(text.substr(open + 1, close - open - 1)));
      const std::string_view rest = trim(text.substr(close + 1));
      const bool hasEnd = rest[0] == ':' || rest[0] == '=';
      if (index && (open == 0 || hasEnd)) {
        text = rest.substr(hasEnd);
        return true;
      }
    }
    index.reset();
    const size_t colon = text.find(':');
    if (colon == text.npos) return true;
    // A colon without a blank after it and with others behind it is between two bytes.
    const bool isEnd = colon + 1 == text.size() || isBlank(text[colon + 1]);
    if (!isEnd && text.find(':', colon + 1) != text.npos) return true;
    index = parseNumber(trim(text.substr(0, colon)));
    text.remove_prefix(colon + 1);
    return index.has_value();
  }

  // Offsets and addresses.

  bool takeOffset(std::string_view rest) {
    rest.remove_prefix(number_.size() + (isHex_ ? 2 : 0));
    if (number_.empty() || number_.size() > 16) return false;
    if (reading_.lead == Lead::offset) {
      const bool isEnd = rest.empty() || isBlank(rest[0]);
      const bool isLong = number_.size() >= 6 || options_.origin;
      return isEnd && isLong && !isHex_ && parseOffset() && takeOdColumns(rest);
    }
    if (!takeSymbol(rest) || rest.substr(0, 1) != ":") return false;
    const bool isMeant = !isAutomatic_ || options_.origin || hasData();
    if (!isMeant && !isHex_ && !isPadded(7) && number_.size() != 8) return false;
    // Without a column of text, a number after 0x may be an index.
    const bool isBare = isHex_ && !isMeant && !lead_;
    return (lead_ || parseOffset()) && takeColonColumns(rest.substr(1)) && (text_ || !isBare);
  }

  /// Takes "<table+16>", as debuggers print it behind an address.
  bool takeSymbol(std::string_view& rest) {
    const std::string_view text = trim(rest);
    if (text.empty() || text[0] != '<') return true;
    const size_t close = text.find('>');
    if (close == text.npos) return false;
    const std::string_view symbol = text.substr(1, close - 1);
    const size_t plus = std::min(symbol.rfind('+'), symbol.size());
    const auto offset = plus < symbol.size() ? parseNumber(symbol.substr(plus + 1)) : U64{0};
    if (!offset || (hasData() && symbol.substr(0, plus) != symbol_)) return false;
    symbol_ = symbol.substr(0, plus);
    if (!options_.origin) lead_ = offset;
    rest = trim(text.substr(close + 1));
    return true;
  }

  bool parseOffset() {
    U64 address = 0;
    const char* const end = number_.data() + number_.size();
    if (std::from_chars(number_.data(), end, address, reading_.base).ptr != end) {
      return fail("offset {} is not a number of base {} as those before it; check the line",
                  quoted(number_).view(), reading_.base);
    }
    const U64 origin = options_.origin.value_or(0);
    lead_ = address - origin;
    return address >= origin ||
           refuse(Code::input, {{"origin"}},
                  "address 0x{:x} is before the origin 0x{:x}; give $1 with the address of entry 0",
                  address, origin);
  }

  // Columns behind offsets.

  bool takeColonColumns(std::string_view rest) {
    const size_t begin = std::min(rest.find_first_not_of(" \t"), rest.size());
    const size_t end = std::min(rest.find("  ", begin), rest.size());
    const std::string_view text = trim(rest.substr(end));
    if (begin == end) return groups_.split({});
    if (!text.empty()) text_ = text;
    // Before each group, also the first, there is one blank.
    return begin != 0 && groups_.split(rest.substr(begin - 1, end - begin + 1), 1);
  }

  bool takeOdColumns(std::string_view rest) {
    if (reading_.notation == Notation::hexdump) {
      return number_.size() >= 8 && takeText(rest, "|", '|') && groups_.split(rest) &&
             groups_.have(2);
    }
    if (!takeText(rest, "  >", '<')) return false;
    rest = rest.substr(0, rest.find_last_not_of(' ') + 1);
    const bool isWide = rest.substr(0, 4) == "    ";
    const bool isSplit = groups_.split(rest, isWide ? 4 : 1);
    const size_t digits = groups_.count() == 0 ? 2 : groups_.all[0].digits.size();
    const bool isWhole = digits == 4 || (!isWide && (digits == 2 || digits == 8 || digits == 16));
    if (!isSplit || !isWhole || !groups_.have(digits)) {
      return fail(
          "these are not hexadecimal bytes or words; print the dump again with od -A x -t x1");
    }
    // hexdump writes 7 hexadecimal digits before words of 16 bits; od writes 7 octal or decimal ones.
    const bool isOctal = number_.size() == 7 && digits != 4;
    return hasData() || !isOctal || reading_.base != 16 || options_.origin;
  }

  /// Takes the column of text from the end of a line; false if it was cut.
  bool takeText(std::string_view& rest, std::string_view open, char close) {
    const size_t begin = rest.find(open);
    if (begin == rest.npos) return true;
    const std::string_view text = rest.substr(begin + open.size());
    if (text.empty() || text.back() != close) return false;
    text_ = text.substr(0, text.size() - 1);
    rest = rest.substr(0, begin);
    return true;
  }

  /// The column of text repeats the bytes.
  bool checkText() {
    isXxd_ = isXxd_ && text_;
    if (!text_) return true;
    expected_.clear();
    for (const U8 byte : bytes_) {
      const bool isPrintable = byte >= ' ' && byte <= '~';
      hasPrintable_ = hasPrintable_ || (isPrintable && byte != '.');
      expected_ += isPrintable ? static_cast<char>(byte) : '.';
    }
    if (trim(*text_) == trim(expected_)) return true;
    if (groups_.have(8) && text_->size() <= groups_.count()) {
      return fail("binary digits; print the dump again with xxd without -b");
    }
    return refuse(Code::input, {{"hex-order"}},
                  "digits and text column disagree; check the line, and $1");
  }

  // Digits.

  bool takeDigits() {
    const TextDigits::Line line{lead_.has_value(), line_.isIndented, isStream_ && isRun_};
    return passes(digits_.take(groups_, line, bytes_));
  }

  bool takeColumnDigits() {
    const size_t digits = groups_.count() == 0 ? 2 : groups_.all[0].digits.size();
    const bool areNumbers = groups_.areNumbers();
    isXxd_ = (groups_.count() == 0 || digits == 4) && reading_.lead == Lead::colon && isPadded(7) &&
             (!hasData() || isXxd_);
    if (areWords_ && !isTold_ && !areNumbers && digits == 2 && groups_.count() != 0) {
      return fail("groups of 2 digits are bytes; check the line");
    }
    hasWideGroups_ = hasWideGroups_ || (digits > 2 && !areNumbers && !isTold_);
    if (groups_.isMixed || groups_.prefix() == '\\' || (areNumbers && !groups_.have(digits))) {
      return fail("the numbers differ in length or 0x; check the line");
    }
    return passes(appendGroups(groups_, areWords_ || areNumbers, false, bytes_));
  }

  // Lines as entries, or as pieces of a stream.

  bool placeEntry() {
    const bool isWhole = bytes_.size() == entryBytes_ || bytes_.size() == stride_;
    const bool isFirst = !hasData();
    if (isFirst) {
      result_.firstLine = line_.number;
      hasIndex_ = lead_.has_value();
      isStream_ = !isWhole && !hasIndex_;
      isRun_ = reading_.order == HexOrder::bytes && groups_.count() == 1 && groups_.prefix() == 0;
      lineBytes_ = bytes_.size();
    }
    if (lead_.has_value() != hasIndex_) {
      return fail("an entry {} index among entries {}; give an index to each entry or none",
                  lead_ ? "with an" : "without", lead_ ? "without" : "with an index");
    }
    if (isStream_) {
      if (!(isFirst ? checkStream() : checkNext())) return false;
      stream_.insert(stream_.end(), bytes_.begin(), bytes_.end());
      return true;
    }
    if (!isWhole)
      return refuseSize(isFirst ? "table and chip, and the line" : "the line for lost digits");
    if (lead_ && !placeIndex()) return false;
    reach(3);
    return passes(addEntry(result_.dump, layout_, options_, index_++, bytes_.data()));
  }

  bool placeIndex() {
    index_ = *lead_;
    if (!seen_.insert(index_)) {
      fail("entry {} is given twice; give it once", index_);
      result_.fault->ofEntry(index_);
      return false;
    }
    if (!passes(checkFirst(options_))) return false;
    // Padded numbers, and those after 0x, that grow by the bytes of a line may be offsets.
    U64 offset = 0;
    std::from_chars(number_.data(), number_.data() + number_.size(), offset, 16);
    const bool mayBeOffset = isHex_ || isPadded(4);
    const bool follows = mayBeOffset && hasOffset_ && offset == next_;
    hasOffset_ = mayBeOffset;
    next_ = offset + bytes_.size();
    return !follows || !isAutomatic_ ||
           refuse(Code::ambiguous, {{"input", {"hex"}}, {"input", {"xxd"}}},
                  "the numbers before the data may be indexes or offsets; give $1 if they are "
                  "indexes, $2 if they are offsets");
  }

  bool refuseSize(const char* remedy, std::string_view other = "") {
    return fail("{} byte{}, not {}{}; check {}", bytes_.size(), pluralEnd(bytes_.size()),
                entrySizeText(stride_, layout_), other, remedy);
  }

  /// Lines that are no entries here may be entries on another chip. od indents a stream.
  bool checkStream() {
    if (line_.isIndented || line_.text.back() == ',') return true;
    if (const auto chips = chipsWith(layout_, lineBytes_); !chips.empty()) {
      refuseSize("$1 or, if they are a stream, join all lines to one",
                 formatText(", but an entry of {} on {}", layout_.name(), chips[0]));
      result_.fault->offer("chip");
      return false;
    }
    if (groups_.count() == 1 || lineBytes_ % stride_ == 0) return true;
    const bool isIndex = lineBytes_ == stride_ + 1 && line_.text.find(':') != line_.text.npos;
    return refuseSize(
        isIndex ? "whether the first is an index, which has a blank after its colon"
                : "the line for lost digits or, if the lines are a stream, join all lines to one");
  }

  bool checkNext() {
    constexpr size_t digitsOfXxd = 60;
    if (isRun_ && 2 * lineBytes_ != digitsOfXxd) {
      return fail(
          "lines of {} digits without blanks, not of an entry, may have been cut; join all lines "
          "to one",
          2 * lineBytes_);
    }
    const size_t before = stream_.size() % lineBytes_;
    if (before == 0 && bytes_.size() <= lineBytes_) return true;
    return fail(
        "{} bytes after lines of {}; only the last line of a stream may be shorter; check both",
        bytes_.size(), before != 0 ? before : lineBytes_);
  }

  // Lines that follow each other by their offsets.

  bool placeRow() {
    if (ended_) return fail("a line after the one that ends the dump; give one dump");
    if ((!hasData() && !start()) || (repeats_ && !repeat())) return false;
    if (*lead_ != next_) {
      return fail("offset 0x{:x}, but 0x{:x} comes next; check the dump for lost or repeated lines",
                  *lead_, next_);
    }
    stream_.insert(stream_.end(), bytes_.begin(), bytes_.end());
    next_ += bytes_.size();
    ended_ = bytes_.empty();
    last_.swap(bytes_);
    return true;
  }

  bool start() {
    const U64 index = *lead_ / stride_;
    if (index >= layout_.indexCount() && !options_.beyondEnd)
      return passes(beyondEnd(layout_, index));
    if (*lead_ % stride_ != 0) {
      return fail("offset 0x{:x} is not the start of an entry; start at a multiple of {}",
                  *lead_ + options_.origin.value_or(0), entrySizeText(stride_, layout_));
    }
    if ((*lead_ != 0 || options_.origin) && !passes(checkFirst(options_))) return false;
    result_.firstLine = line_.number;
    next_ = *lead_;
    first_ = index + options_.first.value_or(0);
    return true;
  }

  /// Repeats the last line up to the offset of this one.
  bool repeat() {
    repeats_ = false;
    const U64 gap = *lead_ - next_;
    if (*lead_ <= next_ || last_.empty() || gap % last_.size() != 0) return true;
    if (gap > longestInput || stream_.size() > longestInput) {
      return fail("the lines of \"*\" have more than {} MiB; check the offset", longestInput >> 20);
    }
    for (; next_ < *lead_; next_ += last_.size()) {
      stream_.insert(stream_.end(), last_.begin(), last_.end());
    }
    return true;
  }

  bool finish() {
    if (repeats_) {
      return fail("ends after \"*\", which a line with an offset must follow; check the file");
    }
    const bool isPlainXxd = isXxd_ && hasPrintable_ && !areWords_;
    if (hasWideGroups_ && !isPlainXxd) lower(Rank::possible);
    line_.number = 0;  // what follows is of no line
    if (!hasData() && !isIndexed_) return fail("no line with an offset and digits; check the file");
    if (!hasData()) {
      return refuse(Code::input, {{"input", {"raw"}}},
                    "no entry; hex text has one entry per line, such as \"00 01 02 03\"; $1 reads "
                    "binary dumps");
    }
    if (isIndexed_ && !passes(digits_.finish(result_.firstLine))) return false;
    lower(digits_.rank());
    return passes(
        addEntries(result_.dump, layout_, options_, first_, stream_.data(), stream_.size()));
  }

  static constexpr U64 steps = 4;  ///< of a line: lead and groups, digits, place, entry

  Attempt& result_;
  const Layout& layout_;
  const ReadOptions& options_;
  const TextReading reading_ = result_.reading;
  const size_t entryBytes_ = layout_.entryBytes();
  const size_t stride_ = strideOf(layout_, options_);
  const bool isTold_ = options_.hexOrder != HexOrder::byGroups;
  const bool isAutomatic_ = options_.notation == Notation::automatic;
  const bool isIndexed_ = reading_.lead == Lead::index;
  const bool areWords_ = reading_.order == HexOrder::words;

  // A line.
  Lines::Line line_;
  bool isHex_ = false;       ///< it begins with 0x
  std::string_view number_;  ///< the digits that it begins with
  std::optional<U64> lead_;  ///< its index or offset
  Groups groups_;
  std::optional<std::string_view> text_;  ///< the column of text behind the groups
  std::vector<U8> bytes_;
  std::string expected_;  ///< the column of text, as the bytes have it

  // The lines so far.
  U64 skipped_ = 0;      ///< lines that are not data
  Lines::Line foreign_;  ///< the first of them after data
  std::vector<U8> stream_;
  bool isStream_ = false;  ///< the lines are pieces of a stream, not entries
  size_t lineBytes_ = 0;   ///< bytes of each line of a stream but the last
  bool isRun_ = false;     ///< the first line is bytes without blanks
  bool hasIndex_ = false;
  U64 first_ = options_.first.value_or(0);  ///< index of the first entry of a stream
  U64 index_ = first_;                      ///< of the next entry
  SeenIndexes seen_;
  bool hasOffset_ = false;  ///< the last index may be an offset
  U64 next_ = 0;            ///< the offset that comes next
  std::string_view symbol_;
  bool ended_ = false;
  bool repeats_ = false;  ///< a "*" was read, and not yet the line after it
  std::vector<U8> last_;  ///< bytes of the line that a "*" repeats

  TextDigits digits_{layout_, options_, reading_.order};
  bool hasWideGroups_ = false;  ///< behind offsets, of four or more digits: bytes or words
  bool isXxd_ = false;          ///< the default layout of xxd
  bool hasPrintable_ = false;   ///< the column of text is not dots alone
};

}  // namespace

Attempt attempt(const TextReading& reading, const Layout& layout, const ReadOptions& options,
                Lines& lines, Rank worst) {
  Attempt result{reading, Dump(layout.entryBytes()), std::nullopt};
  TextReader(result, layout, options).read(lines, worst);
  return result;
}

}  // namespace Core
}  // namespace Velmar
