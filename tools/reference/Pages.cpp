#include "Pages.h"

#include <algorithm>
#include <cctype>
#include <cstdio>

#include "Layouts.h"
#include "MarkdownTable.h"

namespace Reference {

using namespace Velmar;

namespace {

using Cells = MarkdownTable::Row;

const std::string refreshNote = R"(<!-- Derived from tables/; do not edit. To refresh:
     cmake --build --preset release --target refresh -->

)";

const std::string introduction = R"(# Reference

There is a page for each view class, with everything that the library knows about it: chips and
geometry, S-channel addresses, the place of each field on each chip, and all accessor names. A
search of this directory for an accessor finds its page.

Offsets and widths are in bits; bit 0 is bit 0 of an entry's first byte. A word has 32 bits. Chips
on which every field of a class has the same place share a layout, named after the first of them.
The column "Variants" says which variants a chip accepts: any, or 0 only.

)";

std::string hex(U32 number) {
  char text[16];
  std::snprintf(text, sizeof(text), "0x%08x", number);
  return text;
}

std::string code(const std::string& text) { return "`" + text + "`"; }

std::string listOf(const Cells& items) {
  std::string list;
  for (const std::string& item : items) list += (list.empty() ? "" : ", ") + item;
  return list;
}

std::string capitalised(std::string text) {
  text[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(text[0])));
  return text;
}

bool isTable(const Catalogue::Table& table) { return table.kind() == Catalogue::Kind::table; }

std::string kindOf(const Catalogue::Table& table) {
  return isTable(table) ? "table" : "register array";
}

std::vector<Catalogue::Chip> chipsOf(const Catalogue::Table& table) {
  std::vector<Catalogue::Chip> chips;
  for (U32 i = 0; i < Catalogue::chipCount(); ++i) {
    if (table.isOn(Catalogue::chip(i).number)) chips.push_back(Catalogue::chip(i));
  }
  return chips;
}

/// The pipeline of a class; it is the same on all chips.
std::string pipelineOf(const Catalogue::Table& table) {
  return table.geometry(chipsOf(table).front().number).block == 1 ? "ingress" : "egress";
}

std::string heading(const Catalogue::Table& table) {
  const std::string name = table.name();
  return refreshNote + "# " + name + "\n\n" + capitalised(table.purpose()) + ".\n\n" + "A " +
         kindOf(table) + " in the " + pipelineOf(table) + " pipeline.\n" + "View class " +
         code("Velmar::" + name) + " in " + code("Velmar/" + name + ".h") + ".\n" +
         code("getAllFields") + " returns " + std::to_string(table.rawBytes()) +
         " bytes and needs a buffer of " + std::to_string(table.allFieldsBytes()) + ".\n";
}

std::string geometryOf(const Catalogue::Table& table, const std::vector<Layout>& layouts) {
  const char* indices = isTable(table) ? "Entries" : "Elements";
  MarkdownTable chips({"Chip", "Layout", "Variants"}, {"Words", "Bytes", indices, "Fields"});
  for (const Catalogue::Chip& chip : chipsOf(table)) {
    const Catalogue::Geometry geometry = table.geometry(chip.number);
    const bool ignores = geometry.variants == Catalogue::Variants::any;
    chips.addRow({chip.name, layoutOf(layouts, chip.number).name, ignores ? "any" : "0 only",
                  std::to_string(geometry.words), std::to_string(4 * geometry.words),
                  std::to_string(isTable(table) ? geometry.entries : geometry.arrayElements),
                  std::to_string(geometry.fieldCount)});
  }
  return "\n## Chips\n\n" + chips.text();
}

std::string addressesOf(const Catalogue::Table& table) {
  const char* step = isTable(table) ? "Identifier term" : "Stride";
  MarkdownTable addresses({"Chip"}, {"Base", "Access code", "Block", "Identifiers", step});
  for (const Catalogue::Chip& chip : chipsOf(table)) {
    const Catalogue::Geometry geometry = table.geometry(chip.number);
    addresses.addRow(
        {chip.name, hex(geometry.base), std::to_string(geometry.accessType),
         std::to_string(geometry.block), std::to_string(geometry.identifiers),
         std::to_string(isTable(table) ? geometry.identifierTerm : geometry.addrStride)});
  }
  const std::string rule = isTable(table)
                               ? "    address = base + entry + identifier term * identifier\n"
                               : "    address = base + stride * element\n";
  return "\n## S-channel addresses\n\n" + rule +
         "\nAn identifier is accepted if it is below the number of identifiers.\n\n" +
         addresses.text();
}

std::string cellOf(Catalogue::BitRange range) {
  if (range.width == 0) return "-";
  return std::to_string(range.offset) + "/" + std::to_string(range.width);
}

bool isInFamily(const std::vector<Family>& families, U32 index) {
  return std::any_of(families.begin(), families.end(), [index](const Family& family) {
    return index >= family.first && index < family.first + family.count;
  });
}

