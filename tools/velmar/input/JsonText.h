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

 private:
  static constexpr size_t longestChunk = 1U << 20;

  enum class State { outside, array, entries, tail };

  int peek();
  char take();
  void skipBlanks();
  /// Reads the members of an object up to its end; true where it stops after `"entries": [`.
  bool readMembers(std::string& text);
  void readString(std::string& text);
  [[noreturn]] void fail(const char* what) const;

  ByteStream& stream_;
  State state_ = State::outside;
  bool needsComma_ = false;
  U64 line_ = 1;
  U64 chunkLine_ = 1;
};

}  // namespace Tool
