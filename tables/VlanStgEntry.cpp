#include "tables/Table.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"ingress spanning-tree groups, a state per port", ingress};

// clang-format off
#define FIELDS(FIELD) VELMAR_SP_TREE_PORTS_0_TO_159(FIELD)

#define SPANS(SPAN) SPAN(BCM56968_A0) SPAN(BCM56175_A0) SPAN(BCM56996_A0)

enum : U8 { c56960, c56870, c56470, c56980, columns };

// field of the first port, that port, bits per port, ports of 56960 56870 56470 56980
constexpr PortRule<columns> states = {FieldId::SP_TREE_PORT0, 0, 2, {136, 132, 72, 160}};
constexpr auto layout = portRows<160>(states);

constexpr ChipRow chips[] = {
  // chips                                                            column  variants     words  entries  base        access
  {{BCM56960_A0, BCM56965_A0, BCM56968_A0},                           c56960, anyVariant,      9,     512, 0x38100000,      9},
  {{BCM56970_A0},                                                     c56960, anyVariant,      9,     512, 0x5c300000,      9},
  {{BCM56870_A0, BCM56770_A0},                                        c56870, anyVariant,     14,     512, 0x64400000,      9},
  {{BCM56470_A0},                                                     c56470, anyVariant,     11,     512, 0x68440000,      0},
  {{BCM56370_A0},                                                     c56470, anyVariant,     11,     512, 0x64400000,      0},
  {{BCM56275_A0, BCM56175_A0},                                        c56470, anyVariant,     11,     256, 0x64400000,      0},
  {{BCM56980_A0},                                                     c56980, anyVariant,     12,      64, 0x0c800000,     14},
  {{BCM56990_B0, BCM56992_B0, BCM56993_B0, BCM56996_A0, BCM56996_B0}, c56960, variantZero,    10,      64, 0x0c880000,     22},
};
// clang-format on

}  // namespace

VELMAR_TABLE(VlanStgEntry, Raw512, FIELDS, SPANS, about, layout, chips)

}  // namespace Velmar
