#include <cstring>
#include <memory>
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
  std::string file;
  std::optional<Format> format;
  bool whole = false, plain = false, compact = false;
};

/// What the command line gives: values for the selected entries, and a document of entries.
class Values {
 public:
  /// `base` may be null.
  Values(const EncodeRequest& request, const Layout& layout, const Dump* base)
      : layout_(layout), base_(base), readsInput_(request.base.file == "-") {
    for (const std::string& text : request.assignments) {
      if (text[0] == '@') {
        read(text.substr(1));
      } else {
        add(taken(parseAssignments(layout, text)));
      }
    }
  }

  const std::vector<Assignment>& common() const { return common_; }
  const Dump& entries() const { return entries_; }
  bool hasEntries() const { return entries_.count() != 0; }
  /// The name of the document.
  const std::string& name() const { return name_; }

 private:
  void add(const std::vector<Assignment>& assignments) {
    common_.insert(common_.end(), assignments.begin(), assignments.end());
  }

  void read(const std::string& path) {
    if (path.empty()) fail("@ is given without a file; give @FILE, or @- for standard input");
    if (path == "-" && std::exchange(readsInput_, true)) {
      fail("standard input is given twice; name a file for one of them");
    }
    const Input input(path);
    DocumentValues values = taken(readValues(layout_, input.bytes(), base_), input.name());
    add(values.common);
    if (values.entries.count() == 0) return;
    if (hasEntries()) fail("{}: a second file of entries; give one", input.name());
    entries_ = std::move(values.entries);
    name_ = input.name();
  }

  const Layout& layout_;
  const Dump* base_;
  std::vector<Assignment> common_;
  Dump entries_;
  std::string name_;
  bool readsInput_;  ///< standard input is taken
};

class Encoder {
 public:
  Encoder(const EncodeRequest& request, const Layout& layout)
      : request_(request),
        layout_(layout),
        base_(request.base.file.empty() ? nullptr
                                        : std::make_unique<DumpInput>(request.base, layout)),
        values_(request, layout, base()),
        builder_(layout),
        made_(layout.entryBytes()) {
    const bool choosesChanges = base_ != nullptr || values_.hasEntries();
    if (choosesChanges && hasIndexes() && values_.common().empty()) {
      fail("--index chooses the entries that FIELD=VALUE changes, and none is given; give both");
    }
    request.index.check(layout, "--index");
  }

  Dump make() {
    if (base_ != nullptr) {
      changeBase();
    } else if (values_.hasEntries()) {
      addAll(values_.entries());
    } else {
      makeSelected();
    }
    const std::string unmet = request_.index.set.unmet();
    if (!unmet.empty()) {
      fail("{}: no entry has an index in {}; check --index",
           base_ != nullptr ? request_.base.file : values_.name(), unmet);
    }
    return std::move(made_);
  }

  /// What is changed; null if entries are new.
  const Dump* base() const { return base_ ? &base_->dump : nullptr; }
  /// Whether entries are written with their indexes.
  bool withIndex() const {
    return values_.hasEntries() || base_ != nullptr || hasIndexes() || request_.whole;
  }

 private:
  bool hasIndexes() const { return !request_.index.set.isAll(); }

  /// Adds an entry, with the common values if it is selected.
  void add(U32 index, const U8* bytes) {
    builder_.start(bytes);
    if (request_.index.set.has(index)) {
      for (const Assignment& assignment : values_.common()) check(builder_.set(assignment));
    }
    made_.add(index, builder_.bytes().data());
  }

  void addAll(const Dump& dump) {
    for (size_t i = 0; i < dump.count(); ++i) add(dump.index(i), dump.bytes(i));
  }

  void makeSelected() {
    const std::vector<U8> zero(layout_.entryBytes());
    const std::vector<U64> indexes =
        hasIndexes() ? request_.index.set.below(layout_.indexCount()) : std::vector<U64>{0};
    for (const U64 index : indexes) add(static_cast<U32>(index), zero.data());
  }

