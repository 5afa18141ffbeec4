#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "AsicUtils/Types.h"

namespace Tool {

/// A file or standard input, read in large pieces.
class ByteStream {
 public:
  /// `path` "-" or empty: standard input. `beforeWait` is called before a read that may wait for
  /// more input, so that the result so far can be shown. A read asks for `piece` bytes or more.
  ByteStream(const std::string& path, std::function<void()> beforeWait, size_t piece = 1U << 17);
  /// Text in memory, instead of a file.
  explicit ByteStream(std::string_view text);
  ~ByteStream();
  ByteStream(const ByteStream&) = delete;
  ByteStream& operator=(const ByteStream&) = delete;

  /// What error messages call it.
  const std::string& name() const { return name_; }
  /// Bytes that are left, if the input is a file of known size.
  std::optional<U64> bytesLeftInFile() const;

  /// Bytes of the whole input, if it is a file of known size, otherwise 0.
  U64 sizeInBytes() const {
    const std::optional<U64> left = bytesLeftInFile();
    return left ? *left + bytesTaken_ : 0;
  }
  U64 bytesTaken() const { return bytesTaken_; }

  /// What was read and not yet taken.
  const U8* data() const { return buffer_.data() + begin_; }
  size_t size() const { return end_ - begin_; }
  std::string_view text() const { return {reinterpret_cast<const char*>(data()), size()}; }
  void take(size_t count) {
    begin_ += count;
    bytesTaken_ += count;
  }
  /// Reads more; false at the end of the input.
  bool readMore();
  /// Reads until `count` bytes are there; false where the input ends before.
  bool need(size_t count) {
    while (size() < count) {
      if (!readMore()) return false;
    }
    return true;
  }

 private:
  std::string name_;
  int descriptor_;
  bool mayWait_;
  std::function<void()> beforeWait_;
  size_t piece_;
  std::vector<U8> buffer_;
  size_t begin_ = 0;
  size_t end_ = 0;
  U64 bytesTaken_ = 0;
};

/// The lines of a stream.
class LineReader {
 public:
  /// A line may not be longer.
  static constexpr size_t longestLine = 1U << 20;

  explicit LineReader(ByteStream& stream) : stream_(stream) {}

  /// The next line, without its end; it stays valid until the next call. False at the end.
  bool next(std::string_view& line);
  /// Number of the line that next() gave last, from 1.
  U64 number() const { return number_; }

 private:
  ByteStream& stream_;
  size_t taken_ = 0;
  U64 number_ = 0;
};

}  // namespace Tool
