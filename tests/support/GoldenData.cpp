#include "support/GoldenData.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
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
  const std::size_t n = rule.find('n');
  if (n == std::string::npos) return number(rule);
  const std::size_t plus = rule.find('+');
  const std::size_t minus = rule.find('-');
  const std::size_t begin = plus == std::string::npos ? 0 : plus + 1;
  const std::string factor = rule.substr(begin, rule.find_first_of("(n") - begin);
  const U32 term = plus == std::string::npos ? 0 : number(rule.substr(0, plus));
  const U32 first = minus == std::string::npos ? 0 : number(rule.substr(minus + 1));
  return term + (factor.empty() ? 1 : number(factor)) * (port - first);
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

/// A name with a port in place of the ports that it stands for: "spTreePort{0..135}".
std::string nameOf(const std::string& name, U32 port) {
  const std::size_t brace = name.find('{');
  return brace == std::string::npos ? name : name.substr(0, brace) + std::to_string(port);
}

/// Adds one field from a row, the one of `port` if the row stands for many.
void addField(GoldenClass& golden, const Row& row, U32 port) {
  const std::string accessor = nameOf(row.at("accessor"), port);
  auto field = std::find_if(golden.fields.begin(), golden.fields.end(),
                            [&](const GoldenField& each) { return each.accessor == accessor; });
  if (field == golden.fields.end()) {
    const std::string name = nameOf(row.at("hardware_name"), port);
    const std::size_t brace = row.at("accessor").find('{');
    const GoldenField::Family family = brace == std::string::npos
                                           ? GoldenField::Family{}
                                           : GoldenField::Family{static_cast<U32>(brace), port};
    golden.fields.push_back(
        {accessor, name, valueOf(row.at("id"), port), row.at("type"), family, {}});
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
  for (const Row& row : readRows("fields.tsv")) {
    const auto golden = classOf(row.at("class"));
    if (golden == classes.end()) {
      throw std::runtime_error("tables.tsv lacks a class of fields.tsv: " + row.at("class"));
    }
    U32 first = 0;
    U32 last = 0;
    const std::string& accessor = row.at("accessor");
    const std::size_t brace = accessor.find('{');
    if (brace != std::string::npos &&
        std::sscanf(accessor.c_str() + brace, "{%u..%u}", &first, &last) != 2) {
      throw std::runtime_error("fields.tsv has an odd range: " + accessor);
    }
    for (U32 port = first; port <= last; ++port) addField(*golden, row, port);
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
