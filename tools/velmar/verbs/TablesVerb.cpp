#include <set>

#include "verbs/Requests.h"
#include "verbs/Verbs.h"

namespace Tool {
namespace {

struct TablesRequest {
  std::string pattern;
  std::optional<Catalogue::Chip> chip;
  std::optional<U8> variant;
  OutputRequest output;
};

const char* kindOf(const Catalogue::Table& table) {
  return table.kind() == Catalogue::Kind::table ? "table" : "register array";
}

/// The tables among these whose names the pattern fits: part of a name, or a name with * and ?.
std::vector<Catalogue::Table> matching(const std::vector<Catalogue::Table>& tables,
                                       const std::string& pattern) {
  if (pattern.empty()) return tables;
  const NamePattern names = taken(NamePattern::of(pattern));
  std::vector<Catalogue::Table> matches;
  for (const Catalogue::Table& table : tables) {
    if (names.matches(table.name())) matches.push_back(table);
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
    const Layout layout = taken(Layout::of(table, chip, variant));
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
      const Catalogue::Geometry geometry = table.geometry(chip.number);
      bytes.insert(4U * geometry.words);
      entries.insert(indexCount(geometry));
    }
    const std::vector<std::string> chips = chipsOf(table);
    listing.add({table.name(), kindOf(table), spread(bytes), spread(entries), table.purpose(),
                 Cell(chips).shownAs(chipsText(chips))});
  }
  return listing;
}

int run(const TablesRequest& request) {
  if (!request.chip && request.variant) {
    fail("--variant has no effect without --chip; give both");
  }
  const Listing listing =
      request.chip ? listTablesOf(*request.chip, request.variant.value_or(0), request.pattern)
                   : listTables(request.pattern);
  print(request.output, listing, frameOf("tables", "tables"));
  return exitSuccess;
}

}  // namespace

Verb tablesVerb() {
  const auto request = std::make_shared<TablesRequest>();
  TablesRequest& to = *request;
  const auto takeVariant = [&to](const Texts& texts) { intoVariant(to.variant.emplace())(texts); };
  return {"tables",
          "Lists the tables: entry bytes, entries, and the chips that have them.",
          "With --chip, the tables of that chip with their addresses.",
          {{Positionals::tablePattern, into(to.pattern)}},
          {{Options::chipIfAny, into(to.chip)},
           {Options::variant, takeVariant},
           {Options::listFormat, into(to.output.format)},
           {Options::output, into(to.output.file)},
           {Options::color, into(to.output.color)}},
          {"velmar tables", "velmar tables mpls", "velmar tables --chip BCM56470_A0 --format json"},
          [request] { return run(*request); }};
}

}  // namespace Tool
