#include "core/Reading.h"

#include <algorithm>
#include <cstring>
#include <limits>

#include "core/TextReading.h"
#include "core/ValuesReading.h"

// The notation of a dump is recognized by its first bytes: binary entries, JSON, CSV, or text, which
// TextReading.cpp reads in several ways.

namespace Velmar {
namespace Core {
namespace {

/// A notation is recognized by this many bytes, even if more are there.
constexpr size_t headBytes = 4096;

bool isTextByte(char character) {
  return (character >= ' ' && character <= '~') || isBlank(character) || character == '\n';
}

// Notations that are known, and refused with what makes another of them.

const char* programOfCompressed(std::string_view input) {
  using namespace std::literals;
  if (input.substr(0, 2) == "\x1f\x8b"sv) return "zcat";
  if (input.substr(0, 6) ==
      "\xfd"
      "7zXZ\0"sv) {
    return "xzcat";
  }
  return input.substr(0, 4) == "\x28\xb5\x2f\xfd"sv ? "zstdcat" : nullptr;
}

/// With or without a mark: every second byte is zero, and the others are text.
bool isUtf16(std::string_view bytes) {
  const bool hasMark = bytes.substr(0, 2) == "\xff\xfe" || bytes.substr(0, 2) == "\xfe\xff";
  if (hasMark) bytes.remove_prefix(2);
  if (bytes.size() < 8) return false;
  const size_t zero = bytes[0] == 0 ? 0 : 1;
  bool hasBlank = false;
  for (size_t i = 0; i < bytes.size(); ++i) {
    const char character = bytes[i];
    hasBlank = hasBlank || isBlank(character) || character == '\n';
    if (i % 2 == zero ? character != 0 : !isTextByte(character)) return false;
  }
  return hasMark || hasBlank;
}

std::optional<Fault> refusal(std::string_view input, std::string_view head) {
  if (const char* program = programOfCompressed(input)) {
    return Fault(Code::input,
                 "compressed data; unpack it: {} FILE | velmar ..., or give $1 if it is a binary "
                 "dump",
                 program)
        .offer("input", {"raw"});
  }
  if (!isUtf16(head)) return std::nullopt;
  return Fault(Code::input,
               "text in UTF-16; convert it with iconv -f UTF-16 -t UTF-8, or give $1 if it is a "
               "binary dump")
      .offer("input", {"raw"});
}

/// Seven of eight bytes of text are those of plain text. Binary entries may look like it if they have no
/// lines.
bool isRaw(std::string_view head) {
  if (head.empty()) return true;
  std::string clean;
  std::string_view text = head;
  if (needsCleaning(head)) text = clean = cleaned(head);
  const auto texts = std::count_if(text.begin(), text.end(), isTextByte);
  if (8 * static_cast<size_t>(texts) < 7 * text.size()) return true;
  return head.find('\0') != head.npos && head.find('\n') == head.npos;
}

bool isJson(std::string_view text) {
  const size_t first = text.find_first_not_of(" \t\r\n");
  if (first == text.npos || (text[first] != '{' && text[first] != '[')) return false;
  const size_t second = text.find_first_not_of(" \t\r\n", first + 1);
  if (second == text.npos) return true;
  return text[first] == '{' ? text[second] == '"' || text[second] == '}'
                            : text[second] == '{' || text[second] == '[' || text[second] == ']';
}

Notation notationOf(std::string_view head) {
  if (isRaw(head)) return Notation::raw;
  if (head.substr(0, 3) == "\xef\xbb\xbf") head.remove_prefix(3);
  if (isJson(head)) return Notation::json;
  return isCsv(head) ? Notation::csv : Notation::automatic;
}

/// Options that the notation makes no use of.
Done checkEffects(Notation notation, const ReadOptions& options) {
  const bool isDocument = notation == Notation::json || notation == Notation::csv;
  const bool isText = !isDocument && notation != Notation::raw;
  const auto isUseless = [&](const char* option, bool isGiven, bool isShared, bool isUsed) {
    return isGiven && !isShared && !isUsed
               ? std::optional<Fault>(Fault(Code::option,
                                            "$1 has no effect on a {} dump; leave out $1",
                                            nameOf(notation))
                                          .offer(option))
               : std::nullopt;
  };
  const bool isOrdered = options.hexOrder != HexOrder::byGroups;
  for (const auto& fault :
       {isUseless("hex-order", isOrdered, options.shared.hexOrder, isText),
        isUseless("origin", options.origin.has_value(), options.shared.origin, isText),
        isUseless("stride", options.stride != 0, options.shared.stride, !isDocument),
        isUseless("byte-order", options.bigEndian, options.shared.byteOrder, !isDocument)}) {
    if (fault) return failed(*fault);
  }
  return {};
}

Done checkStride(const Layout& layout, const ReadOptions& options) {
  if (options.stride == 0 ||
      (options.stride >= layout.entryBytes() && options.stride <= longestStride)) {
    return {};
  }
  if (options.stride > longestStride) {
    return failed(Fault(Code::option, "a stride of {} is too long; give at most {}", options.stride,
                        longestStride));
  }
  return failed(
      Fault(Code::option,
            "a stride of {} is shorter than an entry of {}, which has {} bytes; give at least {}",
            options.stride, layout.shown(), layout.entryBytes(), layout.entryBytes()));
}

Expected<Dump> readRaw(const Layout& layout, const ReadOptions& options, std::string_view input) {
  const size_t stride = options.stride != 0 ? options.stride : layout.entryBytes();
  const U64 first = options.first.value_or(0);
  if (input.empty()) {
    return failed(Fault(Code::input, "empty; a dump has at least one entry of {} bytes", stride));
  }
  if (input.size() % stride != 0) return failed(badSize(input.size(), stride, layout));
  const U64 count = input.size() / stride;
  if (first + count > layout.indexCount() && !options.beyondEnd) {
    return failed(beyondEnd(layout, first + count - 1, first + count));
  }
  if (first + count - 1 > std::numeric_limits<U32>::max()) {
    return failed(beyondEnd(layout, first + count - 1));
  }
  const U8* const bytes = reinterpret_cast<const U8*>(input.data());
  if (stride == layout.entryBytes()) {
    return Dump(layout.entryBytes(), static_cast<U32>(first), bytes, count);
  }
  Dump dump(layout.entryBytes());
  for (U64 i = 0; i < count; ++i) dump.add(static_cast<U32>(first + i), bytes + i * stride);
  return dump;
}

Expected<Dump> readDocument(const Layout& layout, const ReadOptions& options, Notation notation,
                            std::string_view input) {
  EntryReader reader(layout, {true, nullptr, options});
  const Done done = notation == Notation::json ? readJson(input, reader) : readCsv(input, reader);
  if (!done) return failed(done);
  return std::move(reader.result.entries);
}

/// Reverses the bytes of each 32-bit word.
Dump swapped(const Dump& dump) {
  Dump result(dump.entryBytes());
  result.notes = dump.notes;
  result.notation = dump.notation;
  std::vector<U8> bytes(dump.entryBytes());
  for (size_t i = 0; i < dump.count(); ++i) {
    std::memcpy(bytes.data(), dump.bytes(i), bytes.size());
    for (auto word = bytes.begin(); word != bytes.end(); word += 4) std::reverse(word, word + 4);
    result.add(dump.index(i), bytes.data());
  }
  return result;
}

/// The chips on which the table has entries of this size and is long enough; with a `count`, those
/// with as many entries.
std::vector<std::string> fittingChips(const Layout& layout, U64 index, U64 count) {
  std::vector<std::string> names;
  for (const Catalogue::Chip& chip : allChips()) {
    if (!layout.table().isOn(chip.number, layout.variant())) continue;
    const Catalogue::Geometry other = layout.table().geometry(chip.number);
    const U64 entries = indexCount(other);
    const bool fits = count != 0 ? entries == count : entries > index;
    if (fits && 4U * other.words == layout.entryBytes()) names.push_back(chip.name);
  }
  return names;
}

}  // namespace

std::optional<HexOrder> hexOrderNamed(std::string_view name) {
  if (name == "bytes") return HexOrder::bytes;
  if (name == "words") return HexOrder::words;
  if (name == "int") return HexOrder::integer;
  return std::nullopt;
}

std::string entrySizeText(size_t stride, const Layout& layout) {
  if (stride != layout.entryBytes()) return formatText("{}, the stride", stride);
  return formatText("{}, an entry of {}", stride, layout.shown());
}

Fault badSize(U64 bytes, size_t stride, const Layout& layout) {
  return Fault(Code::size,
               "{} bytes are not a multiple of {}; check table and chip, which \"velmar identify\" "
               "lists, or give $1",
               bytes, entrySizeText(stride, layout))
      .offer("stride");
}

Fault beyondEnd(const Layout& layout, U64 index, U64 count) {
  const std::vector<std::string> chips = fittingChips(layout, index, count);
  const char* const unit = layout.isRegisterArray() ? "elements" : "entries";
  Fault fault =
      count != 0 ? Fault(Code::index, "{} entries are more than those of {}, which has {} {}",
                         count, layout.shown(), layout.indexCount(), unit)
                 : Fault(Code::index, "entry {} (0x{:x}) is beyond the end of {}, which has {} {}",
                         index, index, layout.shown(), layout.indexCount(), unit);
  fault.ofEntry(index);
  if (!chips.empty()) {
    return fault
        .advise("{} {} as many as the dump: check $1", join(chips, ", "),
                chips.size() == 1 ? "has" : "have")
        .offer("chip");
  }
  if (count != 0) return fault.advise("check table and chip, which \"velmar identify\" lists");
  return fault
      .advise(
          "no chip has as many as the dump: if the numbers before the data are addresses, give $1 "
          "with the address of entry 0")
      .offer("origin");
}

std::optional<Fault> addEntry(Dump& dump, const Layout& layout, const ReadOptions& options,
                              U64 index, const U8* bytes) {
  const bool isTooLarge = index > std::numeric_limits<U32>::max();
  if (isTooLarge || (index >= layout.indexCount() && !options.beyondEnd)) {
    return beyondEnd(layout, index);
  }
  dump.add(static_cast<U32>(index), bytes);
  return std::nullopt;
}

Expected<Dump> readDump(const Layout& layout, const ReadOptions& options, std::string_view input) {
  if (const Done done = checkStride(layout, options); !done) return failed(done);
  if (input.size() > longestInput) {
    return failed(Fault(Code::input, "{} bytes are more than {} MiB; give the dump of one table",
                        input.size(), longestInput >> 20));
  }
  Notation notation = options.notation;
  const std::string_view head = input.substr(0, headBytes);
  if (notation == Notation::automatic) {
    if (const auto fault = refusal(input, head)) return failed(*fault);
    notation = notationOf(head);
  }
  if (const Done done = checkEffects(notation, options); !done) return failed(done);
  const bool isText = notation != Notation::raw && notation != Notation::json;
  if (isText && input.find('\0') != input.npos) {
    return failed(
        Fault(Code::input, "NUL byte in text; remove it, or give $1 if it is a binary dump")
            .offer("input", {"raw"}));
  }
  const bool isDocument = notation == Notation::json || notation == Notation::csv;
  Expected<Dump> dump = notation == Notation::raw ? readRaw(layout, options, input)
                        : isDocument              ? readDocument(layout, options, notation, input)
                                                  : readText(layout, options, input);
  if (!dump) return dump;
  if (isDocument || notation == Notation::raw) dump->notation = notation;
  if (options.bigEndian) return swapped(*dump);
  return dump;
}

Expected<DocumentValues> readValues(const Layout& layout, std::string_view input,
                                    const Dump* base) {
  if (input.size() > longestInput) {
    return failed(Fault(Code::input, "{} bytes are more than {} MiB; give the entries of one table",
                        input.size(), longestInput >> 20));
  }
  const ReadOptions options;
  EntryReader reader(layout, {false, base, options});
  const Done done = isCsv(input) ? readCsv(input, reader) : readJson(input, reader);
  if (!done) return failed(done);
  if (reader.result.entries.count() == 0 && reader.result.common.empty()) {
    return failed(Fault(
        Code::input, "no entry and no values; give one object of values, or what decode prints"));
  }
  return std::move(reader.result);
}

}  // namespace Core
}  // namespace Velmar
