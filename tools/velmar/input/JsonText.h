#pragma once

#include <string>

#include "input/ByteStream.h"
#include "model/Json.h"

namespace Tool {

/// Reads the parts of a JSON document one after another, so that a document of any size is read in
/// bounded memory. Its failures tell line and column.
class JsonText {
 public:
  explicit JsonText(ByteStream& stream) : stream_(stream) {}

  /// The next letter that is not a blank; 0 at the end, and nowhere else.
  char peek();
  /// Takes the next letter that is not a blank, if it is this one.
  bool takeIf(char letter);
  /// Takes it, or fails and says what is expected.
  void expect(char letter, const char* what);
  /// Reads a value. No object in it has a name twice.
  void read(JsonDocument& value);

  /// Begins a new part at the next letter that is not a blank. A part may not be longer than 1 MiB.
  void startPart();
  /// Line on which the part begins.
  U64 line() const { return line_; }
  /// Fails at the next letter.
  [[noreturn]] void fail(const std::string& what) { failAt(at_, what); }

 private:
  static constexpr size_t longestPart = 1U << 20;

  class Source;

  bool readMore();
  [[noreturn]] void tooLong();
  void countLines(size_t end, U64& line, U64& column) const;
  [[noreturn]] void failAt(size_t at, const std::string& what) const;

  ByteStream& stream_;
  size_t at_ = 0;  ///< bytes of the part that were read
  U64 line_ = 1;   ///< where the part begins
  U64 column_ = 1;
};

}  // namespace Tool
