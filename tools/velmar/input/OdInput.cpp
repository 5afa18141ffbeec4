#include <algorithm>

#include "input/OffsetDump.h"

// The output of od and of hexdump without -C: an offset, then groups of digits, with od's z the text
// between > and <; the last line is the end.

namespace Tool {
namespace {

class OdReader : public OffsetReader {
 public:
  using OffsetReader::OffsetReader;

 private:
  /// 6 digits are hexadecimal; 7 are octal or decimal or, from hexdump, which has words of 16 bits,
  /// hexadecimal.
  std::vector<U32> bases(const Row& first) const override {
    if (first.offset.size() == 6) return {16};
    if (first.offset.size() == 7 && !haveDigits(first.groups, 4)) return {8, 10};
    return {16, 8, 10};
  }

  bool parse(std::string_view line, Row& row) const override {
    const size_t digits = std::min(line.find_first_not_of("0123456789abcdefABCDEF"), line.size());
    if (digits < 6 || digits > 16 || (digits < line.size() && line[digits] != ' ')) return false;
    row.offset = line.substr(0, digits);
    const std::string_view rest = line.substr(digits);
    const size_t text = rest.find("  >");
    const std::string_view columns = rest.substr(0, rest.find_last_not_of(' ', text) + 1);
    if (!isHex(columns, row)) {
      failLine("these are not hexadecimal bytes or words; print the dump again with od -A x -t x1");
    }
    appendGroups(row, true);
    if (text == std::string_view::npos) return true;
    if (rest.back() != '<') return false;
    checkText(rest.substr(text + 3, rest.size() - text - 4), row);
    return true;
  }

  /// Hexadecimal groups have one width and one blank between them, or four with hexdump -x; columns
  /// of decimal numbers have more.
  static bool isHex(std::string_view columns, Row& row) {
    const bool isWide = columns.substr(0, 4) == "    ";
    if (!splitColumns(columns, row.groups, isWide ? 4 : 1)) return false;
    if (isWide) return haveDigits(row.groups, 4);
    return haveDigits(row.groups, 2) || haveDigits(row.groups, 4) || haveDigits(row.groups, 8) ||
           haveDigits(row.groups, 16);
  }
};

}  // namespace

std::unique_ptr<EntryReader> openOd(std::unique_ptr<ByteStream> stream, const Layout& layout,
                                    const InputOptions& options) {
  return std::make_unique<OdReader>(std::move(stream), layout, options);
}

}  // namespace Tool
