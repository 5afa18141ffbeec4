#include "model/Names.h"

#include <fnmatch.h>

#include <algorithm>
#include <numeric>

#include "model/Failure.h"
#include "model/Text.h"

namespace Tool {
namespace {

/// The fewest letters to change, insert, remove or swap with a neighbour to turn `a` into `b`.
size_t distance(const std::string& a, const std::string& b) {
  std::vector<size_t> beforeLast(b.size() + 1), last(b.size() + 1), row(b.size() + 1);
  std::iota(last.begin(), last.end(), size_t{0});
  for (size_t i = 1; i <= a.size(); ++i) {
    row[0] = i;
    for (size_t j = 1; j <= b.size(); ++j) {
      const size_t change = last[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
      row[j] = std::min({change, last[j] + 1, row[j - 1] + 1});
      const bool swapped = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
      if (swapped) row[j] = std::min(row[j], beforeLast[j - 2] + 1);
    }
    std::swap(beforeLast, last);
    std::swap(last, row);
  }
  return last[b.size()];
}

std::string withoutSuffix(const std::string& name) {
  for (const std::string_view suffix : {"entry", "control"}) {
    if (name.size() > suffix.size() && name.substr(name.size() - suffix.size()) == suffix) {
      return name.substr(0, name.size() - suffix.size());
    }
  }
  return name;
}

/// Whether `name`, simplified, names the chip: the whole name, or its number with or without "bcm".
bool namesChip(const std::string& name, const std::string& chip) {
  const std::string number = chip.substr(3);
  const std::string unrevised = number.substr(0, number.size() - 2);
  const std::string bare = name.rfind("bcm", 0) == 0 ? name.substr(3) : name;
  return bare == number || bare == unrevised;
}

}  // namespace

std::string simplified(std::string_view name) {
  std::string simple;
  for (const char letter : name) {
    if (letter == '_' || letter == '-') continue;
    simple += letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
  }
  return simple;
}

std::string didYouMean(std::string_view name, const std::vector<std::string>& candidates) {
  constexpr size_t longest = 80;
  constexpr size_t suggestions = 3;
  constexpr size_t shortest = 3;
  const std::string simple = simplified(name.substr(0, longest));
  if (simple.size() < shortest) return "";
  const size_t farthest = std::max<size_t>(1, simple.size() / 3);
  std::vector<std::pair<size_t, std::string>> near;
  for (const std::string& candidate : candidates) {
    const std::string other = simplified(candidate);
    const std::string start = other.substr(0, std::max(simple.size(), other.size() / 2));
    size_t steps = std::min(
        {distance(simple, other), distance(simple, withoutSuffix(other)), distance(simple, start)});
    if (steps > farthest && other.find(simple) != std::string::npos) steps = farthest;
    if (steps <= farthest) near.emplace_back(steps, candidate);
  }
  std::stable_sort(near.begin(), near.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  if (near.empty()) return "";
  std::vector<std::string> best;
  for (const auto& [steps, candidate] : near) {
    if (best.size() < suggestions && steps <= near.front().first + 1) best.push_back(candidate);
  }
  return "did you mean " + join(best, ", ") + "? ";
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
  const std::string simple = simplified(name);
  const std::optional<U64> number = parseNumber(name);
  std::vector<Catalogue::Chip> matches;
  std::vector<std::string> matchNames;
  for (const Catalogue::Chip& chip : allChips()) {
    if (number == chip.number || namesChip(simple, simplified(chip.name))) {
      matches.push_back(chip);
      matchNames.emplace_back(chip.name);
    }
  }
  if (matches.size() == 1) return matches.front();
  if (matches.size() > 1) {
    fail("chip {} is not one chip; give {}", inQuotes(name), join(matchNames, " or "));
  }
  fail("unknown chip {}; {}\"velmar chips\" lists the chips", inQuotes(name),
       didYouMean(simple.size() >= 5 && simple.rfind("bcm", 0) != 0 ? "bcm" + simple : simple,
                  chipNames()));
}

Catalogue::Table findTable(std::string_view name) {
  const std::string simple = simplified(name);
  for (const Catalogue::Table& table : allTables()) {
    const std::string candidate = simplified(table.name());
    if (simple == candidate || simple == withoutSuffix(candidate)) return table;
  }
  fail("unknown table {}; {}\"velmar tables\" lists the tables", inQuotes(name),
       didYouMean(name, tableNames()));
}

std::optional<U32> findField(const Catalogue::Table& table, std::string_view name) {
  const std::string simple = simplified(name);
  const std::optional<U64> id = parseNumber(name);
  for (U32 i = 0; i < table.fieldCount(); ++i) {
    const Catalogue::Field field = table.field(i);
    if (id == field.id || simple == simplified(field.accessor)) return i;
  }
  return std::nullopt;
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
