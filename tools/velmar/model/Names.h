#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "c/Lookup.h"

// Names as people type them: any case, with or without underscores.

namespace Tool {

namespace Binding = Velmar::Binding;
namespace Catalogue = Velmar::Catalogue;

/// Fails with the message of a call that failed.
void check(velmar_code code);

/// A chip by its name ("BCM56990_B0", "56990_b0", "56990" where only one chip has that number) or
/// by its ChipType_ number.
Catalogue::Chip findChip(std::string_view name);

/// A class by its name, with or without "Entry" or "Control" at its end.
Catalogue::Table findTable(std::string_view name);

/// Lower case, without underscores and hyphens.
std::string simplified(std::string_view name);

/// "did you mean A, B? " if candidates are near misses of `name`, otherwise nothing.
std::string didYouMean(std::string_view name, const std::vector<std::string>& candidates);

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

/// "all", "all but ..." where few are missing, or the chips.
std::string chipsText(const std::vector<std::string>& chips);

/// A pattern for names: the name itself or a part of it, or a name with * and ?.
class NamePattern {
 public:
  explicit NamePattern(std::string_view pattern);
  bool matches(std::string_view name) const;
  /// Whether it is the whole name, without * and ?.
  bool isExactly(std::string_view name) const;

 private:
  std::string pattern_;
  bool hasWildcard_;
};

}  // namespace Tool
