#pragma once

#include <unordered_map>

#include "core/Reading.h"

// Documents of entries: JSON and CSV as decode writes them.

namespace Velmar {
namespace Core {

/// What the entries of a document are for.
struct DocumentUse {
  bool isDump;       ///< a dump of entries; otherwise values to encode
  const Dump* base;  ///< whose entries the document changes; may be null
  const ReadOptions& options;
};

/// Takes what a document says of its entries, whatever its notation: checks it, and makes the entries.
class EntryReader {
 public:
  EntryReader(const Layout& layout, const DocumentUse& use);

  /// Begins an entry, or an object of values alone.
  void start(bool isEntry);
  /// Whether a family of fields has this name.
  bool isFamily(std::string_view name) const;
  /// The value of a field.
  Done take(const FieldPlace& place, const Value& value);
  /// The value of the fields of a family that have these numbers.
  Done takeFamily(std::string_view family, std::string_view value, std::string_view numbers);
  /// What an entry has beside its fields, or a document says of the table. `isMember` tells the names.
  bool isMember(std::string_view name) const;
  Done takeMember(std::string_view name, std::string_view text);
  /// Makes the entry.
  Done finish();

  const Layout& layout() const { return layout_; }
  /// The entries, or the values of one object of values.
  DocumentValues result;

 private:
  struct Given {
    const FieldPlace* place;
    Value value;
  };
  using Fact = std::pair<std::string_view, std::string>;

  Done takeIndex(std::string_view text);
  Done finishValues();
  Done checkPlace();
  Done checkAddress() const;
  Done checkComplete() const;
  Expected<const U8*> entryOfBase() const;
  Done build(const U8* from);

  const Layout& layout_;
  const DocumentUse use_;
  const std::vector<Fact> facts_;  ///< what is the same for all entries
  std::unordered_map<U32, size_t> positionsInBase_;
  EntryBuilder builder_;
  SeenIndexes seen_;
  U32 next_;  ///< index of the next entry that has none

  // The entry that is read.
  bool isEntry_ = false;
  std::optional<U32> index_;
  std::string address_;
  std::vector<U8> reservedBits_;
  std::vector<Given> given_;
  std::vector<bool> isGiven_;  ///< by the positions of the fields
};

Done readJson(std::string_view text, EntryReader& reader);
Done readCsv(std::string_view text, EntryReader& reader);

/// The bits outside all fields, from the hexadecimal number of a whole entry.
Expected<std::vector<U8>> parseReservedBits(const Layout& layout, std::string_view text);

/// Whether the first line of a text is the head of a CSV document of entries.
bool isCsv(std::string_view text);

}  // namespace Core
}  // namespace Velmar
