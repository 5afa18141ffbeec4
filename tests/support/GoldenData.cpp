#include "support/GoldenData.h"

#include <algorithm>
#include <fstream>
#include <regex>
#include <sstream>
#include <stdexcept>

#include "AsicUtils/ChipType.h"

namespace VelmarTest {
namespace {

using Row = std::map<std::string, std::string>;

/// Stands for the chips of a field that no chip of its class has, and for entries of a register.
constexpr const char* nothing = "-";

std::vector<std::string> split(const std::string& line, char separator) {
  std::vector<std::string> cells;
  std::istringstream stream(line);
  for (std::string cell; std::getline(stream, cell, separator);) cells.push_back(cell);
  return cells;
}

std::vector<Row> readRows(const std::string& file) {
  std::ifstream stream(std::string(VELMAR_GOLDEN_DIR) + "/" + file);
  std::vector<std::string> titles;
  std::vector<Row> rows;
  for (std::string line; std::getline(stream, line);) {
    if (line[0] == '#') continue;
    const std::vector<std::string> cells = split(line, '\t');
    if (titles.empty()) titles = cells;
    if (cells.size() != titles.size()) throw std::runtime_error("odd row in " + file + ": " + line);
    Row row;
    for (std::size_t i = 0; i < titles.size(); ++i) row[titles[i]] = cells[i];
    rows.push_back(row);
  }
  if (rows.empty()) throw std::runtime_error("cannot read golden file " + file);
  rows.erase(rows.begin());
  return rows;
}

U32 number(const std::string& text) { return static_cast<U32>(std::stoul(text, nullptr, 0)); }

/// The value of a number, or of a rule such as 2n, 244+n or 2(n-136) for port n.
U32 valueOf(const std::string& rule, U32 port) {
  static const std::regex form(R"((?:(\d+)\+)?(\d*)(?:n|\(n-(\d+)\)))");
  std::smatch parts;
  if (!std::regex_match(rule, parts, form)) return number(rule);
  const auto part = [&](std::size_t i, U32 other) {
    return parts[i].length() ? number(parts[i]) : other;
  };
  return part(1, 0) + part(2, 1) * (port - part(3, 0));
}

U32 chipNumber(const std::string& name) {
  for (const auto& [chip, each] : chipNames()) {
    if (each == name) return chip;
  }
  throw std::runtime_error("golden data names an unknown chip: " + name);
}

/// Stores a value for each chip of a row.
template <class Value>
void keep(std::map<U32, Value>& byChip, const Row& row, const Value& value) {
  for (const std::string& name : split(row.at("chip"), ',')) {
    if (byChip.emplace(chipNumber(name), value).second) continue;
    throw std::runtime_error("golden data has " + row.at("class") + " twice on " + name);
  }
}

/// Adds one field from a row, the one of `port` if the row stands for many.
void addField(GoldenClass& golden, const Row& row, U32 port) {
  static const std::regex ports(R"(\{.*\})");
  const std::string accessor = std::regex_replace(row.at("accessor"), ports, std::to_string(port));
  auto field = std::find_if(golden.fields.begin(), golden.fields.end(),
                            [&](const GoldenField& each) { return each.accessor == accessor; });
  if (field == golden.fields.end()) {
    const std::string name =
        std::regex_replace(row.at("hardware_name"), ports, std::to_string(port));
    golden.fields.push_back({accessor, name, valueOf(row.at("id"), port), row.at("type"), {}});
    field = golden.fields.end() - 1;
  }
  if (row.at("chip") == nothing) return;
  keep(field->places, row, {valueOf(row.at("offset"), port), number(row.at("width"))});
}

std::vector<GoldenClass> readClasses() {
  std::vector<GoldenClass> classes;
  const auto classOf = [&classes](const std::string& name) {
    return std::find_if(classes.begin(), classes.end(),
                        [&](const GoldenClass& each) { return each.name == name; });
  };
  for (const Row& row : readRows("tables.tsv")) {
    const std::string& name = row.at("class");
    const auto cell = [&row](const char* title) { return number(row.at(title)); };
    if (classOf(name) == classes.end()) {
      classes.push_back({name, row.at("kind") == "table", {}, {}});
    }
    const auto entries =
        row.at("entries") == nothing ? std::nullopt : std::optional<U32>(cell("entries"));
    const GoldenChip facts = {row.at("variants") == "any",
                              cell("words"),
                              entries,
                              cell("array_elements"),
                              cell("base"),
                              cell("access_type"),
                              cell("block"),
                              cell("raw_bytes_needed")};
    keep(classOf(name)->chips, row, facts);
  }
  static const std::regex range(R"(.*\{(\d+)\.\.(\d+)\})");
  for (const Row& row : readRows("fields.tsv")) {
    const auto golden = classOf(row.at("class"));
    if (golden == classes.end()) {
      throw std::runtime_error("tables.tsv lacks a class of fields.tsv: " + row.at("class"));
    }
    std::smatch ends;
    const bool isFamily = std::regex_match(row.at("accessor"), ends, range);
    const U32 last = isFamily ? number(ends[2]) : 0;
    for (U32 n = isFamily ? number(ends[1]) : 0; n <= last; ++n) addField(*golden, row, n);
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

const GoldenField* GoldenClass::find(const std::string& accessor) const {
  for (const GoldenField& each : fields) {
    if (each.accessor == accessor) return &each;
  }
  return nullptr;
}

bool knowsVariant(const GoldenClass& golden, U32 chip, U8 variant) {
  const auto found = golden.chips.find(chip);
  return found != golden.chips.end() && (found->second.anyVariant || variant == 0);
}

}  // namespace VelmarTest
