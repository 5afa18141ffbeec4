#include "tables/Table.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"second egress VLAN table, untagged ports per VLAN", egress};

// clang-format off
#define FIELDS(FIELD) \
  FIELD(utPortBitmap, UtPortBitmap, UT_PORT_BITMAP, Bitmap, "untagged ports")

#define SPANS(SPAN) SPAN(BCM56996_A0)

enum : U8 { c56990, columns };

constexpr FieldRow<columns> layout[] = {
  //                           56990
  {FieldId::UT_PORT_BITMAP, {{0, 272}}},
};

constexpr ChipRow chips[] = {
  // chips                                                            column  variants     words  entries  base        access
  {{BCM56990_B0, BCM56992_B0, BCM56993_B0, BCM56996_A0, BCM56996_B0}, c56990, variantZero,    11,    4096, 0x04780000,     22},
};
// clang-format on

}  // namespace

VELMAR_TABLE(EgrVlan2Entry, Raw512, FIELDS, SPANS, about, layout, chips)

}  // namespace Velmar
