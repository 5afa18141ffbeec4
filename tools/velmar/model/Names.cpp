#include "model/Names.h"

#include <fnmatch.h>

#include <algorithm>

#include "model/Failure.h"
#include "model/Text.h"

namespace Tool {
void check(velmar_code code) {
  if (code != VELMAR_OK) throw Failure(velmar_message());
}

std::string simplified(std::string_view name) {
  std::string simple;
  for (const char letter : name) {
    const char simpleLetter = Binding::simpleLetter(letter);
    if (simpleLetter != '\0') simple += simpleLetter;
  }
  return simple;
}

std::string didYouMean(std::string_view name, const std::vector<std::string>& candidates) {
  Binding::Suggestions suggestions(name);
  for (const std::string& candidate : candidates) suggestions.consider(candidate);
  return suggestions.text().text();
}

std::vector<Catalogue::Chip> allChips() {
  std::vector<Catalogue::Chip> chips;
  for (U32 i = 0; i < Catalogue::chipCount(); ++i) chips.push_back(Catalogue::chip(i));
  return chips;
}

std::vector<Catalogue::Table> allTables() {
  std::vector<Catalogue::Table> tables;
  for (U32 i = 0; i < Catalogue::tableCount(); ++i) tables.push_back(Catalogue::table(i));
  return tables;
}

std::vector<Catalogue::Table> tablesOn(const Catalogue::Chip& chip, U8 variant) {
  std::vector<Catalogue::Table> tables;
  for (const Catalogue::Table& table : allTables()) {
    if (table.isOn(chip.number, variant)) tables.push_back(table);
  }
  return tables;
}

std::vector<std::string> chipNames() {
  std::vector<std::string> names;
  for (const Catalogue::Chip& chip : allChips()) names.emplace_back(chip.name);
  return names;
}

std::vector<std::string> tableNames() {
  std::vector<std::string> names;
  for (const Catalogue::Table& table : allTables()) names.emplace_back(table.name());
  return names;
}

std::vector<std::string> fieldNames(const Catalogue::Table& table) {
  std::vector<std::string> names;
  for (U32 i = 0; i < table.fieldCount(); ++i) names.emplace_back(table.field(i).accessor);
  return names;
}

std::vector<std::string> chipsOf(const Catalogue::Table& table) {
  std::vector<std::string> names;
  for (const Catalogue::Chip& chip : allChips()) {
    if (table.isOn(chip.number)) names.emplace_back(chip.name);
  }
  return names;
}

std::vector<std::string> chipsOf(const Catalogue::Table& table, U32 field) {
  std::vector<std::string> names;
  for (const Catalogue::Chip& chip : allChips()) {
    if (table.range(field, chip.number).width != 0) names.emplace_back(chip.name);
  }
  return names;
}

Catalogue::Chip findChip(std::string_view name) {
  U32 chip = 0;
  check(Binding::findChip(name, chip));
  return Catalogue::chip(chip);
}

Catalogue::Table findTable(std::string_view name) {
  U32 table = 0;
  check(Binding::findTable(name, table));
  return Catalogue::table(table);
}

std::string chipsText(const std::vector<std::string>& chips) {
  constexpr size_t few = 4;
  std::vector<std::string> others = chipNames();
  others.erase(std::remove_if(others.begin(), others.end(),
                              [&chips](const std::string& name) {
                                return std::count(chips.begin(), chips.end(), name) != 0;
                              }),
               others.end());
  if (others.empty()) return "all";
  return others.size() <= few ? "all but " + join(others, " ") : join(chips, " ");
}

NamePattern::NamePattern(std::string_view pattern)
    : pattern_(simplified(pattern)),
      hasWildcard_(pattern_.find_first_of("*?") != std::string::npos) {
  if (pattern.find_first_of("[]") != std::string_view::npos) {
    fail("{}: brackets are not understood; give * and ?, or numbers such as spTreePort0-3",
         inQuotes(pattern));
  }
}

bool NamePattern::matches(std::string_view name) const {
  const std::string simple = simplified(name);
  return hasWildcard_ ? fnmatch(pattern_.c_str(), simple.c_str(), 0) == 0
                      : simple.find(pattern_) != std::string::npos;
}

bool NamePattern::isExactly(std::string_view name) const { return simplified(name) == pattern_; }

}  // namespace Tool
