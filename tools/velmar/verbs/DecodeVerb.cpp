#include <algorithm>
#include <limits>

#include "model/Condition.h"
#include "model/Failure.h"
#include "model/Text.h"
#include "output/EntryWriter.h"
#include "output/Listing.h"
#include "output/Progress.h"
#include "output/ValueText.h"
#include "verbs/Target.h"
#include "verbs/Verbs.h"

namespace Tool {
namespace {

/// The entries to show.
class Selection {
 public:
  Selection(const Arguments& arguments, const Layout& layout)
      : nonzero_(arguments.nonzero), zeros_(layout.entryBytes()), indexes_(indexesOf(arguments)) {
    if (!indexes_.isAll() && !arguments.check) {
      checkIndexes(layout, indexes_, "--index", join(arguments.index, ","));
    }
    for (const std::string& text : arguments.where) conditions_.emplace_back(layout, text);
  }

  bool has(const Entry& entry) const {
    if (!indexes_.has(entry.index)) return false;
    if (nonzero_ && std::equal(zeros_.begin(), zeros_.end(), entry.bytes)) return false;
    return std::all_of(
        conditions_.begin(), conditions_.end(),
        [&entry](const Condition& condition) { return condition.holdsFor(entry.bytes); });
  }
  const IndexSet& indexes() const { return indexes_; }
  bool mayBeEmpty() const { return !indexes_.isAll() || !conditions_.empty(); }

 private:
  bool nonzero_;
  std::vector<U8> zeros_;
  IndexSet indexes_;
  std::vector<Condition> conditions_;
};

std::string onlyFile(const Arguments& arguments) {
  if (arguments.files.size() > 1) {
    fail("more than one dump: {} and {}; give one", arguments.files[0], arguments.files[1]);
  }
  return arguments.files.empty() ? "" : arguments.files.front();
}

/// Goes through the selected entries of a dump.
class Walk {
 public:
  Walk(const Arguments& arguments, const Layout& layout, Output& output)
      : selection_(arguments, layout),
        reader_(openEntries(std::make_unique<ByteStream>(onlyFile(arguments),
                                                         [this, &output] {
                                                           if (selected_ != 0) output.flush();
                                                         }),
                            layout, inputOptionsOf(arguments))),
        limit_(numberOf("--limit", arguments.limit, std::numeric_limits<U32>::max(),
                        std::numeric_limits<U64>::max())),
        progress_(output, reader_->sizeInBytes()) {
    if (limit_ == 0) fail("--limit 0 shows nothing; give 1 or more");
  }

  bool next(Entry& entry) {
    while (selected_ < limit_ && reader_->next(entry)) {
      progress_.step(reader_->bytesTaken());
      if (entry.index > selection_.indexes().last() && reader_->isAscending()) break;
      if (!selection_.has(entry)) continue;
      ++selected_;
      return true;
    }
    return false;
  }

  /// Fails for a document without entries: whoever reads it cannot tell why.
  void checkAny() const {
    if (selected_ == 0 && selection_.mayBeEmpty()) {
      fail("no entry of the dump is selected; check --index and --where");
    }
  }

  /// Notes what the result does not show.
  void report() {
    progress_.clear();
    const std::string unmet = selected_ < limit_ ? selection_.indexes().unmet() : "";
    if (selected_ == 0 && selection_.mayBeEmpty()) {
      std::fprintf(stderr,
                   "velmar: note: no entry of the dump is selected; check --index and --where\n");
    } else if (!unmet.empty()) {
      std::fprintf(stderr, "velmar: note: the dump has no entry with index %s\n", unmet.c_str());
    }
  }

