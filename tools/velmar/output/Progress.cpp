#include "output/Progress.h"

#include <unistd.h>

#include <cstdio>

namespace Tool {

Progress::Progress(const Output& output, U64 size)
    : enabled_(!output.isTerminal() && isatty(STDERR_FILENO) == 1), size_(size) {
  if (!enabled_) return;
  start_ = Clock::now();
  next_ = start_ + std::chrono::seconds(1);
}

Progress::~Progress() { clear(); }

void Progress::clear() {
  if (shown_) std::fputs("\r\033[K", stderr);
  shown_ = false;
}

void Progress::show(U64 bytes) {
  const Clock::time_point now = Clock::now();
  if (now < next_) return;
  next_ = now + std::chrono::milliseconds(200);
  shown_ = true;
  std::string text = formatText("\r{} entries", count_);
  if (bytes != 0 && bytes <= size_) {
    const double share = static_cast<double>(bytes) / static_cast<double>(size_);
    const double seconds = std::chrono::duration<double>(now - start_).count();
    text += formatText(", {}%, {} s left\033[K", static_cast<U32>(100 * share),
                       static_cast<U64>(seconds / share - seconds));
  }
  std::fputs(text.c_str(), stderr);
}

}  // namespace Tool
