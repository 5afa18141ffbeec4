#include "Velmar/EgrVlanStgEntry.h"

#include "framework/Definitions.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"egress spanning-tree groups, a state per port", egress};

// clang-format off
enum : U8 { c56960, c56870, c56470, c56980, columns };

//                                    first  bits  ports: 56960 56870 56470 56980
constexpr PortRule<columns> states = {0,     2,          {136,  132,  72,   160}};
constexpr auto layout = portRows<160>(states);

constexpr ChipRow chips[] = {
  // chips                                  column  variants     words  entries base        access
  {{BCM56960_A0, BCM56965_A0, BCM56968_A0}, c56960, anyVariant,     9,     512, 0x08080000,   14},
  {{BCM56970_A0},                           c56960, anyVariant,    10,     512, 0x08080000,   14},
  {{BCM56870_A0, BCM56770_A0},              c56870, anyVariant,    14,     512, 0x09140000,   14},
  {{BCM56470_A0, BCM56370_A0},              c56470, anyVariant,    10,     512, 0x09140000,    0},
  {{BCM56275_A0, BCM56175_A0},              c56470, anyVariant,    10,     256, 0x09140000,    0},
  {{BCM56980_A0},                           c56980, anyVariant,    10,      64, 0x081c0000,   14},
  {bcm5699x,                                c56960, variantZero,    9,      64, 0x08280000,   22},
};
// clang-format on

}  // namespace

VELMAR_DEFINE_TABLE(EgrVlanStgEntry, Raw512)

}  // namespace Velmar
