#include <algorithm>
#include <set>

#include "model/Failure.h"
#include "model/Text.h"
#include "output/ValueText.h"
#include "verbs/Target.h"
#include "verbs/Verbs.h"

namespace Tool {
namespace {

/// What is asked for: an identifier, or a name.
class FieldPattern {
 public:
  explicit FieldPattern(const std::string& pattern) : id_(parseNumber(pattern)), name_(pattern) {}

  bool matches(const Catalogue::Field& field) const {
    return id_ ? id_ == field.id : name_.matches(field.accessor);
  }
  bool isExactly(const Catalogue::Field& field) const {
    return !id_ && name_.isExactly(field.accessor);
  }

 private:
  std::optional<U64> id_;
  NamePattern name_;
};

/// A field of a table, or a family, and the chips that have it.
struct Match {
  Catalogue::Table table;
  FieldGroup group;
  std::vector<std::string> chips;
};

std::vector<Match> matchesIn(const Arguments& arguments,
                             bool (FieldPattern::*matches)(const Catalogue::Field&) const) {
  const FieldPattern pattern(arguments.pattern);
  const bool asFamilies = formatOf(arguments.format) == Format::table && !arguments.expand;
  std::vector<Match> found;
  for (const Catalogue::Table& table : allTables()) {
    if (!isAskedFor(arguments, table)) continue;
    std::vector<Match> ofTable;
    for (U32 i = 0; i < table.fieldCount(); ++i) {
      const FieldPlace place = {table.field(i), 0, 0};
      if (!(pattern.*matches)(place.field)) continue;
      std::vector<std::string> chips = chipsOf(table, i);
      if (!arguments.chips.empty()) {
        const std::string chip = chipOf(arguments).name;
        if (std::count(chips.begin(), chips.end(), chip) == 0) continue;
      }
      const bool goesOn = asFamilies && !ofTable.empty() && ofTable.back().chips == chips &&
                          areOfOneFamily(ofTable.back().group.back().field, place.field);
      if (goesOn) {
        ofTable.back().group.members.push_back(place);
      } else {
        ofTable.push_back({table, {{place}}, std::move(chips)});
      }
    }
    found.insert(found.end(), ofTable.begin(), ofTable.end());
  }
  return found;
}

/// An exact name finds the fields of that name only.
Listing matchingFields(const Arguments& arguments) {
  std::vector<Match> matches = matchesIn(arguments, &FieldPattern::isExactly);
  if (matches.empty()) matches = matchesIn(arguments, &FieldPattern::matches);
  const bool isForPeople = formatOf(arguments.format) == Format::table;
  Listing listing({"field", "hardwareName", "id", "table", "type", "chips"});
  for (const Match& match : matches) {
    const Catalogue::Field& field = match.group.front().field;
    const bool isOnAll = match.chips.size() == chipsOf(match.table).size();
    const std::string shown = match.chips.empty() ? "none"
                              : isOnAll           ? "all of the table"
                                                  : join(match.chips, " ");
    Cell id = field.id;
    if (match.group.isFamily()) id = rangesText(match.group.ids());
    listing.add({match.group.name(), match.group.hardwareName(), id, match.table.name(),
                 isForPeople ? shortNameOf(field.type) : Catalogue::valueTypeName(field.type),
                 Cell(match.chips).shownAs(shown)});
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
  const Listing listing = matchingFields(arguments);
  if (listing.isEmpty() && !(arguments.chips.empty() && arguments.tableOption.empty())) {
    Arguments everywhere = arguments;
    everywhere.chips.clear();
    everywhere.tableOption.clear();
    if (!matchingFields(everywhere).isEmpty()) {
      fail("{} is not there, but elsewhere; leave out --table and --chip to see it",
           inQuotes(arguments.pattern));
    }
  }
  if (listing.isEmpty()) {
    fail("no field matches {}; {}\"velmar fields\" lists the fields", inQuotes(arguments.pattern),
         didYouMean(arguments.pattern, allFieldNames()));
  }
  print(arguments, listing, frameOf("fields", "fields"));
  return exitSuccess;
}

}  // namespace

Verb fieldsVerb() {
  return {"fields",
          "Lists fields, with the tables and chips that have them.",
          "A pattern that is the whole name of a field finds the fields of that name only.",
          {Positionals::pattern},
          {Options::chipIfAny, Options::tableOption, Options::expand, Options::listFormat,
           Options::output, Options::color},
          {"velmar fields stg", "velmar fields '*Bitmap*' --chip BCM56980_A0"},
          run};
}

}  // namespace Tool
