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

/// A set of chips.
class ChipSet {
 public:
  constexpr ChipSet(std::initializer_list<ChipType_> chips) : bits_(0) {
    for (const ChipType_ chip : chips) bits_ |= U64{1} << chip;
  }
  constexpr bool has(U32 chipType) const { return chipType < 64 && (bits_ >> chipType & 1) != 0; }
  /// The lowest number in the set; 64 for an empty set.
  constexpr U32 lowest() const {
    U32 chip = 0;
    while (chip < 64 && !has(chip)) ++chip;
    return chip;
  }

 private:
  U64 bits_;
};

/// The chips that may have table variants, and whose memories take the identifier into their
/// addresses.
constexpr ChipSet bcm5699x = {BCM56990_B0, BCM56992_B0, BCM56993_B0, BCM56996_A0, BCM56996_B0};

}  // namespace Framework
}  // namespace Velmar
