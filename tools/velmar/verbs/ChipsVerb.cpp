#include "model/Failure.h"
#include "verbs/Target.h"
#include "verbs/Verbs.h"

namespace Tool {
namespace {

int run(const Arguments& arguments) {
  Listing listing({"chip", "number", "tables"});
  for (const Catalogue::Chip& chip : allChips()) {
    listing.add({chip.name, chip.number, static_cast<U32>(tablesOn(chip).size())});
  }
  print(arguments, listing, frameOf("chips", "chips"));
  return exitSuccess;
}

}  // namespace

Verb chipsVerb() {
  return {"chips",
          "Lists the chips, with their numbers and how many tables each has.",
          "",
          {},
          {Options::listFormat, Options::output, Options::color},
          {"velmar chips", "velmar chips --format csv"},
          run};
}

}  // namespace Tool
