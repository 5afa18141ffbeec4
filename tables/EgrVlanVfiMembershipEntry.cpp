#include "Velmar/EgrVlanVfiMembershipEntry.h"

#include "framework/Definitions.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"egress membership profiles, member ports", egress};

// clang-format off
enum : U8 { c56870, c56470, c5699x, columns };

constexpr FieldRow<columns> layout[] = {
  //                        56870     56470    5699x
  {FieldId::PORT_BITMAP, {{0, 132}, {0, 72}, {0, 272}}},
};

constexpr ChipRow chips[] = {
  // chips                                               column  variants     words  entries base        access
  {{BCM56870_A0, BCM56770_A0},                           c56870, anyVariant,     7,    4096, 0x092c0000,   14},
  {{BCM56470_A0, BCM56370_A0, BCM56275_A0, BCM56175_A0}, c56470, anyVariant,     5,    4096, 0x092c0000,    0},
  {bcm5699x,                                             c5699x, variantZero,   11,    4096, 0x04740000,   22},
};
// clang-format on

}  // namespace

VELMAR_DEFINE_TABLE(EgrVlanVfiMembershipEntry, Raw512)

}  // namespace Velmar
