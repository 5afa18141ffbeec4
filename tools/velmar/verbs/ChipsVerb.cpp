#include "model/Names.h"
#include "output/Listing.h"
#include "verbs/Verbs.h"

namespace Tool {
namespace {

U32 tablesOn(const Catalogue::Chip& chip) {
  U32 count = 0;
  for (U32 i = 0; i < Catalogue::tableCount(); ++i) {
    if (Catalogue::table(i).isOn(chip.number)) ++count;
  }
  return count;
}

int run(const Arguments& arguments) {
  Listing listing({"chip", "number", "tables"});
  for (U32 i = 0; i < Catalogue::chipCount(); ++i) {
    const Catalogue::Chip chip = Catalogue::chip(i);
    listing.add({chip.name, chip.number, tablesOn(chip)});
  }
  Output output(arguments.output, arguments.color);
  listing.print(output, formatOf(arguments.format));
  output.finish();
  return 0;
}

}  // namespace

Verb chipsVerb() {
  return {"chips",
          "Lists the chips, with their numbers and how many tables each has.",
          "",
          {},
          {Options::listFormat(), Options::output(), Options::color()},
          {"velmar chips", "velmar chips --format csv"},
          run};
}

}  // namespace Tool
