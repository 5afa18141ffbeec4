#include "Velmar/VlanProfileEntry.h"

#include "framework/Definitions.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"VLAN profile table, forwarding switches", ingress};

// clang-format off
enum : U8 { c56960, c56870, c56980, c5699x, columns };

constexpr FieldRow<columns> layout[] = {
  //                               56960    56870    56980    5699x
  {FieldId::IPMCV4_L2_ENABLE,   {{29, 1}, {35, 1}, { 0, 1}, { 1, 1}}},
  {FieldId::IPMCV6_L2_ENABLE,   {{28, 1}, {34, 1}, { 1, 1}, { 2, 1}}},
  {FieldId::PROTOCOL_PKT_INDEX, {{22, 6}, {24, 6}, {15, 6}, {15, 6}}},
  {FieldId::EN_IFILTER,         {none,    none,    none,    { 0, 1}}},
  {FieldId::L3_IPV6_PFM,        {{32, 2}, {32, 2}, {10, 2}, {11, 2}}},
  {FieldId::L3_IPV4_PFM,        {{30, 2}, {30, 2}, { 8, 2}, { 9, 2}}},
  {FieldId::L2_PFM,             {{ 0, 2}, { 0, 2}, { 6, 2}, { 7, 2}}},
  {FieldId::L2_MISS_DROP,       {{ 6, 1}, { 8, 1}, { 2, 1}, { 3, 1}}},
  {FieldId::L2_MISS_TOCPU,      {{ 5, 1}, { 7, 1}, { 3, 1}, { 4, 1}}},
  {FieldId::L2_NON_UCAST_DROP,  {{ 8, 1}, {10, 1}, { 4, 1}, { 5, 1}}},
  {FieldId::L2_NON_UCAST_TOCPU, {{ 7, 1}, { 9, 1}, { 5, 1}, { 6, 1}}},
  {FieldId::LEARN_DISABLE,      {{ 2, 1}, { 2, 1}, {12, 1}, none}},
};

constexpr ChipRow chips[] = {
  // chips                                  column  variants     words  entries base        access
  {{BCM56960_A0, BCM56965_A0, BCM56968_A0}, c56960, anyVariant,     2,     128, 0x38140000,    9},
  {{BCM56970_A0},                           c56960, anyVariant,     2,     128, 0x5c340000,    9},
  {{BCM56870_A0, BCM56770_A0},              c56870, anyVariant,     3,     128, 0x64440000,    9},
  {{BCM56470_A0},                           c56870, anyVariant,     3,     128, 0x68480000,    0},
  {{BCM56370_A0, BCM56275_A0, BCM56175_A0}, c56870, anyVariant,     3,     128, 0x64440000,    0},
  {{BCM56980_A0},                           c56980, anyVariant,     2,     128, 0x0c7c0000,    9},
  {bcm5699x,                                c5699x, variantZero,    2,     128, 0x0c840000,   17},
};
// clang-format on

}  // namespace

VELMAR_DEFINE_TABLE(VlanProfileEntry, Raw128)

}  // namespace Velmar
