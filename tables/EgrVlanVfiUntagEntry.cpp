#include "tables/Table.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"egress untag profiles, untagged ports", egress};

// clang-format off
#define FIELDS(FIELD) \
  FIELD(utPortBitmap, UtPortBitmap, UT_PORT_BITMAP, Bitmap, "untagged ports")

#define SPANS(SPAN) SPAN(BCM56470_A0)

enum : U8 { c56870, c56470, columns };

constexpr FieldRow<columns> layout[] = {
  //                           56870     56470
  {FieldId::UT_PORT_BITMAP, {{0, 132}, {0, 72}}},
};

constexpr ChipRow chips[] = {
  // chips                                               column  variants    words  entries  base        access
  {{BCM56870_A0, BCM56770_A0},                           c56870, anyVariant,     7,    4096, 0x09100000,     14},
  {{BCM56470_A0, BCM56370_A0, BCM56275_A0, BCM56175_A0}, c56470, anyVariant,     5,    4096, 0x09100000,      0},
};
// clang-format on

}  // namespace

VELMAR_TABLE(EgrVlanVfiUntagEntry, Raw256, FIELDS, SPANS, about, layout, chips)

}  // namespace Velmar
