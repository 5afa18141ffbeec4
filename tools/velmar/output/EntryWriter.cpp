#include "output/EntryWriter.h"

#include <cstdio>

#include "model/Failure.h"
#include "output/CsvRows.h"
#include "output/ValueText.h"

namespace Tool {
namespace {

/// One row per entry; numbers in decimal where spreadsheets keep them exact, bitmaps as ports. Where
/// all fields are shown, the last column has the reserved bits that are set.
class CsvWriter : public EntryWriter {
 public:
  CsvWriter(Output& output, const Layout& layout, const std::vector<FieldPlace>& fields)
      : output_(output),
        layout_(layout),
        fields_(fields),
        showsReservedBits_(fields.size() == layout.fields().size()) {
    CsvRows head(output, columns());
    size_t longest = 80 + 3 * layout.entryBytes();
    for (const FieldPlace& place : fields) longest += longestValueJson(place);
    row_.resize(longest);
  }

  void write(const Entry& entry) override {
    const char* const end = appendRow(row_.data(), entry);
    output_.write({row_.data(), static_cast<size_t>(end - row_.data())});
  }

 private:
  std::vector<std::string> columns() const {
    std::vector<std::string> names = {"index", "address", "accessType", "block"};
    for (const FieldPlace& place : fields_) names.emplace_back(place.name());
    if (showsReservedBits_) names.emplace_back("outsideFields");
    return names;
  }

  char* appendRow(char* at, const Entry& entry) const {
    const U32 size = layout_.entryBytes();
    const Catalogue::Geometry& geometry = layout_.geometry();
    at = append(appendDecimal(at, entry.index), ",");
    if (entry.index < layout_.indexCount()) {
      at = appendAddress(at, layout_.addressOf(static_cast<U32>(entry.index)).address);
    }
    at = appendDecimal(append(at, ","), geometry.accessType);
    at = appendDecimal(append(at, ","), geometry.block);
    for (const FieldPlace& place : fields_) {
      *at++ = ',';
      if (place.isScalar() && isExactInJson(place.width)) {
        at = appendDecimal(at, readScalar(place, entry.bytes, size));
      } else {
        at = append(at, CsvRows::quoted(plainText(place, Value::read(place, entry.bytes, size))));
      }
    }
    if (showsReservedBits_) {
      *at++ = ',';
      if (layout_.hasReservedBits(entry.bytes)) at = append(at, reservedBits(layout_, entry.bytes));
    }
    return append(at, "\n");
  }

  Output& output_;
  const Layout& layout_;
  std::vector<FieldPlace> fields_;
  bool showsReservedBits_;
  std::vector<char> row_;  ///< room for the longest
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
          "entry {} cannot follow entry {}, because raw bytes carry no index; give --format hex, "
          "or "
          "write the whole table with --whole of encode",
          index, next_ - 1);
    }
    if (!started_ && index != 0) {
      std::fprintf(stderr,
                   "velmar: note: raw bytes carry no index; to read these give --first %llu\n",
                   static_cast<unsigned long long>(index));
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
                                             const std::vector<FieldPlace>& fields,
                                             const EntryStyle& style) {
  if (style.format == Format::table) {
    return makeTableWriter(output, layout, grouped(fields, style.asFamilies));
  }
  if (style.format == Format::csv) return std::make_unique<CsvWriter>(output, layout, fields);
  return makeJsonWriter(output, layout, fields, style);
}

std::unique_ptr<EntryWriter> makeBytesWriter(Output& output, const Layout& layout, Format format,
                                             bool withIndex) {
  return std::make_unique<BytesWriter>(output, layout, format, withIndex);
}

}  // namespace Tool
