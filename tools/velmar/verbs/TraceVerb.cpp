#include <algorithm>
#include <map>

#include "core/TraceText.h"
#include "core/TraceTime.h"
#include "files/Files.h"
#include "output/Listings.h"
#include "output/SnapshotFolder.h"
#include "verbs/Inputs.h"
#include "verbs/LogLines.h"
#include "verbs/Requests.h"
#include "verbs/Verbs.h"

namespace Tool {
namespace {

struct TraceRequest {
  std::optional<Catalogue::Chip> chip;
  U8 variant = 0;
  std::string log, line, from, until, history, writeState;
  Texts tables, before, where;
  ReadOptions beforeOptions;
  OutputRequest output;
  std::optional<U64> limit;
  bool stat = false, wordsApart = false, unknown = false, explainInput = false, follow = false,
       check = false;
};

/// An entry that --history names.
struct NamedEntry {
  U32 table;
  U32 index;
};

/// A table of the chip.
U32 tableOnChip(const TraceRequest& request, std::string_view name) {
  const U32 table = taken(findTableIndex(name));
  check(checkLayout(Catalogue::table(table), *request.chip, request.variant));
  return table;
}

std::optional<NamedEntry> namedEntry(const TraceRequest& request) {
  if (request.history.empty()) return std::nullopt;
  const size_t colon = request.history.rfind(':');
  if (colon == std::string::npos) {
    fail("--history {}: no index; give TABLE:INDEX, such as vlan:20", inQuotes(request.history));
  }
  const U32 table = tableOnChip(request, request.history.substr(0, colon));
  const U32 count = indexCount(Catalogue::table(table).geometry(request.chip->number));
  const U64 index = numberOf("--history", request.history.substr(colon + 1), count - 1);
  return NamedEntry{table, static_cast<U32>(index)};
}

/// Which transactions are shown.
class TraceFilter {
 public:
  TraceFilter(const TraceRequest& request) : request_(request), entry_(namedEntry(request)) {
    for (const std::string& name : request.tables) tables_.push_back(tableOnChip(request, name));
    from_ = timeOf("--from", request.from);
    until_ = timeOf("--until", request.until);
    if (from_ && until_ && from_->hasFormOf(*until_) && until_->isBefore(*from_)) {
      fail("--until {} is before --from {}; give the earlier time to --from", request.until,
           request.from);
    }
    if (!request.where.empty()) readConditions();
  }

  /// The tables that are named.
  std::vector<U32> tables() const {
    std::vector<U32> tables = tables_;
    if (entry_) tables.push_back(entry_->table);
    return tables;
  }

  /// Whether a transaction comes after the last one that counts; a fault if its time cannot be compared.
  Expected<bool> isPastEnd(const BusLine& transaction) const {
    return until_ ? compare(transaction, "--until", *until_, false) : false;
  }

  Expected<bool> shows(const TraceEvent& event) const {
    if (entry_ &&
        (event.layout == nullptr || event.table != entry_->table || event.index != entry_->index)) {
      return false;
    }
    const bool isOfTable =
        event.layout != nullptr && std::count(tables_.begin(), tables_.end(), event.table) != 0;
    if (!tables_.empty() && !isOfTable) return false;
    if (from_) {
      const Expected<bool> isEarly = compare(*event.bus, "--from", *from_, true);
      if (!isEarly || *isEarly) return isEarly.map([](bool) { return false; });
    }
    return request_.where.empty() || meetsConditions(event);
  }

 private:
  static std::optional<LogTime> timeOf(const char* option, const std::string& text) {
    if (text.empty()) return std::nullopt;
    const std::optional<LogTime> time = LogTime::of(text);
    if (!time) {
      fail("{} {}: not a time; give seconds, hours:minutes:seconds, or a date and these", option,
           inQuotes(text));
    }
    return time;
  }

  /// Whether a transaction is before a time, or after it.
  static Expected<bool> compare(const BusLine& transaction, const char* option,
                                const LogTime& limit, bool isBefore) {
    const std::optional<LogTime> time = LogTime::of(transaction.time);
    if (time && time->hasFormOf(limit)) {
      return isBefore ? time->isBefore(limit) : limit.isBefore(*time);
    }
    return failed(Fault(Code::value,
                        "time {} does not compare with {}; give a time like those of the log",
                        quoted(transaction.time).view(), option)
                      .onLine(transaction.line));
  }

