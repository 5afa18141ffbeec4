#include "verbs/Requests.h"
#include "verbs/Verbs.h"

namespace Tool {
namespace {

struct ExportRequest {
  std::optional<Catalogue::Table> table;
  std::optional<Catalogue::Chip> chip;
  U8 variant = 0;
  OutputRequest output;
};

void writeField(JsonWriter& json, const Catalogue::Table& table, U32 index) {
  const Catalogue::Field field = table.field(index);
  const Catalogue::Family family = table.family(index);
  json.openObject();
  json.key("accessor").text(field.accessor);
  json.key("hardwareName").text(field.hardwareName);
  json.key("id").number(field.id);
  json.key("type").text(Catalogue::valueTypeName(field.type));
  json.key("overlaps").flag(field.overlaps);
  json.key("meaning").text(field.meaning);
  if (family.prefixLength != 0) {
    json.key("family").openObject();
    json.key("prefix").text({field.accessor, family.prefixLength});
    json.key("number").number(family.number).closeObject();
  }
  json.closeObject();
}

void writePlace(JsonWriter& json, const Layout& layout, const FieldPlace& place) {
  json.key(place.name()).openObject();
  json.key("offset").number(place.offset);
  json.key("width").number(place.width);
  const std::vector<std::string> others = layout.overlapsOf(place);
  if (!others.empty()) {
    json.key("sharesBitsWith").openList();
    for (const std::string& other : others) json.text(other);
    json.closeList();
  }
  json.closeObject();
}

void writeLayout(JsonWriter& json, const Layout& layout) {
  const Catalogue::Geometry& geometry = layout.geometry();
  const bool takesAny = geometry.variants == Catalogue::Variants::any;
  json.openObject();
  json.key("chip").text(layout.chip().name);
  json.key("variants").text(takesAny ? "any" : "zeroOnly");
  json.key("entryBytes").number(4U * geometry.words);
  json.key("entries").number(geometry.entries);
  json.key("arrayElements").number(geometry.arrayElements);
  json.key("addrStride").number(geometry.addrStride);
  json.key("identifiers").number(geometry.identifiers);
  json.key("identifierTerm").number(geometry.identifierTerm);
  json.key("base").text(addressText(geometry.base));
  json.key("accessType").number(geometry.accessType);
  json.key("block").number(geometry.block);
  json.key("fields").openObject();
  for (const FieldPlace& place : layout.fields()) writePlace(json, layout, place);
  json.closeObject().closeObject();
}

void writeTable(JsonWriter& json, const Catalogue::Table& table,
                const std::vector<Catalogue::Chip>& chips, U8 variant) {
  json.openObject();
  json.key("name").text(table.name());
  json.key("purpose").text(table.purpose());
  json.key("kind").text(table.kind() == Catalogue::Kind::table ? "table" : "registerArray");
  json.key("rawBytes").number(table.rawBytes());
  json.key("allFieldsBytes").number(table.allFieldsBytes());
  json.key("fields").openList();
  for (U32 i = 0; i < table.fieldCount(); ++i) writeField(json, table, i);
  json.closeList();
  json.key("layouts").openList();
  for (const Catalogue::Chip& chip : chips) {
    if (table.isOn(chip.number, variant)) {
      writeLayout(json, taken(Layout::of(table, chip, variant)));
    }
  }
  json.closeList().closeObject();
}

std::vector<Catalogue::Table> tablesOf(const ExportRequest& request) {
  if (request.table) {
    // A table that the chip does not have is an error; an empty document would hide it.
    if (request.chip) check(checkLayout(*request.table, *request.chip, request.variant));
    return {*request.table};
  }
  return request.chip ? tablesOn(*request.chip, request.variant) : allTables();
}

int run(const ExportRequest& request) {
  Output output(request.output.file, "never");
  JsonWriter json(output.text(), 1);
  json.openObject();
  json.key("format").text("velmar-catalogue");
  json.key("version").number(1);
  json.key("chips").openList();
  for (const Catalogue::Chip& chip : meantChips(request.chip)) {
    json.openObject();
    json.key("name").text(chip.name);
    json.key("number").number(chip.number).closeObject();
  }
  json.closeList();
  json.key("tables").openList();
  for (const Catalogue::Table& table : tablesOf(request)) {
    writeTable(json, table, meantChips(request.chip), request.variant);
  }
  json.closeList().closeObject();
  output.write("\n");
  output.finish();
  return exitSuccess;
}

}  // namespace

Verb exportVerb() {
  const auto request = std::make_shared<ExportRequest>();
  ExportRequest& to = *request;
  return {"export",
          "Prints the catalogue as JSON: chips, tables, fields, layouts, addresses.",
          "The schema of this document, as of all others, is installed in "
          "share/doc/velmar/docs/schema.",
          {{Positionals::tableIfAny, into(to.table)}},
          {{Options::chipIfAny, into(to.chip)},
           {Options::variant, intoVariant(to.variant)},
           {Options::output, into(to.output.file)}},
          {"velmar export VlanEntry --chip BCM56990_B0", "velmar export --chip BCM56470_A0"},
          [request] { return run(*request); }};
}

}  // namespace Tool
