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

U32 indexOf(const Arguments& arguments, const Layout& layout) {
  if (!arguments.array.empty() && !arguments.index.empty()) {
    fail("--index and --array exclude each other; give one of them");
  }
  if (!arguments.array.empty() && !layout.isRegisterArray()) {
    fail("{} is a table, not a register array; give --index instead of --array", layout.name());
  }
  const bool byArray = !arguments.array.empty();
  const std::string& text = byArray ? arguments.array : arguments.index;
  if (text.empty()) {
    fail("nothing to look up; give {}, or --find with an address",
         layout.isRegisterArray() ? "--array N" : "--index N");
  }
  return static_cast<U32>(
      numberOf(byArray ? "--array" : "--index", text, layout.indexCount() - 1, 0));
}

Listing addressOfEntry(const Arguments& arguments) {
  if (arguments.table.empty()) fail("TABLE is missing; name a table, or give --find");
  const Layout layout = layoutOf(arguments);
  const U32 index = indexOf(arguments, layout);
  const U64 largest = layout.geometry().identifiers - 1;
  const U64 identifier = numberOf("--identifier", arguments.identifier, largest, 0);
  Listing listing = newListing();
  add(listing, layout, index, static_cast<U32>(identifier));
  return listing;
}

/// Adds the entry of a table that has an address, for each of its identifiers.
void addMatches(Listing& listing, const Layout& layout, U32 address) {
  const U32 step = layout.isRegisterArray() ? layout.geometry().addrStride : 1;
  for (U32 identifier = 0; identifier < layout.geometry().identifiers; ++identifier) {
    const U32 first = layout.addressOf(0, identifier).address;
    if (address < first || (address - first) % step != 0) continue;
    const U32 index = (address - first) / step;
    if (index < layout.indexCount()) add(listing, layout, index, identifier);
  }
}

/// The entries of a table, or of all tables of the chip.
Listing matchesOf(const std::vector<Catalogue::Table>& tables, const Arguments& arguments) {
  const U64 address = numberOf("--find", arguments.find, 0xffffffff, 0);
  Listing listing = newListing();
  for (const Catalogue::Table& table : tables) {
    addMatches(listing, Layout(table, chipOf(arguments), variantOf(arguments)),
               static_cast<U32>(address));
  }
  return listing;
}

std::vector<Catalogue::Table> tablesOfChip(const Arguments& arguments) {
  return tablesOn(chipOf(arguments), variantOf(arguments));
}

Listing entriesAtAddress(const Arguments& arguments) {
  if (!arguments.index.empty() || !arguments.array.empty() || !arguments.identifier.empty()) {
    fail("--find excludes --index, --array and --identifier; give --find alone");
  }
  const bool isNamed = !arguments.table.empty();
  return matchesOf(isNamed ? std::vector{findTable(arguments.table)} : tablesOfChip(arguments),
                   arguments);
}

/// Says that nothing has the address or, where the table is named, who else has it.
void noteNotFound(const Arguments& arguments) {
  std::vector<std::string> others;
  for (const Catalogue::Table& table : tablesOfChip(arguments)) {
    if (!matchesOf({table}, arguments).isEmpty()) others.emplace_back(table.name());
  }
  const std::string text =
      others.empty()
          ? formatText("no table of the chip has an entry at {}", arguments.find)
          : formatText("{} has no entry at {}, but {} has; leave out the table to see it",
                       findTable(arguments.table).name(), arguments.find, join(others, " and "));
  std::fprintf(stderr, "velmar: %s\n", text.c_str());
}

int run(const Arguments& arguments) {
  const bool find = !arguments.find.empty();
  const Listing listing = find ? entriesAtAddress(arguments) : addressOfEntry(arguments);
  Output output(arguments.output, arguments.color);
  if (!listing.isEmpty() || formatOf(arguments.format) != Format::table) {
    listing.print(output, formatOf(arguments.format));
  }
  output.finish();
  if (!listing.isEmpty()) return exitSuccess;
  noteNotFound(arguments);
  return exitFinding;
}

}  // namespace

Verb addrVerb() {
  return {
      "addr",
      "Prints the S-channel address of an entry, or the entry of an address.",
      "With --find, all entries that have the address are printed: tables may share one. Exit "
      "code 1 says that none has it.",
      {Positionals::tableIfAny},
      {Options::chip, Options::variant, Options::entryIndex, Options::array, Options::identifier,
       Options::find, Options::listFormat, Options::output, Options::color},
      {"velmar addr VlanEntry --chip BCM56990_B0 --index 100",
       "velmar addr --find 0x0c7c0064 --chip BCM56990_B0"},
      run};
}

}  // namespace Tool