  /// Of each table that has the fields. A fault is of all tables, or not of the names of fields.
  void readConditions() {
    std::optional<Fault> fault;
    for (U32 i = 0; i < Catalogue::tableCount(); ++i) {
      const std::vector<U32> named = tables();
      if (!named.empty() && std::count(named.begin(), named.end(), i) == 0) continue;
      const Catalogue::Table table = Catalogue::table(i);
      if (!table.isOn(request_.chip->number, request_.variant)) continue;
      layouts_.push_back(
          std::make_unique<Layout>(taken(Layout::of(table, *request_.chip, request_.variant))));
      auto selection = Selection::of(*layouts_.back(), request_.where, Condition::Words::ofChanges);
      if (selection) {
        conditions_.emplace(i, std::move(*selection));
        continue;
      }
      const Code code = selection.error().code;
      const bool lacksField =
          code == Code::unknown || code == Code::notOnChip || code == Code::ambiguous;
      if (!lacksField) throw Failure(selection.error(), "--where");
      if (!fault) fault = selection.error();
    }
    if (conditions_.empty() && fault) throw Failure(*fault, "--where");
  }

  bool meetsConditions(const TraceEvent& event) const {
    if (event.after == nullptr) return false;
    const auto found = conditions_.find(event.table);
    return found != conditions_.end() &&
           found->second.fits(event.index, event.after, event.layout->entryBytes(), event.changes);
  }

  const TraceRequest& request_;
  std::optional<NamedEntry> entry_;
  std::vector<U32> tables_;
  std::optional<LogTime> from_, until_;
  std::vector<std::unique_ptr<Layout>> layouts_;  ///< of the conditions
  std::map<U32, Selection> conditions_;           ///< by table
};

/// Counts what was shown, by table.
class ShownCounts {
 public:
  void add(const TraceEvent& event) {
    ++all_;
    if (event.layout == nullptr) {
      ++ofNoTable_;
    } else {
      ++byTable_[event.layout->name()];
    }
  }
  U64 all() const { return all_; }

  /// "3 transactions shown: 2 of VlanEntry, 1 of no table".
  std::string text() const {
    std::string text = formatText("{} transaction{} shown", all_, pluralEnd(all_));
    const char* separator = ": ";
    for (const auto& [table, count] : byTable_) {
      text += formatText("{}{} of {}", separator, count, table);
      separator = ", ";
    }
    if (ofNoTable_ != 0) text += formatText("{}{} of no table", separator, ofNoTable_);
    return text;
  }

 private:
  U64 all_ = 0, ofNoTable_ = 0;
  std::map<std::string_view, U64> byTable_;
};

void note(const std::string& text) {
  std::fprintf(stderr, "velmar: note: %s\n", printable(text).c_str());
}

/// Notes that the times of a log run backwards.
class Clock {
 public:
  void take(const BusLine& transaction) {
    // Most times are texts of one size that ascend.
    const std::string& now = transaction.time;
    const bool ascends = now.size() == last_.size() && now >= last_;
    if (!ascends && isEarlier(now)) {
      if (count_++ == 0) line_ = transaction.line;
    }
    last_ = now;
  }
  void report(const std::string& log) const {
    if (count_ == 0) return;
    const std::string more = count_ > 1 ? formatText(", and {} more times", count_ - 1) : "";
    note(formatText("{}:{}: the time runs backwards here{}", log, line_, more));
  }

 private:
  bool isEarlier(const std::string& text) const {
    const std::optional<LogTime> last = LogTime::of(last_);
    const std::optional<LogTime> now = LogTime::of(text);
    return last && now && now->hasFormOf(*last) && now->isBefore(*last);
  }

  std::string last_;
  U64 line_ = 0, count_ = 0;
};

/// Takes the transactions of a log, and shows those that are asked for.
class TraceRun : private TraceSink {
 public:
  TraceRun(const TraceRequest& request, Output& output)
      : request_(request),
        output_(output),
        filter_(request),
        trace_(*request.chip, request.variant, {filter_.tables(), request.wordsApart},
               [this](const TraceEvent& event) { show(event); }),
        lines_(request.log, request.follow),
        reader_(*this, request.line),
        text_(*request.chip, request.variant) {
    const bool isDocument = !request.stat && request.output.format != Format::table;
    if (isDocument) {
      document_.emplace(output.text(), rowFormatOf(request.output.format), *request.chip,
                        request.variant);
    }
    for (const std::string& text : request.before) know(text);
  }

