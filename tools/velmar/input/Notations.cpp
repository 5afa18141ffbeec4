#include <algorithm>
#include <iterator>

#include "input/TextDump.h"
#include "model/Failure.h"
#include "model/Text.h"

// The notation of a dump is recognized by its first bytes. Read without any option:
//   raw         entries one after another, in binary
//   json        the JSON and JSON lines of decode
//   xxd         xxd with any -c, with -g1, -g2, -a, -u and -d
//   hexdump     hexdump -C
//   od          od -A x, d or o -t x1, also with z
//   hex         bytes of two digits and words of eight, after 0x also shorter ones, between blanks,
//               commas, semicolons, colons, brackets and quotes; \x12; an entry without blanks;
//               one word or one whole number after 0x on a line; xxd -p and -i, od -A n -t x1.
//               Before them "index:", "[index]" or "NAME[index]:", behind them comments after #
// In xxd, hexdump and od a "*" stands for lines like the one before. Read with --hex-order words or
// bytes: xxd -g4 and -e, hexdump and od in words of 16 or 32 bits. With --byte-order big: words whose
// highest byte comes first. Refused: base64, UTF-16, binary, octal and decimal digits.

namespace Tool {
namespace {

/// A notation is recognized by this many bytes, even if more are there: it must not depend on how a
/// pipe delivers its bytes.
constexpr size_t headBytes = 4096;

/// The first bytes of a dump, and as text its first line of data.
struct Head {
  std::string_view bytes;
  std::string text;
  std::string_view line;
};

Head headOf(ByteStream& stream) {
  stream.need(headBytes);
  Head head{stream.text().substr(0, headBytes), "", ""};
  if (head.bytes.find('\0') != std::string_view::npos) return head;  // no text in bytes
  head.text = cleaned(head.bytes);
  std::string_view rest = head.text;
  while (!rest.empty()) {
    const size_t end = std::min(rest.find('\n'), rest.size());
    const std::string_view line = trim(rest.substr(0, end));
    rest.remove_prefix(std::min(end + 1, rest.size()));
    if (line.empty() || line[0] == '#' || isForeign(line)) continue;
    head.line = line;
    return head;
  }
  return head;
}

bool isPrintable(char letter) { return letter >= ' ' && letter <= '~'; }

/// With or without a mark: every second byte is zero, and the others are text.
bool isUtf16(const Head& head) {
  std::string_view bytes = head.bytes;
  const bool hasMark = bytes.substr(0, 2) == "\xff\xfe" || bytes.substr(0, 2) == "\xfe\xff";
  if (hasMark) bytes.remove_prefix(2);
  if (bytes.size() < 8) return false;
  const size_t zero = bytes[0] == 0 ? 0 : 1;
  bool hasBlank = false;
  for (size_t i = 0; i < bytes.size(); ++i) {
    const char letter = bytes[i];
    hasBlank = hasBlank || isBlank(letter) || letter == '\n';
    if (i % 2 == zero ? letter != 0 : !isPrintable(letter) && !isBlank(letter) && letter != '\n') {
      return false;
    }
  }
  return hasMark || hasBlank;
}

/// A dump is text where no byte is zero and seven of eight are those of plain text.
bool isRaw(const Head& head) {
  if (head.bytes.empty() || head.bytes.find('\0') != std::string_view::npos) return true;
  const auto texts = std::count_if(head.text.begin(), head.text.end(), [](char letter) {
    return isPrintable(letter) || isBlank(letter) || letter == '\n';
  });
  return 8 * static_cast<size_t>(texts) < 7 * head.text.size();
}

bool isJson(const Head& head) {
  const std::string_view text = head.text;
  const size_t first = text.find_first_not_of(" \t\r\n");
  if (first == std::string_view::npos || (text[first] != '{' && text[first] != '[')) return false;
  const size_t second = text.find_first_not_of(" \t\r\n", first + 1);
  if (second == std::string_view::npos) return true;
  return text[first] == '{' ? text[second] == '"' || text[second] == '}'
                            : text[second] == '{' || text[second] == '[' || text[second] == ']';
}

size_t digitsAtStart(std::string_view line) {
  return std::min(line.find_first_not_of("0123456789abcdefABCDEF"), line.size());
}

/// An offset of 7 to 16 digits, and a colon. The first digit is 0, as it is up to 256 MiB, but not
/// in an index before hex text.
bool isXxd(const Head& head) {
  const size_t digits = digitsAtStart(head.line);
  return digits >= 7 && digits <= 16 && head.line[0] == '0' && head.line.substr(digits, 1) == ":";
}

/// An offset of 8 digits, two blanks, and the text between bars.
bool isHexdump(const Head& head) {
  return digitsAtStart(head.line) == 8 && head.line.substr(8, 2) == "  " && head.line.back() == '|';
}

/// An offset of 6 digits, or of 7 where it is decimal or octal, which no byte or word has.
bool isOd(const Head& head) {
  const size_t digits = digitsAtStart(head.line);
  return (digits == 6 || digits == 7) && isBlank(head.line.substr(0, digits + 1).back());
}

bool isBase64(const Head& head) { return mayBeBase64(head.line); }

bool isHex(const Head&) { return true; }

[[noreturn]] std::unique_ptr<EntryReader> refuseUtf16(std::unique_ptr<ByteStream> stream,
                                                      const Layout&, const InputOptions&) {
  fail(
      "{}: text in UTF-16; convert it with iconv -f UTF-16 -t UTF-8, or give --input raw if it is "
      "a binary dump",
      stream->name());
}

[[noreturn]] std::unique_ptr<EntryReader> refuseBase64(std::unique_ptr<ByteStream> stream,
                                                       const Layout&, const InputOptions&) {
  fail(
      "{}: this looks like base64; decode it with base64 -d and give --input raw, or give "
      "--input hex if the digits are hexadecimal",
      stream->name());
}

struct Notation {
  const char* name;  ///< as --input has it; empty: it cannot be chosen
  bool (*isIt)(const Head&);
  OpenFormat* open;
};

// The first that fits is taken.
constexpr Notation notations[] = {
    {"", isUtf16, refuseUtf16},          {"raw", isRaw, openRaw},
    {"json", isJson, openJson},          {"xxd", isXxd, openXxd},
    {"hexdump", isHexdump, openHexdump}, {"od", isOd, openOd},
    {"", isBase64, refuseBase64},        {"hex", isHex, openHex},
};

const Notation& notationOf(ByteStream& stream, const InputOptions& options) {
  const auto named = std::find_if(
      std::begin(notations), std::end(notations),
      [&options](const Notation& notation) { return notation.name == options.format; });
  if (named != std::end(notations)) return *named;
  const Head head = headOf(stream);
  return *std::find_if(std::begin(notations), std::end(notations),
                       [&head](const Notation& notation) { return notation.isIt(head); });
}

/// Refuses options that the notation makes no use of.
void checkEffects(const Notation& notation, const ByteStream& stream, const InputOptions& options) {
  const bool isJson = notation.open == openJson;
  const bool ignoresHexOrder = isJson || notation.open == openRaw;
  if (options.hexOrder != HexOrder::byGroups && ignoresHexOrder && !options.shared.hexOrder) {
    fail("{}: --hex-order has no effect on a {} dump; leave it out, or give --input hex or xxd",
         stream.name(), notation.name);
  }
  const bool hasStride = options.stride != 0 && !options.shared.stride;
  if (isJson && (hasStride || (options.bigEndian && !options.shared.byteOrder))) {
    fail("{}: --stride and --byte-order have no effect on a json dump; leave them out",
         stream.name());
  }
}

}  // namespace

std::unique_ptr<EntryReader> openEntries(std::unique_ptr<ByteStream> stream, const Layout& layout,
                                         const InputOptions& options) {
  const Notation& notation = notationOf(*stream, options);
  checkEffects(notation, *stream, options);
  return notation.open(std::move(stream), layout, options);
}

}  // namespace Tool
