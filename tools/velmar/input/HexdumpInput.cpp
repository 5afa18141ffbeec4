#include <algorithm>

#include "input/OffsetDump.h"

// The output of hexdump -C: an offset, bytes, the text between bars; the last line is the end.

namespace Tool {
namespace {

class HexdumpReader : public OffsetReader {
 public:
  using OffsetReader::OffsetReader;

 private:
  std::vector<U32> bases(const Row&) const override { return {16}; }

  bool parse(std::string_view line, Row& row) const override {
    const size_t bar = std::min(line.find('|'), line.size());
    const bool isOpen = bar < line.size() && (line.back() != '|' || bar + 1 == line.size());
    if (isOpen || !splitGroups(line.substr(0, bar), row.groups) || row.groups.empty()) return false;
    row.offset = row.groups.front().digits;
    row.groups.erase(row.groups.begin());
    if (row.offset.size() < 8 || !haveDigits(row.groups, 2)) return false;
    for (const HexGroup& group : row.groups) appendBytes(group.digits, row.bytes);
    if (bar < line.size()) checkText(line.substr(bar + 1, line.size() - bar - 2), row);
    return true;
  }
};

}  // namespace

std::unique_ptr<EntryReader> openHexdump(std::unique_ptr<ByteStream> stream, const Layout& layout,
                                         const InputOptions& options) {
  return std::make_unique<HexdumpReader>(std::move(stream), layout, options);
}

}  // namespace Tool
