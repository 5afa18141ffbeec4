#include <algorithm>

#include "model/Failure.h"
#include "model/Text.h"
#include "output/EntryWriter.h"
#include "output/ValueText.h"

namespace Tool {
namespace {

/// For people: a block for each entry, with a line for each field or family of fields.
class TableWriter : public EntryWriter {
 public:
  TableWriter(Output& output, const Layout& layout, const std::vector<FieldGroup>& groups)
      : output_(output), layout_(layout) {
    size_t nameWidth = 0, bitsWidth = 0;
    for (const FieldGroup& group : groups) {
      lines_.push_back({group, nameOf(group), alignedBits(layout, group.bits())});
      nameWidth = std::max(nameWidth, lines_.back().head.size());
      bitsWidth = std::max(bitsWidth, lines_.back().bits.size());
      const FieldPlace& place = group.front();
      const bool isNumber = place.isScalar() && !group.isFamily();
      if (isNumber) hexWidth_ = std::max(hexWidth_, (place.width + 3) / 4 + size_t{2});
    }
    for (Line& line : lines_) {
      line.head = formatText("  {:<{}}  {:<{}}  ", line.head, nameWidth, line.bits, bitsWidth);
      if (line.head.size() > longestHead)
        fail("{}: the name is too long; please report it", line.group.name());
    }
  }

  void write(const Entry& entry) override {
    writeEntryHead(output_, layout_, entry.index);
    for (const Line& line : lines_) writeGroup(line, entry.bytes);
    if (layout_.hasReservedBits(entry.bytes)) {
      finishLine("  (outside all fields)  " + reservedBits(layout_, entry.bytes), Style::strong);
    }
  }

 private:
  static constexpr size_t longestHead = 256;

  struct Line {
    FieldGroup group;
    std::string head;
    std::string bits;
  };

  static std::string nameOf(const FieldGroup& group) {
    if (!group.isFamily()) return group.front().name();
    return std::string(numberedName(group.front().name())->prefix);
  }

  void writeGroup(const Line& line, const U8* bytes) {
    const FieldPlace& place = line.group.front();
    const U32 size = layout_.entryBytes();
    if (place.isScalar() && !line.group.isFamily()) {
      return writeNumber(line, readScalar(place, bytes, size));
    }
    std::string text = line.head;
    bool isZero = false;
    if (line.group.isFamily()) {
      text += familyText(line.group, bytes, size);
    } else {
      const Value value = Value::read(place, bytes, size);
      isZero = value.isZero();
      text += value.hex();
      if (place.isBitmap()) {
        text.resize(std::max(text.size(), line.head.size() + hexWidth_), ' ');
        text += "  ports " + value.portRanges();
      } else if (value.number()) {
        text += formatText("  {}", *value.number());
      }
    }
    writeLine(text, line.head.size(), isZero ? Style::faint : Style::plain);
  }

  /// Whole tables are printed this way, so nothing is allocated.
  void writeNumber(const Line& line, U64 number) {
    char text[longestHead + 64];
    char* at = append(text, line.head);
    const char* const hexEnd = at + hexWidth_;
    at = appendHex(append(at, "0x"), number);
    while (at < hexEnd) *at++ = ' ';
    at = appendDecimal(append(at, "  "), number);
    writeLine({text, static_cast<size_t>(at - text)}, line.head.size(),
              number == 0 ? Style::faint : Style::plain);
  }

  /// What does not fit goes on below the value.
  void writeLine(std::string_view text, size_t headSize, Style style) {
    const size_t columns = output_.columns();
    if (columns == 0 || text.size() <= columns) return finishLine(text, style);
    // A value that is wider than a third of the line has a line of its own.
    const size_t indent = std::min(headSize, columns / 3);
    std::string line(text.substr(0, headSize));
    for (const std::string& part : wrap(std::string(text.substr(headSize)), columns - indent)) {
      const bool fits = line.size() + part.size() <= columns;
      if (!fits && line.size() > indent) {
        finishLine(line, style);
        line.assign(indent, ' ');
      }
      finishLine(line + part, style);
      line.assign(indent, ' ');
    }
  }

  void finishLine(std::string_view line, Style style) {
    output_.write(line.substr(0, line.find_last_not_of(' ') + 1), style);
    output_.write("\n");
  }

  Output& output_;
  const Layout& layout_;
  std::vector<Line> lines_;
  size_t hexWidth_ = 0;
};

}  // namespace

void writeEntryHead(Output& output, const Layout& layout, U64 index) {
  std::string place = "  beyond the end of the table, no address";
  if (index < layout.indexCount()) {
    const Address address = layout.addressOf(static_cast<U32>(index));
    place = formatText("  address {}  access {}  block {}", addressText(address.address),
                       address.accessType, blockText(address.block));
  }
  output.writeLine(formatText("{} {}", layout.name(), index), place);
}

std::unique_ptr<EntryWriter> makeTableWriter(Output& output, const Layout& layout,
                                             const std::vector<FieldGroup>& groups) {
  return std::make_unique<TableWriter>(output, layout, groups);
}

}  // namespace Tool
