#include "input/ByteStream.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "model/Failure.h"

namespace Tool {
namespace {

bool isFile(int descriptor) {
  struct stat status;
  return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

constexpr int noDescriptor = -1;

bool isReady(int descriptor) {
  pollfd query{descriptor, POLLIN, 0};
  return poll(&query, 1, 0) == 1;
}

}  // namespace

ByteStream::ByteStream(const std::string& path, std::function<void()> beforeWait, size_t piece)
    : name_(path), descriptor_(STDIN_FILENO), beforeWait_(std::move(beforeWait)), piece_(piece) {
  if (path.empty() || path == "-") {
    name_ = "standard input";
    if (path.empty() && isatty(STDIN_FILENO) == 1) {
      fail("no FILE given, and standard input is a terminal; name a file, or pipe a dump into it");
    }
  } else {
    descriptor_ = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor_ < 0) {
      fail("{}: cannot open: {}; check the name", name_, std::strerror(errno));
    }
  }
  mayWait_ = !isFile(descriptor_);
}

ByteStream::ByteStream(std::string_view text)
    : name_("the dump"),
      descriptor_(noDescriptor),
      mayWait_(false),
      piece_(0),
      buffer_(text.begin(), text.end()),
      end_(text.size()) {}

ByteStream::~ByteStream() {
  if (descriptor_ > STDIN_FILENO) close(descriptor_);
}

std::optional<U64> ByteStream::bytesLeftInFile() const {
  struct stat status;
  if (fstat(descriptor_, &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
  const off_t position = lseek(descriptor_, 0, SEEK_CUR);
  if (position < 0 || position > status.st_size) return std::nullopt;
  // Some system files report a size of 0 although they have contents.
  if (status.st_size == 0) return std::nullopt;
  return static_cast<U64>(status.st_size - position) + size();
}

bool ByteStream::readMore() {
  if (descriptor_ == noDescriptor) return false;
  if (begin_ > 0) {
    std::memmove(buffer_.data(), buffer_.data() + begin_, size());
    end_ -= begin_;
    begin_ = 0;
  }
  if (buffer_.size() - end_ < piece_) buffer_.resize(end_ + piece_);
  if (mayWait_ && beforeWait_ && !isReady(descriptor_)) beforeWait_();
  for (;;) {
    const ssize_t count = read(descriptor_, buffer_.data() + end_, buffer_.size() - end_);
    if (count > 0) {
      end_ += static_cast<size_t>(count);
      return true;
    }
    if (count == 0) return false;
    if (errno != EINTR) {
      fail("{}: cannot read: {}; check the file", name_, std::strerror(errno));
    }
  }
}

bool LineReader::next(std::string_view& line) {
  stream_.take(taken_);
  ++number_;
  size_t searched = 0;
  for (;;) {
    const std::string_view text = stream_.text();
    const size_t end = text.find('\n', searched);
    if (end != std::string_view::npos && end <= longestLine) {
      line = text.substr(0, end);
      taken_ = end + 1;
      return true;
    }
    if (text.size() > longestLine) {
      fail("{}:{}: line longer than {} bytes; break it into shorter ones", stream_.name(), number_,
           longestLine);
    }
    searched = text.size();
    if (stream_.readMore()) continue;
    line = stream_.text();
    taken_ = line.size();
    return !line.empty();
  }
}

}  // namespace Tool
