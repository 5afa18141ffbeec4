#include "core/Translation.h"

#include <algorithm>
#include <optional>

#include "Velmar/Generic.h"

namespace Velmar {
namespace Core {
namespace {

/// Moves entries to another chip, and collects what gets lost.
class Translator {
 public:
  Translator(const Layout& from, const Layout& to)
      : from_(from), to_(to), bytes_(to.entryBytes()), places_(from.table().fieldCount()) {
    for (const FieldPlace& place : from.fields()) places_[place.index] = &place;
  }

  /// The bytes of the entry on the other chip.
  const std::vector<U8>& translate(U32 index, const U8* entry) {
    const U32 chip = from_.chip().number;
    for (const Velmar::Loss& loss :
         translateEntry(from_.table(), chip, entry, to_.chip().number, bytes_.data())) {
      lose(loss, index);
    }
    return bytes_;
  }

  void loseEntry(U32 index) { lose(std::nullopt, index); }

  std::vector<Loss> losses() const {
    std::vector<Loss> result;
    const auto areAlike = [this](size_t a, size_t b) {
      return placeOf(found_[a]) != nullptr && placeOf(found_[b]) != nullptr &&
             placeOf(found_[b])->isOfFamilyOf(*placeOf(found_[a])) &&
             textOf(found_[a]) == textOf(found_[b]) && found_[a].indexes == found_[b].indexes;
    };
    for (const std::vector<size_t>& group : joined(found_.size(), areAlike)) {
      const Found& first = found_[group.front()];
      result.push_back({nameOf(group), textOf(first), first.indexes});
    }
    return result;
  }

 private:
  struct Found {
    std::optional<Velmar::Loss> loss;  ///< nothing: the other chip has no such entry
    std::vector<U32> indexes;
  };

  void lose(const std::optional<Velmar::Loss>& loss, U32 index) {
    const auto known = std::find_if(found_.begin(), found_.end(),
                                    [&](const Found& one) { return one.loss == loss; });
    if (known == found_.end()) {
      found_.push_back({loss, {index}});
    } else {
      known->indexes.push_back(index);
    }
  }

  /// The field that is lost; null for reserved bits and whole entries.
  const FieldPlace* placeOf(const Found& found) const {
    return found.loss && found.loss->field < places_.size() ? places_[found.loss->field] : nullptr;
  }

  std::string nameOf(const std::vector<size_t>& group) const {
    const Found& first = found_[group.front()];
    if (!first.loss) return "(entry)";
    if (placeOf(first) == nullptr) return "outsideFields";
    FieldGroup fields;
    for (const size_t i : group) fields.members.push_back(*placeOf(found_[i]));
    return fields.name();
  }

  std::string textOf(const Found& found) const {
    if (found.loss) return lossText(to_.table(), *found.loss, to_.chip());
    return formatText("{} has {} entries", to_.chip().name, to_.indexCount());
  }

  const Layout& from_;
  const Layout& to_;
  std::vector<U8> bytes_;
  std::vector<const FieldPlace*> places_;  ///< by the field's index
  std::vector<Found> found_;
};

}  // namespace

Translation translate(const Layout& from, const Layout& to, const Dump& dump) {
  Translator translator(from, to);
  Translation result{Dump(to.entryBytes()), {}};
  const std::vector<U8> zeros(to.entryBytes());
  for (size_t i = 0; i < dump.count(); ++i) {
    const U32 index = dump.index(i);
    const std::vector<U8>& bytes = translator.translate(index, dump.bytes(i));
    if (index < to.indexCount()) {
      result.dump.add(index, bytes.data());
    } else if (bytes != zeros) {
      translator.loseEntry(index);
    }
  }
  result.losses = translator.losses();
  return result;
}

Listing listingOf(const std::vector<Loss>& losses) {
  Listing listing({"field", "reason", "entries"});
  for (const Loss& loss : losses) {
    std::string indexes = "[";
    for (const U32 index : loss.indexes) {
      if (indexes.size() > 1) indexes += ',';
      indexes += std::to_string(index);
    }
    listing.add(
        {loss.field, loss.reason, Cell::ofJson(indexes + "]").shownAs(rangesText(loss.indexes))});
  }
  return listing;
}

}  // namespace Core
}  // namespace Velmar
