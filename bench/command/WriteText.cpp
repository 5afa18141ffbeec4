// Writes the text of "velmar decode VlanEntry --chip BCM56990_B0 --format jsonl" with fmt, from
// values that are already in memory, and reports how long the writing took: the floor of that
// command.
//
// usage: write-text DUMP > TEXT

#include <fmt/format.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <vector>

#include "Velmar/VlanEntry.h"

namespace {

constexpr U32 fields = 15;
constexpr U32 entryBytes = 16;

constexpr const char* names[fields] = {"valid",
                                       "fidId",
                                       "enableIgmpMldSnooping",
                                       "vlanClassId",
                                       "stg",
                                       "vlanProfilePtr",
                                       "membershipProfilePtr",
                                       "portBitmapProfilePtr",
                                       "virtualPortEn",
                                       "learnDisable",
                                       "l2EntryKeyType",
                                       "flexCtrAction",
                                       "uucIdx",
                                       "umcIdx",
                                       "bcIdx"};

struct Entry {
  U32 values[fields];
};

Entry read(U8* bytes) {
  const Velmar::VlanEntry vlan(BCM56990_B0, bytes, entryBytes, false, 0);
  return {{vlan.valid(), vlan.fidId(), vlan.enableIgmpMldSnooping(), vlan.vlanClassId(), vlan.stg(),
           vlan.vlanProfilePtr(), vlan.membershipProfilePtr(), vlan.portBitmapProfilePtr(),
           vlan.virtualPortEn(), vlan.learnDisable(), vlan.l2EntryKeyType(), vlan.flexCtrAction(),
           vlan.uucIdx(), vlan.umcIdx(), vlan.bcIdx()}};
}

std::vector<Entry> readAll(const char* path) {
  std::vector<Entry> entries;
  std::FILE* file = std::fopen(path, "rb");
  if (file == nullptr) return entries;
  U8 bytes[entryBytes];
  while (std::fread(bytes, entryBytes, 1, file) == 1) entries.push_back(read(bytes));
  std::fclose(file);
  return entries;
}

bool flush(fmt::memory_buffer& text) {
  const bool done = ::write(STDOUT_FILENO, text.data(), text.size()) >= 0;
  text.clear();
  return done;
}

bool writeAll(const std::vector<Entry>& entries) {
  constexpr U32 base = 0x0c7c0000;
  constexpr size_t flushSize = 1U << 16;
  fmt::memory_buffer text;
  const auto end = std::back_inserter(text);
  for (U32 index = 0; index < entries.size(); ++index) {
    fmt::format_to(end,
                   R"({{"table":"VlanEntry","chip":"BCM56990_B0","variant":0,"index":{},)"
                   R"("address":"0x{:08x}","accessType":17,"block":1,"fields":{{)",
                   index, base + index);
    for (U32 field = 0; field < fields; ++field) {
      const U32 value = entries[index].values[field];
      fmt::format_to(end, R"({}"{}":{{"hex":"0x{:x}","decimal":{}}})", field == 0 ? "" : ",",
                     names[field], value, value);
    }
    fmt::format_to(end, "}}}}\n");
    if (text.size() >= flushSize && !flush(text)) return false;
  }
  return flush(text);
}

}  // namespace

int main(int count, char** words) {
  const std::vector<Entry> entries = readAll(count > 1 ? words[1] : "");
  const auto start = std::chrono::steady_clock::now();
  const bool done = writeAll(entries);
  const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
  fmt::print(stderr, "{}\n", time.count());
  return done && !entries.empty() ? 0 : 1;
}
