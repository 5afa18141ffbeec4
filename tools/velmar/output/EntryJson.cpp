#include "output/EntryWriter.h"
#include "output/JsonRows.h"
#include "output/ValueText.h"

namespace Tool {
namespace {

/// JSON, one entry per line. Whole tables are printed this way, so all text that does not depend on
/// the entry is prepared.
class JsonWriter : public EntryWriter {
 public:
  JsonWriter(Output& output, const Layout& layout, const std::vector<FieldPlace>& fields,
             const EntryStyle& style)
      : layout_(layout),
        isPlain_(style.isPlain),
        showsReservedBits_(fields.size() == layout.fields().size()),
        rows_(output, style.format == Format::jsonl, {documentHead(layout, fields), "]}", ""}) {
    if (style.format == Format::jsonl) {
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
    for (const FieldPlace& place : fields) {
      const std::string key = formatText(R"({}"{}":{})", fields_.empty() ? "" : ",", place.name(),
                                         isPlain_ ? "" : R"({"hex":"0x)");
      longestEntry += key.size() + longestValueJson(place);
      fields_.push_back({place, key});
    }
    text_.resize(longestEntry);
  }

  void write(const Entry& entry) override {
    const char* end = writeEntry(text_.data(), entry);
    rows_.write({text_.data(), static_cast<size_t>(end - text_.data())});
  }
  void end() override { rows_.end(); }

 private:
  struct JsonField {
    FieldPlace place;
    std::string key;
  };

  static std::string documentHead(const Layout& layout, const std::vector<FieldPlace>& fields) {
    std::string text = formatText(
        R"({{"format":"velmar-entries","version":1,"table":"{}","chip":"{}","variant":{},)"
        R"("entryBytes":{},"layout":{{)",
        layout.name(), layout.chip().name, layout.variant(), layout.entryBytes());
    for (const FieldPlace& place : fields) {
      text +=
          formatText(R"({}"{}":{{"offset":{},"width":{}}})", &place == &fields.front() ? "" : ",",
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
      *at++ = '"';
      at = appendAddress(at, address);
      *at++ = '"';
    } else {
      at = append(at, "null");
    }
    at = append(at, addressTail_);
    for (const JsonField& field : fields_) {
      at = append(at, field.key);
      at = isPlain_ ? appendPlainJson(at, field.place, entry.bytes, layout_.entryBytes())
                    : appendValueJson(at, field.place, entry.bytes, layout_.entryBytes());
    }
    *at++ = '}';
    if (showsReservedBits_ && layout_.hasReservedBits(entry.bytes)) {
      at = append(at, R"(,"outsideFields":")");
      at = append(at, reservedBits(layout_, entry.bytes));
      *at++ = '"';
    }
    *at++ = '}';
    return at;
  }

  const Layout& layout_;
  bool isPlain_;
  bool showsReservedBits_;
  JsonRows rows_;
  std::string lineHead_;
  std::string addressTail_;
  std::vector<char> text_;  ///< room for the longest entry
  std::vector<JsonField> fields_;
};

}  // namespace

std::unique_ptr<EntryWriter> makeJsonWriter(Output& output, const Layout& layout,
                                            const std::vector<FieldPlace>& fields,
                                            const EntryStyle& style) {
  return std::make_unique<JsonWriter>(output, layout, fields, style);
}

}  // namespace Tool
