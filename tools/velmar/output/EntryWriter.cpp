#include "output/EntryWriter.h"

#include <algorithm>
#include <charconv>
#include <cstring>

#include "model/Text.h"

namespace Tool {
namespace {

/// For people: an entry as a headed block, one field a line.
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

  void begin() override {}
  void write(const Entry& entry) override {
    writeEntryHead(output_, layout_, entry.index);
    for (const FieldPlace& place : fields_) writeField(place, entry.bytes);
    if (layout_.hasBitsOutside(entry.bytes)) {
      writeLine("(outside all fields)", "", bitsOutside(layout_, entry.bytes), Style::strong);
    }
  }
  void end() override {}

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

char* append(char* at, std::string_view text) {
  std::memcpy(at, text.data(), text.size());
  return at + text.size();
}

char* appendDecimal(char* at, U64 number) {
  constexpr size_t longestNumber = 20;
  return std::to_chars(at, at + longestNumber, number).ptr;
}

char* appendHex(char* at, U64 number) {
  int shift = number == 0 ? 0 : (63 - __builtin_clzll(number)) & ~3;
  for (; shift >= 0; shift -= 4) *at++ = "0123456789abcdef"[number >> shift & 15];
  return at;
}

/// JSON, one entry a line: as one document, or as lines that stand for themselves. This is where
/// whole tables go, so all text that does not depend on the entry is made beforehand.
class JsonWriter : public EntryWriter {
 public:
  JsonWriter(Output& output, const Layout& layout, std::vector<FieldPlace> fields, bool asLines)
      : output_(output), layout_(layout), asLines_(asLines) {
    const bool allFields = fields.size() == layout.fields().size();
    checksOutside_ = allFields;
    if (asLines_) {
      lineHead_ = formatText(R"({{"table":"{}","chip":"{}","variant":{},"index":)", layout.name(),
                             layout.chip().name, layout.variant());
    } else {
      lineHead_ = R"({"index":)";
    }
    addressTail_ = formatText(R"(,"accessType":{},"block":{},"fields":{{)",
                              layout.geometry().accessType, layout.geometry().block);
    constexpr size_t numbers = 80;
    size_t longestEntry =
        lineHead_.size() + addressTail_.size() + numbers + 2 * layout.entryBytes();
    for (FieldPlace& place : fields) {
      const std::string key =
          formatText(R"({}"{}":{{"hex":"0x)", fields_.empty() ? "" : ",", place.name());
      constexpr size_t digitsOfPort = 5;
      longestEntry += key.size() + numbers + place.width / 4 + digitsOfPort * place.width;
      fields_.push_back({place, key});
    }
    text_.resize(longestEntry);
  }

  void begin() override {
    if (!asLines_) output_.write(documentHead());
  }

  void write(const Entry& entry) override {
    if (!asLines_) output_.write(isFirst_ ? "\n" : ",\n");
    isFirst_ = false;
    const char* end = writeEntry(text_.data(), entry);
    output_.write({text_.data(), static_cast<size_t>(end - text_.data())});
    if (asLines_) output_.write("\n");
  }

  void end() override {
    if (!asLines_) output_.write(isFirst_ ? "]}\n" : "\n]}\n");
  }

 private:
  struct JsonField {
    FieldPlace place;
    std::string key;
  };

  std::string documentHead() const {
    std::string text = formatText(
        R"({{"format":"velmar-entries","version":1,"table":"{}","chip":"{}","variant":{},)"
        R"("entryBytes":{},"layout":{{)",
        layout_.name(), layout_.chip().name, layout_.variant(), layout_.entryBytes());
    for (const JsonField& field : fields_) {
      const FieldPlace& place = field.place;
      text +=
          formatText(R"({}"{}":{{"offset":{},"width":{}}})", &field == &fields_.front() ? "" : ",",
                     place.name(), place.offset, place.width);
    }
    return text + R"(},"entries":[)";
  }

