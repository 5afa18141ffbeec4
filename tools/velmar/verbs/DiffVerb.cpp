#include <algorithm>

#include "core/Difference.h"
#include "core/Documents.h"
#include "files/Files.h"
#include "output/Entries.h"
#include "output/Listings.h"
#include "verbs/Inputs.h"
#include "verbs/Requests.h"
#include "verbs/Verbs.h"

namespace Tool {
namespace {

namespace Files = Velmar::Files;

struct DiffRequest {
  std::string first;  ///< the table, or the first of two snapshots
  Texts files;
  TableRequest table;
  InputRequest old, now;
  OutputRequest output;
  SelectionRequest entries;
  Texts fields;
  bool common = false, stat = false, expand = false, quiet = false;
};

/// A field that differs, for people.
struct ShownChange {
  const FieldPlace* place;  ///< null: the reserved bits
  std::string old, now;
  std::string note;  ///< for a bitmap the ports that were removed and added
};

std::string valueText(const FieldPlace& place, const Value& value) {
  if (place.isBitmap()) return value.portRanges();
  const std::optional<U64> number = value.number();
  return number ? formatText("{} ({})", value.hex(), *number) : value.hex();
}

/// The ports of one set that are not in the other, after a sign.
std::string portsWithout(const Value& value, const Value& other, const char* sign) {
  Value rest = value;
  rest.remove(other);
  return rest.isZero() ? "" : sign + rest.portRanges();
}

ShownChange shownChange(const Layout& layout, const FieldPlace* place, const EntryChange& change) {
  if (place == nullptr) {
    return {place, reservedBits(layout, change.before), reservedBits(layout, change.after), ""};
  }
  const Value old = Value::read(*place, change.before, layout.entryBytes());
  const Value now = Value::read(*place, change.after, layout.entryBytes());
  ShownChange shown{place, valueText(*place, old), valueText(*place, now), ""};
  if (place->isBitmap()) {
    shown.note = " " + portsWithout(old, now, " -") + portsWithout(now, old, " +");
  }
  return shown;
}

/// Writes differences for people. Entries that follow each other and are in one dump only share a line,
/// and so do members of a family that change alike.
class Report {
 public:
  Report(Output& output, const Layout& layout, bool asFamilies)
      : output_(output), layout_(layout), asFamilies_(asFamilies) {}

  void write(const std::vector<EntryChange>& changes) {
    for (size_t i = 0, end; i < changes.size(); i = end) {
      end = i + 1;
      if (changes[i].kind == EntryChange::Kind::changed) {
        writeChanged(changes[i]);
        continue;
      }
      while (end < changes.size() && changes[end].kind == changes[i].kind &&
             changes[end].index == changes[end - 1].index + 1) {
        ++end;
      }
      writeMissing(changes[i], changes[end - 1].index);
    }
  }

 private:
  void writeMissing(const EntryChange& first, U32 last) {
    if (first.index == last) {
      writeEntryHead(output_, layout_, first.index);
      return output_.print("  {}\n", nameOf(first.kind));
    }
    output_.write(formatText("{} {}-{}", layout_.name(), first.index, last), Style::strong);
    output_.print("  {} entries {}\n", last - first.index + 1, nameOf(first.kind));
  }

  void writeChanged(const EntryChange& change) {
    writeEntryHead(output_, layout_, change.index);
    std::vector<ShownChange> shown;
    for (const FieldPlace* place : change.fields) {
      shown.push_back(shownChange(layout_, place, change));
    }
    const auto areAlike = [&](size_t i, size_t j) {
      const ShownChange& a = shown[i];
      const ShownChange& b = shown[j];
      return asFamilies_ && a.place != nullptr && b.place != nullptr &&
             b.place->isOfFamilyOf(*a.place) && a.old == b.old && a.now == b.now;
    };
    for (const std::vector<size_t>& group : joined(shown.size(), areAlike)) {
      const ShownChange& first = shown[group.front()];
      output_.print("  {}  ", headOf(shown, group));
      output_.write(first.old, Style::removed);
      output_.write(" -> ");
      output_.write(first.now, Style::added);
      output_.print("{}\n", first.note);
    }
    output_.flushIfLarge();
  }

  static std::string headOf(const std::vector<ShownChange>& shown,
                            const std::vector<size_t>& group) {
    const FieldPlace* const first = shown[group.front()].place;
    if (first == nullptr) return nameOf(first);
    if (group.size() == 1) return formatText("{} [{}]", first->name(), first->bits());
    FieldGroup fields;
    for (const size_t i : group) fields.members.push_back(*shown[i].place);
    return fields.name();
  }

