#pragma once

#include <algorithm>

#include "Bus.h"
#include "Velmar/Testing/SchanMemory.h"

/// A chip without a chip: the bus of tests and of the demonstration.
class MemoryBus : public Bus {
 public:
  explicit MemoryBus(ChipType_ chip) : memory(chip) {}

  bool write(const Velmar::EntryAddress& at, Velmar::Words words) override {
    return memory.write(at.address, at.accessType, words);
  }
  bool read(const Velmar::EntryAddress& at, U32* words, std::size_t count) override {
    const Velmar::Testing::EntryWords entry = memory.read(at.address, at.accessType);
    std::copy_n(entry.begin(), std::min(count, entry.size()), words);
    return count == entry.size();
  }

  Velmar::Testing::SchanMemory memory;
};
