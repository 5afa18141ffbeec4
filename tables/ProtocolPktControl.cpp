#include "tables/Table.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"protocol packet control, actions per packet kind", ingress,
                            /* elements */ 64};

// clang-format off
#define FIELDS(FIELD) \
  FIELD(dhcpPktToCpu,    DhcpPktToCpu,    DHCP_PKT_TO_CPU,    U8, "DHCP packets are copied to the CPU") \
  FIELD(dhcpPktDrop,     DhcpPktDrop,     DHCP_PKT_DROP,      U8, "DHCP packets are dropped") \
  FIELD(ndPktToCpu,      NdPktToCpu,      ND_PKT_TO_CPU,      U8, "IPv6 neighbour discovery packets are copied to the CPU") \
  FIELD(ndPktDrop,       NdPktDrop,       ND_PKT_DROP,        U8, "IPv6 neighbour discovery packets are dropped") \
  FIELD(arpRequestToCpu, ArpRequestToCpu, ARP_REQUEST_TO_CPU, U8, "ARP requests are copied to the CPU") \
  FIELD(arpRequestDrop,  ArpRequestDrop,  ARP_REQUEST_DROP,   U8, "ARP requests are dropped") \
  FIELD(arpReplyToCpu,   ArpReplyToCpu,   ARP_REPLY_TO_CPU,   U8, "ARP replies are copied to the CPU") \
  FIELD(arpReplyDrop,    ArpReplyDrop,    ARP_REPLY_DROP,     U8, "ARP replies are dropped") \
  FIELD(srpPktToCpu,     SrpPktToCpu,     SRP_PKT_TO_CPU,     U8, "SRP packets are copied to the CPU") \
  FIELD(srpFwdAction,    SrpFwdAction,    SRP_FWD_ACTION,     U8, "forward action for SRP packets") \
  FIELD(mmrpPktToCpu,    MmrpPktToCpu,    MMRP_PKT_TO_CPU,    U8, "MMRP packets are copied to the CPU") \
  FIELD(mmrpFwdAction,   MmrpFwdAction,   MMRP_FWD_ACTION,    U8, "forward action for MMRP packets")

#define SPANS(SPAN)

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
  // chips                                                            column  variants    words  entries  base        access
  {{BCM56960_A0, BCM56965_A0, BCM56968_A0},                           c56960, anyVariant,     1,       1, 0x42008000,      9},
  {{BCM56970_A0},                                                     c56960, anyVariant,     1,       1, 0x82008000,      9},
  {{BCM56870_A0, BCM56770_A0},                                        c56870, anyVariant,     1,       1, 0x72008000,      9},
  {{BCM56470_A0, BCM56370_A0, BCM56275_A0, BCM56175_A0},              c56870, anyVariant,     1,       1, 0x72008000,      0},
  {{BCM56980_A0},                                                     c56980, anyVariant,     1,       1, 0x12004900,      9},
  {{BCM56990_B0, BCM56992_B0, BCM56993_B0, BCM56996_A0, BCM56996_B0}, c56980, anyVariant,     1,       1, 0x12012400,     17},  // registers take any variant on every chip
};
// clang-format on

}  // namespace

VELMAR_REGISTER(ProtocolPktControl, U32, FIELDS, SPANS, about, layout, chips)

}  // namespace Velmar
