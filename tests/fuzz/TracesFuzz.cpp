// Bytes as a log of bus transactions: each line is of a transaction or is counted as unknown, events fit
// the entries that they are about, and transactions that are written as lines are read as what they were.

#include "Fuzzing.h"
#include "core/TraceText.h"
#include "core/TraceTime.h"

namespace Fuzzing {
namespace {

class Transactions : public Core::TraceSink {
 public:
  Core::Done takeTransaction(const Core::BusLine& transaction) override {
    require(!transaction.words.empty() && transaction.words.size() <= Core::mostWords,
            "a transaction has words", transaction.time);
    Core::LogTime::of(transaction.time);
    all.push_back(transaction);
    return {};
  }
  void takeUnknown(U64, std::string_view) override { ++unknown; }

  std::vector<Core::BusLine> all;
  U64 unknown = 0;
};

/// Reads a text; false if it may be of two shapes.
bool read(const std::string& text, std::string_view shape, Transactions& to) {
  Core::TraceReader reader(to, shape);
  U64 lines = 0;
  for (size_t at = 0; at < text.size(); ++lines) {
    const size_t end = std::min(text.find('\n', at), text.size());
    if (!succeeds(reader.take(std::string_view(text).substr(at, end - at)))) return false;
    at = end + 1;
  }
  require(succeeds(reader.finish()), "the end of a log is no fault");
  require(to.all.size() + to.unknown <= lines, "no line counts twice", text);
  return true;
}

std::string written(const std::vector<Core::BusLine>& transactions) {
  std::string text;
  for (const Core::BusLine& one : transactions) {
    text += Core::formatText("{} 0x{:08x}", one.isRead ? 'R' : 'W', one.address);
    for (const U32 word : one.words) text += Core::formatText(" {:08x}", word);
    text += '\n';
  }
  return text;
}

void requireFitting(const Core::TraceEvent& event) {
  if (event.layout == nullptr || event.after == nullptr) {
    require(event.fields.empty(), "what is no entry has no fields");
    return;
  }
  require(event.index < event.layout->indexCount(), "the table has the entry");
  require(event.layout->addressOf(event.index).address == event.bus->address,
          "the entry has the address");
  require(4 * event.bus->words.size() == event.layout->entryBytes(), "the entry has the words");
}

}  // namespace
}  // namespace Fuzzing

extern "C" int LLVMFuzzerTestOneInput(const U8* data, size_t size) {
  using namespace Fuzzing;
  Input input(data, size);
  const Catalogue::Chip chip = Core::allChips()[input.choose(Core::allChips().size())];
  const bool wordsApart = input.choose(2) != 0;
  const char* const shapes[] = {"", "", "{time} {op} addr={address} data={words}",
                                "{skip}:{address}={words};{len}"};
  const std::string shape = shapes[input.choose(std::size(shapes))];
  require(shape.empty() || Core::wrongIn(shape).empty(), "the shape is right", shape);
  const std::string text = input.rest();
  Core::wrongIn(text);
  Transactions log;
  if (!read(text, shape, log)) return 0;

  std::string shown;
  Core::TraceLines lines(chip, 0);
  Core::TraceDocument document(shown, Core::RowFormat::jsonLines, chip, 0);
  Core::Trace trace(chip, 0, {{}, wordsApart}, [&](const Core::TraceEvent& event) {
    requireFitting(event);
    lines.add(shown, event);
    document.write(event);
  });
  for (const Core::BusLine& transaction : log.all) trace.take(transaction);
  trace.finish();
  for (const auto& [layout, dump] : trace.state()) {
    require(dump.entryBytes() == layout->entryBytes(), "the state has whole entries");
  }

  Transactions again;
  require(read(written(log.all), "", again), "what is written is of one shape");
  require(again.unknown == 0 && again.all.size() == log.all.size(), "what is written is read",
          text);
  for (size_t i = 0; i < log.all.size(); ++i) {
    require(again.all[i].address == log.all[i].address && again.all[i].words == log.all[i].words &&
                again.all[i].isRead == log.all[i].isRead,
            "written and read, the transactions are the same", text);
  }
  return 0;
}
