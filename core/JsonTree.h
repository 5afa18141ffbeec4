#pragma once

#include <rapidjson/document.h>

#include <cstring>
#include <new>

#include "core/Fault.h"

// JSON as trees, parsed in place: names and texts are parts of the text. A header of files that read
// JSON only.

namespace Velmar {
namespace Core {

/// RapidJSON ignores failed allocations; these do not fail.
struct JsonMemory {
  [[maybe_unused]] static constexpr bool kNeedFree = true;
  void* Malloc(size_t size) { return size == 0 ? nullptr : ::operator new(size); }
  void* Realloc(void* memory, size_t old, size_t size) {
    void* const result = Malloc(size);
    if (memory != nullptr && result != nullptr) std::memcpy(result, memory, std::min(old, size));
    Free(memory);
    return result;
  }
  static void Free(void* memory) { ::operator delete(memory); }
};

using JsonPool = rapidjson::MemoryPoolAllocator<JsonMemory>;
using JsonValue = rapidjson::GenericValue<rapidjson::UTF8<>, JsonPool>;
using JsonDocument = rapidjson::GenericDocument<rapidjson::UTF8<>, JsonPool, JsonMemory>;
/// A JSON text, document by document.
class JsonTexts {
 public:
  explicit JsonTexts(std::string_view text) : text_(text), parsed_(text), stream_(parsed_.data()) {}

  /// The first character of the next document; NUL at the end, or for a fault.
  char peek();
  /// Parses the next document, which lives as long as this object.
  Done parse(JsonDocument& document);
  /// A fault if the text goes on after the last document.
  Done checkEnd();
  /// The line on which an object begins that has members, or 1.
  U64 lineOf(const JsonValue& object) const;

 private:
  Fault faultAt(size_t at, const char* what) const;

  std::string_view text_;
  std::string parsed_;  ///< the text, changed in place
  rapidjson::InsituStringStream stream_;
};

std::string_view textOf(const JsonValue& text);
/// A text as it is, any other value as messages show it.
std::string shown(const JsonValue& value);
/// An object has each name once.
Done checkNames(const JsonValue& object);

}  // namespace Core
}  // namespace Velmar
