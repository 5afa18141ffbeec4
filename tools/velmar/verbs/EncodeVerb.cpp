#include <cstring>
#include <unordered_map>

#include "output/Entries.h"
#include "verbs/Inputs.h"
#include "verbs/Requests.h"
#include "verbs/Verbs.h"

namespace Tool {
namespace {

struct EncodeRequest {
  TableRequest table;
  Texts assignments;
  InputRequest base;
  IndexRequest index;
  OutputRequest output;
  bool whole = false, plain = false;

  bool hasBase() const { return !base.file.empty(); }
};

/// What the command line gives: values for the selected entries, and a document of entries.
class Values {
 public:
  Values(const EncodeRequest& request, const Layout& layout)
      : layout_(layout), readsInput_(request.base.file == "-") {
    for (const std::string& text : request.assignments) {
      if (text[0] == '@') {
        read(text.substr(1));
      } else {
        addCommon(taken(parseAssignments(layout, text)));
      }
    }
  }

  const std::vector<Assignment>& common() const { return common_; }
  const std::vector<EntryValues>& entries() const { return entries_; }
  bool hasEntries() const { return !entries_.empty(); }
  /// The name of the document.
  const std::string& name() const { return name_; }
  Value valueOf(const FieldPlace& place, const EntryValues& values) const {
    return Value::read(place, values.bytes.data(), layout_.entryBytes());
  }
  std::string placeOf(const EntryValues& values) const {
    return formatText("{}:{}", name_, values.line);
  }

 private:
  void addCommon(const std::vector<Assignment>& assignments) {
    common_.insert(common_.end(), assignments.begin(), assignments.end());
  }

  void read(const std::string& path) {
    if (path.empty()) fail("@ is given without a file; give @FILE, or @- for standard input");
    if (path == "-" && std::exchange(readsInput_, true)) {
      fail("standard input is given twice; name a file for one of them");
    }
    const Input input(path);
    std::vector<EntryValues> entries = taken(readValues(layout_, input.bytes()), input.name());
    if (entries.empty()) {
      fail("{}: no entry and no values; give one object of values, or what decode prints",
           input.name());
    }
    const bool isPlain = !entries.front().index;
    for (size_t i = 1; i < entries.size(); ++i) {
      if (!isPlain && entries[i].index) continue;
      fail("{}:{}: a second object; give one object of values, or what decode prints", input.name(),
           entries[i].line);
    }
    if (isPlain) {
      for (const U8 position : entries.front().fields) {
        const FieldPlace& place = layout_.fields()[position];
        common_.push_back({place, valueOf(place, entries.front())});
      }
      return;
    }
    if (hasEntries()) fail("{}: a second file of entries; give one", input.name());
    entries_ = std::move(entries);
    name_ = input.name();
  }

  const Layout& layout_;
  std::vector<Assignment> common_;
  std::vector<EntryValues> entries_;
  std::string name_;
  bool readsInput_;  ///< standard input is taken
};

class Encoder {
 public:
  Encoder(const EncodeRequest& request, const Layout& layout)
      : request_(request),
        layout_(layout),
        values_(request, layout),
        builder_(layout),
        made_(layout.entryBytes()) {
    const bool choosesChanges = request.hasBase() || values_.hasEntries();
    if (choosesChanges && hasIndexes() && values_.common().empty()) {
      fail("--index chooses the entries that FIELD=VALUE changes, and none is given; give both");
    }
    request.index.check(layout, "--index");
  }

  Dump make() {
    if (request_.hasBase()) {
      changeBase();
    } else if (values_.hasEntries()) {
      makeFromDocument();
    } else {
      makeSelected();
    }
    const std::string unmet = request_.index.set.unmet();
    if (!unmet.empty()) {
      fail("{}: no entry has an index in {}; check --index",
           request_.hasBase() ? request_.base.file : values_.name(), unmet);
    }
    return std::move(made_);
  }

  /// Whether entries are written with their indexes.
  bool withIndex() const {
    return values_.hasEntries() || request_.hasBase() || hasIndexes() || request_.whole;
  }

 private:
  bool hasIndexes() const { return !request_.index.set.isAll(); }

  void add(U32 index) {
    if (request_.index.set.has(index)) {
      builder_.forget();
      for (const Assignment& assignment : values_.common()) check(builder_.set(assignment));
    }
    made_.add(index, builder_.bytes().data());
  }

  void setValues(const EntryValues& values) {
    builder_.forget();
    for (const U8 position : values.fields) {
      const FieldPlace& place = layout_.fields()[position];
      const Done done = builder_.set(place, values_.valueOf(place, values));
      if (!done) check(done, values_.placeOf(values));
    }
    builder_.setReservedBits(values.reservedBits);
  }

