#include "input/EntryReader.h"

#include <algorithm>
#include <limits>

#include "model/Failure.h"
#include "model/Text.h"

namespace Tool {
namespace {

/// The format is recognized by this many bytes, even if more are there: it must not depend on how a
/// pipe delivers its bytes.
constexpr size_t headBytes = 32;

/// Whether a dump is text: its first bytes are ASCII, and no control character follows.
bool isText(std::string_view head) {
  constexpr size_t asciiBytes = 16;
  const auto isForeign = [](char letter) { return static_cast<U8>(letter) >= 0x80; };
  const auto isControl = [](char letter) {
    return static_cast<U8>(letter) < ' ' && !isBlank(letter) && letter != '\n';
  };
  const std::string_view start = head.substr(0, asciiBytes);
  return std::none_of(start.begin(), start.end(), isForeign) &&
         std::none_of(head.begin(), head.end(), isControl);
}

/// Whether a line starts like one of xxd: an offset of 7 to 16 digits, and a colon. The first
/// digit is 0, as it is up to 256 MiB, but not in an index before hex text.
bool startsWithOffset(std::string_view text) {
  const size_t digits = text.find_first_not_of("0123456789abcdefABCDEF");
  return digits != std::string_view::npos && digits >= 7 && digits <= 16 && text[0] == '0' &&
         text[digits] == ':';
}

std::string detectFormat(ByteStream& stream) {
  stream.need(headBytes);
  const std::string_view head = stream.text().substr(0, headBytes);
  if (head.empty() || !isText(head)) return "raw";
  const size_t first = head.find_first_not_of(" \t\r\n");
  if (first == std::string_view::npos) return "hex";
  if (head[first] == '{' || head[first] == '[') return "json";
  return startsWithOffset(head.substr(first)) ? "xxd" : "hex";
}

}  // namespace

bool EntryReader::next(Entry& entry) {
  if (!read(entry)) return false;
  if (entry.index > std::numeric_limits<U32>::max()) {
    fail("entry {}: the largest index is {}; check --first, and the offsets or indexes of the dump",
         entry.index, std::numeric_limits<U32>::max());
  }
  return true;
}

U32 strideOf(const InputOptions& options, const Layout& layout) {
  if (options.stride == 0) return layout.entryBytes();
  if (options.stride < layout.entryBytes()) {
    fail("--stride {} is shorter than an entry of {} on {}, which has {} bytes; give at least {}",
         options.stride, layout.name(), layout.chip().name, layout.entryBytes(),
         layout.entryBytes());
  }
  return options.stride;
}

std::string entrySizeText(U32 stride, const Layout& layout) {
  if (stride != layout.entryBytes()) return formatText("{}, the stride", stride);
  return formatText("{}, an entry of {} on {}", stride, layout.name(), layout.chip().name);
}

std::unique_ptr<EntryReader> openEntries(std::unique_ptr<ByteStream> stream, const Layout& layout,
                                         const InputOptions& options) {
  const std::string format = options.format == "auto" ? detectFormat(*stream) : options.format;
  if (format == "raw") return openRaw(std::move(stream), layout, options);
  if (format == "xxd") return openXxd(std::move(stream), layout, options);
  if (format == "json") return openJson(std::move(stream), layout, options);
  return openHex(std::move(stream), layout, options);
}

}  // namespace Tool
