#include "support/GoldenData.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "AsicUtils/ChipType.h"

namespace VelmarTest {
namespace {

using Row = std::map<std::string, std::string>;

/// Stands for the chip of a field that no chip of its class has.
constexpr const char* nowhere = "-";

std::vector<std::string> splitAtTabs(const std::string& line) {
  std::vector<std::string> cells;
  std::istringstream stream(line);
  for (std::string cell; std::getline(stream, cell, '\t');) cells.push_back(cell);
  return cells;
}

std::vector<Row> readRows(const std::string& file) {
  std::ifstream stream(std::string(VELMAR_GOLDEN_DIR) + "/" + file);
  if (!stream) throw std::runtime_error("cannot read golden file " + file);
  std::string line;
  std::getline(stream, line);
  const std::vector<std::string> titles = splitAtTabs(line);
  std::vector<Row> rows;
  while (std::getline(stream, line)) {
    const std::vector<std::string> cells = splitAtTabs(line);
    if (cells.size() != titles.size()) throw std::runtime_error("odd row in " + file + ": " + line);
    Row row;
    for (std::size_t i = 0; i < titles.size(); ++i) row[titles[i]] = cells[i];
    rows.push_back(row);
  }
  return rows;
}

U32 number(const std::string& text) { return static_cast<U32>(std::stoul(text, nullptr, 0)); }

std::vector<GoldenClass> readClasses() {
  std::vector<GoldenClass> classes;
  const auto classOf = [&classes](const std::string& name) {
    return std::find_if(classes.begin(), classes.end(),
                        [&](const GoldenClass& each) { return each.name == name; });
  };
  for (Row& row : readRows("tables.tsv")) {
    if (classOf(row["class"]) == classes.end()) {
      classes.push_back({row["class"], row["kind"] == "table", {}, {}});
    }
    const bool hasEntries = row["entries"] != "-";
    classOf(row["class"])->chips[chipNumber(row["chip"])] = {
        row["variants"] == "any",
        number(row["words"]),
        hasEntries ? std::optional<U32>(number(row["entries"])) : std::nullopt,
        number(row["array_elements"]),
        number(row["base"]),
        number(row["access_type"]),
        number(row["block"]),
        number(row["raw_bytes_needed"])};
  }
  for (Row& row : readRows("fields.tsv")) {
    if (classOf(row["class"]) == classes.end()) {
      throw std::runtime_error("fields.tsv has a class that tables.tsv lacks: " + row["class"]);
    }
    std::vector<GoldenField>& fields = classOf(row["class"])->fields;
    auto field = std::find_if(fields.begin(), fields.end(), [&](const GoldenField& each) {
      return each.accessor == row["accessor"];
    });
    if (field == fields.end()) {
      fields.push_back({row["accessor"], row["hardware_name"], number(row["id"]), row["type"], {}});
      field = fields.end() - 1;
    }
    if (row["chip"] == nowhere) continue;
    field->places[chipNumber(row["chip"])] = {number(row["offset"]), number(row["width"])};
  }
  return classes;
}

}  // namespace

const std::map<U32, std::string>& chipNames() {
  static const std::map<U32, std::string> names = {
#define VELMAR_NAME(name, number) {number, #name},
      ASICUTILS_CHIP_TYPES(VELMAR_NAME)
#undef VELMAR_NAME
  };
  return names;
}

U32 chipNumber(const std::string& name) {
  for (const auto& [number, chip] : chipNames()) {
    if (chip == name) return number;
  }
  throw std::runtime_error("golden data names an unknown chip: " + name);
}

const std::vector<GoldenClass>& goldenClasses() {
  static const std::vector<GoldenClass> classes = readClasses();
  return classes;
}

const GoldenClass& goldenClass(const std::string& name) {
  for (const GoldenClass& each : goldenClasses()) {
    if (each.name == name) return each;
  }
  throw std::runtime_error("golden data lacks class " + name);
}

GoldenRows goldenRows() {
  GoldenRows rows = {0, 0, static_cast<U32>(readRows("tables.tsv").size())};
  for (Row& row : readRows("fields.tsv")) ++(row["chip"] == nowhere ? rows.nowhere : rows.places);
  return rows;
}

bool knowsVariant(const GoldenChip& chip, U8 variant) { return chip.anyVariant || variant == 0; }

}  // namespace VelmarTest
