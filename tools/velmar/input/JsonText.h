#pragma once

#include <string>

#include "input/ByteStream.h"

namespace Tool {

/// Splits a stream of JSON into the objects of single entries, so that a document of any size is read
/// in bounded memory. It takes objects one after another, arrays of objects, and documents with an
/// array "entries".
class JsonText {
 public:
  explicit JsonText(ByteStream& stream) : stream_(stream) {}

  enum class Chunk {
    entry,  ///< an object
    head,   ///< an object with the members of a document that are not its entries
    end
  };
  /// Reads the next chunk.
  Chunk next(std::string& text);
  /// Line on which the last chunk began.
  U64 line() const { return chunkLine_; }
  /// Number of the colons outside texts in the last chunk: one for each name.
  size_t names() const { return names_; }
  /// Fails with the place of a letter of the last chunk.
  [[noreturn]] void failAt(const std::string& text, size_t at, const std::string& what) const;

 private:
  static constexpr size_t longestChunk = 1U << 20;

  enum class State { outside, array, entries, tail };

  int peek();
  char take();
  void skipBlanks();
  void startChunk();
  /// Reads the members of an object up to its end; true where it stops after `"entries": [`.
  bool readMembers(std::string& text);
  void readString(std::string& text);
  [[noreturn]] void fail(const char* what) const;

  ByteStream& stream_;
  State state_ = State::outside;
  bool needsComma_ = false;
  bool needsEntry_ = false;  ///< a comma was read, and an entry must follow
  size_t names_ = 0;
  U64 line_ = 1;
  U64 column_ = 1;
  U64 chunkLine_ = 1;
  U64 chunkColumn_ = 1;
};

}  // namespace Tool
