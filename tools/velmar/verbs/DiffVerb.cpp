#include <algorithm>
#include <cstring>
#include <optional>

#include "model/Failure.h"
#include "model/Families.h"
#include "model/Text.h"
#include "model/Value.h"
#include "output/EntryWriter.h"
#include "output/Listing.h"
#include "output/Progress.h"
#include "output/ValueText.h"
#include "verbs/Target.h"
#include "verbs/Verbs.h"

namespace Tool {
namespace {

/// One of the two dumps, at its next entry.
class Side {
 public:
  Side(const std::string& path, const Layout& layout, const InputOptions& options)
      : path_(path),
        reader_(openEntries(std::make_unique<ByteStream>(path, nullptr), layout, options)) {
    take();
  }

  bool hasEntry() const { return hasEntry_; }
  const Entry& entry() const { return entry_; }
  U64 sizeInBytes() const { return reader_->sizeInBytes(); }
  U64 bytesTaken() const { return reader_->bytesTaken(); }
  void take() {
    const bool checks = hasEntry_ && !reader_->isAscending();
    const U64 last = entry_.index;
    hasEntry_ = reader_->next(entry_);
    if (checks && hasEntry_ && entry_.index <= last) {
      fail("{}: entry {} comes after entry {}; sort the dump by index", path_, entry_.index, last);
    }
  }

 private:
  std::string path_;
  std::unique_ptr<EntryReader> reader_;
  Entry entry_{0, nullptr};
  bool hasEntry_ = false;
};

/// A value in the forms in which differences are printed.
struct ValueForms {
  std::string text;   ///< for people
  std::string plain;  ///< for spreadsheets
  std::string json;
};

/// A field whose values differ; the reserved bits are reported like one.
struct Change {
  std::string name;
  std::string bits;
  ValueForms old, now;
  std::string note;       ///< for a bitmap the ports that were removed and added
  bool isFamily = false;  ///< a member of a family
};

std::string valueText(const FieldPlace& place, const Value& value) {
  if (place.isBitmap()) return value.portRanges();
  const std::optional<U64> number = value.number();
  return number ? formatText("{} ({})", value.hex(), *number) : value.hex();
}

/// The ports of one set that are not in the other.
std::string portsWithout(const Value& value, const Value& other) {
  Value rest = value;
  rest.remove(other);
  return rest.isZero() ? "" : rest.portRanges();
}

class EntryComparison {
 public:
  EntryComparison(const Arguments& arguments, const Layout& layout)
      : layout_(layout),
        groups_(grouped(fieldsOf(arguments, layout), styleOf(arguments).asFamilies)),
        comparesAll_(arguments.fields.empty()) {}

  /// What differs between two entries.
  std::vector<Change> changes(const U8* before, const U8* after) const {
    std::vector<Change> changes;
    const U32 size = layout_.entryBytes();
    for (const FieldGroup& group : groups_) {
      for (const FieldPlace& place : group.members) {
        const Value old = Value::read(place, before, size);
        const Value now = Value::read(place, after, size);
        if (old == now) continue;
        const auto forms = [&](const Value& value, const U8* entry) -> ValueForms {
          return {valueText(place, value), plainText(place, value), valueJson(place, entry, size)};
        };
        changes.push_back({place.name(), place.bits(), forms(old, before), forms(now, after),
                           place.isBitmap() ? portNote(old, now) : "", group.isFamily()});
      }
    }
    if (comparesAll_)
      addReserved(changes, reservedBits(layout_, before), reservedBits(layout_, after));
    return changes;
  }

 private:
  static std::string portNote(const Value& old, const Value& now) {
    const std::string gone = portsWithout(old, now);
    const std::string come = portsWithout(now, old);
    std::string note;
    if (!gone.empty()) note += " -" + gone;
    if (!come.empty()) note += " +" + come;
    return note;
  }

  static void addReserved(std::vector<Change>& changes, const std::string& old,
                          const std::string& now) {
    if (old == now) return;
    const auto forms = [](const std::string& hex) -> ValueForms {
      return {hex, hex, formatText(R"({{"hex":"{}"}})", hex)};
    };
    changes.push_back({"outsideFields", "", forms(old), forms(now), ""});
  }

