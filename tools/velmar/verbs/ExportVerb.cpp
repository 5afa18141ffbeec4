#include <rapidjson/prettywriter.h>

#include "model/Failure.h"
#include "model/Json.h"
#include "model/Layout.h"
#include "output/Output.h"
#include "verbs/Target.h"
#include "verbs/Verbs.h"

namespace Tool {
namespace {

/// A JSON document that is being written.
class Document {
 public:
  Document() : json_(text_) { json_.SetIndent(' ', 1); }

  /// Writes {...} around what `members` writes, and [...] around what `elements` writes.
  template <class Members>
  void object(const Members& members) {
    json_.StartObject();
    members();
    json_.EndObject();
  }
  template <class Elements>
  void list(const char* name, const Elements& elements) {
    json_.Key(name);
    json_.StartArray();
    elements();
    json_.EndArray();
  }

  void name(const std::string& name) { json_.Key(name.c_str()); }
  void text(const std::string& text) { json_.String(text.c_str()); }
  void member(const char* key, const std::string& value) { name(key), text(value); }
  void member(const char* key, U32 value) { name(key), json_.Uint(value); }
  void flag(const char* key, bool value) { name(key), json_.Bool(value); }

  const char* json() const { return text_.GetString(); }

 private:
  JsonBuffer text_;
  rapidjson::PrettyWriter<JsonBuffer, rapidjson::UTF8<>, rapidjson::UTF8<>, JsonMemory> json_;
};

void writeField(Document& document, const Catalogue::Field& field) {
  document.object([&] {
    document.member("accessor", field.accessor);
    document.member("hardwareName", field.hardwareName);
    document.member("id", field.id);
    document.member("type", Catalogue::valueTypeName(field.type));
    document.flag("overlaps", field.overlaps);
    document.member("meaning", field.meaning);
  });
}

void writePlace(Document& document, const Layout& layout, const FieldPlace& place) {
  document.name(place.name());
  document.object([&] {
    document.member("offset", place.offset);
    document.member("width", place.width);
    const std::vector<std::string> others = layout.overlapsOf(place);
    if (others.empty()) return;
    document.list("sharesBitsWith", [&] {
      for (const std::string& other : others) document.text(other);
    });
  });
}

void writeLayout(Document& document, const Layout& layout) {
  const Catalogue::Geometry& geometry = layout.geometry();
  document.object([&] {
    document.member("chip", layout.chip().name);
    document.member("variants", geometry.variants == Catalogue::Variants::any ? "any" : "zeroOnly");
    document.member("entryBytes", 4U * geometry.words);
    document.member("entries", geometry.entries);
    document.member("arrayElements", geometry.arrayElements);
    document.member("addrStride", geometry.addrStride);
    document.member("identifiers", geometry.identifiers);
    document.member("identifierTerm", geometry.identifierTerm);
    document.member("base", addressText(geometry.base));
    document.member("accessType", geometry.accessType);
    document.member("block", geometry.block);
    document.name("fields");
    document.object([&] {
      for (const FieldPlace& place : layout.fields()) writePlace(document, layout, place);
    });
  });
}

void writeTable(Document& document, const Catalogue::Table& table,
                const std::vector<Catalogue::Chip>& chips, U8 variant) {
  document.object([&] {
    document.member("name", table.name());
    document.member("purpose", table.purpose());
    document.member("kind", table.kind() == Catalogue::Kind::table ? "table" : "registerArray");
    document.member("rawBytes", table.rawBytes());
    document.member("allFieldsBytes", table.allFieldsBytes());
    document.list("fields", [&] {
      for (U32 i = 0; i < table.fieldCount(); ++i) writeField(document, table.field(i));
    });
    document.list("layouts", [&] {
      for (const Catalogue::Chip& chip : chips) {
        if (!table.isOn(chip.number, variant)) continue;
        writeLayout(document, Layout(table, chip, variant));
      }
    });
  });
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
  Document document;
  document.object([&] {
    document.member("format", "velmar-catalogue");
    document.member("version", 1);
    document.list("chips", [&] {
      for (const Catalogue::Chip& chip : chips) {
        document.object([&] {
          document.member("name", chip.name);
          document.member("number", chip.number);
        });
      }
    });
    document.list("tables", [&] {
      for (const Catalogue::Table& table : tablesOf(arguments, chips)) {
        writeTable(document, table, chips, variantOf(arguments));
      }
    });
  });
  Output output(arguments.output, "never");
  output.print("{}\n", document.json());
  output.finish();
  return exitSuccess;
}

}  // namespace

Verb exportVerb() {
  return {"export",
          "Prints the catalogue as JSON: chips, tables, fields, layouts, addresses.",
          "The schema of this document, as of all others, is installed in "
          "share/doc/velmar/docs/schema.",
          {Positionals::tableIfAny},
          {Options::chipIfAny, Options::variant, Options::output},
          {"velmar export VlanEntry --chip BCM56990_B0", "velmar export --chip BCM56470_A0"},
          run};
}

}  // namespace Tool
