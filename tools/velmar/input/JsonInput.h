#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "input/JsonText.h"
#include "model/EntryBuilder.h"

namespace Tool {

/// Reads the JSON that decode writes, and plain objects of field values.
class JsonInput {
 public:
  JsonInput(std::unique_ptr<ByteStream> stream, const Layout& layout, U64 first);

  /// What one object says of an entry.
  struct Object {
    std::optional<U64> index;  ///< absent for a plain object of values
    std::vector<Assignment> assignments;
    std::vector<U8> reservedBits;  ///< empty where they are not given
  };

  /// Reads the next object; false at the end.
  bool next(Object& object);
  const std::string& name() const { return stream_->name(); }
  U64 line() const { return text_.line(); }

 private:
  std::unique_ptr<ByteStream> stream_;
  JsonText text_;
  const Layout& layout_;
  U64 index_;
  bool isStarted_ = false;
};

}  // namespace Tool
