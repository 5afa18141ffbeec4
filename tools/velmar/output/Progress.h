#pragma once

#include <chrono>

#include "AsicUtils/Types.h"
#include "output/Output.h"

namespace Tool {

/// A counter on standard error; it appears on a terminal only, only after a second, and not where the
/// result appears on a terminal too.
class Progress {
 public:
  explicit Progress(const Output& output);
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  /// Removes the counter, so that the line is free for a note.
  void clear();
  /// One more entry is done.
  void step() {
    if ((++count_ & 0xfff) == 0 && enabled_) show();
  }

 private:
  using Clock = std::chrono::steady_clock;

  void show();

  bool enabled_;
  bool shown_ = false;
  U64 count_ = 0;
  Clock::time_point next_;
};

}  // namespace Tool
