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

using namespace std::literals;

/// Notations that are known but refused: how they begin, and what unpacks them.
constexpr struct {
  std::string_view start;
  const char* program;
} packed[] = {
    {"\x1f\x8b"sv, "zcat"}, {"\xfd\x37zXZ\0"sv, "xzcat"}, {"\x28\xb5\x2f\xfd"sv, "zstdcat"}};

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
  const bool isText = isUtf16(head);
  const char* program = isText ? "iconv -f UTF-16 -t UTF-8" : nullptr;
  for (const auto& row : packed) {
    if (input.substr(0, row.start.size()) == row.start) program = row.program;
  }
  if (program == nullptr) return std::nullopt;
  return Fault(Code::input,
               "{}; convert it: {} FILE | velmar ..., or give $1 if it is a binary dump",
               isText ? "text in UTF-16" : "compressed data", program)
      .offer("input", {"raw"});
}

/// Seven of eight bytes of text are those of plain text. Binary entries may look like it if they have no
/// lines.
bool isRaw(std::string_view head) {
  if (head.empty()) return true;
  const std::optional<std::string> clean = cleaned(head);
  const std::string_view text = clean ? *clean : head;
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
  const struct {
    const char* option;
    bool isGiven, isShared, isUsed;
  } uses[] = {
      {"hex-order", options.hexOrder != HexOrder::byGroups, options.shared.hexOrder, isText},
      {"origin", options.origin.has_value(), options.shared.origin, isText},
      {"stride", options.stride != 0, options.shared.stride, !isDocument},
      {"byte-order", options.bigEndian, options.shared.byteOrder, !isDocument},
  };
  for (const auto& use : uses) {
    if (!use.isGiven || use.isShared || use.isUsed) continue;
    return failed(
        Fault(Code::option, "$1 has no effect on a {} dump; leave out $1", nameOf(notation))
            .offer(use.option));
  }
  return {};
}

Done checkStride(const Layout& layout, const ReadOptions& options) {
  const U32 least = layout.entryBytes();
  if (options.stride == 0 || (options.stride >= least && options.stride <= longestStride))
    return {};
  return failed(Fault(Code::option,
                      "a stride of {} does not fit an entry of {}; give at least {} and at most {}",
                      options.stride, layout.shown(), least, longestStride));
}

Done checkLength(std::string_view input) {
  if (input.size() <= longestInput) return {};
  return failed(Fault(Code::input, "{} bytes are more than {} MiB; give the entries of one table",
                      input.size(), longestInput >> 20));
}

/// Entries do not fill the bytes of the dump, or there are more than the table has.
std::optional<Fault> checkEntries(const Layout& layout, const ReadOptions& options, U64 first,
                                  size_t size) {
  const size_t stride = strideOf(layout, options);
  const U64 end = first + size / stride;
  if (size % stride != 0) {
    return Fault(Code::size,
                 "{} bytes are not a multiple of {}; check table and chip, which \"velmar "
                 "identify\" lists, or give $1",
                 size, entrySizeText(stride, layout))
        .offer("stride");
  }
  const bool isBeyond = end > layout.indexCount() && !options.beyondEnd;
  if (isBeyond && options.first.value_or(0) != 0 && end - first <= layout.indexCount()) {
    return Fault(Code::index,
                 "{} entries from index {} on end beyond {}, which has {}; leave out $1, or give a "
                 "smaller one",
                 end - first, first, layout.shown(), layout.indexCount())
        .ofEntry(end - 1)
        .offer("first");
  }
  if (isBeyond) return beyondEnd(layout, end - 1, end);
  if (end > U64{1} << 32) return beyondEnd(layout, end - 1);
  return std::nullopt;
}

Expected<Dump> readRaw(const Layout& layout, const ReadOptions& options, std::string_view input) {
  if (input.empty()) {
    return failed(Fault(Code::input, "empty; a dump has at least one entry of {} bytes",
                        strideOf(layout, options)));
  }
  Dump dump(layout.entryBytes());
  const U8* const bytes = reinterpret_cast<const U8*>(input.data());
  const U32 first = options.first.value_or(0);
  const bool isDense = strideOf(layout, options) == layout.entryBytes();
  const auto fault = isDense ? checkEntries(layout, options, first, input.size())
                             : addEntries(dump, layout, options, first, bytes, input.size());
  if (fault) return failed(*fault);
  if (!isDense) return dump;
  return Dump(layout.entryBytes(), first, bytes, input.size() / layout.entryBytes());
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

}  // namespace

std::optional<HexOrder> hexOrderNamed(std::string_view name) {
  if (name == "bytes") return HexOrder::bytes;
  if (name == "words") return HexOrder::words;
  if (name == "int") return HexOrder::integer;
  return std::nullopt;
}

size_t strideOf(const Layout& layout, const ReadOptions& options) {
  return options.stride != 0 ? options.stride : layout.entryBytes();
}

std::string entrySizeText(size_t stride, const Layout& layout) {
  if (stride != layout.entryBytes()) return formatText("{}, the stride", stride);
  return formatText("{}, an entry of {}", stride, layout.shown());
}

std::vector<std::string> chipsWith(const Layout& layout, size_t bytes, U64 index, U64 count) {
  std::vector<std::string> names;
  for (const Catalogue::Chip& chip : allChips()) {
    if (!layout.table().isOn(chip.number, layout.variant())) continue;
    const Catalogue::Geometry other = layout.table().geometry(chip.number);
    const U64 entries = indexCount(other);
    const bool fits = count != 0 ? entries == count : entries > index;
    if (fits && 4U * other.words == bytes) names.push_back(chip.name);
  }
  return names;
}

std::optional<Fault> checkFirst(const ReadOptions& options) {
  if (!options.first || options.shared.first) return std::nullopt;
  return Fault(Code::option, "$1 has no effect if the entries have their indexes; leave out $1")
      .offer("first");
}

Fault beyondEnd(const Layout& layout, U64 index, U64 count) {
  const std::vector<std::string> chips = chipsWith(layout, layout.entryBytes(), index, count);
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

std::optional<Fault> addEntries(Dump& dump, const Layout& layout, const ReadOptions& options,
                                U64 first, const U8* bytes, size_t size) {
  const size_t stride = strideOf(layout, options);
  if (auto fault = checkEntries(layout, options, first, size)) return fault;
  for (size_t at = 0; at < size; at += stride) dump.add(static_cast<U32>(first++), bytes + at);
  return std::nullopt;
}

Expected<Dump> readDump(const Layout& layout, const ReadOptions& options, std::string_view input) {
  if (const Done done = checkStride(layout, options); !done) return failed(done);
  if (const Done done = checkLength(input); !done) return failed(done);
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
  if (const Done done = checkLength(input); !done) return failed(done);
  const ReadOptions options;
  EntryReader reader(layout, {false, base, options});
  const size_t start = std::min(input.find_first_not_of(" \t\r\n\xef\xbb\xbf"), input.size());
  const bool hasJson = start == input.size() || input[start] == '{' || input[start] == '[';
  if (!hasJson && !isCsv(input)) {
    return failed(
        Fault(Code::input,
              "neither JSON nor CSV with a column \"index\"; give what decode prints with "
              "--format json, jsonl or csv"));
  }
  const Done done = hasJson ? readJson(input, reader) : readCsv(input, reader);
  if (!done) return failed(done);
  if (reader.result.entries.count() == 0 && reader.result.common.empty()) {
    return failed(Fault(
        Code::input, "no entry and no values; give one object of values, or what decode prints"));
  }
  return std::move(reader.result);
}

}  // namespace Core
}  // namespace Velmar