std::string fieldTableOf(const Catalogue::Table& table, const std::vector<Layout>& layouts,
                         const std::vector<Family>& families) {
  MarkdownTable fields({"Field", "Accessor"}, {"Id"});
  fields.addColumn("Type", MarkdownTable::Align::left);
  for (const Layout& layout : layouts) {
    fields.addColumn(layout.name, MarkdownTable::Align::right);
  }
  fields.addColumn("Meaning", MarkdownTable::Align::left);
  bool isEmpty = true;
  for (U32 i = 0; i < table.fieldCount(); ++i) {
    if (isInFamily(families, i)) continue;
    isEmpty = false;
    const Catalogue::Field field = table.field(i);
    Cells row = {field.hardwareName, field.accessor, std::to_string(field.id),
                 Catalogue::valueTypeName(field.type)};
    for (const Layout& layout : layouts) row.push_back(cellOf(table.range(i, layout.chipType())));
    row.push_back(std::string(field.meaning) + (field.overlaps ? " (overlaps)" : ""));
    fields.addRow(row);
  }
  if (isEmpty) return "";
  return "\nA cell gives offset/width in bits on the chips of the layout; `-`: they lack the "
         "field.\n\n" +
         fields.text();
}

/// "n", or "(n - 136)" where the numbers do not start at 0.
std::string placeOf(const Family& family) {
  return family.number == 0 ? "n" : "(n - " + std::to_string(family.number) + ")";
}

std::string familyTableOf(const Catalogue::Table& table, const std::vector<Layout>& layouts,
                          const Family& family) {
  const Catalogue::Field field = table.field(family.first);
  const U32 last = family.number + family.count - 1;
  MarkdownTable rules({"Layout", "n"}, {"Width", "Offset"});
  for (const Layout& layout : layouts) {
    const FamilyRule rule = ruleOf(table, family, layout);
    const std::string start = rule.offset == 0 ? "" : std::to_string(rule.offset) + " + ";
    rules.addRow(
        {layout.name,
         std::to_string(family.number) + " to " + std::to_string(family.number + rule.present - 1),
         std::to_string(rule.width), start + std::to_string(rule.step) + " * " + placeOf(family)});
  }
  return "\n" + code(family.prefix + "n") + " for n from " + std::to_string(family.number) +
         " to " + std::to_string(last) + ": " + field.meaning + ".\nType " +
         code(Catalogue::valueTypeName(field.type)) + ", identifier " +
         std::to_string(field.id - family.number) + " + n. In each layout:\n\n" + rules.text();
}

bool sharesBits(Catalogue::BitRange a, Catalogue::BitRange b) {
  return a.width != 0 && b.width != 0 && a.offset < b.offset + b.width &&
         b.offset < a.offset + a.width;
}

std::string overlapsOf(const Catalogue::Table& table, const std::vector<Layout>& layouts) {
  std::string notes;
  for (U32 i = 0; i < table.fieldCount(); ++i) {
    if (!table.field(i).overlaps) continue;
    Cells others;
    for (U32 other = 0; other < table.fieldCount(); ++other) {
      const bool isShared =
          other != i && std::any_of(layouts.begin(), layouts.end(), [&](const Layout& layout) {
            return sharesBits(table.range(i, layout.chipType()),
                              table.range(other, layout.chipType()));
          });
      if (isShared) others.push_back(code(table.field(other).hardwareName));
    }
    notes += "- " + code(table.field(i).hardwareName) + ": " + listOf(others) + "\n";
  }
  if (notes.empty()) return "";
  return "\n## Overlapping fields\n\nWriting one of these fields changes those that share its "
         "bits:\n\n" +
         notes;
}

std::string accessorsOf(const Catalogue::Table& table) {
  std::size_t longest = 0;
  for (U32 i = 0; i < table.fieldCount(); ++i) {
    longest = std::max(longest, std::string(table.field(i).accessor).size());
  }
  const auto padded = [longest](std::string name, std::size_t extra) {
    name.resize(longest + extra, ' ');
    return name;
  };
  std::string lines;
  for (U32 i = 0; i < table.fieldCount(); ++i) {
    const std::string name = table.field(i).accessor;
    lines += padded(name, 2) + padded(name + "Is", 4) + padded(name + "Len", 5) +
             padded(name + "Offset", 8) + "is" + capitalised(name) + "Valid\n";
  }
  return "\n## Accessors\n\nFor each field: getter, setter, width, offset, presence.\n\n```text\n" +
         lines + "```\n";
}

}  // namespace

std::string pageOf(const Catalogue::Table& table) {
  const std::vector<Layout> layouts = layoutsOf(table);
  const std::vector<Family> families = familiesOf(table, layouts);
  std::string page = heading(table) + geometryOf(table, layouts) + addressesOf(table) +
                     "\n## Fields\n" + fieldTableOf(table, layouts, families);
  for (const Family& family : families) page += familyTableOf(table, layouts, family);
  return page + overlapsOf(table, layouts) + accessorsOf(table);
}

std::string indexPage() {
  MarkdownTable classes({"Class", "Kind", "Pipeline"}, {"Chips", "Fields"});
  classes.addColumn("Contents", MarkdownTable::Align::left);
  for (U32 i = 0; i < Catalogue::tableCount(); ++i) {
    const Catalogue::Table table = Catalogue::table(i);
    const std::string name = table.name();
    classes.addRow({"[" + name + "](" + name + ".md)", kindOf(table), pipelineOf(table),
                    std::to_string(chipsOf(table).size()), std::to_string(table.fieldCount()),
                    table.purpose()});
  }
  MarkdownTable chips({"Chip"}, {"Number"});
  for (U32 i = 0; i < Catalogue::chipCount(); ++i) {
    chips.addRow({Catalogue::chip(i).name, std::to_string(Catalogue::chip(i).number)});
  }
  return refreshNote + introduction + classes.text() + "\n## Chips\n\n" + chips.text();
}

}  // namespace Reference
