#pragma once

#include <initializer_list>

#include "framework/PlatformAdapter.h"

namespace Velmar {
namespace Framework {

struct ChipName {
  U32 number;
  char name[12];
};

/// The chips that the library knows, by number.
constexpr ChipName chipNames[] = {
#define VELMAR_CHIP_NAME(name, number) {name, #name},
    VELMAR_CHIPS(VELMAR_CHIP_NAME)
#undef VELMAR_CHIP_NAME
};
constexpr U32 chipCount = sizeof(chipNames) / sizeof(chipNames[0]);

/// The name of a chip, such as "BCM56990_B0"; null for an unknown chip.
const char* chipName(U32 chipType);

/// A set of chips, each named.
class ChipSet {
 public:
  /// Chip numbers are below this, so that a set fits one number.
  static constexpr U32 end = 64;

  constexpr ChipSet(std::initializer_list<ChipType_> chips) : bits_(0) {
    for (const ChipType_ chip : chips) bits_ |= U64{1} << chip;
  }
  constexpr bool has(U32 chipType) const { return chipType < end && (bits_ >> chipType & 1) != 0; }
  /// The lowest number in the set; `end` for an empty set.
  constexpr U32 lowest() const {
    U32 chip = 0;
    while (chip < end && !has(chip)) ++chip;
    return chip;
  }

 private:
  U64 bits_;
};

}  // namespace Framework
}  // namespace Velmar
