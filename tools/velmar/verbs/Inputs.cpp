#include "verbs/Inputs.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include "cli/Failure.h"

namespace Tool {

Input::Input(const std::string& path) : name_(path) {
  if (path.empty() || path == "-") {
    name_ = "standard input";
    if (path.empty() && isatty(STDIN_FILENO) == 1) {
      fail("no FILE given, and standard input is a terminal; name a file, or pipe a dump into it");
    }
    read(STDIN_FILENO);
    return;
  }
  const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (descriptor < 0) fail("{}: cannot open: {}; check the name", name_, std::strerror(errno));
  read(descriptor);
  close(descriptor);
}

void Input::read(int descriptor) {
  constexpr size_t piece = size_t{1} << 16;
  struct stat status;
  const bool isFile = fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
  const size_t expected = isFile ? static_cast<size_t>(status.st_size) : 0;
  if (expected > longestInput) {
    fail("{}: {} bytes, more than {} MiB; give the dump of one table", name_, expected,
         longestInput >> 20);
  }
  // One byte more, so that the end is found without another piece.
  bytes_.resize(expected == 0 ? piece : expected + 1);
  size_t size = 0;
  for (;;) {
    const ssize_t count = ::read(descriptor, bytes_.data() + size, bytes_.size() - size);
    if (count == 0) break;
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) fail("{}: cannot read: {}; check the file", name_, std::strerror(errno));
    size += static_cast<size_t>(count);
    if (size > longestInput) {
      fail("{}: more than {} MiB; give the dump of one table", name_, longestInput >> 20);
    }
    if (size == bytes_.size()) bytes_.resize(size + std::max(piece, size / 2));
  }
  bytes_.resize(size);
}

DumpInput::DumpInput(const std::string& path, const Layout& layout, const ReadOptions& options)
    : input(path), dump(taken(readDump(layout, options, input.bytes()), input.name())) {
  for (const std::string& note : dump.notes) {
    std::fprintf(stderr, "velmar: note: %s: %s\n", printable(input.name()).c_str(),
                 printable(note).c_str());
  }
}

}  // namespace Tool
