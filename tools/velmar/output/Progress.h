#pragma once

#include <chrono>

#include "AsicUtils/Types.h"
#include "output/Output.h"

namespace Tool {

/// A counter on standard error; it appears on a terminal only, only after a second, and not where the
/// result appears on a terminal too.
class Progress {
 public:
  /// `size`: the bytes that are to be read; 0 where that is not known.
  explicit Progress(const Output& output, U64 size = 0);
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  /// Removes the counter, so that the line is free for a note.
  void clear();
  /// One more entry is done; so many bytes were read.
  void step(U64 bytes = 0) {
    if ((++count_ & 0xfff) == 0 && enabled_) show(bytes);
  }

 private:
  using Clock = std::chrono::steady_clock;

  void show(U64 bytes);

  bool enabled_;
  U64 size_;
  bool shown_ = false;
  U64 count_ = 0;
  Clock::time_point start_;
  Clock::time_point next_;
};

}  // namespace Tool
