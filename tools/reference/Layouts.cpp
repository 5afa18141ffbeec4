#include "Layouts.h"

#include <algorithm>

namespace Reference {

using namespace Velmar;

namespace {

constexpr U32 smallestFamily = 8;

bool liesAlike(const Catalogue::Table& table, U32 chipType, U32 otherChipType) {
  for (U32 i = 0; i < table.fieldCount(); ++i) {
    const Catalogue::BitRange a = table.range(i, chipType);
    const Catalogue::BitRange b = table.range(i, otherChipType);
    if (a.offset != b.offset || a.width != b.width) return false;
  }
  return true;
}

/// The field as the first of a possible family.
Family startOf(const Catalogue::Table& table, U32 index) {
  const std::string name = table.field(index).hardwareName;
  const std::size_t digits = name.find_last_not_of("0123456789") + 1;
  const U32 number = digits < name.size() ? static_cast<U32>(std::stoul(name.substr(digits))) : 0U;
  return {index, 1, number, name.substr(0, digits)};
}

bool continues(const Catalogue::Table& table, const Family& family, U32 index) {
  return table.field(index).hardwareName ==
         family.prefix + std::to_string(family.number + family.count);
}

}  // namespace

std::vector<Layout> layoutsOf(const Catalogue::Table& table) {
  std::vector<Layout> layouts;
  for (U32 i = 0; i < Catalogue::chipCount(); ++i) {
    const Catalogue::Chip chip = Catalogue::chip(i);
    if (!table.isOn(chip.number)) continue;
    const auto alike = std::find_if(layouts.begin(), layouts.end(), [&](const Layout& layout) {
      return liesAlike(table, layout.chipType(), chip.number);
    });
    if (alike != layouts.end()) {
      alike->chips.push_back(chip.number);
    } else {
      layouts.push_back({chip.name, {chip.number}});
    }
  }
  return layouts;
}

const Layout& layoutOf(const std::vector<Layout>& layouts, U32 chipType) {
  return *std::find_if(layouts.begin(), layouts.end(), [chipType](const Layout& layout) {
    return std::count(layout.chips.begin(), layout.chips.end(), chipType) != 0;
  });
}

FamilyRule ruleOf(const Catalogue::Table& table, const Family& family, const Layout& layout) {
  FamilyRule rule = {false, 0, 0, 0, 0};
  for (U32 i = 0; i < family.count; ++i) {
    const Catalogue::BitRange range = table.range(family.first + i, layout.chipType());
    if (range.width == 0) continue;
    if (i == 0) rule = {true, 0, range.width, range.offset, 0};
    if (i == 1) rule.step = range.offset - rule.offset;
    rule.holds = rule.holds && rule.present == i && range.width == rule.width &&
                 range.offset == rule.offset + rule.step * i;
    ++rule.present;
  }
  return rule;
}

std::vector<Family> familiesOf(const Catalogue::Table& table, const std::vector<Layout>& layouts) {
  std::vector<Family> families;
  for (U32 index = 0; index < table.fieldCount();) {
    Family family = startOf(table, index);
    while (index + family.count < table.fieldCount() &&
           continues(table, family, index + family.count)) {
      ++family.count;
    }
    const bool hasRule = std::all_of(layouts.begin(), layouts.end(), [&](const Layout& layout) {
      return ruleOf(table, family, layout).holds;
    });
    if (family.count >= smallestFamily && hasRule) families.push_back(family);
    index += family.count;
  }
  return families;
}

}  // namespace Reference
