#include <set>

#include "verbs/Requests.h"
#include "verbs/Verbs.h"

namespace Tool {
namespace {

struct AddrRequest {
  std::string table;
  std::optional<Catalogue::Chip> chip;
  U8 variant = 0;
  IndexRequest index, array;
  std::string identifier;
  Texts find;
  OutputRequest output;

  Catalogue::Table namedTable() const { return taken(findTable(table)); }
  Layout layout() const { return taken(Layout::of(namedTable(), *chip, variant)); }
};

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

Listing addressesOfEntries(const AddrRequest& request) {
  if (request.table.empty()) fail("TABLE is missing; name a table, or give --find");
  const Layout layout = request.layout();
  const bool byArray = !request.array.set.isAll();
  const bool byIndex = !request.index.set.isAll();
  if (byArray && byIndex) fail("--index and --array exclude each other; give one of them");
  if (byArray && !layout.isRegisterArray()) {
    fail("{} is a table, not a register array; give --index instead of --array", layout.name());
  }
  if (!byArray && !byIndex) {
    fail("nothing to look up; give {}, or --find with an address",
         layout.isRegisterArray() ? "--array N" : "--index N");
  }
  const IndexRequest& indexes = byArray ? request.array : request.index;
  indexes.check(layout, byArray ? "--array" : "--index");
  const U64 largest = layout.geometry().identifiers - 1;
  const U64 identifier =
      request.identifier.empty() ? 0 : numberOf("--identifier", request.identifier, largest);
  Listing listing = newListing();
  for (const U64 index : indexes.set.below(layout.indexCount())) {
    add(listing, layout, static_cast<U32>(index), static_cast<U32>(identifier));
  }
  return listing;
}

/// Adds what has an address in a table, or in all tables if none is named; returns the names of the
/// tables that have it.
std::set<std::string> findAddress(Listing& listing, const AddrRequest& request,
                                  const std::optional<Catalogue::Table>& table, U32 address) {
  std::set<std::string> names;
  for (const Catalogue::Chip& chip : meantChips(request.chip)) {
    for (const EntryOfAddress& entry : entriesAt(chip, request.variant, address)) {
      const Catalogue::Table candidate = Catalogue::table(entry.table);
      if (!isMeant(table, candidate)) continue;
      names.insert(candidate.name());
      add(listing, taken(Layout::of(candidate, chip, request.variant)), entry.index,
          entry.identifier);
    }
  }
  return names;
}

/// An address, also one that lacks 0x.
U32 addressIn(const std::string& typed) {
  constexpr size_t longest = 8;
  if (!parseNumber(typed) && hexDigitsOf(typed) == typed.size() && typed.size() <= longest) {
    fail("--find {}: hexadecimal without 0x; did you mean 0x{}?", inQuotes(typed), typed);
  }
  return static_cast<U32>(numberOf("--find", typed, 0xffffffff));
}

/// The nearest entry of the tables that are searched, such as "; it is 1 past VlanEntry 8191".
std::string nearestText(const AddrRequest& request, const std::optional<Catalogue::Table>& table,
                        U32 address) {
  std::optional<NearEntry> nearest;
  std::string chipName;
  for (const Catalogue::Chip& chip : meantChips(request.chip)) {
    const auto near = nearestEntry(chip, request.variant, address, table);
    if (!near || (nearest && nearest->distance <= near->distance)) continue;
    nearest = near;
    chipName = chip.name;
  }
  if (!nearest) return "";
  if (request.chip) return "; it is " + nearest->shown();
  return formatText("; on {} it is {}", chipName, nearest->shown());
}

/// Says that nothing has the address or, if the table is named, that others have it.
void noteNotFound(const AddrRequest& request, const std::optional<Catalogue::Table>& table,
                  const std::string& typed, U32 address) {
  Listing ignored = newListing();
  const std::set<std::string> others = findAddress(ignored, request, std::nullopt, address);
  std::string text = table ? formatText("{} has no entry at {}", table->name(), typed)
                           : formatText("no table of {} has an entry at {}",
                                        request.chip ? "the chip" : "a chip", typed);
  const std::optional<U64> asHex = parseNumber("0x" + typed);
  if (!others.empty()) {
    text += formatText(", but {} has; leave out the table to see it",
                       join({others.begin(), others.end()}, " and "));
  } else if (asHex && *asHex <= 0xffffffff &&
             !findAddress(ignored, request, table, static_cast<U32>(*asHex)).empty()) {
    text += formatText("; did you mean 0x{}?", typed);
  } else {
    text += nearestText(request, table, address);
  }
  std::fprintf(stderr, "velmar: %s\n", text.c_str());
}

int run(const AddrRequest& request) {
  const bool finds = !request.find.empty();
  const bool namesEntries = !request.index.typed.empty() || !request.array.typed.empty();
  if (finds && (namesEntries || !request.identifier.empty())) {
    fail("--find excludes --index, --array and --identifier; give --find alone");
  }
  if (!finds && parseNumber(request.table)) {
    fail("{} is no table; to look up an address give --find {}", request.table, request.table);
  }
  if (!finds && !request.chip) fail("--chip is missing; see \"velmar addr --help\"");
  std::optional<Catalogue::Table> table;
  if (finds && !request.table.empty()) table = request.namedTable();
  // A table that the chip does not have is an error.
  if (table && request.chip) request.layout();
  Listing listing = finds ? newListing() : addressesOfEntries(request);
  std::vector<std::pair<std::string, U32>> missing;
  for (const std::string& typed : request.find) {
    const U32 address = addressIn(typed);
    if (findAddress(listing, request, table, address).empty()) missing.emplace_back(typed, address);
  }
  printIfAny(request.output, listing, frameOf("addresses", "addresses"));
  for (const auto& [typed, address] : missing) noteNotFound(request, table, typed, address);
  return missing.empty() ? exitSuccess : exitFinding;
}

}  // namespace

Verb addrVerb() {
  const auto request = std::make_shared<AddrRequest>();
  AddrRequest& to = *request;
  return {"addr",
          "Prints the S-channel address of an entry, or the entry of an address.",
          "With --find, all entries that have the address are printed: tables may share one. "
          "Without --chip, all chips are searched. Exit code 1 says that none has it.",
          {{Positionals::tableIfAny, into(to.table)}},
          {{Options::chipIfAny, into(to.chip)},
           {Options::variant, intoVariant(to.variant)},
           {Options::entryIndex, into(to.index)},
           {Options::array, into(to.array)},
           {Options::identifier, into(to.identifier)},
           {Options::find, into(to.find)},
           {Options::listFormat, into(to.output.format)},
           {Options::output, into(to.output.file)},
           {Options::color, into(to.output.color)}},
          {"velmar addr VlanEntry --chip BCM56990_B0 --index 100",
           "velmar addr --find 0x0c7c0064 --chip BCM56990_B0", "velmar addr --find 0x0c7c0064"},
          [request] { return run(*request); }};
}

}  // namespace Tool
