#include "Velmar/VlanProfile2Entry.h"

#include "framework/Definitions.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"second VLAN profile table, block masks and their selectors", ingress};

// clang-format off
enum : U8 { c56960, c56870, c56470, c56980, c5699x, columns };

constexpr FieldRow<columns> layout[] = {
  //                                   56960       56870       56470      56980       5699x
  {FieldId::BCAST_MASK_SEL,         {{272,   2}, {280,   2}, {150,  2}, {  0,   2}, {  0,   2}}},
  {FieldId::UNKNOWN_UCAST_MASK_SEL, {{274,   2}, {282,   2}, {152,  2}, {326,   2}, {550,   2}}},
  {FieldId::KNOWN_MCAST_MASK_SEL,   {{278,   2}, {286,   2}, {156,  2}, {322,   2}, {546,   2}}},
  {FieldId::UNKNOWN_MCAST_MASK_SEL, {{276,   2}, {284,   2}, {154,  2}, {324,   2}, {548,   2}}},
  {FieldId::BLOCK_MASK_A,           {{  0, 136}, {  0, 132}, {  0, 72}, {  2, 160}, {  2, 272}}},
  {FieldId::BLOCK_MASK_B,           {{136, 136}, {140, 132}, { 75, 72}, {162, 160}, {274, 272}}},
};

constexpr ChipRow chips[] = {
  // chips                                               column  variants     words  entries base        access
  {{BCM56960_A0, BCM56965_A0, BCM56968_A0},              c56960, anyVariant,     9,     128, 0x506c0000,    9},
  {{BCM56970_A0},                                        c56960, anyVariant,    10,     128, 0x906c0000,    9},
  {{BCM56870_A0, BCM56770_A0},                           c56870, anyVariant,    10,     128, 0x807c0000,    9},
  {{BCM56470_A0, BCM56370_A0, BCM56275_A0, BCM56175_A0}, c56470, anyVariant,     6,     128, 0x807c0000,    0},
  {{BCM56980_A0},                                        c56980, anyVariant,    11,     128, 0x1cc80000,    9},
  {bcm5699x,                                             c5699x, variantZero,   18,     128, 0x20f80000,   17},
};
// clang-format on

}  // namespace

VELMAR_DEFINE_TABLE(VlanProfile2Entry, Raw1024)

}  // namespace Velmar