  char* writeEntry(char* at, const Entry& entry) const {
    at = append(at, lineHead_);
    at = appendDecimal(at, entry.index);
    at = append(at, R"(,"address":)");
    if (entry.index < layout_.indexCount()) {
      const U32 address = layout_.addressOf(static_cast<U32>(entry.index)).address;
      at = append(at, "\"0x");
      for (int shift = 28; shift >= 0; shift -= 4)
        *at++ = "0123456789abcdef"[address >> shift & 15];
      *at++ = '"';
    } else {
      at = append(at, "null");
    }
    at = append(at, addressTail_);
    for (const JsonField& field : fields_) {
      at = append(at, field.key);
      at = field.place.isScalar() ? writeScalar(at, field.place, entry.bytes)
                                  : writeWide(at, field.place, entry.bytes);
    }
    *at++ = '}';
    if (checksOutside_ && layout_.hasBitsOutside(entry.bytes)) {
      at = append(at, R"(,"outsideFields":")");
      at = append(at, bitsOutside(layout_, entry.bytes));
      *at++ = '"';
    }
    *at++ = '}';
    return at;
  }

  char* writeScalar(char* at, const FieldPlace& place, const U8* bytes) const {
    const U64 value = readScalar(place, bytes, layout_.entryBytes());
    at = appendHex(at, value);
    *at++ = '"';
    if (isExactInJson(place.width)) {
      at = append(at, R"(,"decimal":)");
      at = appendDecimal(at, value);
    }
    *at++ = '}';
    return at;
  }

  char* writeWide(char* at, const FieldPlace& place, const U8* bytes) const {
    const Value value = Value::read(place, bytes, layout_.entryBytes());
    at = append(at, value.hexDigits());
    *at++ = '"';
    if (place.isBitmap()) {
      at = append(at, R"(,"ports":[)");
      bool first = true;
      for (const U32 port : value.ports()) {
        if (!first) *at++ = ',';
        first = false;
        at = appendDecimal(at, port);
      }
      *at++ = ']';
    }
    *at++ = '}';
    return at;
  }

  Output& output_;
  const Layout& layout_;
  bool asLines_;
  bool isFirst_ = true;
  bool checksOutside_;
  std::string lineHead_;
  std::string addressTail_;
  std::vector<char> text_;  ///< of one entry, as long as it can get
  std::vector<JsonField> fields_;
};

/// One row an entry; numbers in decimal where spreadsheets keep them exact, bitmaps as ports.
class CsvWriter : public EntryWriter {
 public:
  CsvWriter(Output& output, const Layout& layout, std::vector<FieldPlace> fields)
      : output_(output), layout_(layout), fields_(std::move(fields)) {}

  void begin() override {
    output_.write("index,address,accessType,block");
    for (const FieldPlace& place : fields_) output_.print(",{}", place.name());
    output_.write("\n");
  }

  void write(const Entry& entry) override {
    const bool isInTable = entry.index < layout_.indexCount();
    const Address address = layout_.addressOf(isInTable ? static_cast<U32>(entry.index) : U32{0});
    output_.print("{},{},{},{}", entry.index, isInTable ? addressText(address.address) : "",
                  address.accessType, address.block);
    for (const FieldPlace& place : fields_) {
      const Value value = Value::read(place, entry.bytes, layout_.entryBytes());
      output_.print(",{}", csvField(plainText(place, value)));
    }
    output_.write("\n");
  }

  void end() override {}

 private:
  Output& output_;
  const Layout& layout_;
  std::vector<FieldPlace> fields_;
};

}  // namespace

std::string plainText(const FieldPlace& place, const Value& value) {
  if (place.isBitmap()) return value.portRanges();
  return isExactInJson(place.width) ? formatText("{}", *value.number()) : value.hex();
}

std::string entryAsHex(const std::vector<U8>& entry) {
  std::string digits;
  for (size_t i = entry.size(); i-- > 0;) {
    if (digits.empty() && entry[i] == 0) continue;
    digits += digits.empty() ? formatText("{:x}", entry[i]) : formatText("{:02x}", entry[i]);
  }
  return "0x" + (digits.empty() ? "0" : digits);
}

std::string bitsOutside(const Layout& layout, const U8* entry) {
  std::vector<U8> bits = layout.outsideMask();
  for (size_t i = 0; i < bits.size(); ++i) bits[i] = static_cast<U8>(bits[i] & entry[i]);
  return entryAsHex(bits);
}

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

std::unique_ptr<EntryWriter> makeEntryWriter(Output& output, const Layout& layout,
                                             std::vector<FieldPlace> fields, Format format) {
  if (format == Format::csv) {
    return std::make_unique<CsvWriter>(output, layout, std::move(fields));
  }
  if (format == Format::table) {
    return std::make_unique<TableWriter>(output, layout, std::move(fields));
  }
  return std::make_unique<JsonWriter>(output, layout, std::move(fields), format == Format::jsonl);
}

}  // namespace Tool
