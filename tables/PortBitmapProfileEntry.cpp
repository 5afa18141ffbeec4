#include "tables/Table.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"port bitmap profiles, a port bitmap", ingress};

// clang-format off
#define FIELDS(FIELD) \
  FIELD(bitmap, Bitmap, BITMAP, Bitmap, "ports of the profile")

#define SPANS(SPAN) SPAN(BCM56980_A0) SPAN(BCM56996_A0)

enum : U8 { c56980, c56990, columns };

constexpr FieldRow<columns> layout[] = {
  //                   56980     56990
  {FieldId::BITMAP, {{0, 160}, {0, 272}}},
};

constexpr ChipRow chips[] = {
  // chips                                                            column  variants    words  entries  base        access
  {{BCM56980_A0},                                                     c56980, anyVariant,     6,    1024, 0x1ca40000,      9},
  {{BCM56990_B0, BCM56992_B0, BCM56993_B0, BCM56996_A0, BCM56996_B0}, c56990, anyVariant,     9,    2048, 0x20d00000,     17},  // any variant, unlike most memories of these chips
};
// clang-format on

}  // namespace

VELMAR_TABLE(PortBitmapProfileEntry, Raw512, FIELDS, SPANS, about, layout, chips)

}  // namespace Velmar
