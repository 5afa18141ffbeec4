#include "core/Comparison.h"

#include "verbs/Requests.h"
#include "verbs/Verbs.h"

namespace Tool {
namespace {

struct CompareRequest {
  std::optional<Catalogue::Table> table;
  std::optional<Catalogue::Chip> before, after;
  U8 variant = 0;
  OutputRequest output;
  bool expand = false, quiet = false;
};

/// For people old and new stand beside each other also where the line is short.
Listing readable(const std::vector<PartChange>& changes) {
  Listing listing({"table", "part", "old", "new", "change"});
  for (const PartChange& change : changes) {
    listing.add({change.table.name(), change.part, change.before, change.after, change.change});
  }
  return listing;
}

int run(const CompareRequest& request) {
  const bool isForPeople = request.output.isForPeople();
  const std::vector<PartChange> changes =
      taken(compareChips(*request.before, *request.after, request.variant, request.table,
                         isForPeople && !request.expand));
  if (!request.quiet) {
    printIfAny(request.output, isForPeople ? readable(changes) : listingOf(changes),
               comparisonFrame(*request.before, *request.after));
  }
  return changes.empty() ? exitSuccess : exitFinding;
}

}  // namespace

Verb compareVerb() {
  const auto request = std::make_shared<CompareRequest>();
  CompareRequest& to = *request;
  const auto takeChips = [&to](const Texts& texts) {
    if (texts.size() != 2) {
      fail("--chip is given {} time{}; give it twice, the old chip first", texts.size(),
           pluralEnd(texts.size()));
    }
    to.before = taken(findChip(texts[0]));
    to.after = taken(findChip(texts[1]));
  };
  return {"compare",
          "Prints what changes from one chip to another: fields, geometry, addresses.",
          "Without TABLE all tables are compared. What is the same is not printed. Exit code 1 "
          "says that there are differences.",
          {{Positionals::tableIfAny, into(to.table)}},
          {{Options::chips, takeChips},
           {Options::variant, intoVariant(to.variant)},
           {Options::expand, into(to.expand)},
           {Options::quiet, into(to.quiet)},
           {Options::listFormat, into(to.output.format)},
           {Options::output, into(to.output.file)},
           {Options::color, into(to.output.color)}},
          {"velmar compare VlanEntry --chip BCM56980_A0 --chip BCM56990_B0",
           "velmar compare --chip BCM56275_A0 --chip BCM56175_A0 --format csv"},
          [request] { return run(*request); }};
}

}  // namespace Tool
