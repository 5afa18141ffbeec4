#include "tables/Table.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"ingress membership profiles, member ports", ingress};

// clang-format off
#define FIELDS(FIELD) \
  FIELD(ingPortBitmap, IngPortBitmap, ING_PORT_BITMAP, Bitmap, "ingress member ports")

#define SPANS(SPAN) SPAN(BCM56470_A0)

enum : U8 { c56870, c56470, c56990, columns };

constexpr FieldRow<columns> layout[] = {
  //                            56870     56470    56990
  {FieldId::ING_PORT_BITMAP, {{0, 132}, {0, 72}, {0, 272}}},
};

constexpr ChipRow chips[] = {
  // chips                                                            column  variants     words  entries  base        access
  {{BCM56870_A0, BCM56770_A0},                                        c56870, anyVariant,      7,    4096, 0x64100000,      9},
  {{BCM56470_A0},                                                     c56470, anyVariant,      5,    4096, 0x68140000,      0},
  {{BCM56370_A0},                                                     c56470, anyVariant,      7,    4096, 0x64100000,      0},
  {{BCM56275_A0, BCM56175_A0},                                        c56470, anyVariant,      5,    4096, 0x64100000,      0},
  {{BCM56990_B0, BCM56992_B0, BCM56993_B0, BCM56996_A0, BCM56996_B0}, c56990, variantZero,    11,    4096, 0x0c800000,     22},
};
// clang-format on

}  // namespace

VELMAR_TABLE(IngVlanVfiMembershipEntry, Raw512, FIELDS, SPANS, about, layout, chips)

}  // namespace Velmar
