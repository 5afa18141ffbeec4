#include "Velmar/ProtocolPktControl.h"

#include "framework/Definitions.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"protocol packet control, actions per packet kind", ingress};

// clang-format off
enum : U8 { c56960, c56870, c56980, columns };

constexpr FieldRow<columns> layout[] = {
  //                               56960    56870   56980
  {FieldId::DHCP_PKT_TO_CPU,    {{ 0, 1}, {0, 1}, { 5, 1}}},
  {FieldId::DHCP_PKT_DROP,      {{ 1, 1}, {1, 1}, { 4, 1}}},
  {FieldId::ND_PKT_TO_CPU,      {{ 2, 1}, {2, 1}, {10, 1}}},
  {FieldId::ND_PKT_DROP,        {{ 3, 1}, {3, 1}, { 9, 1}}},
  {FieldId::ARP_REQUEST_TO_CPU, {{ 4, 1}, {4, 1}, { 3, 1}}},
  {FieldId::ARP_REQUEST_DROP,   {{ 5, 1}, {5, 1}, { 2, 1}}},
  {FieldId::ARP_REPLY_TO_CPU,   {{ 6, 1}, {6, 1}, { 1, 1}}},
  {FieldId::ARP_REPLY_DROP,     {{ 7, 1}, {7, 1}, { 0, 1}}},
  {FieldId::SRP_PKT_TO_CPU,     {{ 8, 1}, none,   {13, 1}}},
  {FieldId::SRP_FWD_ACTION,     {{ 9, 2}, none,   {11, 2}}},
  {FieldId::MMRP_PKT_TO_CPU,    {{11, 1}, none,   { 8, 1}}},
  {FieldId::MMRP_FWD_ACTION,    {{12, 2}, none,   { 6, 2}}},
};

constexpr ChipRow chips[] = {
  // chips                                               column  variants    words  entries base        access  stride  identifiers
  {{BCM56960_A0, BCM56965_A0, BCM56968_A0},              c56960, anyVariant,    1,       1, 0x42008000,    9,     256,  2},
  {{BCM56970_A0},                                        c56960, anyVariant,    1,       1, 0x82008000,    9,     256,  2},
  {{BCM56870_A0, BCM56770_A0},                           c56870, anyVariant,    1,       1, 0x72008000,    9,     256,  2},
  {{BCM56470_A0, BCM56370_A0, BCM56275_A0, BCM56175_A0}, c56870, anyVariant,    1,       1, 0x72008000,    0,     256,  2},
  {{BCM56980_A0},                                        c56980, anyVariant,    1,       1, 0x12004900,    9,     256,  2},
  {bcm5699x,                                             c56980, anyVariant,    1,       1, 0x12012400,   17,    1024,  1},
};
// clang-format on

}  // namespace

VELMAR_DEFINE_REGISTER(ProtocolPktControl, U32)

}  // namespace Velmar
