#include "output/EntryWriter.h"

#include "model/Failure.h"
#include "output/CsvRows.h"
#include "output/ValueText.h"

namespace Tool {
namespace {

/// One row per entry; numbers in decimal where spreadsheets keep them exact, bitmaps as ports. Where
/// all fields are shown, the last column has the reserved bits that are set.
class CsvWriter : public EntryWriter {
 public:
  CsvWriter(Output& output, const Layout& layout, std::vector<FieldPlace> fields)
      : layout_(layout),
        showsReservedBits_(fields.size() == layout.fields().size()),
        rows_(output, columns(fields, showsReservedBits_)),
        fields_(std::move(fields)) {}

  void write(const Entry& entry) override {
    const bool isInTable = entry.index < layout_.indexCount();
    const Address address = layout_.addressOf(isInTable ? static_cast<U32>(entry.index) : U32{0});
    rows_.field(entry.index);
    rows_.field(isInTable ? addressText(address.address) : "");
    rows_.field(address.accessType);
    rows_.field(address.block);
    for (const FieldPlace& place : fields_) {
      rows_.field(plainText(place, Value::read(place, entry.bytes, layout_.entryBytes())));
    }
    if (showsReservedBits_) {
      rows_.field(layout_.hasReservedBits(entry.bytes) ? reservedBits(layout_, entry.bytes) : "");
    }
    rows_.endRow();
  }

 private:
  static std::vector<std::string> columns(const std::vector<FieldPlace>& fields,
                                          bool showsReservedBits) {
    std::vector<std::string> names = {"index", "address", "accessType", "block"};
    for (const FieldPlace& place : fields) names.emplace_back(place.name());
    if (showsReservedBits) names.emplace_back("outsideFields");
    return names;
  }

  const Layout& layout_;
  bool showsReservedBits_;
  CsvRows rows_;
  std::vector<FieldPlace> fields_;
};

/// Writes encoded entries as bytes: hex text or raw.
class BytesWriter : public EntryWriter {
 public:
  BytesWriter(Output& output, const Layout& layout, Format format, bool withIndex)
      : output_(output), layout_(layout), format_(format), withIndex_(withIndex) {
    if (format_ == Format::raw && output_.isTerminal()) {
      fail(
          "raw bytes are not written to a terminal; give -o FILE, or pipe them into another "
          "command");
    }
  }

  void write(const Entry& entry) override {
    const U8* bytes = entry.bytes;
    const U32 size = layout_.entryBytes();
    if (format_ == Format::raw) {
      checkFollows(entry.index);
      return output_.write({reinterpret_cast<const char*>(bytes), size});
    }
    if (withIndex_) output_.print("{}: ", entry.index);
    const U32 group = format_ == Format::words ? 4 : 1;
    for (U32 at = 0; at < size; at += group) {
      if (at != 0) output_.write(" ");
      for (U32 i = 0; i < group; ++i) output_.print("{:02x}", bytes[at + group - 1 - i]);
    }
    output_.write("\n");
  }

 private:
  /// Raw bytes carry no index: it follows from the position of an entry alone.
  void checkFollows(U64 index) {
    if (started_ && index != next_) {
      fail(
          "entry {} cannot follow entry {}, because raw bytes carry no index; give --whole or "
          "--format hex",
          index, next_ - 1);
    }
    started_ = true;
    next_ = index + 1;
  }

  Output& output_;
  const Layout& layout_;
  Format format_;
  bool withIndex_;
  bool started_ = false;
  U64 next_ = 0;
};

}  // namespace

std::unique_ptr<EntryWriter> makeEntryWriter(Output& output, const Layout& layout,
                                             std::vector<FieldPlace> fields, Format format) {
  switch (format) {
    case Format::table:
      return makeTableWriter(output, layout, std::move(fields));
    case Format::csv:
      return std::make_unique<CsvWriter>(output, layout, std::move(fields));
    default:
      return makeJsonWriter(output, layout, fields, format == Format::jsonl);
  }
}

std::unique_ptr<EntryWriter> makeBytesWriter(Output& output, const Layout& layout, Format format,
                                             bool withIndex) {
  return std::make_unique<BytesWriter>(output, layout, format, withIndex);
}

}  // namespace Tool
