// Bytes in every notation: a reader gives a fault with a remedy, or whole entries, the same ones again
// after they are written and read.

#include "Fuzzing.h"
#include "core/Documents.h"
#include "core/Reading.h"

namespace Fuzzing {
namespace {

using Core::Notation;

// JSON is several times slower to read, so it has a program of its own.
#ifdef FUZZ_JSON
constexpr Notation notations[] = {Notation::json, Notation::raw};
#else
constexpr Notation notations[] = {Notation::automatic, Notation::raw, Notation::hex, Notation::xxd,
                                  Notation::hexdump,   Notation::od,  Notation::csv};
#endif

void requireWhole(const Core::Dump& dump, const Core::Layout& layout) {
  require(dump.entryBytes() == layout.entryBytes(), "entries have their size", layout.name());
  require(dump.size() == dump.count() * layout.entryBytes(), "entries are whole", layout.name());
  std::vector<U32> indexes;
  for (size_t i = 0; i < dump.count(); ++i) indexes.push_back(dump.index(i));
  std::sort(indexes.begin(), indexes.end());
  require(std::adjacent_find(indexes.begin(), indexes.end()) == indexes.end(),
          "no index comes twice", layout.name());
}

std::string hexText(const Core::Dump& dump, U32 group) {
  std::string text;
  for (size_t i = 0; i < dump.count(); ++i) {
    text += Core::formatText("{}:", dump.index(i));
    for (U32 at = 0; at < dump.entryBytes(); at += group) {
      text += ' ';
      for (U32 j = group; j-- > 0;) text += Core::formatText("{:02x}", dump.bytes(i)[at + j]);
    }
    text += '\n';
  }
  return text;
}

std::string document(const Core::Dump& dump, const Core::Layout& layout,
                     Core::EntryDocument::Style style) {
  std::string text;
  Core::EntryDocument entries(text, layout, layout.fields(), style);
  for (size_t i = 0; i < dump.count(); ++i) entries.write(dump.index(i), dump.bytes(i));
  entries.end();
  return text;
}

std::string written(const Core::Dump& dump, const Core::Layout& layout, U32 way) {
  const bool isPlain = dump.count() % 2 == 0;
  switch (way) {
    case 0:
      return hexText(dump, 1);
    case 1:
      return hexText(dump, 4);
    case 2:
      return document(dump, layout, {Core::RowFormat::json, isPlain, false});
    case 3:
      return document(dump, layout, {Core::RowFormat::jsonLines, isPlain, true});
    default:
      return document(dump, layout, {Core::RowFormat::csv, false, false});
  }
}

void checkWritten(const Core::Dump& dump, const Core::Layout& layout, U32 way) {
  Core::ReadOptions options;
  options.beyondEnd = true;
  const std::string text = written(dump, layout, way);
  const auto again = Core::readDump(layout, options, text);
  require(again.has_value(), "what is written is read",
          again ? "" : messageOf(again.error()) + "\n" + text);
  require(again->count() == dump.count(), "written and read, no entry is lost", text);
  for (size_t i = 0; i < dump.count(); ++i) {
    require(again->index(i) == dump.index(i), "written and read, the indexes are the same", text);
  }
  require(std::equal(dump.data(), dump.data() + dump.size(), again->data()),
          "written and read, the entries are the same", text);
}

}  // namespace
}  // namespace Fuzzing

extern "C" int LLVMFuzzerTestOneInput(const U8* data, size_t size) {
  using namespace Fuzzing;
  Input input(data, size);
  const Core::Layout& layout = chooseLayout(input);
  Core::ReadOptions options;
  options.beyondEnd = true;
  options.notation = notations[input.choose(std::size(notations))];
  options.hexOrder = static_cast<Core::HexOrder>(input.choose(4));
  const U32 strides[] = {0, layout.entryBytes(), layout.entryBytes() + 3, 128, 1, 65536};
  options.stride = strides[input.choose(std::size(strides))];
  const std::optional<U32> firsts[] = {std::nullopt, 100, 0xffffffff};
  options.first = firsts[input.choose(std::size(firsts))];
  const std::optional<U64> origins[] = {std::nullopt, 0, 0x1000};
  options.origin = origins[input.choose(std::size(origins))];
  const U32 way = input.choose(5);

  const std::string text = input.rest();
  const auto dump = Core::readDump(layout, options, text);
  if (!succeeds(dump)) return 0;
  requireWhole(*dump, layout);
  for (const std::string& note : dump->notes) {
    require(note == Core::printable(note), "a note is one printable line", note);
  }
  // A "*" may stand for a whole table: not all of it is written.
  constexpr size_t most = 64;
  if (dump->count() != 0 && dump->count() <= most) checkWritten(*dump, layout, way);
  return 0;
}
