#include "verbs/LogLines.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "cli/Failure.h"
#include "core/TraceLine.h"

namespace Tool {
namespace {

constexpr int tick = 10;  // milliseconds

}  // namespace

LogLines::LogLines(const std::string& path, bool follows)
    : name_(path), descriptor_(STDIN_FILENO), follows_(follows) {
  if (path.empty() || path == "-") {
    name_ = "standard input";
    if (path.empty() && isatty(STDIN_FILENO) == 1) {
      fail("no FILE given, and standard input is a terminal; name a file, or pipe a log into it");
    }
  } else {
    descriptor_ = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor_ < 0) fail("{}: cannot open: {}; check the name", name_, std::strerror(errno));
  }
  struct stat status;
  isFile_ = fstat(descriptor_, &status) == 0 && S_ISREG(status.st_mode);
}

LogLines::~LogLines() {
  if (descriptor_ != STDIN_FILENO && descriptor_ >= 0) close(descriptor_);
}

LogLines::Got LogLines::next(std::string_view& line) {
  while (!takeLine(line)) {
    if (isAtEnd_) return Got::end;
    if (follows_ && !isDrained_) {
      isDrained_ = true;
      return Got::drained;
    }
    if (follows_ && isSilent()) return Got::quiet;
    read();
  }
  isDrained_ = false;
  return Got::line;
}

/// A line that is too long is cut: no reader takes it.
bool LogLines::takeLine(std::string_view& line) {
  const std::string_view rest = std::string_view(text_).substr(at_);
  const size_t end = rest.find('\n', seen_);
  if (end == rest.npos && !(isAtEnd_ && !rest.empty())) {
    seen_ = rest.size();
    return false;
  }
  line = rest.substr(0, std::min(end, longestLine + 1));
  at_ += std::min(end, rest.size() - 1) + 1;
  seen_ = 0;
  return true;
}

/// Whether nothing comes for a tick.
bool LogLines::isSilent() {
  if (isFile_) {
    struct stat status;
    const off_t at = lseek(descriptor_, 0, SEEK_CUR);
    if (fstat(descriptor_, &status) == 0 && at < status.st_size) return false;
    poll(nullptr, 0, tick);
    return true;
  }
  pollfd wanted{descriptor_, POLLIN, 0};
  return poll(&wanted, 1, tick) == 0;
}

void LogLines::read() {
  constexpr size_t piece = size_t{1} << 16;
  // Of a line that is too long only its start is kept, and its end is looked for.
  text_.erase(0, at_);
  at_ = 0;
  if (text_.size() > longestLine) text_.resize(longestLine + 1);
  seen_ = std::min(seen_, text_.size());
  const size_t size = text_.size();
  text_.resize(size + piece);
  ssize_t count = ::read(descriptor_, &text_[size], piece);
  while (count < 0 && errno == EINTR) count = ::read(descriptor_, &text_[size], piece);
  if (count < 0) fail("{}: cannot read: {}; check the file", name_, std::strerror(errno));
  text_.resize(size + static_cast<size_t>(count));
  isAtEnd_ = count == 0;
}

}  // namespace Tool
