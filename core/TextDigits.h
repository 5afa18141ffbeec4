#pragma once

#include <algorithm>

#include "core/TextReading.h"

// Digits of hex text: bytes, words or one number for each entry.

namespace Velmar {
namespace Core {

/// Appends groups as numbers of half as many bytes as digits, or as bytes one after another.
/// `mayBeShort`: one digit is a byte.
inline std::optional<Fault> appendGroups(const Groups& groups, bool asNumbers, bool mayBeShort,
                                         std::vector<U8>& bytes) {
  for (const Group& group : groups.all) {
    const size_t digits = group.digits.size();
    if (digits % 2 != 0 && (digits != 1 || !mayBeShort)) {
      return Fault(Code::input, "{} digits are not whole bytes; check the line for lost digits",
                   digits);
    }
    if (asNumbers || digits == 1) {
      appendNumber(group.digits, (digits + 1) / 2, bytes);
    } else {
      appendBytes(group.digits, bytes);
    }
  }
  return std::nullopt;
}

/// Turns groups of digits into bytes, in the order of one reading, and collects what shows that it is wrong.
class TextDigits {
 public:
  TextDigits(const Layout& layout, const ReadOptions& options, HexOrder order)
      : layout_(layout), options_(options), order_(order) {}

  /// What else is known of a line.
  struct Line {
    bool hasIndex, isIndented;
    bool isRest;  ///< after lines of bytes without blanks
  };

  /// Appends the bytes of a line.
  std::optional<Fault> take(const Groups& groups, const Line& line, std::vector<U8>& bytes) {
    note(groups, line.hasIndex);
    Rank rank = Rank::convention;
    if (!isTold_) {
      rank = order_ == HexOrder::bytes   ? rankAsBytes(groups, line)
             : order_ == HexOrder::words ? rankAsWords(groups, line)
                                         : rankAsInteger(groups);
    }
    const bool hasLost = !isTold_ && hasLostDigits(groups);
    if (rank == Rank::impossible || hasLost) return refusal(groups);
    rank_ = std::max(rank_, rank);
    if (order_ == HexOrder::words) return appendWords(groups, bytes);
    if (order_ == HexOrder::integer) return appendInteger(groups, bytes);
    return appendGroups(groups, false, groups.areNumbers() || fill(groups, 1), bytes);
  }

  /// What the digits of all lines show together, the first of them on `firstLine`.
  std::optional<Fault> finish(U64 firstLine) {
    const bool isBytes = order_ == HexOrder::bytes, isWords = order_ == HexOrder::words;
    if (mayBeDecimal_ && !hasHexDigit_ && !isTold_) {
      return Fault(
                 Code::ambiguous,
                 "these may be decimal numbers; give $1 if they are hexadecimal, or print the dump "
                 "again with xxd")
          .onLine(firstLine)
          .offer("hex-order", {isBytes ? "bytes" : "words"});
    }
    const bool isPadded = (paddedWidths_ & Groups::width(2)) != 0;
    const bool hasShort = (widths_ & Groups::width(1)) != 0;
    if (isWords && isPadded && !hasShort) rank_ = Rank::unlikely;
    if (isBytes && !hasNumbers_ && isPadded && hasShort) {
      return Fault(Code::input, "one digit among bytes that have two; check for lost digits");
    }
    const bool mayBeWords = hasNumbers_ && (hasShort || (!isPadded && mayFillWords_));
    if (!isBytes || !mayBeWords) return std::nullopt;
    if (entryBytes_ == 4 && !isTold_) return orderQuestion().onLine(firstLine);
    rank_ = std::max(rank_, Rank::possible);
    return std::nullopt;
  }

  /// How well documented digits such as these are.
  Rank rank() const { return rank_; }

