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

Listing listTablesOf(const Catalogue::Chip& chip, U8 variant) {
  Listing listing({"table", "kind", "bytes", "entries", "address", "fields", "purpose"});
  for (const Catalogue::Table& table : tablesOn(chip, variant)) {
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

Listing listTables() {
  Listing listing({"table", "kind", "bytes", "entries", "purpose", "chips"});
  for (const Catalogue::Table& table : allTables()) {
    std::set<U32> bytes;
    std::set<U32> entries;
    for (const Catalogue::Chip& chip : allChips()) {
      if (!table.isOn(chip.number)) continue;
      const Layout layout(table, chip, 0);
      bytes.insert(layout.entryBytes());
      entries.insert(layout.indexCount());
    }
    const std::vector<std::string> chips = chipsOf(table);
    const bool isOnAll = chips.size() == Catalogue::chipCount();
    listing.add({table.name(), kindOf(table), spread(bytes), spread(entries), table.purpose(),
                 Cell(chips).shownAs(isOnAll ? "all" : join(chips, " "))});
  }
  return listing;
}

int run(const Arguments& arguments) {
  const Listing listing = arguments.chips.empty()
                              ? listTables()
                              : listTablesOf(chipOf(arguments), variantOf(arguments));
  print(arguments, listing);
  return exitSuccess;
}

}  // namespace

Verb tablesVerb() {
  return {
      "tables",
      "Lists the tables: entry bytes, entries, and the chips that have them.",
      "With --chip, the tables of that chip with their addresses.",
      {},
      {Options::chipIfAny, Options::variant, Options::listFormat, Options::output, Options::color},
      {"velmar tables", "velmar tables --chip BCM56470_A0 --format json"},
      run};
}

}  // namespace Tool
