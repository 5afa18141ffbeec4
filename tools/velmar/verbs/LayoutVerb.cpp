#include <algorithm>

#include "model/Failure.h"
#include "output/Diagram.h"
#include "output/Listing.h"
#include "verbs/Target.h"
#include "verbs/Verbs.h"

namespace Tool {
namespace {

/// The fields in the order of their bits. The names of the fields that share bits with them stand in
/// a column of their own, for people only where there are any.
Listing fieldListing(const Layout& layout, bool isForPeople) {
  std::vector<FieldPlace> places = layout.fields();
  std::stable_sort(places.begin(), places.end(),
                   [](const FieldPlace& a, const FieldPlace& b) { return a.offset < b.offset; });
  std::vector<std::string> columns = {"field",        "bits", "offset",   "width",  "type",
                                      "hardwareName", "id",   "overlaps", "meaning"};
  const bool namesOverlaps =
      !isForPeople || std::any_of(places.begin(), places.end(), [&layout](const FieldPlace& place) {
        return !layout.overlapsOf(place).empty();
      });
  if (namesOverlaps) columns.emplace_back("sharesBitsWith");
  Listing listing(columns);
  for (const FieldPlace& place : places) {
    const std::vector<std::string> others = layout.overlapsOf(place);
    const bool overlaps = !others.empty();
    Row row = {place.name(),
               place.bits(),
               place.offset,
               place.width,
               Catalogue::valueTypeName(place.field.type),
               place.field.hardwareName,
               place.field.id,
               Cell(overlaps).shownAs(overlaps ? "yes" : ""),
               place.field.meaning};
    if (namesOverlaps) row.emplace_back(others);
    listing.add(std::move(row));
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

const char* pluralEnd(U32 count) { return count == 1 ? "" : "s"; }

void printHead(Output& output, const Layout& layout) {
  const Catalogue::Geometry& geometry = layout.geometry();
  output.write(formatText("{} on {}", layout.name(), layout.chip().name), Style::strong);
  output.print(": {}\n", layout.table().purpose());
  output.print("  entry     {} bytes ({} word{}), {} field{}\n", layout.entryBytes(),
               geometry.words, pluralEnd(geometry.words), geometry.fieldCount,
               pluralEnd(geometry.fieldCount));
  output.print("  {}  {}, index 0 to {}\n", layout.isRegisterArray() ? "elements" : "entries ",
               layout.indexCount(), layout.indexCount() - 1);
  output.print("  variants  {}\n",
               geometry.variants == Catalogue::Variants::any ? "any" : "0 only");
  output.print("  address   {}, access {}, block {}\n", addressRule(layout), geometry.accessType,
               blockText(geometry.block));
  if (geometry.identifiers > 1) {
    output.print("  instances {}, identifier 0 to {}\n", geometry.identifiers,
                 geometry.identifiers - 1);
  }
  output.write("\n");
}

int run(const Arguments& arguments) {
  const Layout layout = layoutOf(arguments);
  const Format format = formatOf(arguments.format);
  if (arguments.diagram && format != Format::table) {
    fail("--diagram is drawn as text only; leave out --format {}", arguments.format);
  }
  Output output(arguments.output, arguments.color);
  if (format == Format::table) printHead(output, layout);
  if (arguments.diagram) {
    drawDiagram(output, layout);
  } else {
    const std::string head =
        formatText("{{\"geometry\": {},\n \"fields\": [", geometryJson(layout));
    fieldListing(layout, format == Format::table).print(output, format, {head, "]}"});
  }
  output.finish();
  return exitSuccess;
}

}  // namespace

Verb layoutVerb() {
  return {"layout",
          "Prints the layout of a table's entry on a chip: fields, geometry, address rule.",
          "",
          {Positionals::table},
          {Options::chip, Options::variant, Options::diagram, Options::listFormat, Options::output,
           Options::color},
          {"velmar layout VlanEntry --chip BCM56990_B0",
           "velmar layout IngVpVlanMembership --chip BCM56470_A0 --diagram"},
          run};
}

}  // namespace Tool
