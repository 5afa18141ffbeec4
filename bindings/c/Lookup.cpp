#include "c/Lookup.h"

#include <algorithm>
#include <limits>

#include "c/Access.h"

namespace Velmar {
namespace Binding {
namespace {

thread_local Text message;

/// Whether a simplified name is the chip's: the whole name, or its number with or without "bcm".
bool namesChip(std::string_view name, std::string_view chip) {
  const std::string_view number = chip.substr(3);
  const std::string_view bare = name.substr(0, 3) == "bcm" ? name.substr(3) : name;
  return bare == number || bare == number.substr(0, number.size() - 2);
}

velmar_code failUnknownChip(std::string_view name) {
  const SimpleName simple(name);
  Text full;
  const bool lacksPrefix = simple.text().size() >= 5 && simple.text().substr(0, 3) != "bcm";
  full.append("%s%.*s", lacksPrefix ? "bcm" : "", static_cast<int>(simple.text().size()),
              simple.text().data());
  Suggestions suggestions(full.text());
  for (U32 i = 0; i < Catalogue::chipCount(); ++i) suggestions.consider(Catalogue::chip(i).name);
  return fail(VELMAR_UNKNOWN, "unknown chip %s; %s\"velmar chips\" lists the chips",
              quoted(name).text(), suggestions.text().text());
}

/// The name of field `index`, taken apart, if it is one of many that are called `name`.
std::optional<NumberedName> memberOf(std::string_view name, const Catalogue::Table& table,
                                     U32 index) {
  const Catalogue::Field field = table.field(index);
  const std::optional<NumberedName> numbered = numberedName(field.accessor);
  const bool isFamily =
      numbered && index + 1 < table.fieldCount() && areOfOneFamily(field, table.field(index + 1));
  if (!isFamily || SimpleName(name).text() != SimpleName(numbered->prefix).text()) return {};
  return numbered;
}

velmar_code failUnknownField(const Catalogue::Table& table, const Catalogue::Chip& chip,
                             std::string_view name) {
  Suggestions suggestions(name);
  for (U32 i = 0; i < table.fieldCount(); ++i) {
    if (table.range(i, chip.number).width == 0) continue;
    const char* accessor = table.field(i).accessor;
    suggestions.consider(accessor);
    const std::optional<NumberedName> member = memberOf(name, table, i);
    if (!member) continue;
    const int letters = static_cast<int>(member->prefix.size());
    return fail(VELMAR_AMBIGUOUS, "%.*s are many fields; give numbers, such as %s, %s-%u or %.*s*",
                letters, accessor, accessor, accessor, member->number + 3, letters, accessor);
  }
  return fail(VELMAR_UNKNOWN,
              "%s has no field %s; %s\"velmar layout %s --chip %s\" lists the fields", table.name(),
              quoted(name).text(), suggestions.text().text(), table.name(), chip.name);
}

velmar_code checkVariant(U32 variant) {
  constexpr U32 largest = std::numeric_limits<U8>::max();
  if (variant <= largest) return VELMAR_OK;
  return fail(VELMAR_VARIANT, "there is no variant %u; give 0 to %u", variant, largest);
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

velmar_code fail(velmar_code code, const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  message.clear();
  message.append(format, arguments);
  va_end(arguments);
  return code;
}

velmar_code findChip(std::string_view name, U32& chip) {
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
  if (count == 0) return failUnknownChip(name);
  if (count > 1) {
    return fail(VELMAR_AMBIGUOUS, "chip %s is not one chip; give %s", quoted(name).text(),
                matches.text());
  }
  chip = found;
  return VELMAR_OK;
}

velmar_code findTable(std::string_view name, U32& table) {
  const SimpleName simple(name);
  for (U32 i = 0; i < Catalogue::tableCount(); ++i) {
    const SimpleName candidate(Catalogue::table(i).name());
    if (simple.text() == candidate.text() || simple.text() == candidate.withoutSuffix()) {
      table = i;
      return VELMAR_OK;
    }
  }
  Suggestions suggestions(name);
  for (U32 i = 0; i < Catalogue::tableCount(); ++i) {
    suggestions.consider(Catalogue::table(i).name());
  }
  return fail(VELMAR_UNKNOWN, "unknown table %s; %s\"velmar tables\" lists the tables",
              quoted(name).text(), suggestions.text().text());
}

velmar_code findField(const Catalogue::Table& table, const Catalogue::Chip& chip,
                      std::string_view name, U32& field) {
  const SimpleName simple(name);
  const std::optional<U64> id = parseNumber(name);
  for (U32 i = 0; i < table.fieldCount(); ++i) {
    const Catalogue::Field candidate = table.field(i);
    if (id != candidate.id && simple.text() != SimpleName(candidate.accessor).text()) continue;
    const velmar_code code = checkField(table, chip, i);
    if (code == VELMAR_OK) field = i;
    return code;
  }
  return failUnknownField(table, chip, name);
}

velmar_code checkLayout(const Catalogue::Table& table, const Catalogue::Chip& chip, U32 variant) {
  if (!table.isOn(chip.number)) {
    const Text chips = chipsThat([&](const Catalogue::Chip& c) { return table.isOn(c.number); });
    return fail(VELMAR_NOT_ON_CHIP, "%s does not exist on %s; it exists on %s", table.name(),
                chip.name, chips.text());
  }
  if (const velmar_code code = checkVariant(variant)) return code;
  if (!table.isOn(chip.number, static_cast<U8>(variant))) {
    return fail(VELMAR_VARIANT, "%s on %s has no variant %u; it has variant 0 only", table.name(),
                chip.name, variant);
  }
  return VELMAR_OK;
}

velmar_code checkField(const Catalogue::Table& table, const Catalogue::Chip& chip, U32 field) {
  if (table.range(field, chip.number).width != 0) return VELMAR_OK;
  const Text chips =
      chipsThat([&](const Catalogue::Chip& c) { return table.range(field, c.number).width != 0; });
  return fail(VELMAR_NOT_ON_CHIP, "%s has no field %s on %s; %s%s", table.name(),
              table.field(field).accessor, chip.name,
              chips.isEmpty() ? "no chip has it" : "it exists on ", chips.text());
}

velmar_code findEntry(const Catalogue::Chip& chip, U32 variant, U32 address, U32 nth,
                      EntryOfAddress& entry) {
  if (const velmar_code code = checkVariant(variant)) return code;
  U32 found = 0;
  for (U32 table = 0; table < Catalogue::tableCount(); ++table) {
    const Catalogue::Table candidate = Catalogue::table(table);
    if (!candidate.isOn(chip.number, static_cast<U8>(variant))) continue;
    const Catalogue::Geometry geometry = candidate.geometry(chip.number);
    for (U32 identifier = 0; identifier < geometry.identifiers; ++identifier) {
      const std::optional<U32> index = indexAt(geometry, address, identifier);
      if (!index || found++ < nth) continue;
      entry = {table, *index, identifier};
      return VELMAR_OK;
    }
  }
  return fail(VELMAR_NO_ENTRY, "no %stable of %s has an entry at 0x%08x",
              found > 0 ? "further " : "", chip.name, address);
}

velmar_code failTooLarge(const char* field, U32 width, std::string_view value) {
  Text largest;
  if (width > 64 || value.find_first_of("xX") != std::string_view::npos) {
    largest.append("0x%x", (1U << ((width - 1) % 4 + 1)) - 1);
    for (U32 digit = (width - 1) / 4; digit > 0; --digit) largest.append("f");
  } else {
    largest.append("%llu", static_cast<unsigned long long>(~U64{0} >> (64 - width)));
  }
  return fail(VELMAR_VALUE,
              "%s: value %s does not fit; the field has %u bit%s, its largest value is %s", field,
              quoted(value).text(), width, width == 1 ? "" : "s", largest.text());
}

bool areOfOneFamily(const Catalogue::Field& a, const Catalogue::Field& b) {
  const std::optional<NumberedName> first = numberedName(a.accessor);
  const std::optional<NumberedName> second = numberedName(b.accessor);
  return first && second && first->prefix == second->prefix &&
         std::string_view(a.meaning) == b.meaning;
}

}  // namespace Binding
}  // namespace Velmar

const char* velmar_message() { return Velmar::Binding::message.text(); }
