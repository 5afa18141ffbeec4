#include "core/Translation.h"

#include <algorithm>

#include "core/EntryBuilder.h"

namespace Velmar {
namespace Core {
namespace {

/// Makes entries for another chip, field by field, and collects what gets lost.
class Translator {
 public:
  Translator(const Layout& from, const Layout& to) : from_(from), to_(to), builder_(to) {
    for (const FieldPlace& place : from.fields()) {
      const auto same = std::find_if(
          to.fields().begin(), to.fields().end(),
          [&place](const FieldPlace& other) { return other.field.id == place.field.id; });
      pairs_.push_back({&place, same == to.fields().end() ? nullptr : &*same});
    }
  }

  /// The bytes of the entry on the other chip.
  const std::vector<U8>& translate(U32 index, const U8* entry) {
    builder_.startFromZero();
    for (const Pair& pair : pairs_) {
      const Value value = Value::read(*pair.place, entry, from_.entryBytes());
      if (!value.isZero()) move(pair, value, index);
    }
    if (from_.hasReservedBits(entry)) lose(nullptr, Reason::outsideFields, index);
    return builder_.bytes();
  }

  void loseEntry(U32 index) { lose(nullptr, Reason::beyondEnd, index); }

  std::vector<Loss> losses() const {
    std::vector<Loss> result;
    const auto areAlike = [this](size_t a, size_t b) {
      return found_[a].place != nullptr && found_[b].place != nullptr &&
             found_[b].place->isOfFamilyOf(*found_[a].place) &&
             textOf(found_[a]) == textOf(found_[b]) && found_[a].indexes == found_[b].indexes;
    };
    for (const std::vector<size_t>& group : joined(found_.size(), areAlike)) {
      const Found& first = found_[group.front()];
      result.push_back({nameOf(group), textOf(first), first.indexes});
    }
    return result;
  }

 private:
  struct Pair {
    const FieldPlace* place;
    const FieldPlace* other;  ///< on the other chip; null: it has none
  };
  enum class Reason { noField, tooLarge, sharesBits, outsideFields, beyondEnd };
  struct Found {
    const FieldPlace* place;
    const FieldPlace* other;
    Reason reason;
    std::vector<U32> indexes;
  };

  void move(const Pair& pair, const Value& value, U32 index) {
    if (pair.other == nullptr) return lose(&pair, Reason::noField, index);
    const std::optional<Value> fitting = value.resized(pair.other->width);
    if (!fitting) return lose(&pair, Reason::tooLarge, index);
    if (!builder_.set({*pair.other, *fitting})) lose(&pair, Reason::sharesBits, index);
  }

  void lose(const Pair* pair, Reason reason, U32 index) {
    const FieldPlace* const place = pair == nullptr ? nullptr : pair->place;
    const auto known = std::find_if(found_.begin(), found_.end(), [&](const Found& one) {
      return one.place == place && one.reason == reason;
    });
    if (known == found_.end()) {
      found_.push_back({place, pair == nullptr ? nullptr : pair->other, reason, {index}});
    } else {
      known->indexes.push_back(index);
    }
  }

  std::string nameOf(const std::vector<size_t>& group) const {
    const Found& first = found_[group.front()];
    if (first.reason == Reason::outsideFields) return "outsideFields";
    if (first.reason == Reason::beyondEnd) return "(entry)";
    FieldGroup fields;
    for (const size_t i : group) fields.members.push_back(*found_[i].place);
    return fields.name();
  }

  std::string textOf(const Found& found) const {
    const char* const chip = to_.chip().name;
    switch (found.reason) {
      case Reason::noField:
        return formatText("{} has no such field on {}", to_.name(), chip);
      case Reason::tooLarge:
        return formatText("too large for {} bit{} on {}", found.other->width,
                          pluralEnd(found.other->width), chip);
      case Reason::sharesBits:
        return formatText("it shares bits with others on {}", chip);
      case Reason::outsideFields:
        return "bits outside all fields have no name";
      case Reason::beyondEnd:
        break;
    }
    return formatText("{} has {} entries", chip, to_.indexCount());
  }

  const Layout& from_;
  const Layout& to_;
  EntryBuilder builder_;
  std::vector<Pair> pairs_;
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
