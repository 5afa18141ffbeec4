#include "core/Comparison.h"

#include <algorithm>

namespace Velmar {
namespace Core {
namespace {

class ChipComparison {
 public:
  ChipComparison(const Catalogue::Chip& before, const Catalogue::Chip& after, U8 variant,
                 bool asFamilies)
      : before_(before), after_(after), variant_(variant), asFamilies_(asFamilies) {}

  void compare(const Catalogue::Table& table) {
    const bool wasThere = table.isOn(before_.number, variant_);
    const bool isThere = table.isOn(after_.number, variant_);
    if (!wasThere && !isThere) return;
    if (wasThere && isThere) {
      compareGeometry(table);
      return compareFields(table);
    }
    add(table, "(table)", isThere ? "added" : "gone", wasThere ? size(table, before_) : nullptr,
        isThere ? size(table, after_) : nullptr);
  }

  std::vector<PartChange> changes() && { return std::move(changes_); }

 private:
  void add(const Catalogue::Table& table, std::string part, const char* change, Cell before,
           Cell after) {
    changes_.push_back({table, std::move(part), change, std::move(before), std::move(after)});
  }

  static Cell size(const Catalogue::Table& table, const Catalogue::Chip& chip) {
    const Catalogue::Geometry geometry = table.geometry(chip.number);
    return formatText("{} x {} bytes at {}", indexCount(geometry), 4U * geometry.words,
                      addressText(geometry.base));
  }

  void compareGeometry(const Catalogue::Table& table) {
    const Catalogue::Geometry before = table.geometry(before_.number);
    const Catalogue::Geometry after = table.geometry(after_.number);
    const auto compareCell = [&](const char* part, const Cell& old, const Cell& now) {
      if (old.text() != now.text()) add(table, part, "changed", old, now);
    };
    compareCell("(entry bytes)", U32{4} * before.words, U32{4} * after.words);
    compareCell("(entries)", before.entries, after.entries);
    compareCell("(elements)", before.arrayElements, after.arrayElements);
    compareCell("(address)", addressText(before.base), addressText(after.base));
    compareCell("(element stride)", before.addrStride, after.addrStride);
    compareCell("(identifiers)", before.identifiers, after.identifiers);
    compareCell("(identifier term)", before.identifierTerm, after.identifierTerm);
    compareCell("(access)", before.accessType, after.accessType);
    compareCell("(block)", before.block, after.block);
    compareCell("(variants)", variants(before), variants(after));
  }

  static const char* variants(const Catalogue::Geometry& geometry) {
    return geometry.variants == Catalogue::Variants::any ? "any" : "0 only";
  }

  /// A field on both chips; the width is 0 where it does not exist.
  struct Pair {
    FieldPlace before;
    FieldPlace after;
    const char* change;
  };

  /// Whether fields share a line: members of a family that move by as many bits.
  bool areAlike(const Pair& a, const Pair& b) const {
    const bool isOnBoth = a.before.width != 0 && a.after.width != 0;
    return asFamilies_ && a.before.isOfFamilyOf(b.before) &&
           std::string_view(a.change) == b.change && a.before.width == b.before.width &&
           a.after.width == b.after.width &&
           (!isOnBoth || a.after.offset - a.before.offset == b.after.offset - b.before.offset);
  }

  void compareFields(const Catalogue::Table& table) {
    std::vector<Pair> pairs;
    for (U32 i = 0; i < table.fieldCount(); ++i) {
      const FieldPlace before = placeOn(table, i, before_);
      const FieldPlace after = placeOn(table, i, after_);
      if (before.offset == after.offset && before.width == after.width) continue;
      pairs.push_back({before, after, changeOf(before, after)});
    }
    const auto groups =
        joined(pairs.size(), [&](size_t a, size_t b) { return areAlike(pairs[a], pairs[b]); });
    for (const std::vector<size_t>& group : groups) {
      FieldGroup before;
      FieldGroup after;
      for (const size_t i : group) before.members.push_back(pairs[i].before);
      for (const size_t i : group) after.members.push_back(pairs[i].after);
      add(table, before.name(), pairs[group.front()].change, bits(before), bits(after));
    }
  }

  static FieldPlace placeOn(const Catalogue::Table& table, U32 index, const Catalogue::Chip& chip) {
    const Catalogue::BitRange range = table.range(index, chip.number);
    return {table.field(index), range.offset, range.width, table.family(index)};
  }

  static const char* changeOf(const FieldPlace& before, const FieldPlace& after) {
    if (before.width == 0) return "added";
    if (after.width == 0) return "gone";
    if (before.width == after.width) return "moved";
    return before.offset == after.offset ? "resized" : "moved and resized";
  }

  static Cell bits(const FieldGroup& group) {
    const FieldPlace& first = group.front();
    if (first.width == 0) return nullptr;
    return Cell::ofJson(formatText(R"({{"offset":{},"width":{}}})", first.offset, first.width))
        .shownAs(group.bits());
  }

  Catalogue::Chip before_;
  Catalogue::Chip after_;
  U8 variant_;
  bool asFamilies_;
  std::vector<PartChange> changes_;
};

}  // namespace

Expected<std::vector<PartChange>> compareChips(const Catalogue::Chip& before,
                                               const Catalogue::Chip& after, U8 variant,
                                               const std::optional<Catalogue::Table>& table,
                                               bool asFamilies) {
  ChipComparison comparison(before, after, variant, asFamilies);
  if (table) {
    // If neither chip has the table, an empty result would mean that nothing changed.
    const Done done = checkLayout(*table, before, variant);
    if (!done && !table->isOn(after.number, variant)) return failed(done.error());
    comparison.compare(*table);
  } else {
    for (const Catalogue::Table& one : allTables()) comparison.compare(one);
  }
  return std::move(comparison).changes();
}

Listing listingOf(const std::vector<PartChange>& changes) {
  Listing listing({"table", "part", "change", "old", "new"});
  for (const PartChange& change : changes) {
    listing.add({change.table.name(), change.part, change.change, change.before, change.after});
  }
  return listing;
}

JsonFrame comparisonFrame(const Catalogue::Chip& before, const Catalogue::Chip& after) {
  return frameOf("comparison", "differences",
                 formatText(R"("oldChip": "{}", "newChip": "{}")", before.name, after.name));
}

}  // namespace Core
}  // namespace Velmar
