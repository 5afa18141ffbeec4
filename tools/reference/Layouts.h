#pragma once

#include <string>
#include <vector>

#include "Velmar/Catalogue.h"

namespace Reference {

/// The chips on which every field of a class has the same place, named after the first chip.
struct Layout {
  std::string name;
  std::vector<U32> chips;

  U32 chipType() const { return chips.front(); }
};

/// The layouts of a class, in the order of their first chips.
std::vector<Layout> layoutsOf(const Velmar::Catalogue::Table& table);

/// The layout of a chip that the class has.
const Layout& layoutOf(const std::vector<Layout>& layouts, U32 chipType);

/// Numbered fields whose places follow a rule in every layout: each layout has the first so many of
/// them, all of one width, at equal distances.
struct Family {
  U32 first;           ///< index of its first field
  U32 count;           ///< number of its fields
  U32 number;          ///< number in the name of the first field
  std::string prefix;  ///< hardware name without the number
};

/// The families of a class. A few fields do not make a family: a row for each says more than a
/// rule.
std::vector<Family> familiesOf(const Velmar::Catalogue::Table& table,
                               const std::vector<Layout>& layouts);

/// The rule of a family in one layout.
struct FamilyRule {
  bool holds;   ///< whether the places follow a rule
  U32 present;  ///< number of fields that the chips have
  U32 width;    ///< bits of each
  U32 offset;   ///< first bit of the first field
  U32 step;     ///< bits from field to field
};
FamilyRule ruleOf(const Velmar::Catalogue::Table& table, const Family& family,
                  const Layout& layout);

}  // namespace Reference