  Output& output_;
  const Layout& layout_;
  bool asFamilies_;
};

bool isInSnapshot(const InputRequest& input) { return !input.inSnapshot.empty(); }

void checkCompared(const DiffRequest& request, const Difference& difference) {
  const bool isNothing = difference.compared + difference.missing == 0;
  if (isNothing && (request.entries.nonzero || !request.entries.where.empty())) {
    fail(
        "nothing was compared: no entry of the dumps is selected; check --index, --where and "
        "--nonzero");
  }
  if (isNothing) {
    fail("nothing was compared: {}; check {}",
         request.common ? "the dumps have no entry in common"
                        : "no entry has an index in " + difference.unmet,
         request.common ? "--old-first and --new-first" : "--index");
  }
  if (!difference.unmet.empty()) {
    fail("neither dump has an entry with index {}; check --index", difference.unmet);
  }
}

void print(const DiffRequest& request, const Layout& layout, const Difference& difference,
           Output& output) {
  const Format format = request.output.format;
  const U64 differing = difference.differing;
  const U64 missing = difference.missing;
  if (request.stat) {
    write(output, differenceCounts(difference), format,
          frameOf("diff-stat", "fields", sourceJson(layout)));
  } else if (format == Format::table) {
    Report(output, layout, !request.expand).write(difference.entries);
  } else {
    output.write(differenceText(layout, difference, rowFormatOf(format)));
  }
  if (format != Format::table || differing + missing == 0) return;
  if (difference.compared != 0) {
    output.print("{} of {} entries differ\n", differing, difference.compared);
  }
  if (missing != 0) {
    const bool isUnknown = isInSnapshot(request.old) || isInSnapshot(request.now);
    output.print("{} {} {}\n", missing, missing == 1 ? "entry is" : "entries are",
                 isUnknown ? "unknown in one dump" : "in one dump only");
  }
}

/// The difference of one table.
int runForTable(DiffRequest& request) {
  findInSnapshot(request.old, request.table);
  findInSnapshot(request.now, request.table);
  requireChip(request.table, "--chip");
  const Layout layout = request.table.layout();
  request.entries.index.check(layout, "--index");
  DifferenceOptions options;
  options.fields = fieldsOf(layout, request.fields, request.output.isForPeople());
  options.reservedBits = startFromAll(request.fields);
  options.selection = request.entries.selection(layout);
  options.common = request.common;
  options.isPartial = isInSnapshot(request.old) || isInSnapshot(request.now);
  options.stopsAtFirst = request.quiet;
  std::optional<Output> output;
  if (!request.quiet) output.emplace(request.output.file, request.output.color);
  const DumpInput old(request.old, layout);
  const DumpInput now(request.now, layout);
  const Difference result = difference(layout, old.dump, now.dump, options);
  checkCompared(request, result);
  if (output) {
    print(request, layout, result, *output);
    output->finish();
  }
  return result.entries.empty() ? exitSuccess : exitFinding;
}

/// The difference of all tables of two snapshots.
class SnapshotDifference {
 public:
  explicit SnapshotDifference(const DiffRequest& request)
      : request_(request), old_(snapshotIn(request.old.file)), now_(snapshotIn(request.now.file)) {
    if (old_.chip.number != now_.chip.number || old_.variant != now_.variant) {
      fail("snapshots of {} variant {} and {} variant {}; name a table to translate first",
           old_.chip.name, old_.variant, now_.chip.name, now_.variant);
    }
    if (request.quiet) return;
    output_.emplace(request.output.file, request.output.color);
  }

  int run() {
    for (const SnapshotDump& dump : old_.dumps) {
      const SnapshotDump* const other = pairOf(dump, now_);
      if (other == nullptr) addUnknown(dump, EntryChange::Kind::unknownInNew);
      if (other != nullptr) compare(dump, *other);
      if (isDifferent_ && request_.quiet) return exitFinding;
    }
    for (const SnapshotDump& dump : now_.dumps) {
      if (pairOf(dump, old_) == nullptr) addUnknown(dump, EntryChange::Kind::unknownInOld);
    }
    if (output_) finish();
    return isDifferent_ ? exitFinding : exitSuccess;
  }

 private:
  bool isForPeople() const { return request_.output.isForPeople(); }

  static const SnapshotDump* pairOf(const SnapshotDump& dump, const Snapshot& in) {
    for (const SnapshotDump* other : in.dumpsOf(dump.table)) {
      if (other->identifier == dump.identifier) return other;
    }
    return nullptr;
  }

  static std::string nameOfTable(const SnapshotDump& dump) {
    if (dump.identifier == 0) return dump.table.name();
    return formatText("{} identifier {}", dump.table.name(), dump.identifier);
  }

  /// A table that one snapshot does not have.
  void addUnknown(const SnapshotDump& dump, EntryChange::Kind kind) {
    if (request_.common) return;
    isDifferent_ = true;
    if (!output_) return;
    if (isForPeople()) return output_->print("{}  {}\n", nameOfTable(dump), nameOf(kind));
    rows_.add({dump.table.name(), dump.identifier, nullptr, nameOf(kind)});
  }

