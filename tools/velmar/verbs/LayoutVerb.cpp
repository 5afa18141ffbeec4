#include <algorithm>
#include <cstdlib>

#include "output/Diagram.h"
#include "output/Entries.h"
#include "output/Listings.h"
#include "verbs/Requests.h"
#include "verbs/Verbs.h"

namespace Tool {
namespace {

struct LayoutRequest {
  TableRequest table;
  std::string field;
  OutputRequest output;
  bool diagram = false, expand = false;
};

/// Such as ", N at bit 2 * N + 8", where the places of a family follow such a rule.
std::string ruleOf(const FieldGroup& group) {
  const auto numberOf = [](const FieldPlace& place) {
    return static_cast<int>(place.family.number);
  };
  const auto offsetOf = [](const FieldPlace& place) { return static_cast<int>(place.offset); };
  const FieldPlace& first = group.front();
  const FieldPlace& second = group.members[1];
  const int step = (offsetOf(second) - offsetOf(first)) / (numberOf(second) - numberOf(first));
  const int start = offsetOf(first) - step * numberOf(first);
  for (const FieldPlace& place : group.members) {
    if (offsetOf(place) != start + step * numberOf(place)) return "";
  }
  if (start == 0) return formatText(", N at bit {} * N", step);
  return formatText(", N at bit {} * N {} {}", step, start < 0 ? '-' : '+', std::abs(start));
}

std::string meaningOf(const FieldGroup& group) {
  const std::string meaning = group.front().field.meaning;
  if (!group.isFamily()) return meaning;
  const FieldPlace& first = group.front();
  return formatText("{}; {} bit{} each{}", meaning, first.width, pluralEnd(first.width),
                    ruleOf(group));
}

/// For people: a row for each field or family of fields.
Listing readableFields(const Layout& layout, const std::vector<FieldGroup>& groups) {
  const bool namesOverlaps = std::any_of(
      groups.begin(), groups.end(),
      [&layout](const FieldGroup& group) { return !layout.overlapsOf(group.front()).empty(); });
  std::vector<std::string> columns = {"field", "bits", "type", "id", "hardwareName", "meaning"};
  if (namesOverlaps) columns.emplace_back("sharesBitsWith");
  Listing listing(columns);
  for (const FieldGroup& group : groups) {
    const FieldPlace& place = group.front();
    Row row = {group.name(),
               alignedBits(layout, group.bits()),
               shortNameOf(place.field.type),
               rangesText(group.ids()),
               group.hardwareName(),
               meaningOf(group)};
    if (namesOverlaps) row.emplace_back(layout.overlapsOf(place));
    listing.add(std::move(row));
  }
  return listing;
}

/// For programs: a row for each field.
Listing fieldListing(const Layout& layout, const std::vector<FieldPlace>& places) {
  Listing listing({"field", "bits", "offset", "width", "type", "hardwareName", "id", "overlaps",
                   "meaning", "sharesBitsWith"});
  for (const FieldPlace& place : places) {
    const std::vector<std::string> others = layout.overlapsOf(place);
    const bool overlaps = !others.empty();
    listing.add({place.name(), place.bits(), place.offset, place.width,
                 Catalogue::valueTypeName(place.field.type), place.field.hardwareName,
                 place.field.id, Cell(overlaps).shownAs(overlaps ? "yes" : ""), place.field.meaning,
                 others});
  }
  return listing;
}

std::string addressRule(const Layout& layout) {
  const Catalogue::Geometry& geometry = layout.geometry();
  return addressText(geometry.base) + (layout.isRegisterArray()
                                           ? formatText(" + element * {}", geometry.addrStride)
                                           : std::string(" + index"));
}

std::string geometryJson(const Layout& layout) {
  const Catalogue::Geometry& geometry = layout.geometry();
  return jsonObject(
      {"table", "chip", "variant", "variants", "entryBytes",
       layout.isRegisterArray() ? "elements" : "entries", "identifiers", "base", "addressRule",
       "accessType", "block"},
      {layout.name(), layout.chip().name, U32{layout.variant()},
       geometry.variants == Catalogue::Variants::any ? "any" : "0", layout.entryBytes(),
       layout.indexCount(), geometry.identifiers, addressText(geometry.base), addressRule(layout),
       geometry.accessType, geometry.block});
}

void printHead(Output& output, const Layout& layout) {
  const Catalogue::Geometry& geometry = layout.geometry();
  const auto print = [&output](const std::string& text) { output.writeLine("", text, 14); };
  output.writeLine(layout.shown(), formatText(": {}", layout.table().purpose()));
  print(formatText("  entry     {} bytes ({} word{}), {} field{}", layout.entryBytes(),
                   geometry.words, pluralEnd(geometry.words), geometry.fieldCount,
                   pluralEnd(geometry.fieldCount)));
  print(formatText("  {}  {}, index 0 to {}", layout.isRegisterArray() ? "elements" : "entries ",
                   layout.indexCount(), layout.indexCount() - 1));
  print(formatText("  variants  {}",
                   geometry.variants == Catalogue::Variants::any ? "any" : "0 only"));
  print(formatText("  address   {}, access {}, block {}", addressRule(layout), geometry.accessType,
                   blockText(geometry.block)));
  if (geometry.identifiers > 1) {
    print(formatText("  instances {}, identifier 0 to {}", geometry.identifiers,
                     geometry.identifiers - 1));
  }
  output.write("\n");
}

int run(const LayoutRequest& request) {
  const Layout layout = request.table.layout();
  const bool isForPeople = request.output.isForPeople();
  const std::vector<FieldPlace> places = inOrderOfBits(
      request.field.empty() ? layout.fields() : taken(findFields(layout, request.field)));
  Output output(request.output.file, request.output.color);
  if (isForPeople) printHead(output, layout);
  if (request.diagram) {
    drawDiagram(output, layout, !request.expand);
  } else if (isForPeople) {
    write(output, readableFields(layout, grouped(places, !request.expand)), Format::table, {});
  } else {
    write(output, fieldListing(layout, places), request.output.format,
          frameOf("layout", "fields", formatText("\"geometry\": {}", geometryJson(layout))));
  }
  output.finish();
  return exitSuccess;
}

}  // namespace

Verb layoutVerb() {
  const auto request = std::make_shared<LayoutRequest>();
  LayoutRequest& to = *request;
  const auto takeFormat = [&to](const Texts& texts) {
    to.output.format = formatOf(texts.front());
    if (to.diagram && !to.output.isForPeople()) {
      fail("--diagram is drawn as text only; leave out --format {}", texts.front());
    }
  };
  const auto takeDiagram = [&to](const Texts&) {
    if (!to.field.empty()) fail("--diagram draws all fields; leave out {}", inQuotes(to.field));
    to.diagram = true;
  };
  return {"layout",
          "Prints the layout of a table's entry on a chip: fields, geometry, address rule.",
          "",
          {{Positionals::table, into(to.table.table)}, {Positionals::fieldOfTable, into(to.field)}},
          {{Options::chip, into(to.table.chip)},
           {Options::variant, intoVariant(to.table.variant)},
           {Options::diagram, takeDiagram},
           {Options::expand, into(to.expand)},
           {Options::listFormat, takeFormat},
           {Options::output, into(to.output.file)},
           {Options::color, into(to.output.color)}},
          {"velmar layout VlanEntry --chip BCM56990_B0",
           "velmar layout IngVpVlanMembership --chip BCM56470_A0 --diagram"},
          [request] { return run(*request); }};
}

}  // namespace Tool
