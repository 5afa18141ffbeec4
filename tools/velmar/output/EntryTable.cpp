#include <algorithm>
#include <cstring>

#include "model/Text.h"
#include "output/EntryWriter.h"
#include "output/ValueText.h"

namespace Tool {
namespace {

/// For people: a block for each entry, with a line for each field.
class TableWriter : public EntryWriter {
 public:
  TableWriter(Output& output, const Layout& layout, std::vector<FieldPlace> fields)
      : output_(output), layout_(layout), fields_(std::move(fields)) {
    for (const FieldPlace& place : fields_) {
      nameWidth_ = std::max(nameWidth_, std::strlen(place.name()));
      bitsWidth_ = std::max(bitsWidth_, place.bits().size());
      if (place.isScalar()) hexWidth_ = std::max(hexWidth_, (place.width + 3) / 4 + size_t{2});
    }
  }

  void write(const Entry& entry) override {
    writeEntryHead(output_, layout_, entry.index);
    for (const FieldPlace& place : fields_) writeField(place, entry.bytes);
    if (layout_.hasReservedBits(entry.bytes)) {
      writeLine("(outside all fields)", "", reservedBits(layout_, entry.bytes), Style::strong);
    }
  }

 private:
  void writeField(const FieldPlace& place, const U8* bytes) {
    const Value value = Value::read(place, bytes, layout_.entryBytes());
    std::string text = value.hex();
    if (place.isBitmap()) {
      text = formatText("{:<{}}  ports {}", text, hexWidth_, value.portRanges());
    } else if (value.number()) {
      text = formatText("{:<{}}  {}", text, hexWidth_, *value.number());
    }
    writeLine(place.name(), place.bits(), text, value.isZero() ? Style::faint : Style::plain);
  }

  void writeLine(const std::string& name, const std::string& bits, const std::string& value,
                 Style style) {
    const std::string head = formatText("  {:<{}}  {:>{}}  ", name, nameWidth_, bits, bitsWidth_);
    if (output_.columns() == 0) return finishLine(head + value, style);
    constexpr size_t narrowest = 20;
    const size_t room =
        std::max(narrowest, output_.columns() - std::min<size_t>(output_.columns(), head.size()));
    std::string margin = head;
    for (const std::string& line : wrap(value, room)) {
      finishLine(margin + line, style);
      margin.assign(head.size(), ' ');
    }
  }

  void finishLine(const std::string& line, Style style) {
    output_.write(line, style);
    output_.write("\n");
  }

  Output& output_;
  const Layout& layout_;
  std::vector<FieldPlace> fields_;
  size_t nameWidth_ = 0;
  size_t bitsWidth_ = 0;
  size_t hexWidth_ = 0;
};

}  // namespace

void writeEntryHead(Output& output, const Layout& layout, U64 index) {
  output.write(formatText("{} {}", layout.name(), index), Style::strong);
  if (index < layout.indexCount()) {
    const Address address = layout.addressOf(static_cast<U32>(index));
    output.print("  address {}  access {}  block {}\n", addressText(address.address),
                 address.accessType, blockText(address.block));
  } else {
    output.print("  beyond the end of the table, no address\n");
  }
}

std::unique_ptr<EntryWriter> makeTableWriter(Output& output, const Layout& layout,
                                             std::vector<FieldPlace> fields) {
  return std::make_unique<TableWriter>(output, layout, std::move(fields));
}

}  // namespace Tool
