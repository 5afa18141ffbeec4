#include <cstring>

#include "model/Failure.h"
#include "model/IndexSet.h"
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
  std::string note;  ///< for a bitmap the ports that were removed and added
};

std::string valueText(const FieldPlace& place, const Value& value) {
  if (place.isBitmap()) return value.portRanges();
  const std::optional<U64> number = value.number();
  return number ? formatText("{} ({})", value.hex(), *number) : value.hex();
}

/// The ports of one set that are not in the other.
std::string portsWithout(const Value& value, const Value& other) {
  const Oru::PerUnitBitmap ports = value.ports();
  const Oru::PerUnitBitmap others = other.ports();
  Oru::PerUnitBitmap rest;
  for (const U32 port : ports) {
    if (!others.test(port)) rest.set(port);
  }
  return rest.ranges().c_str();
}

class EntryComparison {
 public:
  EntryComparison(const Arguments& arguments, const Layout& layout)
      : layout_(layout),
        fields_(fieldsOf(arguments, layout)),
        comparesAll_(arguments.fields.empty()) {}

  /// What differs between two entries.
  std::vector<Change> changes(const U8* before, const U8* after) const {
    std::vector<Change> changes;
    const U32 size = layout_.entryBytes();
    for (const FieldPlace& place : fields_) {
      const Value old = Value::read(place, before, size);
      const Value now = Value::read(place, after, size);
      if (old == now) continue;
      const auto forms = [&](const Value& value, const U8* entry) -> ValueForms {
        return {valueText(place, value), plainText(place, value), valueJson(place, entry, size)};
      };
      changes.push_back({place.name(), place.bits(), forms(old, before), forms(now, after),
                         place.isBitmap() ? portNote(old, now) : ""});
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
  std::vector<FieldPlace> fields_;
  bool comparesAll_;
};

/// Prints differences in one of the formats: as CSV a row per field, otherwise per entry.
class Report {
 public:
  Report(Output& output, const Layout& layout, Format format)
      : output_(output),
        layout_(layout),
        format_(format),
        rows_(output, format, columns(format), {"[", "]", ""}) {}

  void changed(U64 index, const std::vector<Change>& changes) {
    if (format_ == Format::table) return changedTable(index, changes);
    if (format_ == Format::csv) {
      for (const Change& change : changes) {
        rows_.write({index, "changed", change.name, change.old.plain, change.now.plain});
      }
      return;
    }
    std::string fields;
    for (const Change& change : changes) {
      fields += formatText(R"({}"{}":{{"old":{},"new":{}}})", fields.empty() ? '{' : ',',
                           change.name, change.old.json, change.now.json);
    }
    writeObject(index, "changed", Cell::ofJson(fields + "}"));
  }

  /// An entry that one of the dumps does not have.
  void onlyIn(U64 index, const char* change) {
    if (format_ == Format::table) {
      writeEntryHead(output_, layout_, index);
      output_.print("  {}\n", change);
    } else if (format_ == Format::csv) {
      rows_.write({index, change});
    } else {
      writeObject(index, change);
    }
  }

  void end(U64 differing, U64 compared) {
    rows_.end();
    if (format_ == Format::table && differing != 0) {
      output_.print("{} of {} entries differ\n", differing, compared);
    }
  }

 private:
  static std::vector<std::string> columns(Format format) {
    if (format == Format::csv) return {"index", "change", "field", "old", "new"};
    return {"table", "chip", "variant", "index", "change", "fields"};
  }

  void changedTable(U64 index, const std::vector<Change>& changes) {
    writeEntryHead(output_, layout_, index);
    for (const Change& change : changes) {
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
    rows_.write({layout_.name(), layout_.chip().name, U32{layout_.variant()}, index, change,
                 std::move(fields)...});
  }

  Output& output_;
  const Layout& layout_;
  Format format_;
  RowWriter rows_;
};

class Diff {
 public:
  Diff(const Arguments& arguments, const Layout& layout)
      : layout_(layout),
        quiet_(arguments.quiet),
        old_(arguments.files[0], layout, inputOptionsOf(arguments)),
        new_(arguments.files[1], layout, inputOptionsOf(arguments)),
        comparison_(arguments, layout),
        output_(arguments.output, arguments.color),
        report_(output_, layout, formatOf(arguments.format)),
        index_(arguments.index),
        progress_(output_) {
    if (!index_.empty()) selected_ = IndexSet(index_);
    hasCompared_ = selected_.isAll();
  }

  int run() {
    while ((old_.hasEntry() || new_.hasEntry()) && !(quiet_ && differing_ != 0)) {
      compareNext();
      ++compared_;
      progress_.step();
    }
    if (!hasCompared_) {
      fail("nothing was compared: no entry has an index in {}; check --index", index_);
    }
    if (quiet_) return differing_ != 0 ? exitFinding : exitSuccess;
    report_.end(differing_, compared_);
    output_.finish();
    return differing_ != 0 ? exitFinding : exitSuccess;
  }

 private:
  void compareNext() {
    const bool takesOld =
        old_.hasEntry() && (!new_.hasEntry() || old_.entry().index <= new_.entry().index);
    const bool takesNew =
        new_.hasEntry() && (!old_.hasEntry() || new_.entry().index <= old_.entry().index);
    const U64 index = takesOld ? old_.entry().index : new_.entry().index;
    hasCompared_ = hasCompared_ || selected_.has(index);
    if (takesOld && takesNew) {
      comparePair();
    } else {
      if (selected_.has(index)) reportOnlyIn(index, takesOld ? "only in OLD" : "only in NEW");
    }
    if (takesOld) old_.take();
    if (takesNew) new_.take();
  }

  void comparePair() {
    const U8* before = old_.entry().bytes;
    const U8* after = new_.entry().bytes;
    if (std::memcmp(before, after, layout_.entryBytes()) == 0) return;
    const U64 index = old_.entry().index;
    if (!selected_.has(index)) return;
    const std::vector<Change> changes = comparison_.changes(before, after);
    if (changes.empty()) return;
    ++differing_;
    if (quiet_) return;
    report_.changed(index, changes);
    output_.flushIfLarge();
  }

  void reportOnlyIn(U64 index, const char* change) {
    ++differing_;
    if (quiet_) return;
    report_.onlyIn(index, change);
    output_.flushIfLarge();
  }

  const Layout& layout_;
  bool quiet_;
  Side old_;
  Side new_;
  EntryComparison comparison_;
  Output output_;
  Report report_;
  const std::string& index_;
  IndexSet selected_;
  Progress progress_;
  U64 differing_ = 0;
  U64 compared_ = 0;
  bool hasCompared_ = false;  ///< where --index is given: an entry that it selects
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
          {Options::chip, Options::variant, Options::index, Options::fields, Options::quiet,
           Options::input, Options::hexOrder, Options::byteOrder, Options::stride, Options::first,
           Options::listFormat, Options::output, Options::color},
          {"velmar diff VlanMpls --chip 56980 <(echo 00000000) <(echo 00000001)",
           "velmar diff VlanEntry --chip 56990_B0 <(velmar encode vlan --chip 56990_B0 stg=1) "
           "<(velmar encode vlan --chip 56990_B0 stg=2) --format jsonl"},
          run};
}

}  // namespace Tool
