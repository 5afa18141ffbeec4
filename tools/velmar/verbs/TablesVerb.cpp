#include <set>

#include "model/Failure.h"
#include "model/Layout.h"
#include "model/Text.h"
#include "output/Listing.h"
#include "verbs/Target.h"
#include "verbs/Verbs.h"

namespace Tool {
namespace {

const char* kindOf(const Catalogue::Table& table) {
  return table.kind() == Catalogue::Kind::table ? "table" : "register array";
}

/// The tables among these whose names the pattern fits: part of a name, or a name with * and ?.
std::vector<Catalogue::Table> matching(const std::vector<Catalogue::Table>& tables,
                                       const std::string& pattern) {
  if (pattern.empty()) return tables;
  std::vector<Catalogue::Table> matches;
  for (const Catalogue::Table& table : tables) {
    if (NamePattern(pattern).matches(table.name())) matches.push_back(table);
  }
  if (matches.empty()) {
    fail("no table matches {}; {}\"velmar tables\" lists the tables", inQuotes(pattern),
         didYouMean(pattern, tableNames()));
  }
  return matches;
}

Listing listTablesOf(const Catalogue::Chip& chip, U8 variant, const std::string& pattern) {
  Listing listing({"table", "kind", "bytes", "entries", "address", "fields", "purpose"});
  for (const Catalogue::Table& table : matching(tablesOn(chip, variant), pattern)) {
    const Layout layout(table, chip, variant);
    listing.add({table.name(), kindOf(table), layout.entryBytes(), layout.indexCount(),
                 addressText(layout.geometry().base), layout.geometry().fieldCount,
                 table.purpose()});
  }
  return listing;
}

/// "64", or "12-64" where chips differ.
Cell spread(const std::set<U32>& numbers) {
  if (numbers.size() == 1) return *numbers.begin();
  std::string list;
  for (const U32 number : numbers) list += formatText("{}{}", list.empty() ? '[' : ',', number);
  const std::string text = formatText("{}-{}", *numbers.begin(), *numbers.rbegin());
  return Cell::ofJson(list + "]").shownAs(text);
}

Listing listTables(const std::string& pattern) {
  Listing listing({"table", "kind", "bytes", "entries", "purpose", "chips"});
  for (const Catalogue::Table& table : matching(allTables(), pattern)) {
    std::set<U32> bytes;
    std::set<U32> entries;
    for (const Catalogue::Chip& chip : allChips()) {
      if (!table.isOn(chip.number)) continue;
      const Layout layout(table, chip, 0);
      bytes.insert(layout.entryBytes());
      entries.insert(layout.indexCount());
    }
    const std::vector<std::string> chips = chipsOf(table);
    listing.add({table.name(), kindOf(table), spread(bytes), spread(entries), table.purpose(),
                 Cell(chips).shownAs(chipsText(chips))});
  }
  return listing;
}

int run(const Arguments& arguments) {
  if (arguments.chips.empty() && !arguments.variant.empty()) {
    fail("--variant has no effect without --chip; give both");
  }
  const Listing listing =
      arguments.chips.empty()
          ? listTables(arguments.pattern)
          : listTablesOf(chipOf(arguments), variantOf(arguments), arguments.pattern);
  print(arguments, listing, frameOf("tables", "tables"));
  return exitSuccess;
}

}  // namespace

Verb tablesVerb() {
  return {
      "tables",
      "Lists the tables: entry bytes, entries, and the chips that have them.",
      "With --chip, the tables of that chip with their addresses.",
      {Positionals::tablePattern},
      {Options::chipIfAny, Options::variant, Options::listFormat, Options::output, Options::color},
      {"velmar tables", "velmar tables mpls", "velmar tables --chip BCM56470_A0 --format json"},
      run};
}

}  // namespace Tool
