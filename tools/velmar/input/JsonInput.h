#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "input/JsonText.h"
#include "model/EntryBuilder.h"
#include "model/IndexSet.h"

namespace Tool {

/// Reads the JSON that decode writes, and plain objects of field values.
class JsonInput {
 public:
  JsonInput(std::unique_ptr<ByteStream> stream, const Layout& layout, U64 first);

  /// What one object says of an entry.
  struct Object {
    std::optional<U64> index;  ///< absent for a plain object of values
    bool isNumbered = false;   ///< the object itself has the index
    std::vector<Assignment> assignments;
    std::vector<U8> reservedBits;  ///< empty where they are not given
  };

  /// Reads the next object; false at the end.
  bool next(Object& object);
  const ByteStream& stream() const { return *stream_; }
  const std::string& name() const { return stream_->name(); }
  U64 line() const { return text_.line(); }

 private:
  enum class Part {
    entry,
    head,  ///< the members of a document that are not its entries, or none
    end
  };
  enum class List { none, plain, ofDocument };

  Part readPart(JsonDocument& value);
  Part readInList(JsonDocument& value);
  /// Reads the members of an object up to its end; true where it stops at a list of entries.
  bool readMembers(JsonDocument& object);
  void startList(List list);

  std::unique_ptr<ByteStream> stream_;
  JsonText text_;
  JsonPool pool_;  ///< memory for a part
  const Layout& layout_;
  U64 index_;
  SeenIndexes seen_;
  bool isStarted_ = false;
  List list_ = List::none;  ///< the list that is being read
  bool isFirst_ = false;    ///< no entry of it was read
};

}  // namespace Tool
