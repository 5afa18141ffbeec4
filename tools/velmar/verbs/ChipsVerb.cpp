#include "verbs/Requests.h"
#include "verbs/Verbs.h"

namespace Tool {
namespace {

int run(const OutputRequest& request) {
  Listing listing({"chip", "number", "tables"});
  for (const Catalogue::Chip& chip : allChips()) {
    listing.add({chip.name, chip.number, static_cast<U32>(tablesOn(chip).size())});
  }
  print(request, listing, frameOf("chips", "chips"));
  return exitSuccess;
}

}  // namespace

Verb chipsVerb() {
  const auto request = std::make_shared<OutputRequest>();
  return {"chips",
          "Lists the chips, with their numbers and how many tables each has.",
          "",
          {},
          {{Options::listFormat, into(request->format)},
           {Options::output, into(request->file)},
           {Options::color, into(request->color)}},
          {"velmar chips", "velmar chips --format csv"},
          [request] { return run(*request); }};
}

}  // namespace Tool
