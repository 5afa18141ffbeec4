#pragma once

#include "framework/ChipSet.h"

// Checks of the list of chips, for the few sources that include this header: one fault gives one
// error. The compiler names the chip, which is the template argument in the lines above the sentence.

namespace Velmar {
namespace Framework {
namespace ChipChecks {

/// The first chip whose number is not above the one before it; 0 where all ascend.
constexpr U32 firstOutOfOrder() {
  for (U32 i = 1; i < chipCount; ++i) {
    if (chipNames[i - 1].number >= chipNames[i].number) return chipNames[i].number;
  }
  return 0;
}

/// The first chip whose number does not fit a ChipSet; 0 where all fit.
constexpr U32 firstTooLarge() {
  for (const ChipName& chip : chipNames) {
    if (chip.number >= ChipSet::end) return chip.number;
  }
  return 0;
}

template <ChipType_ chip>
struct NumbersAscend {
  static_assert(chip == 0, "chips: the numbers do not ascend, or a number is listed twice");
};

template <ChipType_ chip>
struct NumbersFit {
  static_assert(chip == 0, "chips: numbers above 63 do not fit ChipSet; give it more bits");
};

static_assert(sizeof(NumbersAscend<ChipType_(firstOutOfOrder())>) > 0);
static_assert(sizeof(NumbersFit<ChipType_(firstTooLarge())>) > 0);

}  // namespace ChipChecks
}  // namespace Framework
}  // namespace Velmar