  int run() {
    std::string_view line;
    for (auto got = lines_.next(line); got != LogLines::Got::end && !isEnough_;
         got = lines_.next(line)) {
      if (got == LogLines::Got::line) check(reader_.take(line));
      if (got == LogLines::Got::quiet) check(reader_.flush());
      if (got == LogLines::Got::line) output_.flushIfLarge();
      if (got != LogLines::Got::line) output_.finish();
    }
    if (!isEnough_) check(reader_.finish());
    if (!isEnough_) trace_.finish();
    check({});
    if (transactions_ == 0) failEmpty();
    finish();
    const bool hasFinding = hasFault_ || unknown_ != 0;
    return request_.check && hasFinding ? exitFinding : exitSuccess;
  }

 private:
  /// Takes the state of a table at the start.
  void know(const std::string& text) {
    const size_t sign = text.find('=');
    if (sign == std::string::npos && Velmar::Files::isFolder(text)) return knowSnapshot(text);
    if (sign == std::string::npos) {
      fail("--before {}: no table; give TABLE=FILE, such as vlan=before.bin", inQuotes(text));
    }
    TableRequest table{taken(findTable(text.substr(0, sign))), request_.chip, request_.variant};
    InputRequest input{text.substr(sign + 1), "", request_.beforeOptions};
    findInSnapshot(input, table);
    knowDump(tableOnChip(request_, table.table->name()), input);
  }

  void knowSnapshot(const std::string& folder) {
    InputRequest input{folder, "", request_.beforeOptions};
    const Snapshot snapshot =
        checkSnapshotOptions(input, {std::nullopt, request_.chip, request_.variant});
    for (const SnapshotDump& dump : snapshot.dumps) {
      input.inSnapshot = dump.file;
      input.options = ReadOptions();
      input.options.notation = dump.notation;
      knowDump(tableOnChip(request_, dump.table.name()), input);
    }
  }

  void knowDump(U32 table, const InputRequest& request) {
    const DumpInput input(request, trace_.layoutOf(table));
    trace_.know(table, input.dump);
  }

  Done takeTransaction(const BusLine& transaction) override {
    if (isEnough_) return {};
    ++transactions_;
    clock_.take(transaction);
    const Expected<bool> isPastEnd = filter_.isPastEnd(transaction);
    if (!isPastEnd) return failed(isPastEnd);
    if (*isPastEnd) {
      trace_.finish();
      isEnough_ = true;
      return {};
    }
    if (request_.explainInput && transactions_ <= mostExplained) explain(transaction);
    trace_.take(transaction);
    return {};
  }

  void takeUnknown(U64 line, std::string_view text) override {
    if (isEnough_) return;
    if (unknown_++ == 0) firstUnknown_ = line;
    if (request_.unknown) {
      note(formatText("{}:{}: no transaction: {}", lines_.name(), line, inQuotes(text)));
    }
  }

  void explain(const BusLine& transaction) const {
    std::string words;
    for (const U32 word : transaction.words) words += formatText(" {:08x}", word);
    note(formatText("{}:{}: shape {}: {}{}, address 0x{:08x}, {} word{}:{}", lines_.name(),
                    transaction.line, reader_.shape()->name,
                    transaction.time.empty() ? "" : "time " + transaction.time + ", ",
                    transaction.isRead ? "read" : "write", transaction.address,
                    transaction.words.size(), pluralEnd(transaction.words.size()), words));
  }

  void show(const TraceEvent& event) {
    if (isLimitMet()) return;
    const Expected<bool> isShown = filter_.shows(event);
    if (!isShown && !fault_) fault_ = isShown.error();
    if (!isShown || !*isShown) return;
    hasFault_ = hasFault_ || event.findings.haveFault();
    shown_.add(event);
    if (request_.stat) {
      counts_.add(event);
    } else if (document_) {
      document_->write(event);
    } else {
      writeLine(event);
    }
    // The state is that after the whole log.
    if (isLimitMet() && request_.writeState.empty()) isEnough_ = true;
  }

  void writeLine(const TraceEvent& event) {
    if (!output_.isTerminal()) return text_.add(output_.text(), event);
    std::string line;
    text_.add(line, event);
    line.pop_back();
    output_.writeLine("", line);
  }

  bool isLimitMet() const { return request_.limit && shown_.all() >= *request_.limit; }

  void check(const Done& done) const {
    if (!done) throw Failure(done.error(), lines_.name());
    if (fault_) throw Failure(*fault_, lines_.name());
  }

  [[noreturn]] void failEmpty() const {
    fail(
        "{}: no line is a bus transaction, such as \"W 0x0c7c0014 01005206 10070801\"; give the "
        "shape of the lines with --line, or see --unknown",
        lines_.name());
  }

