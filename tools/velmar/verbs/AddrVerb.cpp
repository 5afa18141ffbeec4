#include <set>

#include "model/Failure.h"
#include "model/Text.h"
#include "output/Listing.h"
#include "verbs/Target.h"
#include "verbs/Verbs.h"

namespace Tool {
namespace {

Listing newListing() {
  return Listing(
      {"table", "chip", "index", "element", "identifier", "address", "accessType", "block"});
}

void add(Listing& listing, const Layout& layout, U32 index, U32 identifier) {
  const Address address = layout.addressOf(index, identifier);
  const bool isArray = layout.isRegisterArray();
  listing.add({layout.name(), layout.chip().name, isArray ? Cell(nullptr) : Cell(index),
               isArray ? Cell(index) : Cell(nullptr), identifier, addressText(address.address),
               address.accessType, Cell(address.block).shownAs(blockText(address.block))});
}

Listing addressesOfEntries(const Arguments& arguments) {
  if (arguments.table.empty()) fail("TABLE is missing; name a table, or give --find");
  const Layout layout = layoutOf(arguments);
  if (!arguments.array.empty() && !arguments.index.empty()) {
    fail("--index and --array exclude each other; give one of them");
  }
  const bool byArray = !arguments.array.empty();
  if (byArray && !layout.isRegisterArray()) {
    fail("{} is a table, not a register array; give --index instead of --array", layout.name());
  }
  if (!byArray && arguments.index.empty()) {
    fail("nothing to look up; give {}, or --find with an address",
         layout.isRegisterArray() ? "--array N" : "--index N");
  }
  const std::string typed = byArray ? arguments.array : join(arguments.index, ",");
  const IndexSet indexes(typed);
  checkIndexes(layout, indexes, byArray ? "--array" : "--index", typed);
  const U64 largest = layout.geometry().identifiers - 1;
  const U64 identifier = numberOf("--identifier", arguments.identifier, largest, 0);
  Listing listing = newListing();
  for (const U64 index : indexes.below(layout.indexCount())) {
    add(listing, layout, static_cast<U32>(index), static_cast<U32>(identifier));
  }
  return listing;
}

/// Adds what has an address in a table, or in all tables where none is named; returns the names of
/// the tables that have it.
std::set<std::string> findAddress(Listing& listing, const Arguments& arguments,
                                  const std::string& table, U32 address) {
  std::set<std::string> names;
  const U8 variant = variantOf(arguments);
  for (const Catalogue::Chip& chip : chipsOf(arguments)) {
    for (const EntryOfAddress& entry : entriesAt(chip, variant, address)) {
      const Catalogue::Table candidate = Catalogue::table(entry.table);
      if (!table.empty() && findTable(table).name() != std::string_view(candidate.name())) continue;
      names.insert(candidate.name());
      add(listing, Layout(candidate, chip, variant), entry.index, entry.identifier);
    }
  }
  return names;
}

/// Says that nothing has the address or, where the table is named, that others have it.
void noteNotFound(const Arguments& arguments, const std::string& typed, U32 address) {
  Listing ignored = newListing();
  const std::set<std::string> others = findAddress(ignored, arguments, "", address);
  const std::string text =
      others.empty()
          ? formatText("no table of {} has an entry at {}",
                       arguments.chips.empty() ? "a chip" : "the chip", typed)
          : formatText("{} has no entry at {}, but {} has; leave out the table to see it",
                       findTable(arguments.table).name(), typed,
                       join({others.begin(), others.end()}, " and "));
  std::fprintf(stderr, "velmar: %s\n", text.c_str());
}

int run(const Arguments& arguments) {
  const bool finds = !arguments.find.empty();
  const bool namesEntries = !arguments.index.empty() || !arguments.array.empty();
  if (finds && (namesEntries || !arguments.identifier.empty())) {
    fail("--find excludes --index, --array and --identifier; give --find alone");
  }
  if (!finds && parseNumber(arguments.table)) {
    fail("{} is no table; to look up an address give --find {}", arguments.table, arguments.table);
  }
  if (!finds && arguments.chips.empty()) fail("--chip is missing; see \"velmar addr --help\"");
  // A table that the chip does not have is an error.
  if (finds && !arguments.table.empty() && !arguments.chips.empty()) layoutOf(arguments);
  Listing listing = finds ? newListing() : addressesOfEntries(arguments);
  std::vector<std::pair<std::string, U32>> missing;
  for (const std::string& typed : arguments.find) {
    const U32 address = static_cast<U32>(numberOf("--find", typed, 0xffffffff, 0));
    if (findAddress(listing, arguments, arguments.table, address).empty()) {
      missing.emplace_back(typed, address);
    }
  }
  Output output(arguments.output, arguments.color);
  const Format format = formatOf(arguments.format);
  if (!listing.isEmpty() || format != Format::table) {
    listing.print(output, format, frameOf("addresses", "addresses"));
  }
  output.finish();
  for (const auto& [typed, address] : missing) noteNotFound(arguments, typed, address);
  return missing.empty() ? exitSuccess : exitFinding;
}

}  // namespace

Verb addrVerb() {
  return {
      "addr",
      "Prints the S-channel address of an entry, or the entry of an address.",
      "With --find, all entries that have the address are printed: tables may share one. Without "
      "--chip, all chips are searched. Exit code 1 says that none has it.",
      {Positionals::tableIfAny},
      {Options::chipIfAny, Options::variant, Options::entryIndex, Options::array,
       Options::identifier, Options::find, Options::listFormat, Options::output, Options::color},
      {"velmar addr VlanEntry --chip BCM56990_B0 --index 100",
       "velmar addr --find 0x0c7c0064 --chip BCM56990_B0", "velmar addr --find 0x0c7c0064"},
      run};
}

}  // namespace Tool
