#include <nlohmann/json.hpp>

#include "model/Failure.h"
#include "model/Layout.h"
#include "output/Output.h"
#include "verbs/Target.h"
#include "verbs/Verbs.h"

namespace Tool {
namespace {

using Json = nlohmann::ordered_json;

Json fieldAsJson(const Catalogue::Field& field) {
  return {{"accessor", field.accessor},
          {"hardwareName", field.hardwareName},
          {"id", field.id},
          {"type", Catalogue::valueTypeName(field.type)},
          {"overlaps", field.overlaps},
          {"meaning", field.meaning}};
}

Json layoutAsJson(const Layout& layout) {
  const Catalogue::Geometry& geometry = layout.geometry();
  Json fields = Json::object();
  for (const FieldPlace& place : layout.fields()) {
    Json& bits = fields[place.name()] = {{"offset", place.offset}, {"width", place.width}};
    const std::vector<std::string> others = layout.overlapsOf(place);
    if (!others.empty()) bits["sharesBitsWith"] = others;
  }
  return {{"chip", layout.chip().name},
          {"variants", geometry.variants == Catalogue::Variants::any ? "any" : "zeroOnly"},
          {"entryBytes", 4U * geometry.words},
          {"entries", geometry.entries},
          {"arrayElements", geometry.arrayElements},
          {"addrStride", geometry.addrStride},
          {"identifiers", geometry.identifiers},
          {"identifierTerm", geometry.identifierTerm},
          {"base", addressText(geometry.base)},
          {"accessType", geometry.accessType},
          {"block", geometry.block},
          {"fields", std::move(fields)}};
}

Json tableAsJson(const Catalogue::Table& table, const std::vector<Catalogue::Chip>& chips,
                 U8 variant) {
  Json fields = Json::array();
  for (U32 i = 0; i < table.fieldCount(); ++i) fields.push_back(fieldAsJson(table.field(i)));
  Json layouts = Json::array();
  for (const Catalogue::Chip& chip : chips) {
    if (table.isOn(chip.number, variant))
      layouts.push_back(layoutAsJson(Layout(table, chip, variant)));
  }
  return {{"name", table.name()},
          {"purpose", table.purpose()},
          {"kind", table.kind() == Catalogue::Kind::table ? "table" : "registerArray"},
          {"rawBytes", table.rawBytes()},
          {"allFieldsBytes", table.allFieldsBytes()},
          {"fields", std::move(fields)},
          {"layouts", std::move(layouts)}};
}

std::vector<Catalogue::Chip> chipsOf(const Arguments& arguments) {
  if (!arguments.chips.empty()) return {chipOf(arguments)};
  return allChips();
}

std::vector<Catalogue::Table> tablesOf(const Arguments& arguments,
                                       const std::vector<Catalogue::Chip>& chips) {
  if (!arguments.table.empty()) {
    const Catalogue::Table table = findTable(arguments.table);
    // A table that the chip does not have is an error; an empty document would hide it.
    if (chips.size() == 1) Layout(table, chips.front(), variantOf(arguments));
    return {table};
  }
  return chips.size() > 1 ? allTables() : tablesOn(chips.front(), variantOf(arguments));
}

int run(const Arguments& arguments) {
  const std::vector<Catalogue::Chip> chips = chipsOf(arguments);
  Json document = {{"format", "velmar-catalogue"}, {"version", 1}};
  document["chips"] = Json::array();
  for (const Catalogue::Chip& chip : chips) {
    document["chips"].push_back({{"name", chip.name}, {"number", chip.number}});
  }
  document["tables"] = Json::array();
  for (const Catalogue::Table& table : tablesOf(arguments, chips)) {
    document["tables"].push_back(tableAsJson(table, chips, variantOf(arguments)));
  }
  Output output(arguments.output, "never");
  output.print("{}\n", document.dump(1));
  output.finish();
  return exitSuccess;
}

}  // namespace

Verb exportVerb() {
  return {
      "export",
      "Prints the catalogue as JSON: chips, tables, fields, layouts, addresses.",
      "docs/schema/catalogue.schema.json of the project describes the document. Its \"version\" "
      "changes only when readers must change.",
      {Positionals::tableIfAny},
      {Options::chipIfAny, Options::variant, Options::output},
      {"velmar export VlanEntry --chip BCM56990_B0", "velmar export --chip BCM56470_A0"},
      run};
}

}  // namespace Tool
