#include "files/Files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace Velmar {
namespace Files {

using Core::Code;
using Core::failed;
using Core::Fault;

namespace {

/// An open file, closed at the end.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() { close(); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  bool isOpen() const { return number_ >= 0; }
  int number() const { return number_; }
  void replace(int number) {
    close();
    number_ = number;
  }

 private:
  void close() const {
    const int error = errno;
    if (isOpen()) ::close(number_);
    errno = error;
  }

  int number_;
};

Fault cannotOpen() {
  return Fault(Code::input, "cannot open: {}; check the name", std::strerror(errno));
}

}  // namespace

Expected<std::string> readAll(int descriptor) {
  constexpr size_t piece = size_t{1} << 16;
  struct stat status;
  const bool isFile = fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
  const size_t expected = isFile ? static_cast<size_t>(status.st_size) : 0;
  if (expected > Core::longestInput) {
    return failed(Fault(Code::input, "{} bytes, more than {} MiB; give the dump of one table",
                        expected, Core::longestInput >> 20));
  }
  // One byte more, so that the end is found without another piece.
  std::string bytes(expected == 0 ? piece : expected + 1, '\0');
  size_t size = 0;
  for (;;) {
    const ssize_t count = ::read(descriptor, bytes.data() + size, bytes.size() - size);
    if (count == 0) break;
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) {
      return failed(Fault(Code::input, "cannot read: {}; check the file", std::strerror(errno)));
    }
    size += static_cast<size_t>(count);
    if (size > Core::longestInput) {
      return failed(Fault(Code::input, "more than {} MiB; give the dump of one table",
                          Core::longestInput >> 20));
    }
    if (size == bytes.size()) bytes.resize(size + std::max(piece, size / 2));
  }
  bytes.resize(size);
  return bytes;
}

Expected<std::string> readFile(const std::string& path) {
  const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (!file.isOpen()) return failed(cannotOpen());
  return readAll(file.number());
}

bool exists(const std::string& path) { return access(path.c_str(), F_OK) == 0; }

bool isFolder(const std::string& path) {
  struct stat status;
  return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

std::string pathIn(const std::string& folder, const std::string& file) {
  return folder.back() == '/' ? folder + file : folder + '/' + file;
}

Expected<std::string> readInside(const std::string& folder, const std::string& file) {
  Descriptor at(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  for (size_t begin = 0; at.isOpen() && begin < file.size();) {
    const size_t end = std::min(file.find('/', begin), file.size());
    const int kind = end < file.size() ? O_DIRECTORY : O_NONBLOCK;
    at.replace(openat(at.number(), file.substr(begin, end - begin).c_str(),
                      O_RDONLY | O_CLOEXEC | O_NOFOLLOW | kind));
    begin = end + 1;
  }
  if (!at.isOpen() && errno == ELOOP) {
    return failed(Fault(Code::input, "a link; put the file itself into the folder"));
  }
  if (!at.isOpen()) return failed(cannotOpen());
  struct stat status;
  if (fstat(at.number(), &status) != 0 || !S_ISREG(status.st_mode)) {
    return failed(Fault(Code::input, "not a file; put a dump into the folder"));
  }
  return readAll(at.number());
}

Expected<Core::Snapshot> readManifest(const std::string& folder) {
  Expected<std::string> text = readInside(folder, Core::manifestName);
  if (!text) return failed(text.error().advise("give a dump, or the folder of a snapshot"));
  return Core::readSnapshot(*text);
}

}  // namespace Files
}  // namespace Velmar