  void compare(const SnapshotDump& dump, const SnapshotDump& other) {
    const Layout layout = taken(Layout::of(dump.table, old_.chip, old_.variant));
    DifferenceOptions options;
    options.isPartial = true;
    options.common = request_.common;
    options.stopsAtFirst = request_.quiet;
    const DumpInput old(inputOf(request_.old, dump), layout);
    const DumpInput now(inputOf(request_.now, other), layout);
    const Difference result = difference(layout, old.dump, now.dump, options);
    isDifferent_ = isDifferent_ || !result.entries.empty();
    if (!output_ || result.entries.empty()) return;
    if (!isForPeople()) return addRows(rows_, layout, dump.identifier, result);
    Report(*output_, layout, !request_.expand).write(result.entries);
    output_->print("{}: {} of {} entries differ", nameOfTable(dump), result.differing,
                   result.compared);
    output_->write(result.missing == 0 ? "\n" : formatText(", {} unknown\n", result.missing));
  }

  static InputRequest inputOf(const InputRequest& folder, const SnapshotDump& dump) {
    InputRequest input{folder.file, dump.file, {}};
    input.options.notation = dump.notation;
    return input;
  }

  void finish() {
    if (!isForPeople()) {
      const std::string source =
          formatText("\"chip\": {}, \"variant\": {}", jsonText(old_.chip.name), old_.variant);
      write(*output_, rows_, request_.output.format, frameOf("snapshot-diff", "changes", source));
    }
    output_->finish();
  }

  const DiffRequest& request_;
  const Snapshot old_, now_;
  std::optional<Output> output_;
  Listing rows_{{"table", "identifier", "index", "change", "field", "old", "new"}};
  bool isDifferent_ = false;
};

/// What is asked of the entries of a table needs the table.
void checkAllTables(const DiffRequest& request) {
  const auto refuse = [](bool isGiven, const char* option) {
    if (isGiven) fail("{} is for one table, and none is named; give TABLE before OLD", option);
  };
  refuse(!request.entries.index.typed.empty(), "--index");
  refuse(!request.entries.where.empty(), "--where");
  refuse(request.entries.nonzero, "--nonzero");
  refuse(!request.fields.empty(), "--fields");
  refuse(request.stat, "--stat");
}

int run(DiffRequest& request) {
  Texts& files = request.files;
  const bool namesTable = files.size() > 1 || !Files::isFolder(request.first);
  if (!namesTable) files.insert(files.begin(), request.first);
  if (files.size() != 2) {
    fail("{} dump{} given; give two, OLD and NEW", files.size(), pluralEnd(files.size()));
  }
  if (files[0] == "-" && files[1] == "-") {
    fail("both dumps are standard input; name a file for one of them");
  }
  request.old.file = files[0];
  request.now.file = files[1];
  if (namesTable) {
    request.table.table = taken(findTable(request.first));
    return runForTable(request);
  }
  checkAllTables(request);
  for (const InputRequest* input : {&request.old, &request.now}) {
    checkSnapshotOptions(*input, request.table);
  }
  return SnapshotDifference(request).run();
}

}  // namespace

Verb diffVerb() {
  const auto request = std::make_shared<DiffRequest>();
  DiffRequest& to = *request;
  return {
      "diff",
      "Prints what changed between two dumps of a table, or between two snapshots, entry by entry "
      "and field by field.",
      "The dumps may be in different notations; entries are matched by their indexes. Bits "
      "outside all fields count too, unless --fields names fields. --where and --nonzero select "
      "entries for which they hold in one of the dumps. Entries and tables that a snapshot does "
      "not "
      "have are unknown there. Exit code 1 says that the dumps differ.",
      {{Positionals::tableOfDumps, into(to.first)}, {Positionals::oldAndNew, into(to.files)}},
      {{Options::chipOfDump, into(to.table.chip)},
       {Options::variant, intoVariant(to.table.variant)},
       {Options::index, into(to.entries.index)},
       {Options::fields, into(to.fields)},
       {Options::where, into(to.entries.where)},
       {Options::nonzero, into(to.entries.nonzero)},
       {Options::common, into(to.common)},
       {Options::stat, into(to.stat)},
       {Options::expand, into(to.expand)},
       {Options::quiet, into(to.quiet)},
       Options::input,
       Options::hexOrder,
       Options::byteOrder,
       Options::stride,
       Options::first,
       Options::origin,
       {Options::listFormat, into(to.output.format)},
       {Options::output, into(to.output.file)},
       {Options::color, into(to.output.color)}},
      {"velmar diff VlanMpls --chip 56980 <(echo 00000000) <(echo 00000001)",
       "velmar diff VlanStg --chip 56980 samples/vlan-stg-bcm56980.bin <(head -c 96 "
       "samples/vlan-stg-bcm56980.bin) --format jsonl"},
      [request] { return run(*request); },
      {&to.old.options, &to.now.options}};
}

}  // namespace Tool
