#pragma once

#include "AsicUtils/Types.h"

/// The chips: CHIP(name, number). Every other list of chips is made from this one.
#define ASICUTILS_CHIP_TYPES(CHIP) \
  CHIP(BCM56960_A0, 6)             \
  CHIP(BCM56965_A0, 9)             \
  CHIP(BCM56968_A0, 11)            \
  CHIP(BCM56970_A0, 12)            \
  CHIP(BCM56870_A0, 18)            \
  CHIP(BCM56770_A0, 20)            \
  CHIP(BCM56470_A0, 21)            \
  CHIP(BCM56370_A0, 23)            \
  CHIP(BCM56275_A0, 26)            \
  CHIP(BCM56175_A0, 28)            \
  CHIP(BCM56980_A0, 30)            \
  CHIP(BCM56990_B0, 33)            \
  CHIP(BCM56992_B0, 34)            \
  CHIP(BCM56993_B0, 35)            \
  CHIP(BCM56996_A0, 36)            \
  CHIP(BCM56996_B0, 37)

/// A chip type. Any other value of the underlying type is an unknown chip.
enum ChipType_ : U32 {
#define ASICUTILS_ENUMERATOR(name, number) name = number,
  ASICUTILS_CHIP_TYPES(ASICUTILS_ENUMERATOR)
#undef ASICUTILS_ENUMERATOR
};

namespace AsicUtils {

using ::ChipType_;
#define ASICUTILS_REEXPORT(name, number) using ::name;
ASICUTILS_CHIP_TYPES(ASICUTILS_REEXPORT)
#undef ASICUTILS_REEXPORT

}  // namespace AsicUtils