  void changeBase() {
    const Dump& base = base_->dump;
    if (base.count() > 1 && !hasIndexes() && !values_.common().empty()) {
      fail("{}: more than one entry; give --index to choose which to change", request_.base.file);
    }
    const Dump& changed = values_.entries();
    std::unordered_map<U32, const U8*> changes;
    for (size_t i = 0; i < changed.count(); ++i) changes[changed.index(i)] = changed.bytes(i);
    for (size_t i = 0; i < base.count(); ++i) {
      const auto change = changes.find(base.index(i));
      add(base.index(i), change == changes.end() ? base.bytes(i) : change->second);
    }
  }

  const EncodeRequest& request_;
  const Layout& layout_;
  std::unique_ptr<DumpInput> base_;
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

/// How the result is written: as it is asked for, or as the base is.
EntryStyle styleOf(const EncodeRequest& request, const Layout& layout, const Dump* base) {
  EntryStyle style{request.format.value_or(Format::hex), request.plain, false, request.compact};
  if (request.format || base == nullptr) return style;
  const JsonForm& form = base->jsonForm;
  if (base->notation == Notation::csv) style.format = Format::csv;
  if (base->notation == Notation::json) {
    style = {form.isLines ? Format::jsonl : Format::json, form.isPlain, false, form.isCompact};
  }
  if (base->notation != Notation::raw) return style;
  const ReadOptions& options = request.base.options;
  const bool hasGaps = options.stride != 0 && options.stride != layout.entryBytes();
  if (hasGaps || options.bigEndian) {
    fail(
        "{}: raw bytes are written without gaps and with the lowest byte first, not as they are "
        "here; give --format raw to write them so, or --format hex",
        request.base.file);
  }
  style.format = Format::raw;
  return style;
}

int run(EncodeRequest& request) {
  findInSnapshot(request.base, request.table);
  requireChip(request.table, "--chip");
  const Layout layout = request.table.layout();
  Output output(request.file, "never");
  Encoder encoder(request, layout);
  const EntryStyle style = styleOf(request, layout, encoder.base());
  Dump dump = encoder.make();
  std::vector<U8> whole;
  if (request.whole) {
    whole = wholeTable(layout, dump);
    dump = Dump(layout.entryBytes(), 0, whole.data(), layout.indexCount());
  }
  if (isRowFormat(style.format)) {
    writeEntries(output, layout, style, dump);
  } else {
    writeBytes(output, style.format, encoder.withIndex(), dump);
  }
  output.finish();
  return exitSuccess;
}

}  // namespace

Verb encodeVerb() {
  const auto request = std::make_shared<EncodeRequest>();
  EncodeRequest& to = *request;
  return {
      "encode",
      "Encodes field values to the bytes of an entry.",
      "A value is a number, decimal or after 0x hexadecimal; for a bitmap a list of ports such "
      "as 0-3,17, or \"none\", or a hexadecimal number after 0x; BITMAP+=PORTS and BITMAP-=PORTS "
      "change it; spTreePort0-3=3,10=2 sets fields of a family. Fields that are not given are "
      "zero, or with --base as they were. @FILE takes the JSON or CSV that decode writes, also "
      "with "
      "--plain or --compact, and gives the same bytes. Its entries must have all fields; with "
      "--base they may lack some, and a value that is that of the base changes nothing. An object "
      "of values alone, such as {\"stg\": 5}, is the same as FIELD=VALUE.",
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
       {Options::encodedFormat, [&to](const Texts& texts) { to.format = formatOf(texts.front()); }},
       {Options::plain, into(to.plain)},
       {Options::compact, into(to.compact)},
       {Options::output, into(to.file)}},
      {"velmar encode VlanEntry --chip BCM56960_A0 valid=1 fidId=100 portBitmap=0-3,17",
       "velmar encode EgrVlan --chip 56980 --base samples/egr-vlan-bcm56980.bin --index 1 "
       "portBitmap+=17 --format hex"},
      [request] { return run(*request); },
      {&to.base.options}};
}

}  // namespace Tool