 private:
  Selection selection_;
  U64 selected_ = 0;
  std::unique_ptr<EntryReader> reader_;
  U64 limit_;
  Progress progress_;
};

int decode(const Arguments& arguments, const Layout& layout, Output& output) {
  const std::vector<FieldPlace> fields = fieldsOf(arguments, layout);
  Walk walk(arguments, layout, output);
  const auto writer = makeEntryWriter(output, layout, fields, styleOf(arguments));
  for (Entry entry; walk.next(entry); output.flushIfLarge()) writer->write(entry);
  if (formatOf(arguments.format) == Format::json) walk.checkAny();
  writer->end();
  output.finish();
  walk.report();
  return exitSuccess;
}

/// The reserved bits that are set in an entry, as ranges such as "127:96".
std::vector<std::string> setReservedBits(const Layout& layout, const U8* bytes) {
  std::vector<std::string> ranges;
  const auto isSet = [&](U32 bit) {
    return (layout.reservedMask()[bit / 8] & bytes[bit / 8] & 1U << bit % 8) != 0;
  };
  const U32 bits = 8 * layout.entryBytes();
  for (U32 bit = 0; bit < bits; ++bit) {
    if (!isSet(bit)) continue;
    const U32 first = bit;
    while (bit + 1 < bits && isSet(bit + 1)) ++bit;
    ranges.push_back(first == bit ? formatText("{}", bit) : formatText("{}:{}", bit, first));
  }
  return ranges;
}

/// Prints the findings of --check, each as it is found.
class Findings {
 public:
  Findings(Output& output, const Layout& layout, Format format)
      : output_(output),
        layout_(layout),
        isTable_(format == Format::table),
        rows_(output, format, {"index", "beyondEnd", "bits"},
              frameOf("findings", "findings", sourceJson(layout))) {}

  void examine(const Entry& entry) {
    const std::vector<std::string> bits = setReservedBits(layout_, entry.bytes);
    const bool beyond = entry.index >= layout_.indexCount();
    if (bits.empty() && !beyond) return;
    any_ = true;
    if (isTable_) return printLine(entry.index, beyond, bits);
    rows_.write({entry.index, Cell(beyond).shownAs(beyond ? "true" : "false"), bits});
  }

  void end() { rows_.end(); }
  bool any() const { return any_; }

 private:
  void printLine(U64 index, bool beyond, const std::vector<std::string>& bits) {
    output_.print("{} {}:", layout_.name(), index);
    if (beyond) output_.write(" beyond the end of the table");
    if (beyond && !bits.empty()) output_.write(";");
    if (!bits.empty()) output_.print(" bits outside all fields: {}", join(bits, " "));
    output_.write("\n");
  }

  Output& output_;
  const Layout& layout_;
  bool isTable_;
  RowWriter rows_;
  bool any_ = false;
};

int check(const Arguments& arguments, const Layout& layout, Output& output) {
  Walk walk(arguments, layout, output);
  Findings findings(output, layout, formatOf(arguments.format));
  for (Entry entry; walk.next(entry); output.flushIfLarge()) findings.examine(entry);
  findings.end();
  output.finish();
  walk.report();
  return findings.any() ? exitFinding : exitSuccess;
}

int run(const Arguments& arguments) {
  const Layout layout = layoutOf(arguments);
  Output output(arguments.output, arguments.color);
  return arguments.check ? check(arguments, layout, output) : decode(arguments, layout, output);
}

}  // namespace

Verb decodeVerb() {
  return {"decode",
          "Decodes a dump of a table: address and fields of each entry.",
          "A dump is raw binary (little-endian, entries one after another), hex text (one entry "
          "per line), the output of xxd, or the JSON of this command; the manual page, velmar(1), "
          "lists the notations under INPUT. In hex text, groups of two digits are bytes and groups "
          "of eight are 32-bit words; for anything else give --hex-order. A dump is read as a "
          "stream and may be of any size; a line of text or a JSON entry may have up to 1 MiB.",
          {Positionals::table, Positionals::dump},
          {Options::chip, Options::variant, Options::index, Options::fields, Options::where,
           Options::nonzero, Options::limit, Options::plain, Options::expand, Options::check,
           Options::input, Options::hexOrder, Options::byteOrder, Options::stride, Options::first,
           Options::listFormat, Options::output, Options::color},
          {"velmar decode VlanEntry --chip BCM56990_B0 samples/vlan-bcm56990.bin --where stg=3,4",
           "velmar encode VlanMpls --chip 56980 --index 7 mplsEnable=1 --whole -f raw | velmar "
           "decode VlanMpls --chip 56980 --nonzero --format jsonl -"},
          run};
}

}  // namespace Tool