  void finish() {
    const Format format = request_.output.format;
    if (request_.stat) {
      write(output_, counts_.listing(), format,
            frameOf("trace-stat", "fields",
                    formatText(R"("chip": "{}", "variant": {})", request_.chip->name,
                               request_.variant)));
    } else if (document_) {
      document_->end();
    } else {
      output_.writeLine("", shown_.text());
    }
    output_.finish();
    if (!request_.writeState.empty()) writeState();
    clock_.report(lines_.name());
    if (unknown_ == 0) return;
    note(formatText("{}: {} line{} no transaction{}, the first is line {}{}", lines_.name(),
                    unknown_, unknown_ == 1 ? " is" : "s are", pluralEnd(unknown_), firstUnknown_,
                    request_.unknown ? "" : "; --unknown shows them"));
  }

  void writeState() {
    const auto state = trace_.state();
    if (state.empty())
      fail("--write-state: no entry is known at the end; check the log with --check");
    Snapshot snapshot;
    snapshot.chip = *request_.chip;
    snapshot.variant = request_.variant;
    std::vector<const Dump*> dumps;
    for (const auto& [layout, dump] : state) {
      snapshot.dumps.push_back({layout->table(), 0, "", Notation::hex});
      dumps.push_back(&dump);
    }
    writeSnapshot(request_.writeState, snapshot, dumps, Format::words);
  }

  static constexpr U64 mostExplained = 5;

  const TraceRequest& request_;
  Output& output_;
  TraceFilter filter_;
  Trace trace_;
  LogLines lines_;
  TraceReader reader_;
  TraceLines text_;
  std::optional<TraceDocument> document_;
  TraceCounts counts_;
  ShownCounts shown_;
  Clock clock_;
  std::optional<Fault> fault_;  ///< of what was to be shown
  bool isEnough_ = false;
  bool hasFault_ = false;
  U64 transactions_ = 0, unknown_ = 0, firstUnknown_ = 0;
};

int run(const TraceRequest& request) {
  if (!request.line.empty()) {
    const std::string wrong = wrongIn(request.line);
    if (!wrong.empty()) fail("--line: {}", wrong);
  }
  if (Velmar::Files::isFolder(request.writeState)) {
    fail("{}: exists already; choose another name, or remove it", request.writeState);
  }
  Output output(request.output.file, request.output.color);
  return TraceRun(request, output).run();
}

}  // namespace

Verb traceVerb() {
  const auto request = std::make_shared<TraceRequest>();
  TraceRequest& to = *request;
  return {
      "trace",
      "Prints what a log of bus transactions did to entries and fields.",
      "A line is a transaction: [TIME] W or R, an address, and the words of the entry, the lowest "
      "first, in hexadecimal. velmar(1) lists the shapes of lines under LOGS; the first line that "
      "has one decides it for all. Lines of no shape are counted. A line may have up to 65536 "
      "characters, a transaction up to 1024 words. Of an entry whose state is not known the fields "
      "that are not zero are shown. In JSON, findings says what is worth looking at.",
      {{Positionals::log, intoOnlyFile(to.log, "log")}},
      {{Options::chip, into(to.chip)},
       {Options::variant, intoVariant(to.variant)},
       {Options::tables, into(to.tables)},
       {Options::eventWhere, into(to.where)},
       {Options::history, into(to.history)},
       {Options::fromTime, into(to.from)},
       {Options::untilTime, into(to.until)},
       {Options::eventLimit, intoLimit(to.limit)},
       {Options::eventStat, into(to.stat)},
       {Options::checkTrace, into(to.check)},
       {Options::follow, into(to.follow)},
       {Options::lineShape, into(to.line)},
       {Options::wordsApart, into(to.wordsApart)},
       {Options::unknown, into(to.unknown)},
       {Options::explainInput, into(to.explainInput)},
       {Options::before, into(to.before)},
       {Options::writeState, into(to.writeState)},
       Options::input,
       Options::hexOrder,
       Options::byteOrder,
       Options::stride,
       Options::first,
       Options::origin,
       {Options::format("text,jsonl,json,csv"), into(to.output.format)},
       {Options::output, into(to.output.file)}},
      {"velmar trace --chip BCM56990_B0 samples/agent-bcm56990.log --limit 3",
       "velmar trace --chip 56990 samples/agent-bcm56990.log --where 'changed stg and stg=7'"},
      [request] { return run(*request); },
      {&to.beforeOptions}};
}

}  // namespace Tool
