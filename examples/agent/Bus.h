#pragma once

#include "Velmar/Entry.h"

/// The way to the chip: one S-channel access moves one whole entry.
class Bus {
 public:
  virtual ~Bus() = default;
  /// False if the chip did not take the entry.
  virtual bool write(const Velmar::EntryAddress& at, Velmar::Words words) = 0;
  /// Fills `count` words; false if the chip did not answer.
  virtual bool read(const Velmar::EntryAddress& at, U32* words, std::size_t count) = 0;
};
