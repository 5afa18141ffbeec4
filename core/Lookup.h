#pragma once

#include "Velmar/Catalogue.h"
#include "core/Fault.h"
#include "core/Names.h"

// Chips, tables and fields by name, and the checks of their combinations. Nothing that returns an
// Expected allocates.

namespace Velmar {
namespace Core {

/// Index of a chip: by its name ("BCM56990_B0", "56990_b0", or "56990" if only one chip has that
/// number), or by its ChipType_ number.
Expected<U32> findChipIndex(std::string_view name);
/// Index of a table, by its name with or without "Entry" or "Control" at the end.
Expected<U32> findTableIndex(std::string_view name);
/// Index of a field, by accessor, hardware name or identifier, which the chip must have.
Expected<U32> findField(const Catalogue::Table& table, const Catalogue::Chip& chip,
                        std::string_view name);

inline Expected<Catalogue::Chip> findChip(std::string_view name) {
  return findChipIndex(name).map(Catalogue::chip);
}
inline Expected<Catalogue::Table> findTable(std::string_view name) {
  return findTableIndex(name).map(Catalogue::table);
}

/// A fault if the table does not exist on the chip and variant.
Done checkLayout(const Catalogue::Table& table, const Catalogue::Chip& chip, U32 variant);
/// A fault if the chip does not have the field.
Done checkField(const Catalogue::Table& table, const Catalogue::Chip& chip, U32 field);

/// An entry that has an address.
struct EntryOfAddress {
  U32 table;
  U32 index;  ///< of the entry, or of the element of a register array
  U32 identifier;
};

/// One of the entries of all tables of a chip and variant that have an address; `nth` counts them.
Expected<EntryOfAddress> findEntry(const Catalogue::Chip& chip, U32 variant, U32 address, U32 nth);
/// All of them.
std::vector<EntryOfAddress> entriesAt(const Catalogue::Chip& chip, U8 variant, U32 address);

/// The largest number of a width, in hexadecimal or in decimal, which needs a width of up to 64.
Text largestText(U32 width, bool asHex);
/// A value, given as text, has more bits than its field.
Fault tooLarge(const char* field, U32 width, std::string_view value);

/// An entry that has nearly an address.
struct NearEntry {
  EntryOfAddress entry;
  U32 distance;   ///< of the addresses; none has the address itself
  bool isBefore;  ///< the address lies before the entry
  bool isAtEnd;   ///< the entry is the last one

  /// Such as "1 past VlanEntry 8191" or "2 after element 3 of VlanControl".
  std::string shown() const;
};
/// The nearest entry of all tables of a chip and variant, or of one table; nothing if it has none.
std::optional<NearEntry> nearestEntry(const Catalogue::Chip& chip, U8 variant, U32 address,
                                      const std::optional<Catalogue::Table>& only = std::nullopt);

std::vector<Catalogue::Chip> allChips();
std::vector<Catalogue::Table> allTables();
/// The tables that a chip and variant have.
std::vector<Catalogue::Table> tablesOn(const Catalogue::Chip& chip, U8 variant = 0);

std::vector<std::string> chipNames();
std::vector<std::string> tableNames();
std::vector<std::string> fieldNames(const Catalogue::Table& table);
/// The chips on which a class, or one field of it, exists.
std::vector<std::string> chipsOf(const Catalogue::Table& table);
std::vector<std::string> chipsOf(const Catalogue::Table& table, U32 field);

/// "all", "all but ..." if few are missing, or the chips.
std::string chipsText(const std::vector<std::string>& chips);

/// A pattern for names: the name itself or a part of it, or a name with * and ?.
class NamePattern {
 public:
  static Expected<NamePattern> of(std::string_view pattern);
  bool matches(std::string_view name) const;
  /// Whether it is the whole name, without * and ?.
  bool isExactly(std::string_view name) const { return simplified(name) == pattern_; }

 private:
  std::string pattern_;
};

}  // namespace Core
}  // namespace Velmar