  const Layout& layout_;
  std::vector<FieldGroup> groups_;
  bool comparesAll_;
};

/// Members of a family that change alike become one change, such as that of "spTreePort0-3".
std::vector<Change> joined(const std::vector<Change>& changes) {
  std::vector<Change> result;
  std::vector<std::vector<U32>> numbers;
  for (const Change& change : changes) {
    const auto isAlike = [&change](const Change& other) {
      return other.isFamily && change.isFamily && other.old.text == change.old.text &&
             other.now.text == change.now.text &&
             numberedName(other.name)->prefix == numberedName(change.name)->prefix;
    };
    const auto found = std::find_if(result.begin(), result.end(), isAlike);
    const size_t at = static_cast<size_t>(found - result.begin());
    if (found == result.end()) {
      result.push_back(change);
      numbers.emplace_back();
    }
    if (change.isFamily) numbers[at].push_back(numberedName(change.name)->number);
  }
  for (size_t i = 0; i < result.size(); ++i) {
    if (numbers[i].size() < 2) continue;
    result[i].name = std::string(numberedName(result[i].name)->prefix) + rangesText(numbers[i]);
    result[i].bits.clear();
  }
  return result;
}

/// How an entry differs, as JSON and CSV say it.
constexpr const char *changed = "changed", *onlyInOld = "only in OLD", *onlyInNew = "only in NEW";

/// Prints differences in one of the formats: as CSV a row per field, otherwise per entry. For people
/// entries that follow each other and are in one dump only share a line.
class Report {
 public:
  Report(Output& output, const Layout& layout, Format format)
      : output_(output),
        layout_(layout),
        format_(format),
        rows_(output, format, columns(format), frameOf("diff", "entries", sourceJson(layout))) {}

  void differs(U64 index, const std::vector<Change>& changes) {
    if (format_ == Format::table) return writeChanges(index, changes);
    if (format_ == Format::csv) {
      for (const Change& change : changes) {
        rows_.write({index, changed, change.name, change.old.plain, change.now.plain});
      }
      return;
    }
    std::string fields;
    for (const Change& change : changes) {
      fields += formatText(R"({}"{}":{{"old":{},"new":{}}})", fields.empty() ? '{' : ',',
                           change.name, change.old.json, change.now.json);
    }
    writeObject(index, changed, Cell::ofJson(fields + "}"));
  }

  /// An entry that one of the dumps does not have.
  void onlyIn(U64 index, const char* change) {
    if (format_ == Format::csv) return rows_.write({index, change});
    if (format_ != Format::table) return writeObject(index, change);
    if (missing_ != change || index != lastMissing_ + 1) {
      endMissing();
      missing_ = change;
      firstMissing_ = index;
    }
    lastMissing_ = index;
  }

  void end() {
    endMissing();
    rows_.end();
  }

 private:
  static std::vector<std::string> columns(Format format) {
    if (format == Format::csv) return {"index", "change", "field", "old", "new"};
    if (format == Format::json) return {"index", "change", "fields"};
    return {"table", "chip", "variant", "index", "change", "fields"};
  }

  void endMissing() {
    if (missing_ == nullptr) return;
    if (firstMissing_ == lastMissing_) {
      writeEntryHead(output_, layout_, firstMissing_);
      output_.print("  {}\n", missing_);
    } else {
      output_.write(formatText("{} {}-{}", layout_.name(), firstMissing_, lastMissing_),
                    Style::strong);
      output_.print("  {} entries {}\n", lastMissing_ - firstMissing_ + 1, missing_);
    }
    missing_ = nullptr;
  }

  void writeChanges(U64 index, const std::vector<Change>& changes) {
    endMissing();
    writeEntryHead(output_, layout_, index);
    for (const Change& change : joined(changes)) {
      output_.print("  {}{}{}  ", change.name, change.bits.empty() ? "" : " ",
                    change.bits.empty() ? "" : "[" + change.bits + "]");
      output_.write(change.old.text, Style::removed);
      output_.write(" -> ");
      output_.write(change.now.text, Style::added);
      output_.print("{}{}\n", change.note.empty() ? "" : " ", change.note);
    }
  }

  template <class... Fields>
  void writeObject(U64 index, const char* change, Fields... fields) {
    Row row;
    if (format_ == Format::jsonl) {
      row = {layout_.name(), layout_.chip().name, U32{layout_.variant()}};
    }
    row.emplace_back(index);
    row.emplace_back(change);
    (row.push_back(std::move(fields)), ...);
    rows_.write(row);
  }

  Output& output_;
  const Layout& layout_;
  Format format_;
  RowWriter rows_;
  const char* missing_ = nullptr;  ///< of a range that is not written yet: in which dump it is
  U64 firstMissing_ = 0;
  U64 lastMissing_ = 0;
};

/// --stat: how many entries differ in each field.
class Statistics {
 public:
  void count(const std::vector<Change>& changes) {
    for (const Change& change : changes) {
      const auto found = std::find_if(counts_.begin(), counts_.end(), [&change](const auto& one) {
        return one.first == change.name;
      });
      if (found == counts_.end()) {
        counts_.emplace_back(change.name, 1);
      } else {
        ++found->second;
      }
    }
  }

  Listing listing() const {
    Listing listing({"field", "entries"});
    for (const auto& [name, count] : counts_) listing.add({name, count});
    return listing;
  }

