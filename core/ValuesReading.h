#pragma once

#include <functional>

#include "core/Reading.h"

// Documents of entries: JSON and CSV as decode writes them.

namespace Velmar {
namespace Core {

/// Takes an entry as soon as it is read: a document of any size needs little memory.
using EntrySink = std::function<Done(EntryValues& entry)>;

Done readJson(const Layout& layout, std::string_view text, U32 first, const EntrySink& sink);
Done readCsv(const Layout& layout, std::string_view text, const EntrySink& sink);

/// Makes the bytes of entries from the values of their fields.
class EntryMaker {
 public:
  explicit EntryMaker(const Layout& layout) : layout_(layout), builder_(layout) {}

  void start() { builder_.startFromZero(); }
  Done set(const FieldPlace& place, const Value& value, EntryValues& entry) {
    if (!builder_.isGiven(place)) {
      entry.fields.push_back(static_cast<U8>(layout_.positionOf(place)));
    }
    return builder_.set(place, value);
  }
  void finish(EntryValues& entry) { entry.bytes = builder_.bytes(); }

 private:
  const Layout& layout_;
  EntryBuilder builder_;
};

/// Whether the first line of a text is the head of a CSV document of entries.
bool isCsv(std::string_view text);

/// The bits outside all fields, from the hexadecimal number of a whole entry.
Expected<std::vector<U8>> parseReservedBits(const Layout& layout, std::string_view text);
/// The address of an entry follows from its index.
Done checkAddress(const Layout& layout, U64 index, std::string_view address);

}  // namespace Core
}  // namespace Velmar
