// Reads dumps of VlanEntry on BCM56990_B0, and prints the indexes of the entries whose group is 7: a loop
// over the columns of the C interface, as the floor of the same question in SQL.
//
// usage: column-loop DUMP...

#include <cstdio>
#include <vector>

#include "velmar.h"

namespace {

std::vector<unsigned char> read(const char* path) {
  std::vector<unsigned char> bytes(size_t{1} << 20);
  std::FILE* const file = std::fopen(path, "rb");
  if (file == nullptr) return {};
  bytes.resize(std::fread(bytes.data(), 1, bytes.size(), file));
  std::fclose(file);
  return bytes;
}

}  // namespace

int main(int count, char** words) {
  constexpr size_t entryBytes = 16;
  const velmar_layout* layout = nullptr;
  uint32_t field = 0;
  if (velmar_find_layout("VlanEntry", "BCM56990_B0", 0, &layout) != VELMAR_OK) return 1;
  if (velmar_find_field(layout, "stg", &field) != VELMAR_OK) return 1;
  std::vector<uint64_t> groups;
  for (int i = 1; i < count; ++i) {
    const std::vector<unsigned char> dump = read(words[i]);
    groups.resize(dump.size() / entryBytes);
    if (velmar_read_column(layout, field, dump.data(), dump.size(), groups.data(), groups.size()) !=
        VELMAR_OK) {
      return 1;
    }
    for (size_t row = 0; row < groups.size(); ++row) {
      if (groups[row] == 7) std::printf("%zu\n", row);
    }
  }
  return 0;
}