 private:
  std::vector<std::pair<std::string, U64>> counts_;
};

class Diff {
 public:
  Diff(const Arguments& arguments, const Layout& layout)
      : arguments_(arguments),
        layout_(layout),
        format_(formatOf(arguments.format)),
        selected_(indexesOf(arguments)),
        old_(arguments.files[0], layout, inputOptionsOf(arguments, false)),
        new_(arguments.files[1], layout, inputOptionsOf(arguments, true)),
        comparison_(arguments, layout),
        output_(arguments.output, arguments.color),
        progress_(output_, old_.sizeInBytes()) {
    if (!selected_.isAll()) {
      checkIndexes(layout, selected_, "--index", join(arguments.index, ","));
    }
    const bool reports = !arguments.quiet && !arguments.stat;
    if (reports) report_.emplace(output_, layout, format_);
  }

  int run() {
    while ((old_.hasEntry() || new_.hasEntry()) && !(arguments_.quiet && differing_ != 0)) {
      compareNext();
      progress_.step(old_.bytesTaken());
    }
    const bool isDone = !arguments_.quiet || differing_ == 0;
    if (isDone && compared_ + missing_ == 0) {
      fail("nothing was compared: {}; check {}",
           arguments_.common ? "the dumps have no entry in common"
                             : "no entry has an index in " + selected_.unmet(),
           arguments_.common ? "--old-first and --new-first" : "--index");
    }
    if (isDone && !selected_.unmet().empty()) {
      fail("neither dump has an entry with index {}; check --index", selected_.unmet());
    }
    if (!arguments_.quiet) finish();
    return differing_ + missing_ != 0 ? exitFinding : exitSuccess;
  }

 private:
  void finish() {
    if (report_) {
      report_->end();
    } else {
      statistics_.listing().print(output_, format_,
                                  frameOf("diff-stat", "fields", sourceJson(layout_)));
    }
    if (format_ == Format::table && differing_ + missing_ != 0) {
      if (compared_ != 0) output_.print("{} of {} entries differ\n", differing_, compared_);
      if (missing_ != 0) {
        output_.print("{} {} in one dump only\n", missing_,
                      missing_ == 1 ? "entry is" : "entries are");
      }
    }
    output_.finish();
  }

  void compareNext() {
    const bool takesOld =
        old_.hasEntry() && (!new_.hasEntry() || old_.entry().index <= new_.entry().index);
    const bool takesNew =
        new_.hasEntry() && (!old_.hasEntry() || new_.entry().index <= old_.entry().index);
    const U64 index = takesOld ? old_.entry().index : new_.entry().index;
    if (selected_.has(index)) {
      if (takesOld && takesNew) {
        comparePair(index);
      } else if (!arguments_.common) {
        ++missing_;
        if (report_) report_->onlyIn(index, takesOld ? onlyInOld : onlyInNew);
      }
      output_.flushIfLarge();
    }
    if (takesOld) old_.take();
    if (takesNew) new_.take();
  }

  void comparePair(U64 index) {
    const U8* before = old_.entry().bytes;
    const U8* after = new_.entry().bytes;
    ++compared_;
    if (std::memcmp(before, after, layout_.entryBytes()) == 0) return;
    const std::vector<Change> changes = comparison_.changes(before, after);
    if (changes.empty()) return;
    ++differing_;
    if (report_) report_->differs(index, changes);
    if (arguments_.stat) statistics_.count(changes);
  }

  const Arguments& arguments_;
  const Layout& layout_;
  Format format_;
  IndexSet selected_;
  Side old_;
  Side new_;
  EntryComparison comparison_;
  Output output_;
  std::optional<Report> report_;
  Statistics statistics_;
  Progress progress_;
  U64 compared_ = 0;   ///< entries that both dumps have
  U64 differing_ = 0;  ///< of them
  U64 missing_ = 0;    ///< entries that one dump does not have
};

int run(const Arguments& arguments) {
  const Layout layout = layoutOf(arguments);
  if (arguments.files.size() != 2) {
    fail("{} dump{} given; give two, OLD and NEW", arguments.files.size(),
         arguments.files.size() == 1 ? "" : "s");
  }
  if (arguments.files[0] == "-" && arguments.files[1] == "-") {
    fail("both dumps are standard input; name a file for one of them");
  }
  return Diff(arguments, layout).run();
}

}  // namespace

Verb diffVerb() {
  return {"diff",
          "Prints what changed between two dumps of a table, entry by entry and field by field.",
          "The dumps may be in different formats, with the limits of decode; entries are matched "
          "by their indexes, which must "
          "ascend. Bits outside all fields count too, unless --fields is given. Exit code 1 says "
          "that the dumps differ.",
          {Positionals::table, Positionals::oldAndNew},
          {Options::chip, Options::variant, Options::index, Options::fields, Options::common,
           Options::stat, Options::expand, Options::quiet, Options::input, Options::hexOrder,
           Options::byteOrder, Options::stride, Options::first, Options::listFormat,
           Options::output, Options::color},
          {"velmar diff VlanMpls --chip 56980 <(echo 00000000) <(echo 00000001)",
           "velmar diff VlanStg --chip 56980 samples/vlan-stg-bcm56980.bin <(head -c 96 "
           "samples/vlan-stg-bcm56980.bin) --format jsonl"},
          run};
}

}  // namespace Tool
