#include "output/Entries.h"

#include <algorithm>
#include <cstdio>

#include "cli/Failure.h"
#include "core/TextBuffer.h"
#include "output/Wrapping.h"

namespace Tool {
namespace {

/// For people: a block for each entry, with a line for each field or family of fields.
class EntryTable {
 public:
  EntryTable(Output& output, const Layout& layout, const std::vector<FieldGroup>& groups)
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
    }
  }

  void write(U32 index, const U8* bytes) {
    writeEntryHead(output_, layout_, index);
    for (const Line& line : lines_) writeGroup(line, bytes);
    if (layout_.hasReservedBits(bytes)) {
      finishLine("  (outside all fields)  " + reservedBits(layout_, bytes), Style::strong);
    }
  }

 private:
  struct Line {
    FieldGroup group;
    std::string head;
    std::string bits;
  };

  static std::string nameOf(const FieldGroup& group) {
    if (!group.isFamily()) return group.front().name();
    return std::string(group.front().prefix());
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
      text += familyText(line.group.members, bytes, size);
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

  void writeNumber(const Line& line, U64 number) {
    // Whole tables are printed this way: the text keeps its memory.
    number_.clear();
    const size_t digits = number == 0 ? 1 : (67 - static_cast<size_t>(__builtin_clzll(number))) / 4;
    TextBuffer(number_)
        .add(line.head)
        .add("0x")
        .addHex(number)
        .addBlanks(hexWidth_ - digits)
        .addDecimal(number)
        .flush();
    writeLine(number_, line.head.size(), number == 0 ? Style::faint : Style::plain);
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
  std::string number_;
};

/// Raw bytes carry no index: it follows from the position of an entry alone.
void checkRaw(const Output& output, const Dump& dump) {
  if (output.isTerminal()) {
    fail(
        "raw bytes are not written to a terminal; give -o FILE, or pipe them into another "
        "command");
  }
  for (size_t i = 1; i < dump.count(); ++i) {
    if (dump.index(i) == dump.index(i - 1) + 1) continue;
    fail(
        "entry {} cannot follow entry {}, because raw bytes carry no index; give --format hex, or "
        "write the whole table with --whole of encode",
        dump.index(i), dump.index(i - 1));
  }
}

/// An entry as hex text, in groups of so many bytes.
void appendHexLine(std::string& to, const U8* bytes, U32 size, U32 group) {
  for (U32 at = 0; at < size; at += group) {
    if (at != 0) to += ' ';
    for (U32 i = group; i-- > 0;) {
      to += "0123456789abcdef"[bytes[at + i] >> 4];
      to += "0123456789abcdef"[bytes[at + i] & 15];
    }
  }
  to += '\n';
}

}  // namespace

std::string alignedBits(const Layout& layout, const std::string& bits) {
  const size_t digits = std::to_string(8 * layout.entryBytes() - 1).size();
  const size_t colon = std::min(bits.find(':'), bits.size());
  return std::string(digits - std::min(digits, colon), ' ') + bits;
}

void writeEntryHead(Output& output, const Layout& layout, U64 index) {
  std::string heading;
  TextBuffer(heading).add(layout.name()).add(' ').addDecimal(index).flush();
  if (index >= layout.indexCount()) {
    return output.writeLine(heading, "  beyond the end of the table, no address");
  }
  const Address address = layout.addressOf(static_cast<U32>(index));
  std::string place;
  TextBuffer(place)
      .add("  address 0x")
      .addHex(address.address, 8)
      .add("  access ")
      .addDecimal(address.accessType)
      .add("  block ")
      .add(blockText(address.block))
      .flush();
  output.writeLine(heading, place);
}

void writeEntries(Output& output, const Layout& layout, const std::vector<FieldPlace>& fields,
                  const EntryStyle& style, const Dump& dump, const std::vector<size_t>& positions) {
  if (style.format == Format::table) {
    EntryTable table(output, layout, grouped(fields, style.asFamilies));
    for (const size_t i : positions) {
      table.write(dump.index(i), dump.bytes(i));
      output.flushIfLarge();
    }
    return;
  }
  EntryDocument document(output.text(), layout, fields,
                         {rowFormatOf(style.format), style.isPlain, style.isCompact});
  for (const size_t i : positions) {
    document.write(dump.index(i), dump.bytes(i));
    output.flushIfLarge();
  }
  document.end();
}

void writeEntries(Output& output, const Layout& layout, const EntryStyle& style, const Dump& dump) {
  std::vector<size_t> positions(dump.count());
  for (size_t i = 0; i < positions.size(); ++i) positions[i] = i;
  writeEntries(output, layout, layout.fields(), style, dump, positions);
}

void writeBytes(Output& output, Format format, bool withIndex, const Dump& dump) {
  if (format == Format::raw) {
    checkRaw(output, dump);
    if (dump.count() != 0 && dump.index(0) != 0) {
      std::fprintf(stderr,
                   "velmar: note: raw bytes carry no index; to read these give --first %u\n",
                   dump.index(0));
    }
    return output.write({reinterpret_cast<const char*>(dump.data()), dump.size()});
  }
  for (size_t i = 0; i < dump.count(); ++i) {
    if (withIndex) output.print("{}: ", dump.index(i));
    appendHexLine(output.text(), dump.bytes(i), dump.entryBytes(), format == Format::words ? 4 : 1);
    output.flushIfLarge();
  }
}

}  // namespace Tool
