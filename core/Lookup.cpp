#include "core/Lookup.h"

#include <algorithm>
#include <limits>

#include "core/Access.h"

namespace Velmar {
namespace Core {
namespace {

/// Whether a simplified name is the chip's: the whole name, or its number with or without "bcm".
bool namesChip(std::string_view name, std::string_view chip) {
  const std::string_view number = chip.substr(3);
  const std::string_view bare = name.substr(0, 3) == "bcm" ? name.substr(3) : name;
  return bare == number || bare == number.substr(0, number.size() - 2);
}

Fault unknownChip(std::string_view name) {
  const SimpleName simple(name);
  Text full;
  const bool lacksPrefix = simple.text().size() >= 5 && simple.text().substr(0, 3) != "bcm";
  full.append("{}{}", lacksPrefix ? "bcm" : "", simple.text());
  Suggestions suggestions(full.view());
  for (U32 i = 0; i < Catalogue::chipCount(); ++i) suggestions.consider(Catalogue::chip(i).name);
  return Fault(Code::unknown, "unknown chip {}; {}\"velmar chips\" lists the chips",
               quoted(name).view(), suggestions.text().view());
}

Fault unknownField(const Catalogue::Table& table, const Catalogue::Chip& chip,
                   std::string_view name) {
  Suggestions suggestions(name);
  for (U32 i = 0; i < table.fieldCount(); ++i) {
    if (table.range(i, chip.number).width == 0) continue;
    const std::string_view accessor = table.field(i).accessor;
    suggestions.consider(accessor);
    const Catalogue::Family family = table.family(i);
    const std::string_view prefix = accessor.substr(0, family.prefixLength);
    if (prefix.empty() || SimpleName(name).text() != SimpleName(prefix).text()) continue;
    return Fault(Code::ambiguous, "{} are many fields; give numbers, such as {}, {}-{} or {}*",
                 prefix, accessor, accessor, family.number + 3, prefix);
  }
  return Fault(
      Code::unknown, "{} has no field {}; {}\"velmar layout {} --chip {}\" lists the fields",
      table.name(), quoted(name).view(), suggestions.text().view(), table.name(), chip.name);
}

Done checkVariant(U32 variant) {
  constexpr U32 largest = std::numeric_limits<U8>::max();
  if (variant <= largest) return {};
  return failed(Fault(Code::variant, "there is no variant {}; give 0 to {}", variant, largest));
}

/// The entry or element of a table that is nearest to an address with an identifier.
NearEntry nearestIn(const Catalogue::Geometry& geometry, U32 table, U32 identifier, U32 address) {
  const U32 first = addressOf(geometry, 0, identifier);
  if (address < first) return {{table, 0, identifier}, first - address, true, false};
  const U32 step = geometry.addrStride == 0 ? 1 : geometry.addrStride;
  const U32 last = indexCount(geometry) - 1;
  const U32 index = std::min((address - first) / step, last);
  return {{table, index, identifier},
          address - addressOf(geometry, index, identifier),
          false,
          index == last};
}

/// The chips for which `has` holds, as a list.
template <class Has>
Text chipsThat(Has has) {
  Text chips;
  for (U32 i = 0; i < Catalogue::chipCount(); ++i) {
    const Catalogue::Chip chip = Catalogue::chip(i);
    if (has(chip)) chips.appendItem(chip.name);
  }
  return chips;
}

}  // namespace

Expected<U32> findChipIndex(std::string_view name) {
  const SimpleName simple(name);
  const std::optional<U64> number = parseNumber(name);
  Text matches;
  U32 count = 0;
  U32 found = 0;
  for (U32 i = 0; i < Catalogue::chipCount(); ++i) {
    const Catalogue::Chip candidate = Catalogue::chip(i);
    if (number != candidate.number &&
        !namesChip(simple.text(), SimpleName(candidate.name).text())) {
      continue;
    }
    matches.appendItem(candidate.name, " or ");
    found = i;
    ++count;
  }
  if (count == 0) return failed(unknownChip(name));
  if (count > 1) {
    return failed(Fault(Code::ambiguous, "chip {} is not one chip; give {}", quoted(name).view(),
                        matches.view()));
  }
  return found;
}

Expected<U32> findTableIndex(std::string_view name) {
  const SimpleName simple(name);
  for (U32 i = 0; i < Catalogue::tableCount(); ++i) {
    const SimpleName candidate(Catalogue::table(i).name());
    if (simple.text() == candidate.text() || simple.text() == candidate.withoutSuffix()) {
      return i;
    }
  }
  Suggestions suggestions(name);
  for (U32 i = 0; i < Catalogue::tableCount(); ++i) {
    suggestions.consider(Catalogue::table(i).name());
  }
  return failed(Fault(Code::unknown, "unknown table {}; {}\"velmar tables\" lists the tables",
                      quoted(name).view(), suggestions.text().view()));
}

Expected<U32> findField(const Catalogue::Table& table, const Catalogue::Chip& chip,
                        std::string_view name) {
  const SimpleName simple(name);
  const std::optional<U64> id = parseNumber(name);
  for (U32 i = 0; i < table.fieldCount(); ++i) {
    const Catalogue::Field candidate = table.field(i);
    if (id != candidate.id && simple.text() != SimpleName(candidate.accessor).text()) continue;
    return checkField(table, chip, i).map([i] { return i; });
  }
  return failed(unknownField(table, chip, name));
}

Done checkLayout(const Catalogue::Table& table, const Catalogue::Chip& chip, U32 variant) {
  if (!table.isOn(chip.number)) {
    const Text chips = chipsThat([&](const Catalogue::Chip& c) { return table.isOn(c.number); });
    return failed(Fault(Code::notOnChip, "{} does not exist on {}; it exists on {}", table.name(),
                        chip.name, chips.view()));
  }
  if (const Done done = checkVariant(variant); !done) return done;
  if (!table.isOn(chip.number, static_cast<U8>(variant))) {
    return failed(Fault(Code::variant, "{} on {} has no variant {}; it has variant 0 only",
                        table.name(), chip.name, variant));
  }
  return {};
}

Done checkField(const Catalogue::Table& table, const Catalogue::Chip& chip, U32 field) {
  if (table.range(field, chip.number).width != 0) return {};
  const Text chips =
      chipsThat([&](const Catalogue::Chip& c) { return table.range(field, c.number).width != 0; });
  return failed(Fault(Code::notOnChip, "{} has no field {} on {}; {}{}", table.name(),
                      table.field(field).accessor, chip.name,
                      chips.isEmpty() ? "no chip has it" : "it exists on ", chips.view()));
}

Expected<EntryOfAddress> findEntry(const Catalogue::Chip& chip, U32 variant, U32 address, U32 nth) {
  if (const Done done = checkVariant(variant); !done) return failed(done);
  U32 found = 0;
  for (U32 table = 0; table < Catalogue::tableCount(); ++table) {
    const Catalogue::Table candidate = Catalogue::table(table);
    if (!candidate.isOn(chip.number, static_cast<U8>(variant))) continue;
    const Catalogue::Geometry geometry = candidate.geometry(chip.number);
    for (U32 identifier = 0; identifier < geometry.identifiers; ++identifier) {
      const std::optional<U32> index = indexAt(geometry, address, identifier);
      if (!index || found++ < nth) continue;
      return EntryOfAddress{table, *index, identifier};
    }
  }
  return failed(Fault(Code::noEntry, "no {}table of {} has an entry at 0x{:08x}",
                      found > 0 ? "further " : "", chip.name, address));
}

std::vector<EntryOfAddress> entriesAt(const Catalogue::Chip& chip, U8 variant, U32 address) {
  std::vector<EntryOfAddress> entries;
  while (const auto entry = findEntry(chip, variant, address, static_cast<U32>(entries.size()))) {
    entries.push_back(*entry);
  }
  return entries;
}

std::optional<NearEntry> nearestEntry(const Catalogue::Chip& chip, U8 variant, U32 address,
                                      const std::optional<Catalogue::Table>& only) {
  std::optional<NearEntry> nearest;
  for (U32 table = 0; table < Catalogue::tableCount(); ++table) {
    const Catalogue::Table candidate = Catalogue::table(table);
    if (!candidate.isOn(chip.number, variant)) continue;
    if (only && only->name() != std::string_view(candidate.name())) continue;
    const Catalogue::Geometry geometry = candidate.geometry(chip.number);
    for (U32 identifier = 0; identifier < geometry.identifiers; ++identifier) {
      const NearEntry near = nearestIn(geometry, table, identifier, address);
      if (!nearest || near.distance < nearest->distance) nearest = near;
    }
  }
  return nearest;
}

std::string NearEntry::shown() const {
  const Catalogue::Table table = Catalogue::table(entry.table);
  const char* const direction = isBefore ? "before" : isAtEnd ? "past" : "after";
  const bool isArray = table.kind() == Catalogue::Kind::registerArray;
  std::string text =
      isArray ? formatText("{} {} element {} of {}", distance, direction, entry.index, table.name())
              : formatText("{} {} {} {}", distance, direction, table.name(), entry.index);
  if (entry.identifier != 0) text += formatText(", identifier {}", entry.identifier);
  return text;
}

Text largestText(U32 width, bool asHex) {
  Text largest;
  if (asHex) {
    largest.append("0x{:x}", (1U << ((width - 1) % 4 + 1)) - 1);
    for (U32 digit = (width - 1) / 4; digit > 0; --digit) largest.append("f");
  } else {
    largest.append("{}", ~U64{0} >> (64 - width));
  }
  return largest;
}

Fault tooLarge(const char* field, U32 width, std::string_view value) {
  const bool asHex = width > 64 || value.find_first_of("xX") != std::string_view::npos;
  const Text largest = largestText(width, asHex);
  return Fault(Code::value,
               "{}: value {} does not fit; the field has {} bit{}, its largest value is {}", field,
               quoted(value).view(), width, pluralEnd(width), largest.view())
      .ofField(field);
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

Expected<NamePattern> NamePattern::of(std::string_view pattern) {
  if (pattern.find_first_of("[]") != std::string_view::npos) {
    return failed(
        Fault(Code::unknown,
              "{}: brackets are not understood; give * and ?, or numbers such as spTreePort0-3",
              quoted(pattern).view()));
  }
  NamePattern result;
  result.pattern_ = simplified(pattern);
  return result;
}

bool NamePattern::matches(std::string_view name) const {
  const std::string simple = simplified(name);
  return pattern_.find_first_of("*?") != std::string::npos
             ? matchesPattern(pattern_, simple)
             : simple.find(pattern_) != std::string::npos;
}

}  // namespace Core
}  // namespace Velmar
