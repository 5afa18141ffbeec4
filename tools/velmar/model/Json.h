#pragma once

#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>

#include <cstdlib>
#include <new>

namespace Tool {

/// Memory for JSON. The library takes no notice of its lack, so this does.
struct JsonMemory {
  static constexpr bool kNeedFree = true;
  void* Malloc(size_t size) { return Realloc(nullptr, 0, size); }
  void* Realloc(void* memory, size_t, size_t size) {
    if (size == 0) return Free(memory), nullptr;
    void* const result = std::realloc(memory, size);
    if (result == nullptr) throw std::bad_alloc();
    return result;
  }
  static void Free(void* memory) { std::free(memory); }
};

using JsonPool = rapidjson::MemoryPoolAllocator<JsonMemory>;
using JsonValue = rapidjson::GenericValue<rapidjson::UTF8<>, JsonPool>;
using JsonDocument = rapidjson::GenericDocument<rapidjson::UTF8<>, JsonPool, JsonMemory>;
using JsonBuffer = rapidjson::GenericStringBuffer<rapidjson::UTF8<>, JsonMemory>;

}  // namespace Tool
