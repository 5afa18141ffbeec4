#include "output/Progress.h"

#include <unistd.h>

#include <cstdio>

namespace Tool {

Progress::Progress(const Output& output)
    : enabled_(!output.isTerminal() && isatty(STDERR_FILENO) == 1) {
  if (enabled_) next_ = Clock::now() + std::chrono::seconds(1);
}

Progress::~Progress() { clear(); }

void Progress::clear() {
  if (shown_) std::fputs("\r\033[K", stderr);
  shown_ = false;
}

void Progress::show() {
  const Clock::time_point now = Clock::now();
  if (now < next_) return;
  next_ = now + std::chrono::milliseconds(200);
  shown_ = true;
  std::fprintf(stderr, "\r%llu entries", static_cast<unsigned long long>(count_));
}

}  // namespace Tool