 private:
  /// Collects what shows the base of the digits, and whether numbers are padded.
  void note(const Groups& groups, bool hasIndex) {
    hasNumbers_ = hasNumbers_ || groups.areNumbers();
    mayFillWords_ = mayFillWords_ || fill(groups, 4);
    widths_ |= groups.widths;
    paddedWidths_ |= groups.paddedWidths;
    hasHexDigit_ = hasHexDigit_ || groups.paddedWidths != 0 || groups.prefix() != 0 ||
                   std::any_of(groups.all.begin(), groups.all.end(), hasLetter);
    const bool isSmall = !hasIndex && (groups.widths & smallWidths) != 0;
    const bool isWide =
        order_ == HexOrder::bytes ? groups.longest > 2 : areWide(groups) || groups.have(8);
    mayBeDecimal_ = (mayBeDecimal_ || isSmall) && !isWide;
  }

  /// Numbers with zeros before them have eight digits, or the two of a byte; if some have eight, all have.
  bool hasLostDigits(const Groups& groups) const {
    const bool areWords = order_ == HexOrder::words && !areWide(groups);
    const bool arePadded = groups.areNumbers() ? order_ != HexOrder::integer : areWords;
    const U32 others = ~(Groups::width(2) | Groups::width(8));
    const U32 odd = (paddedWidths_ & Groups::width(8)) != 0 ? widths_ : paddedWidths_;
    return arePadded && (odd & others) != 0;
  }

  /// Whether groups, each of so many bytes, are an entry.
  bool fill(const Groups& groups, size_t bytesEach) const {
    const size_t bytes = bytesEach * groups.count();
    return bytes == entryBytes_ || bytes == stride_;
  }

  // How well documented digits are as bytes, words or one number.

  Rank rankAsBytes(const Groups& groups, const Line& line) const {
    const bool isOne = groups.count() == 1;
    if (groups.areNumbers()) {
      if (groups.longest > 2) return Rank::impossible;
      return !isOne && (fill(groups, 1) || groups.have(2)) ? Rank::convention : Rank::unlikely;
    }
    if (groups.have(2)) return Rank::convention;
    const bool isWhole = isOne ? groups.longest % 2 == 0 : areWide(groups) || groups.have(8);
    if (groups.prefix() != 0 || !isWhole) return Rank::impossible;
    if (!isOne) return Rank::possible;
    if (groups.longest == 8) return line.isRest ? Rank::convention : Rank::unlikely;
    return line.isIndented && areWide(groups) ? Rank::possible : Rank::convention;
  }

  Rank rankAsWords(const Groups& groups, const Line& line) const {
    const bool isOne = groups.count() == 1;
    const Rank ofSmall = groups.longest <= 2 && !isOne ? Rank::possible : Rank::convention;
    if (groups.prefix() == '\\') return Rank::impossible;
    if (groups.have(8)) return Rank::convention;
    if (areWide(groups) && !groups.areNumbers()) {
      return isOne && !line.isIndented ? Rank::unlikely : Rank::possible;
    }
    const bool isTable = groups.count() * 4 == stride_ * layout_.indexCount();
    const bool isPadded = (groups.paddedWidths & smallWidths) != 0;
    const bool isWhole = groups.areNumbers()
                             ? isOne || fill(groups, 4)
                             : (fill(groups, 4) || isTable) && !isPadded && !groups.have(2);
    if (groups.longest > 8 || !isWhole) return Rank::impossible;
    return isOne && !groups.areNumbers() ? Rank::unlikely : ofSmall;
  }

  Rank rankAsInteger(const Groups& groups) const {
    const bool isEntry = groups.count() == 1 && groups.longest == 2 * entryBytes_;
    return isEntry && groups.areNumbers() ? Rank::convention : Rank::impossible;
  }

  /// Why digits cannot be what the reading takes them for.
  Fault refusal(const Groups& groups) const {
    const bool isWords = order_ == HexOrder::words;
    if (hasLostDigits(groups)) {
      size_t digits = 1;
      while (digits == 2 || digits == 8 || (widths_ & Groups::width(digits)) == 0) ++digits;
      return Fault(Code::input,
                   "{} digits among numbers that have zeros before them; check for lost digits",
                   digits);
    }
    if (groups.areNumbers() && groups.longest > (isWords ? 8 : 2)) {
      return Fault(Code::input,
                   "{} digits after 0x where {} are expected; give $1 if the number is an entry",
                   groups.longest, isWords ? "up to 8" : "2")
          .offer("hex-order", {"int"});
    }
    // On one word for each entry, four small numbers are the bytes of one or the words of four.
    const bool isOpen =
        entryBytes_ == 4 && fill(groups, 1) && groups.longest <= 2 && !groups.have(2);
    if (isWords && groups.count() > 1 && (groups.areNumbers() || isOpen)) return orderQuestion();
    return Fault(
        Code::input,
        "these digits are neither bytes of 2 nor words of 8 digits; check the line for lost "
        "digits or, if they are decimal or octal, print the dump again with xxd");
  }

