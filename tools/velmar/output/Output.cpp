#include "output/Output.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>

#include "cli/Failure.h"
#include "output/Wrapping.h"

namespace Tool {
namespace {

// What the signal handler removes.
char partialFile[4096];

extern "C" void endQuietly(int signal) {
  if (partialFile[0] != '\0') unlink(partialFile);
  std::signal(signal, SIG_DFL);
  raise(signal);
}

U32 terminalColumns(int descriptor) {
  constexpr U32 usual = 80;
  winsize size{};
  if (ioctl(descriptor, TIOCGWINSZ, &size) == 0 && size.ws_col > 0) return size.ws_col;
  return usual;
}

/// A name beside the file that fits however long the name of the file is.
std::string temporaryName(const std::string& file) {
  return file.substr(0, file.rfind('/') + 1) + ".velmar-XXXXXX";
}

bool wantsColor(const std::string& color, bool terminal) {
  if (color == "always") return true;
  if (color == "never") return false;
  const char* noColor = std::getenv("NO_COLOR");
  if (noColor != nullptr && noColor[0] != '\0') return false;
  const char* kind = std::getenv("TERM");
  return terminal && (kind == nullptr || std::strcmp(kind, "dumb") != 0);
}

const char* escapeOf(Style style) {
  // In the order of the styles.
  constexpr const char* escapes[] = {"", "\033[1m", "\033[2m", "\033[31m", "\033[32m"};
  return escapes[static_cast<size_t>(style)];
}

}  // namespace

Format formatOf(const std::string& name) {
  if (name == "json") return Format::json;
  if (name == "jsonl") return Format::jsonl;
  if (name == "csv") return Format::csv;
  if (name == "hex") return Format::hex;
  if (name == "words") return Format::words;
  if (name == "raw") return Format::raw;
  return Format::table;
}

Output::Output(const std::string& file, const std::string& color)
    : file_(file == "-" ? "" : file), descriptor_(STDOUT_FILENO) {
  if (!file_.empty()) openFile();
  terminal_ = isatty(descriptor_) == 1;
  colored_ = wantsColor(color, terminal_);
  if (terminal_) columns_ = terminalColumns(descriptor_);
}

Output::~Output() {
  if (!partial_.empty()) unlink(partial_.c_str());
  if (descriptor_ != STDOUT_FILENO && descriptor_ >= 0) close(descriptor_);
}

void Output::openFile() {
  struct stat status;
  const bool exists = stat(file_.c_str(), &status) == 0;
  if (!exists && errno != ENOENT) failOpening();
  if (exists) {
    // A link stays a link: the file that it points to is replaced.
    char* target = realpath(file_.c_str(), nullptr);
    if (target == nullptr) failOpening();
    file_ = target;
    std::free(target);
  }
  if (exists && !S_ISREG(status.st_mode)) {
    // A device or pipe cannot be replaced: the text is written to it directly.
    descriptor_ = open(file_.c_str(), O_WRONLY | O_CLOEXEC);
  } else {
    std::string name = temporaryName(file_);
    descriptor_ = mkostemp(name.data(), O_CLOEXEC);
    if (descriptor_ >= 0) {
      partial_ = name;
      // A path that the system takes fits.
      std::strcpy(partialFile, name.c_str());
      const mode_t mask = umask(0);
      umask(mask);
      fchmod(descriptor_, exists ? status.st_mode & 07777 : 0666 & ~mask);
    }
  }
  if (descriptor_ < 0) failOpening();
}

void Output::failOpening() const {
  fail("{}: cannot write: {}; choose another file with -o", file_, std::strerror(errno));
}

void Output::failWriting() const {
  fail("{}: cannot write: {}; make room, or write to another file",
       file_.empty() ? "standard output" : file_, std::strerror(errno));
}

void Output::flush() {
  const char* from = text_.data();
  size_t left = text_.size();
  while (left > 0) {
    const ssize_t written = ::write(descriptor_, from, left);
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) failWriting();
    from += written;
    left -= static_cast<size_t>(written);
  }
  text_.clear();
}

void Output::finish() {
  flush();
  if (file_.empty()) return;
  const bool closed = close(descriptor_) == 0;
  descriptor_ = -1;
  if (!closed) failWriting();
  if (partial_.empty()) return;
  if (rename(partial_.c_str(), file_.c_str()) != 0) failWriting();
  partial_.clear();
  partialFile[0] = '\0';
}

void Output::write(std::string_view piece, Style style) {
  if (!colored_ || style == Style::plain || piece.empty()) return write(piece);
  write(escapeOf(style));
  write(piece);
  write("\033[0m");
}

void Output::writeLine(const std::string& heading, const std::string& rest, size_t indent) {
  const std::string text = heading + rest;
  if (columns_ == 0 || text.size() <= columns_) {
    write(heading, Style::strong);
    write(rest);
    return write("\n");
  }
  // The heading is shorter than any terminal that it is read on.
  std::vector<std::string> lines = wrap(text, columns_ - std::min<size_t>(columns_ - 1, indent));
  const bool isWhole = lines.front().rfind(heading, 0) == 0;
  write(isWhole ? heading : lines.front(), Style::strong);
  if (isWhole) write(lines.front().substr(heading.size()));
  for (size_t i = 1; i < lines.size(); ++i) print("\n{:{}}{}", "", indent, lines[i]);
  write("\n");
}

void installSignalHandlers() {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    // A signal that the caller ignores, as nohup does, stays ignored.
    if (std::signal(signal, endQuietly) == SIG_IGN) std::signal(signal, SIG_IGN);
  }
  std::signal(SIGXFSZ, SIG_IGN);
  // Whoever started the command may have switched this off.
  std::signal(SIGPIPE, SIG_DFL);
}

}  // namespace Tool
