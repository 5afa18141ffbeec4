#include <algorithm>
#include <set>

#include "output/Entries.h"
#include "verbs/Requests.h"
#include "verbs/Verbs.h"

namespace Tool {
namespace {

struct FieldsRequest {
  std::string pattern;
  std::optional<Catalogue::Chip> chip;
  std::optional<Catalogue::Table> table;
  bool expand = false;
  OutputRequest output;
};

/// What is asked for: an identifier, or a name.
class FieldPattern {
 public:
  explicit FieldPattern(const std::string& pattern)
      : id_(parseNumber(pattern)), name_(taken(NamePattern::of(pattern))) {}

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

/// Whether one line stands for both: members of a family that the same chips have.
bool areAlike(const Match& a, const Match& b) {
  return b.group.front().isOfFamilyOf(a.group.front()) && a.chips == b.chips;
}

/// The fields of a table; those that are alike as one match.
std::vector<Match> asFamilies(const std::vector<Match>& matches) {
  std::vector<Match> families;
  const auto isAlike = [&](size_t i, size_t j) { return areAlike(matches[i], matches[j]); };
  for (const std::vector<size_t>& group : joined(matches.size(), isAlike)) {
    Match family = matches[group.front()];
    for (size_t i = 1; i < group.size(); ++i) {
      family.group.members.push_back(matches[group[i]].group.front());
    }
    families.push_back(std::move(family));
  }
  return families;
}

std::vector<Match> matchesIn(const FieldsRequest& request,
                             bool (FieldPattern::*matches)(const Catalogue::Field&) const) {
  const FieldPattern pattern(request.pattern);
  const bool joinsFamilies = request.output.isForPeople() && !request.expand;
  std::vector<Match> found;
  for (const Catalogue::Table& table : allTables()) {
    if (!isMeant(request.table, table)) continue;
    std::vector<Match> ofTable;
    for (U32 i = 0; i < table.fieldCount(); ++i) {
      const Catalogue::Field field = table.field(i);
      if (!(pattern.*matches)(field)) continue;
      std::vector<std::string> chips = chipsOf(table, i);
      const bool isThere =
          !request.chip || std::count(chips.begin(), chips.end(), request.chip->name) != 0;
      if (!isThere) continue;
      ofTable.push_back({table, {{{field, 0, 0, table.family(i)}}}, std::move(chips)});
    }
    if (joinsFamilies) ofTable = asFamilies(ofTable);
    found.insert(found.end(), ofTable.begin(), ofTable.end());
  }
  return found;
}

/// An exact name finds the fields of that name only.
Listing matchingFields(const FieldsRequest& request) {
  std::vector<Match> matches = matchesIn(request, &FieldPattern::isExactly);
  if (matches.empty()) matches = matchesIn(request, &FieldPattern::matches);
  const bool isForPeople = request.output.isForPeople();
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

int run(const FieldsRequest& request) {
  const Listing listing = matchingFields(request);
  if (listing.isEmpty() && (request.chip || request.table)) {
    FieldsRequest everywhere = request;
    everywhere.chip.reset();
    everywhere.table.reset();
    if (!matchingFields(everywhere).isEmpty()) {
      fail("{} is not there, but elsewhere; leave out --table and --chip to see it",
           inQuotes(request.pattern));
    }
  }
  if (listing.isEmpty()) {
    fail("no field matches {}; {}\"velmar fields\" lists the fields", inQuotes(request.pattern),
         didYouMean(request.pattern, allFieldNames()));
  }
  print(request.output, listing, frameOf("fields", "fields"));
  return exitSuccess;
}

}  // namespace

Verb fieldsVerb() {
  const auto request = std::make_shared<FieldsRequest>();
  FieldsRequest& to = *request;
  return {"fields",
          "Lists fields, with the tables and chips that have them.",
          "A pattern that is the whole name of a field finds the fields of that name only.",
          {{Positionals::pattern, into(to.pattern)}},
          {{Options::chipIfAny, into(to.chip)},
           {Options::tableOption, into(to.table)},
           {Options::expand, into(to.expand)},
           {Options::listFormat, into(to.output.format)},
           {Options::output, into(to.output.file)},
           {Options::color, into(to.output.color)}},
          {"velmar fields stg", "velmar fields '*Bitmap*' --chip BCM56980_A0"},
          [request] { return run(*request); }};
}

}  // namespace Tool
