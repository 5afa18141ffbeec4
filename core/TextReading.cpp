#include "core/TextReading.h"

#include <algorithm>
#include <cstring>

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
  const size_t symbol = line.find('<');
  if (line.substr(0, 2) == "0x" && symbol != line.npos && line.find(">:", symbol) != line.npos) {
    return Notation::xxd;
  }
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

struct Attempt {
  TextReading reading;
  std::unique_ptr<TextReader> reader;
  std::optional<Fault> fault;
};

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
    const bool isBetter =
        !attempt.fault && (best == nullptr || attempt.reader->rank() < best->reader->rank());
    if (isBetter) best = &attempt;
  }
  if (best != nullptr) {
    for (const Attempt& other : attempts) {
      const bool competes = !other.fault && other.reader->rank() == best->reader->rank();
      if (!competes || isSame(other.reader->dump, best->reader->dump)) continue;
      return failed(ambiguity(best->reading, other.reading, best->reader->firstLine()));
    }
    best->reader->dump.notation = best->reading.notation;
    return std::move(best->reader->dump);
  }
  // The fault of the reading that got furthest; of several, that of the notation that was expected.
  for (Attempt& attempt : attempts) {
    const auto isFurther = [&attempt, expected](const Attempt& other) {
      const U64 progress = attempt.reader->progress(), otherProgress = other.reader->progress();
      if (progress != otherProgress) return progress > otherProgress;
      const bool asks = attempt.fault->code == Code::ambiguous;
      const bool otherAsks = other.fault->code == Code::ambiguous;
      if (asks != otherAsks) return asks;
      if (attempt.reading.notation != expected) return false;
      return other.reading.notation != expected || attempt.reading.order < other.reading.order;
    };
    if (best == nullptr || isFurther(*best)) best = &attempt;
  }
  return failed(*best->fault);
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
    Attempt attempt{reading, nullptr, std::nullopt};
    attempt.reader = reading.lead == Lead::index ? makeHexReader(layout, options, reading)
                                                 : makeOffsetReader(layout, options, reading);
    attempt.fault = attempt.reader->read(lines, best);
    if (!attempt.fault) best = std::min(best, attempt.reader->rank());
    reached = std::max(reached, attempt.reader->progress());
    attempts.push_back(std::move(attempt));
  }
  if (attempts.empty()) {
    return failed(
        Fault(Code::option, "the order of hex digits does not go with this notation; give $1")
            .offer("hex-order", {"bytes", "words"}));
  }
  return judged(attempts, expected);
}

}  // namespace

std::optional<Fault> TextReader::read(Lines& lines, Rank worst) {
  U64 foreign = 0, foreignAfter = 0;
  std::string lastForeign;
  lines.restart();
  while (lines.next(line_)) {
    const std::string_view text = line_.text;
    reach(0);
    const Taken taken = line_.hasPrefix && foreignAfter == 0 ? take(text) : Taken::no;
    if (taken == Taken::yes && hasData() && firstLine_ == 0) firstLine_ = line_.number;
    if (rank_ > worst) return fail("another reading is likelier; take that one");
    if (taken == Taken::yes || text[0] == '#') continue;
    if (taken == Taken::fault) return fault_;
    if (line_.hasPrefix && takeMark(text)) continue;
    const bool isBetween = hasData() && isMark(text);
    if (!isBetween && isForeign(text)) {
      ++foreign;
      if (!hasData() || foreignAfter != 0) continue;
      foreignAfter = line_.number;
      lastForeign = text;
      continue;
    }
    if (!line_.hasPrefix || isBetween) {
      return fail(
          "{} stands where data was expected; remove the line, or print the dump again whole",
          quoted(text).view());
    }
    if (foreignAfter != 0) {
      return fail("data after line {}, which is not data: {}; remove the lines between the data",
                  foreignAfter, quoted(lastForeign).view());
    }
    return refusal(text).onLine(line_.number);
  }
  ++line_.number;  // faults of the whole got to the end
  if (auto fault = finish()) return fault;
  if (foreign != 0) {
    dump.notes.push_back(
        formatText("{} line{} around the data skipped", foreign, pluralEnd(foreign)));
  }
  return std::nullopt;
}

std::optional<Fault> TextReader::checkFirst() const {
  if (!options_.first || options_.shared.first) return std::nullopt;
  return Fault(Code::option, "$1 has no effect if the entries have their indexes; leave out $1")
      .offer("first");
}

std::optional<Fault> TextReader::addEntries(const std::vector<U8>& bytes, U64 first) {
  if (bytes.size() % stride_ != 0) return badSize(bytes.size(), stride_, layout_);
  const U64 count = bytes.size() / stride_;
  for (U64 i = 0; i < count; ++i) {
    if (auto fault = addEntry(dump, layout_, options_, first + i, bytes.data() + i * stride_)) {
      return fault;
    }
  }
  return std::nullopt;
}

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
