#include "input/OffsetDump.h"
#include "model/Text.h"

// The output of xxd: an offset, groups of digits, and after two blanks the bytes as text.

namespace Tool {
namespace {

class XxdReader : public OffsetReader {
 public:
  using OffsetReader::OffsetReader;

 private:
  std::vector<U32> bases(const Row&) const override { return {16, 10}; }

  bool parse(std::string_view line, Row& row) const override {
    const size_t colon = line.find(':');
    if (colon == std::string_view::npos || colon == 0 || colon > 16) return false;
    row.offset = line.substr(0, colon);
    const std::string_view rest = line.substr(colon + 1);
    const size_t end = std::min(rest.find("  "), rest.size());
    const std::string_view text = trim(rest.substr(end));
    if (row.offset.find_first_not_of("0123456789abcdefABCDEF") != std::string_view::npos ||
        !splitColumns(rest.substr(0, end), row.groups)) {
      return false;
    }
    if (row.groups.empty()) failLine("no digits after the offset; check the line for lost digits");
    if (isBinary(row, text)) failLine("binary digits; print the dump again with xxd without -b");
    // Groups of 4 digits are xxd's own; more of them may be words, from xxd -e.
    const size_t digits = row.groups.front().digits.size();
    appendGroups(row, digits == 8 || digits == 16);
    if (!text.empty()) checkText(text, row);
    return true;
  }

  static bool isBinary(const Row& row, std::string_view text) {
    if (!haveDigits(row.groups, 8) || text.size() > row.groups.size()) return false;
    for (const HexGroup& group : row.groups) {
      if (group.digits.find_first_not_of("01") != std::string_view::npos) return false;
    }
    return !text.empty();
  }
};

}  // namespace

std::unique_ptr<EntryReader> openXxd(std::unique_ptr<ByteStream> stream, const Layout& layout,
                                     const InputOptions& options) {
  return std::make_unique<XxdReader>(std::move(stream), layout, options);
}

}  // namespace Tool
