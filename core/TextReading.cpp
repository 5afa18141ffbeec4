#include "core/TextReading.h"

#include <algorithm>
#include <cstring>
#include <tuple>

namespace Velmar {
namespace Core {
namespace {

// Of several readings with the same result the first is taken.
constexpr TextReading readings[] = {
    {Notation::hex, Lead::index, 10, HexOrder::words},
    {Notation::hex, Lead::index, 10, HexOrder::bytes},
    {Notation::hex, Lead::index, 10, HexOrder::integer},
    {Notation::xxd, Lead::colon, 16, HexOrder::bytes},
    {Notation::xxd, Lead::colon, 16, HexOrder::words},
    {Notation::xxd, Lead::colon, 10, HexOrder::bytes},
    {Notation::xxd, Lead::colon, 10, HexOrder::words},
    {Notation::hexdump, Lead::offset, 16, HexOrder::bytes},
    {Notation::od, Lead::offset, 16, HexOrder::bytes},
    {Notation::od, Lead::offset, 16, HexOrder::words},
    {Notation::od, Lead::offset, 8, HexOrder::bytes},
    {Notation::od, Lead::offset, 8, HexOrder::words},
    {Notation::od, Lead::offset, 10, HexOrder::bytes},
    {Notation::od, Lead::offset, 10, HexOrder::words},
};

/// The notation that the first line of data has the form of.
Notation notationOfLine(std::string_view line) {
  const size_t digits = hexDigitsOf(line);
  const std::string_view rest = line.substr(digits);
  const bool isPadded = digits >= 7 && digits <= 16 && line[0] == '0';
  if (rest.substr(0, 1) == ":" && (isPadded || digits == 8)) return Notation::xxd;
  if (line.substr(0, 2) == "0x" && line.find(">:") != line.npos) return Notation::xxd;
  if (digits == 8 && rest.substr(0, 2) == "  " && line.back() == '|') return Notation::hexdump;
  const bool isOd = (digits == 6 || digits == 7) && (rest.empty() || isBlank(rest[0]));
  return isOd ? Notation::od : Notation::hex;
}

/// The first line of data, as it seems before any reading.
std::string_view firstLine(Lines& lines) {
  lines.restart();
  for (Lines::Line line; lines.next(line);) {
    if (line.hasPrefix && line.text[0] != '#' && !isForeign(line.text)) return line.text;
  }
  return {};
}

bool isMeant(const TextReading& reading, const ReadOptions& options, Notation expected) {
  // Groups of hexdump -C are bytes in any order.
  const bool isOrdered =
      reading.notation != Notation::hexdump || options.hexOrder == HexOrder::integer;
  const bool isTold = options.hexOrder != HexOrder::byGroups;
  if (isTold && isOrdered && reading.order != options.hexOrder) return false;
  if (options.origin) return reading.lead != Lead::index && reading.base == 16;
  if (options.notation != Notation::automatic) return reading.notation == options.notation;
  // 6 digits are hexadecimal; what has no offset of od is not tried as od.
  return reading.notation != Notation::od || expected == Notation::od;
}

bool isSame(const Dump& a, const Dump& b) {
  if (a.count() != b.count() || std::memcmp(a.data(), b.data(), a.size()) != 0) return false;
  for (size_t i = 0; i < a.count(); ++i) {
    if (a.index(i) != b.index(i)) return false;
  }
  return true;
}

/// The readings of one rank differ: what tells them apart is asked.
Fault ambiguity(const TextReading& a, const TextReading& b, U64 line) {
  Fault fault(Code::ambiguous, "the digits may be read in two ways");
  if (a.order != b.order) {
    fault = Fault(Code::ambiguous, "these groups of digits may be bytes or words");
    fault.advise("give $1 (words: xxd -e, hexdump, od -t x2 or x4, md.w, md.l)")
        .offer("hex-order", {"bytes", "words"});
  } else if (a.base != b.base) {
    fault = Fault(Code::ambiguous, "the offsets may be of base {} or {}", a.base, b.base);
    fault.advise("print the dump again with xxd, or with od -A x -v -t x1");
  } else {
    fault.advise("give $1 or $2")
        .offer("input", {nameOf(a.notation)})
        .offer("input", {nameOf(b.notation)});
  }
  return fault.onLine(line);
}

Expected<Dump> judged(std::vector<Attempt>& attempts, Notation expected) {
  Attempt* best = nullptr;
  for (Attempt& attempt : attempts) {
    if (!attempt.fault && (best == nullptr || attempt.rank < best->rank)) best = &attempt;
  }
  if (best == nullptr) {
    // The fault of the reading that got furthest; of several, that of the notation that was expected.
    const auto nearness = [expected](const Attempt& attempt) {
      const bool isExpected = attempt.reading.notation == expected;
      return std::tuple(attempt.progress, attempt.fault->code == Code::ambiguous, isExpected,
                        isExpected ? -static_cast<int>(attempt.reading.order) : 0);
    };
    const auto furthest = std::max_element(
        attempts.begin(), attempts.end(),
        [&](const Attempt& a, const Attempt& b) { return nearness(a) < nearness(b); });
    return failed(*furthest->fault);
  }
  for (const Attempt& other : attempts) {
    if (other.fault || other.rank != best->rank || isSame(other.dump, best->dump)) continue;
    return failed(ambiguity(best->reading, other.reading, best->firstLine));
  }
  best->dump.notation = best->reading.notation;
  return std::move(best->dump);
}

Expected<Dump> tried(const Layout& layout, const ReadOptions& options, Lines& lines, U64& reached) {
  const std::string_view first = firstLine(lines);
  if (options.notation == Notation::automatic && mayBeBase64(first)) {
    return failed(Fault(Code::input,
                        "this looks like base64; decode it with base64 -d and give $1, or give $2 "
                        "if the digits are hexadecimal")
                      .offer("input", {"raw"})
                      .offer("input", {"hex"}));
  }
  const Notation expected = options.notation != Notation::automatic ? options.notation
                            : first.empty()                         ? Notation::hex
                                                                    : notationOfLine(first);
  const size_t digits = hexDigitsOf(first);
  std::vector<Attempt> attempts;
  Rank best = Rank::unlikely;
  for (const TextReading& reading : readings) {
    if (!isMeant(reading, options, expected)) continue;
    // od writes offsets of 6 hexadecimal digits, or of 7 octal or decimal ones; hexdump writes 7.
    const bool isOd = reading.notation == Notation::od && options.notation == Notation::automatic;
    if (isOd && digits == 6 && reading.base != 16) continue;
    attempts.push_back(attempt(reading, layout, options, lines, best));
    reached = std::max(reached, attempts.back().progress);
    if (!attempts.back().fault) best = std::min(best, attempts.back().rank);
  }
  if (attempts.empty()) {
    return failed(
        Fault(Code::option, "the order of hex digits does not go with this notation; give $1")
            .offer("hex-order", {"bytes", "words"}));
  }
  return judged(attempts, expected);
}

}  // namespace

Expected<Dump> readText(const Layout& layout, const ReadOptions& options, std::string_view text) {
  Lines lines(text);
  U64 reached = 0, reachedInLog = 0;
  Expected<Dump> dump = tried(layout, options, lines, reached);
  if (dump || dump.error().code == Code::ambiguous || !lines.usePrefix()) return dump;
  // Without the prefix of a log, if it has one.
  Expected<Dump> log = tried(layout, options, lines, reachedInLog);
  return log || reachedInLog >= reached ? log : dump;
}

}  // namespace Core
}  // namespace Velmar
