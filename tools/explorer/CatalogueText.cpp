#include "CatalogueText.h"

#include <algorithm>
#include <vector>

#include "Velmar/Catalogue.h"
#include "Velmar/Version.h"

namespace Explorer {
namespace {

namespace Catalogue = Velmar::Catalogue;

/// Names and meanings have no letter that JSON or HTML would escape, except what is replaced here.
std::string quoted(const std::string& text) {
  std::string result = "\"";
  for (const char letter : text) {
    if (letter == '"' || letter == '\\') result += '\\';
    result += letter == '<' ? std::string("\\u003c") : std::string(1, letter);
  }
  return result + "\"";
}

std::string number(U32 value) { return std::to_string(value); }

/// [a,b,c] of the texts that `textOf` makes of the numbers below `count`.
template <class TextOf>
std::string list(U32 count, const TextOf& textOf) {
  std::string text = "[";
  for (U32 i = 0; i < count; ++i) text += (i == 0 ? "" : ",") + textOf(i);
  return text + "]";
}

std::string member(const char* name, const std::string& value) {
  return quoted(name) + ":" + value;
}

/// Texts that repeat, kept once.
class Texts {
 public:
  std::string indexOf(const std::string& text) {
    const auto found = std::find(texts_.begin(), texts_.end(), text);
    const auto index = found - texts_.begin();
    if (found == texts_.end()) texts_.push_back(text);
    return std::to_string(index);
  }
  std::string json() const {
    return list(static_cast<U32>(texts_.size()), [&](U32 i) { return quoted(texts_[i]); });
  }

 private:
  std::vector<std::string> texts_;
};

/// What chips have in common, with the chips: {...,"chips":[0,1]}.
class Groups {
 public:
  void add(const std::string& members, U32 chip) {
    const auto found = std::find_if(groups_.begin(), groups_.end(),
                                    [&](const Group& group) { return group.members == members; });
    if (found == groups_.end()) {
      groups_.push_back({members, {chip}});
    } else {
      found->chips.push_back(chip);
    }
  }
  std::string json() const {
    return list(static_cast<U32>(groups_.size()), [&](U32 i) {
      const Group& group = groups_[i];
      const std::string chips = list(static_cast<U32>(group.chips.size()),
                                     [&](U32 at) { return number(group.chips[at]); });
      return "{" + group.members + "," + member("chips", chips) + "}";
    });
  }

 private:
  struct Group {
    std::string members;
    std::vector<U32> chips;
  };
  std::vector<Group> groups_;
};

std::string geometryMembers(const Catalogue::Geometry& geometry) {
  const bool isAny = geometry.variants == Catalogue::Variants::any;
  return member("variants", quoted(isAny ? "any" : "zeroOnly")) + "," +
         member("words", number(geometry.words)) + "," +
         member("entries", number(geometry.entries)) + "," +
         member("arrayElements", number(geometry.arrayElements)) + "," +
         member("addrStride", number(geometry.addrStride)) + "," +
         member("identifiers", number(geometry.identifiers)) + "," +
         member("identifierTerm", number(geometry.identifierTerm)) + "," +
         member("base", number(geometry.base)) + "," +
         member("accessType", number(geometry.accessType)) + "," +
         member("block", number(geometry.block));
}

/// The places of all fields on a chip, and the size of an entry.
std::string layoutMembers(const Catalogue::Table& table, U32 chipType) {
  const U32 count = table.fieldCount();
  const auto range = [&](U32 i) { return table.range(i, chipType); };
  return member("offsets", list(count, [&](U32 i) { return number(range(i).offset); })) + "," +
         member("widths", list(count, [&](U32 i) { return number(range(i).width); })) + "," +
         member("entryWords", number(table.geometry(chipType).words));
}

std::string tableText(const Catalogue::Table& table) {
  Texts meanings, types;
  Groups layouts, geometries;
  for (U32 i = 0; i < Catalogue::chipCount(); ++i) {
    const U32 chipType = Catalogue::chip(i).number;
    if (!table.isOn(chipType)) continue;
    layouts.add(layoutMembers(table, chipType), i);
    geometries.add(geometryMembers(table.geometry(chipType)), i);
  }
  const U32 count = table.fieldCount();
  const auto column = [&](const auto& textOf) {
    return list(count, [&](U32 i) { return textOf(table.field(i)); });
  };
  using Field = Catalogue::Field;
  const bool isTable = table.kind() == Catalogue::Kind::table;
  const std::string meaning = column([&](const Field& f) { return meanings.indexOf(f.meaning); });
  const std::string type =
      column([&](const Field& f) { return types.indexOf(Catalogue::valueTypeName(f.type)); });
  return "{" + member("name", quoted(table.name())) + "," +
         member("purpose", quoted(table.purpose())) + "," +
         member("kind", quoted(isTable ? "table" : "registerArray")) + "," +
         member("accessors", column([](const Field& f) { return quoted(f.accessor); })) + "," +
         member("hardwareNames", column([](const Field& f) { return quoted(f.hardwareName); })) +
         "," + member("ids", column([](const Field& f) { return number(f.id); })) + "," +
         member("meaning", meaning) + "," + member("meanings", meanings.json()) + "," +
         member("type", type) + "," + member("types", types.json()) + "," +
         member("layouts", layouts.json()) + "," + member("geometries", geometries.json()) + "}";
}

}  // namespace

std::string catalogueText() {
  const auto chipText = [](U32 i) {
    const Catalogue::Chip chip = Catalogue::chip(i);
    return "[" + quoted(chip.name) + "," + number(chip.number) + "]";
  };
  return "{" + member("version", quoted(VELMAR_VERSION_STRING)) + "," +
         member("chips", list(Catalogue::chipCount(), chipText)) + "," +
         member("tables", list(Catalogue::tableCount(),
                               [](U32 i) { return tableText(Catalogue::table(i)); })) +
         "}";
}

}  // namespace Explorer