  Fault orderQuestion() const {
    return Fault(Code::ambiguous, "these numbers may be bytes or words; give $1{}",
                 hasHexDigit_ ? "" : " if they are hexadecimal")
        .offer("hex-order", {"bytes", "words"});
  }

  std::optional<Fault> appendWords(const Groups& groups, std::vector<U8>& bytes) const {
    const bool isOne = groups.count() == 1;
    if (groups.have(2) && !groups.areNumbers()) {
      return Fault(Code::input,
                   "groups of 2 digits are bytes; leave out $1, or give $2 if the highest byte of "
                   "each "
                   "word comes first")
          .offer("hex-order")
          .offer("byte-order", {"big"});
    }
    if (isOne && groups.longest % 8 == 0) {
      const std::string_view digits = groups.all[0].digits;
      for (size_t at = 0; at < digits.size(); at += 8) appendNumber(digits.substr(at, 8), 4, bytes);
      return std::nullopt;
    }
    const bool isHalf = groups.have(4) && !groups.areNumbers();
    if (isHalf || groups.have(16)) return appendGroups(groups, true, false, bytes);
    const bool isWhole = groups.areNumbers() || groups.have(8) ||
                         groups.count() * 4 % stride_ == 0 || fill(groups, 4);
    if (groups.longest > 8 || !isWhole) {
      return Fault(Code::input,
                   "{} digits are not whole 32-bit words; check the line for lost digits",
                   groups.longest);
    }
    for (const Group& group : groups.all) appendNumber(group.digits, 4, bytes);
    return std::nullopt;
  }

  /// The highest digits of an entry come first.
  std::optional<Fault> appendInteger(const Groups& groups, std::vector<U8>& bytes) const {
    const bool isList = groups.areNumbers() && groups.count() > 1;
    const size_t each = fill(groups, 4) ? 8 : fill(groups, 1) ? 2 : 0;
    if (isList && groups.longest > each) {
      return Fault(Code::input,
                   "{} numbers are neither the words nor the bytes of an entry; check the line",
                   groups.count());
    }
    std::string digits;
    for (const Group& group : groups.all) {
      if (isList) digits.append(each - group.digits.size(), '0');
      digits += group.digits;
    }
    digits.erase(0, digits.find_first_not_of('0'));
    if (digits.size() > 2 * entryBytes_) {
      return Fault(Code::input,
                   "the number does not fit an entry of {} bytes; check table and chip",
                   entryBytes_);
    }
    appendNumber(digits, entryBytes_, bytes);
    return std::nullopt;
  }

  static bool areWide(const Groups& groups) { return groups.have(4) || groups.have(16); }
  static bool hasLetter(const Group& group) {
    return group.digits.find_first_not_of("0123456789") != group.digits.npos;
  }

  /// Numbers of two to seven digits.
  static constexpr U32 smallWidths = Groups::width(8) - Groups::width(2);

  const Layout& layout_;
  const ReadOptions& options_;
  const HexOrder order_;
  const bool isTold_ = options_.hexOrder != HexOrder::byGroups;  ///< the order is
  const size_t entryBytes_ = layout_.entryBytes();
  const size_t stride_ = strideOf(layout_, options_);
  Rank rank_ = Rank::convention;
  U32 widths_ = 0;  ///< as in Groups, of all lines
  U32 paddedWidths_ = 0;
  bool hasNumbers_ = false;    ///< with 0x
  bool mayFillWords_ = false;  ///< a line has as many groups as an entry has words
  bool hasHexDigit_ = false;   ///< or another sign that the digits are not decimal
  bool mayBeDecimal_ = false;
};

}  // namespace Core
}  // namespace Velmar
