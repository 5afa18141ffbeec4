#pragma once

#include "framework/Rows.h"

// Facts of a chip that are the same in every table. Names and numbers of the chips are in the list
// of the base libraries (AsicUtils/ChipType.h).
//
// The access code is not here: it is a property of the table on the chip. It is 0 on BCM56470_A0,
// BCM56370_A0, BCM56275_A0 and BCM56175_A0, 17 or 22 from BCM56990_B0 on, and 9 or 14 on all
// others.

namespace Velmar {
namespace Tables {

constexpr bool noVariants = false;
constexpr bool withVariants = true;

// clang-format off
constexpr Framework::ChipFacts chipFacts[] = {
  // chip        identifier  register  register     variants
  //             term        stride    identifiers
  {BCM56960_A0,          0,     256,           2,   noVariants},
  {BCM56965_A0,          0,     256,           2,   noVariants},
  {BCM56968_A0,          0,     256,           2,   noVariants},
  {BCM56970_A0,          0,     256,           2,   noVariants},
  {BCM56870_A0,          0,     256,           2,   noVariants},
  {BCM56770_A0,          0,     256,           2,   noVariants},
  {BCM56470_A0,          0,     256,           2,   noVariants},
  {BCM56370_A0,          0,     256,           2,   noVariants},
  {BCM56275_A0,          0,     256,           2,   noVariants},
  {BCM56175_A0,          0,     256,           2,   noVariants},
  {BCM56980_A0,          0,     256,           2,   noVariants},
  // From here on the address of a memory has the identifier from bit 14 up, the elements of a
  // register array are four times as far apart, and a register array accepts identifier 0 only.
  {BCM56990_B0,    1 << 14,    1024,           1, withVariants},
  {BCM56992_B0,    1 << 14,    1024,           1, withVariants},
  {BCM56993_B0,    1 << 14,    1024,           1, withVariants},
  {BCM56996_A0,    1 << 14,    1024,           1, withVariants},
  {BCM56996_B0,    1 << 14,    1024,           1, withVariants},
};
// clang-format on

}  // namespace Tables
}  // namespace Velmar
