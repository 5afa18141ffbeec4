#pragma once

#include <chrono>

#include "AsicUtils/Types.h"

namespace Tool {

/// A counter on standard error; it appears on a terminal only, and only after a second.
class Progress {
 public:
  Progress();
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

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
