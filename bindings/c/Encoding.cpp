#include "c/Calls.h"
#include "core/ValuesReading.h"

using namespace Velmar;
using namespace Velmar::Binding;

namespace {

constexpr std::string_view outside = "outsideFields=";

Core::Done encode(const Core::Layout& layout, const std::string& text, Core::EntryBuilder& entry) {
  if (text.compare(0, outside.size(), outside) == 0) {
    const auto bits =
        Core::parseReservedBits(layout, std::string_view(text).substr(outside.size()));
    if (!bits) return failed(bits);
    entry.setReservedBits(*bits);
    return {};
  }
  const auto assignments = Core::parseAssignments(layout, text);
  if (!assignments) return failed(assignments);
  for (const Core::Assignment& each : *assignments) {
    if (const Core::Done done = entry.set(each); !done) return done;
  }
  return {};
}

}  // namespace

velmar_code velmar_encode(const velmar_layout* layout, const char* const* values, size_t count,
                          void* entry, size_t entry_size) {
  if (const auto code = checkPointers({{layout, "the layout"}, {entry, "the entry"}})) return code;
  if (count != 0) {
    if (const auto code = checkPointer(values, "the values")) return code;
  }
  if (const auto code = checkSize("the entry", entry_size, 4U * geometryOf(layout).words))
    return code;
  return allocating([&] {
    const auto own = Core::Layout::of(tableOf(layout), chipOf(layout), 0);
    if (!own) return fail(own.error());
    Core::EntryBuilder builder(*own);
    builder.start(static_cast<const U8*>(entry));
    for (size_t i = 0; i < count; ++i) {
      if (const auto code = checkPointer(values[i], "a value")) return code;
      if (const auto done = encode(*own, values[i], builder); !done) return fail(done.error());
    }
    std::memcpy(entry, builder.bytes().data(), entry_size);
    return VELMAR_OK;
  });
}
