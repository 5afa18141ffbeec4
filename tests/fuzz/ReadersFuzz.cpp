// Dumps in every format: a reader throws a Failure, or yields whole entries in order, the same ones
// however the input is split into pieces, and again after they are written and read back.

#include <memory>

#include "Fuzzing.h"
#include "input/EntryReader.h"
#include "output/EntryWriter.h"

namespace Fuzzing {
namespace {

// JSON is several times slower to read, so it has a program of its own.
#ifdef FUZZ_JSON
const char* const formats[] = {"json", "raw"};
const Tool::Format writtenAs[] = {Tool::Format::json, Tool::Format::jsonl};
#else
const char* const formats[] = {"auto", "raw", "hex", "xxd"};
const Tool::Format writtenAs[] = {Tool::Format::hex, Tool::Format::words};
#endif

struct Dump {
  std::vector<U64> indexes;
  std::vector<std::vector<U8>> entries;
  std::string failure;
};

/// The contents of standard input. A "*" of xxd may stand for a whole table: not all of it is read.
Dump readDump(const Tool::Layout& layout, Tool::InputOptions options, size_t piece) {
  constexpr size_t most = 16;
  options.beyondEnd = true;
  Dump dump;
  dump.failure = failureOf([&] {
    const auto reader =
        Tool::openEntries(std::make_unique<Tool::ByteStream>("-", nullptr, piece), layout, options);
    for (Tool::Entry entry; dump.entries.size() < most && reader->next(entry);) {
      if (reader->isAscending() && !dump.indexes.empty()) {
        require(entry.index > dump.indexes.back(), "indexes ascend");
      }
      dump.indexes.push_back(entry.index);
      dump.entries.emplace_back(entry.bytes, entry.bytes + layout.entryBytes());
    }
  });
  return dump;
}

void printHex(Tool::Output& output, const Dump& dump, U32 group) {
  for (size_t i = 0; i < dump.entries.size(); ++i) {
    output.print("{}:", dump.indexes[i]);
    for (size_t at = 0; at < dump.entries[i].size(); at += group) {
      output.write(" ");
      for (U32 j = group; j-- > 0;) output.print("{:02x}", dump.entries[i][at + j]);
    }
    output.write("\n");
  }
}

void printJson(Tool::Output& output, const Dump& dump, const Tool::Layout& layout,
               Tool::Format format) {
  const auto writer = Tool::makeEntryWriter(output, layout, layout.fields(), {format, dump.entries.size() % 2 == 0, true});
  for (size_t i = 0; i < dump.entries.size(); ++i) {
    writer->write({dump.indexes[i], dump.entries[i].data()});
  }
  writer->end();
}

void checkWritten(const Dump& dump, const Tool::Layout& layout, Tool::Format format) {
  MemoryPipe::clear();
  Tool::Output output("", "never");
  if (format == Tool::Format::hex)
    printHex(output, dump, 1);
  else if (format == Tool::Format::words)
    printHex(output, dump, 4);
  else
    printJson(output, dump, layout, format);
  output.finish();
  MemoryPipe::rewind();
  const Dump again = readDump(layout, {}, 4096);
  require(again.failure.empty(), "what is written is read", again.failure);
  require(again.indexes == dump.indexes, "written and read, the indexes are the same");
  require(again.entries == dump.entries, "written and read, the entries are the same");
}

}  // namespace
}  // namespace Fuzzing

extern "C" int LLVMFuzzerTestOneInput(const U8* data, size_t size) {
  using namespace Fuzzing;
  Input input(data, size);
  const Tool::Layout& layout = chooseLayout(input);
  Tool::InputOptions options;
  options.format = formats[input.choose(std::size(formats))];
  options.hexOrder = static_cast<Tool::HexOrder>(input.choose(4));
  const U32 strides[] = {0, layout.entryBytes(), layout.entryBytes() + 3, 128, 1, 65536};
  options.stride = strides[input.choose(std::size(strides))];
  const U64 firsts[] = {0, 100, 0xffffffff};
  options.first = firsts[input.choose(std::size(firsts))];
  const size_t pieces[] = {7, 64, 4096};
  const size_t piece = pieces[input.choose(std::size(pieces))];
  const U32 then = input.choose(4);

  MemoryPipe::fill(input.rest());
  const Dump dump = readDump(layout, options, piece);
  if (then == 1) {
    MemoryPipe::rewind();
    const Dump again = readDump(layout, options, piece == 7 ? 4096 : 7);
    require(again.failure == dump.failure, "failures do not depend on pieces", again.failure);
    require(again.entries == dump.entries, "entries do not depend on pieces");
  } else if (then > 1 && !dump.entries.empty()) {
    checkWritten(dump, layout, writtenAs[then - 2]);
  }
  return 0;
}
