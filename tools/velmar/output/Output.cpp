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
#include <vector>

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

/// The folder of a file, with a slash; empty for the working one.
std::string folderOf(const std::string& file) { return file.substr(0, file.rfind('/') + 1); }

/// Where links lead from a name: to a file that need not exist.
std::string targetOf(std::string file) {
  constexpr int mostLinks = 40;
  std::vector<char> target(4096);
  for (int links = 0; links < mostLinks; ++links) {
    const ssize_t size = readlink(file.c_str(), target.data(), target.size());
    if (size <= 0) break;
    const std::string name(target.data(), static_cast<size_t>(size));
    file = name.front() == '/' ? name : folderOf(file) + name;
  }
  return file;
}

bool isStandardOutput(const struct stat& status) {
  struct stat output;
  return fstat(STDOUT_FILENO, &output) == 0 && output.st_dev == status.st_dev &&
         output.st_ino == status.st_ino;
}

/// No signal comes while it lives.
class SignalsBlocked {
 public:
  SignalsBlocked() {
    sigset_t all;
    sigfillset(&all);
    sigprocmask(SIG_BLOCK, &all, &before_);
  }
  ~SignalsBlocked() { sigprocmask(SIG_SETMASK, &before_, nullptr); }
  SignalsBlocked(const SignalsBlocked&) = delete;
  SignalsBlocked& operator=(const SignalsBlocked&) = delete;

 private:
  sigset_t before_;
};

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
  if (exists && isStandardOutput(status)) {
    // To replace it would lose what was appended to.
    file_.clear();
    return;
  }
  if (exists && !S_ISREG(status.st_mode)) {
    // A device or pipe cannot be replaced: the text is written to it directly.
    descriptor_ = open(file_.c_str(), O_WRONLY | O_CLOEXEC);
    if (descriptor_ < 0) failOpening();
    return;
  }
  // A link stays a link: the file that it leads to is written.
  file_ = targetOf(file_);
  makePartial(exists);
  if (exists) return takeOver(status);
  const mode_t mask = umask(0);
  umask(mask);
  fchmod(descriptor_, 0666 & ~mask);
}

void Output::makePartial(bool exists) {
  // The name fits however long that of the file is.
  std::string name = folderOf(file_) + ".velmar-XXXXXX";
  // A signal finds the whole name, or no file.
  const SignalsBlocked blocked;
  descriptor_ = mkostemp(name.data(), O_CLOEXEC);
  if (descriptor_ < 0 && exists && access(file_.c_str(), W_OK) == 0) failReplacing();
  if (descriptor_ < 0) failOpening();
  partial_ = name;
  // A path that the system takes fits.
  std::strcpy(partialFile, name.c_str());
}

void Output::takeOver(const struct stat& status) const {
  const bool keepsOwner = fchown(descriptor_, status.st_uid, status.st_gid) == 0;
  const bool keepsGroup =
      keepsOwner || fchown(descriptor_, static_cast<uid_t>(-1), status.st_gid) == 0;
  // The set-id bits do not pass to another owner or group.
  mode_t mode = status.st_mode & 07777;
  if (!keepsOwner) mode &= ~static_cast<mode_t>(S_ISUID);
  if (!keepsGroup) mode &= ~static_cast<mode_t>(S_ISGID);
  fchmod(descriptor_, mode);
}

void Output::failOpening() const {
  fail("{}: cannot write: {}; choose another file with -o", file_, std::strerror(errno));
}

void Output::failReplacing() const {
  const std::string folder = folderOf(file_);
  fail(
      "{}: cannot write: {} takes no new file: {}; choose a file elsewhere with -o, or leave out "
      "-o "
      "and redirect the result with >",
      file_, folder.empty() ? "its folder" : folder, std::strerror(errno));
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
  for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT}) {
    // A signal that the caller ignores, as nohup does, stays ignored.
    if (std::signal(signal, endQuietly) == SIG_IGN) std::signal(signal, SIG_IGN);
  }
  std::signal(SIGXFSZ, SIG_IGN);
  // Whoever started the command may have switched this off.
  std::signal(SIGPIPE, endQuietly);
}

}  // namespace Tool
