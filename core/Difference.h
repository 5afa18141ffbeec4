#pragma once

#include "core/Condition.h"
#include "core/Listing.h"

namespace Velmar {
namespace Core {

/// How an entry differs. It borrows the bytes of the dumps.
struct EntryChange {
  enum class Kind : U8 { changed, onlyInOld, onlyInNew, unknownInNew, unknownInOld };

  U32 index;
  Kind kind;
  const U8* before;  ///< null: the dump has no such entry
  const U8* after;
  std::vector<const FieldPlace*> fields;  ///< that differ; null: the reserved bits
};
/// As JSON and CSV say it: "changed", "only in OLD", "only in NEW", "unknown in NEW", "unknown in OLD".
const char* nameOf(EntryChange::Kind kind);
/// Such as "stg"; the reserved bits are the field "outsideFields".
inline const char* nameOf(const FieldPlace* changed) {
  return changed == nullptr ? "outsideFields" : changed->name();
}

struct DifferenceOptions {
  std::vector<FieldPlace> fields;  ///< compared; empty: all, and the reserved bits
  bool reservedBits = false;       ///< compared too
  Selection selection;             ///< entries that fit it in one dump or both
  bool common = false;             ///< only entries that both dumps have
  bool isPartial = false;          ///< entries that one dump does not have are unknown there
  bool stopsAtFirst = false;       ///< the first difference is enough
};

/// What changed between two dumps of a table.
struct Difference {
  std::vector<EntryChange> entries;  ///< ascending
  U64 compared = 0;                  ///< entries that both dumps have
  U64 differing = 0;                 ///< of them
  U64 missing = 0;                   ///< entries that one dump does not have
  std::string unmet;                 ///< parts of the indexes that neither dump has
};

/// Compares two dumps, whose entries are matched by their indexes, in any order. Layout, dumps and
/// options outlive the result.
Difference difference(const Layout& layout, const Dump& before, const Dump& after,
                      const DifferenceOptions& options);

/// Fields that differ between two states of an entry, as a JSON object; null: the reserved bits.
/// `before` null: it is not known.
std::string changesJson(const Layout& layout, const std::vector<const FieldPlace*>& fields,
                        const U8* before, const U8* after);
/// A field of an entry; null: the reserved bits.
Cell changedCell(const Layout& layout, const FieldPlace* place, const U8* entry);

/// As rows: for CSV a row for each field, otherwise for each entry; in JSON lines with table and chip.
std::string differenceText(const Layout& layout, const Difference& difference, RowFormat format);
/// Adds a row for each field: table, identifier, index, change, field, old, new.
void addRows(Listing& to, const Layout& layout, U32 identifier, const Difference& difference);
/// How many entries differ in each field.
Listing differenceCounts(const Difference& difference);

}  // namespace Core
}  // namespace Velmar
