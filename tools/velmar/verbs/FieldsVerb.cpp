#include <fnmatch.h>

#include <set>

#include "model/Failure.h"
#include "model/Text.h"
#include "verbs/Target.h"
#include "verbs/Verbs.h"

namespace Tool {
namespace {

/// Matches a pattern with fields by accessor, hardware name or identifier.
class FieldPattern {
 public:
  explicit FieldPattern(const std::string& pattern)
      : id_(parseNumber(pattern)), pattern_(simplified(pattern)) {
    const bool hasWildcard = pattern_.find_first_of("*?[") != std::string::npos;
    if (!hasWildcard) pattern_ = "*" + pattern_ + "*";
  }

  bool matches(const Catalogue::Field& field) const {
    if (id_) return id_ == field.id;
    return fnmatch(pattern_.c_str(), simplified(field.accessor).c_str(), 0) == 0;
  }

 private:
  std::optional<U64> id_;
  std::string pattern_;
};

Listing matchingFields(const FieldPattern& pattern) {
  Listing listing({"field", "hardwareName", "id", "table", "type", "chips"});
  for (const Catalogue::Table& table : allTables()) {
    const size_t tableChips = chipsOf(table).size();
    for (U32 j = 0; j < table.fieldCount(); ++j) {
      const Catalogue::Field field = table.field(j);
      if (!pattern.matches(field)) continue;
      const std::vector<std::string> chips = chipsOf(table, j);
      const std::string shown = chips.size() == tableChips ? "all of the table" : join(chips, " ");
      listing.add({field.accessor, field.hardwareName, field.id, table.name(),
                   Catalogue::valueTypeName(field.type),
                   Cell(chips).shownAs(chips.empty() ? "none" : shown)});
    }
  }
  return listing;
}

std::vector<std::string> allFieldNames() {
  std::set<std::string> names;
  for (const Catalogue::Table& table : allTables()) {
    for (const std::string& name : fieldNames(table)) names.insert(name);
  }
  return {names.begin(), names.end()};
}

int run(const Arguments& arguments) {
  const Listing listing = matchingFields(FieldPattern(arguments.pattern));
  if (listing.isEmpty()) {
    fail("no field matches {}; {}\"velmar fields\" lists the fields", inQuotes(arguments.pattern),
         didYouMean(arguments.pattern, allFieldNames()));
  }
  print(arguments, listing);
  return exitSuccess;
}

}  // namespace

Verb fieldsVerb() {
  return {"fields",
          "Lists fields, with the tables and chips that have them.",
          "",
          {Positionals::pattern},
          {Options::listFormat, Options::output, Options::color},
          {"velmar fields stg", "velmar fields '*Bitmap*' --format jsonl"},
          run};
}

}  // namespace Tool