  void makeSelected() {
    const std::vector<U64> indexes =
        hasIndexes() ? request_.index.set.below(layout_.indexCount()) : std::vector<U64>{0};
    for (const U64 index : indexes) {
      builder_.startFromZero();
      add(static_cast<U32>(index));
    }
  }

  void makeFromDocument() {
    for (const EntryValues& values : values_.entries()) {
      if (*values.index >= layout_.indexCount()) {
        fail("{}: entry {} is beyond the end of {}, which has {}; check table and chip",
             values_.placeOf(values), *values.index, layout_.shown(), layout_.indexCount());
      }
      builder_.start(values.bytes.data());
      builder_.setReservedBits(values.reservedBits);
      add(*values.index);
    }
  }

  void changeBase() {
    const InputRequest& base = request_.base;
    const DumpInput input(base, layout_);
    const Dump& dump = input.dump;
    if (dump.count() > 1 && !hasIndexes() && !values_.common().empty()) {
      fail("{}: more than one entry; give --index to choose which to change", base.file);
    }
    std::unordered_map<U32, const EntryValues*> changes;
    for (const EntryValues& values : values_.entries()) {
      if (!values.isNumbered) {
        fail("{}: an entry without index; give the index of the entry to change",
             values_.placeOf(values));
      }
      changes[*values.index] = &values;
    }
    for (size_t i = 0; i < dump.count(); ++i) {
      builder_.start(dump.bytes(i));
      const auto change = changes.find(dump.index(i));
      if (change != changes.end()) {
        setValues(*change->second);
        changes.erase(change);
      }
      add(dump.index(i));
    }
    for (const EntryValues& values : values_.entries()) {
      if (changes.count(*values.index) == 0) continue;
      fail("{}: entry {} is not in {}; give entries of the base only", values_.placeOf(values),
           *values.index, base.file);
    }
  }

  const EncodeRequest& request_;
  const Layout& layout_;
  Values values_;
  EntryBuilder builder_;
  Dump made_;
};

/// The bytes of the whole table: entries that are not given are zero.
std::vector<U8> wholeTable(const Layout& layout, const Dump& dump) {
  std::vector<U8> bytes(size_t{layout.indexCount()} * layout.entryBytes());
  for (size_t i = 0; i < dump.count(); ++i) {
    std::memcpy(bytes.data() + size_t{dump.index(i)} * layout.entryBytes(), dump.bytes(i),
                layout.entryBytes());
  }
  return bytes;
}

int run(EncodeRequest& request) {
  findInSnapshot(request.base, request.table);
  requireChip(request.table, "--chip");
  const Layout layout = request.table.layout();
  Output output(request.output.file, "never");
  Encoder encoder(request, layout);
  Dump dump = encoder.make();
  std::vector<U8> whole;
  if (request.whole) {
    whole = wholeTable(layout, dump);
    dump = Dump(layout.entryBytes(), 0, whole.data(), layout.indexCount());
  }
  const Format format = request.output.format;
  if (isRowFormat(format)) {
    writeEntries(output, layout, {format, request.plain, false}, dump);
  } else {
    writeBytes(output, format, encoder.withIndex(), dump);
  }
  output.finish();
  return exitSuccess;
}

}  // namespace

Verb encodeVerb() {
  const auto request = std::make_shared<EncodeRequest>();
  EncodeRequest& to = *request;
  to.output.format = Format::hex;
  return {
      "encode",
      "Encodes field values to the bytes of an entry.",
      "A value is a number, decimal or after 0x hexadecimal; for a bitmap a list of ports such "
      "as 0-3,17, or \"none\", or a hexadecimal number after 0x; BITMAP+=PORTS and BITMAP-=PORTS "
      "change it; spTreePort0-3=3,10=2 sets fields of a family. Fields that are not given are "
      "zero, or with --base as they were. @FILE takes the JSON or CSV that decode writes, and "
      "gives the same bytes, also with --plain.",
      {{Positionals::table, into(to.table.table)},
       {Positionals::assignments, into(to.assignments)}},
      {{Options::chipOfDump, into(to.table.chip)},
       {Options::variant, intoVariant(to.table.variant)},
       {Options::base, into(to.base.file)},
       {Options::changeIndex, into(to.index)},
       {Options::whole, into(to.whole)},
       Options::input,
       Options::hexOrder,
       Options::byteOrder,
       Options::stride,
       Options::first,
       Options::origin,
       {Options::format("hex,words,raw,json,jsonl"), into(to.output.format)},
       {Options::plain, into(to.plain)},
       {Options::output, into(to.output.file)}},
      {"velmar encode VlanEntry --chip BCM56960_A0 valid=1 fidId=100 portBitmap=0-3,17",
       "velmar encode EgrVlan --chip 56980 --base samples/egr-vlan-bcm56980.bin --index 1 "
       "portBitmap+=17"},
      [request] { return run(*request); },
      {&to.base.options}};
}

}  // namespace Tool
