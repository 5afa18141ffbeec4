#include "Velmar/IngVlanVfiMembershipEntry.h"

#include "framework/Definitions.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"ingress membership profiles, member ports", ingress};

// clang-format off
enum : U8 { c56870, c56470, c5699x, columns };

constexpr FieldRow<columns> layout[] = {
  //                            56870     56470    5699x
  {FieldId::ING_PORT_BITMAP, {{0, 132}, {0, 72}, {0, 272}}},
};

constexpr ChipRow chips[] = {
  // chips                     column  variants     words  entries base        access
  {{BCM56870_A0, BCM56770_A0}, c56870, anyVariant,     7,    4096, 0x64100000,    9},
  {{BCM56470_A0},              c56470, anyVariant,     5,    4096, 0x68140000,    0},
  {{BCM56370_A0},              c56470, anyVariant,     7,    4096, 0x64100000,    0},
  {{BCM56275_A0, BCM56175_A0}, c56470, anyVariant,     5,    4096, 0x64100000,    0},
  {bcm5699x,                   c5699x, variantZero,   11,    4096, 0x0c800000,   22},
};
// clang-format on

}  // namespace

VELMAR_DEFINE_TABLE(IngVlanVfiMembershipEntry, Raw512)

}  // namespace Velmar
