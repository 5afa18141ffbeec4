#include "tables/Table.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"egress membership profiles, member ports", egress};

// clang-format off
#define FIELDS(FIELD) \
  FIELD(portBitmap, PortBitmap, PORT_BITMAP, Bitmap, "member ports")

#define SPANS(SPAN) SPAN(BCM56470_A0)

enum : U8 { c56870, c56470, c56990, columns };

constexpr FieldRow<columns> layout[] = {
  //                        56870     56470    56990
  {FieldId::PORT_BITMAP, {{0, 132}, {0, 72}, {0, 272}}},
};

constexpr ChipRow chips[] = {
  // chips                                                            column  variants     words  entries  base        access
  {{BCM56870_A0, BCM56770_A0},                                        c56870, anyVariant,      7,    4096, 0x092c0000,     14},
  {{BCM56470_A0, BCM56370_A0, BCM56275_A0, BCM56175_A0},              c56470, anyVariant,      5,    4096, 0x092c0000,      0},
  {{BCM56990_B0, BCM56992_B0, BCM56993_B0, BCM56996_A0, BCM56996_B0}, c56990, variantZero,    11,    4096, 0x04740000,     22},
};
// clang-format on

}  // namespace

VELMAR_TABLE(EgrVlanVfiMembershipEntry, Raw512, FIELDS, SPANS, about, layout, chips)

}  // namespace Velmar
