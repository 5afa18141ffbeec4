#include "tables/Table.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"VLAN profile table, forwarding switches", ingress};

// clang-format off
#define FIELDS(FIELD) \
  FIELD(ipmcv4L2Enable,   Ipmcv4L2Enable,   IPMCV4_L2_ENABLE,   U8, "IPv4 multicast is forwarded on layer 2") \
  FIELD(ipmcv6L2Enable,   Ipmcv6L2Enable,   IPMCV6_L2_ENABLE,   U8, "IPv6 multicast is forwarded on layer 2") \
  FIELD(protocolPktIndex, ProtocolPktIndex, PROTOCOL_PKT_INDEX, U8, "element of the packet control registers") \
  FIELD(enIfilter,        EnIfilter,        EN_IFILTER,         U8, "the ingress filter is enabled") \
  FIELD(l3Ipv6Pfm,        L3Ipv6Pfm,        L3_IPV6_PFM,        U8, "packet forwarding mode, layer-3 IPv6") \
  FIELD(l3Ipv4Pfm,        L3Ipv4Pfm,        L3_IPV4_PFM,        U8, "packet forwarding mode, layer-3 IPv4") \
  FIELD(l2Pfm,            L2Pfm,            L2_PFM,             U8, "packet forwarding mode, layer 2") \
  FIELD(l2MissDrop,       L2MissDrop,       L2_MISS_DROP,       U8, "layer-2 misses are dropped") \
  FIELD(l2MissTocpu,      L2MissTocpu,      L2_MISS_TOCPU,      U8, "layer-2 misses are copied to the CPU") \
  FIELD(l2NonUcastDrop,   L2NonUcastDrop,   L2_NON_UCAST_DROP,  U8, "layer-2 non-unicast is dropped") \
  FIELD(l2NonUcastTocpu,  L2NonUcastTocpu,  L2_NON_UCAST_TOCPU, U8, "layer-2 non-unicast is copied to the CPU") \
  FIELD(learnDisable,     LearnDisable,     LEARN_DISABLE,      U8, "learning is disabled")

#define SPANS(SPAN) SPAN(BCM56968_A0)

enum : U8 { c56960, c56870, c56980, c56990, columns };

constexpr FieldRow<columns> layout[] = {
  //                               56960    56870    56980    56990
  {FieldId::IPMCV4_L2_ENABLE,   {{29, 1}, {35, 1}, { 0, 1}, { 1, 1}}},
  {FieldId::IPMCV6_L2_ENABLE,   {{28, 1}, {34, 1}, { 1, 1}, { 2, 1}}},
  {FieldId::PROTOCOL_PKT_INDEX, {{22, 6}, {24, 6}, {15, 6}, {15, 6}}},
  {FieldId::EN_IFILTER,         {none,    none,    none,    { 0, 1}}},
  {FieldId::L3_IPV6_PFM,        {{32, 2}, {32, 2}, {10, 2}, {11, 2}}},
  {FieldId::L3_IPV4_PFM,        {{30, 2}, {30, 2}, { 8, 2}, { 9, 2}}},
  {FieldId::L2_PFM,             {{ 0, 2}, { 0, 2}, { 6, 2}, { 7, 2}}},
  {FieldId::L2_MISS_DROP,       {{ 6, 1}, { 8, 1}, { 2, 1}, { 3, 1}}},  // drop above copy on 56960 and 56870, below it on 56980 and 56990
  {FieldId::L2_MISS_TOCPU,      {{ 5, 1}, { 7, 1}, { 3, 1}, { 4, 1}}},
  {FieldId::L2_NON_UCAST_DROP,  {{ 8, 1}, {10, 1}, { 4, 1}, { 5, 1}}},
  {FieldId::L2_NON_UCAST_TOCPU, {{ 7, 1}, { 9, 1}, { 5, 1}, { 6, 1}}},
  {FieldId::LEARN_DISABLE,      {{ 2, 1}, { 2, 1}, {12, 1}, none}},
};

constexpr ChipRow chips[] = {
  // chips                                                            column  variants     words  entries  base        access
  {{BCM56960_A0, BCM56965_A0, BCM56968_A0},                           c56960, anyVariant,      2,     128, 0x38140000,      9},
  {{BCM56970_A0},                                                     c56960, anyVariant,      2,     128, 0x5c340000,      9},
  {{BCM56870_A0, BCM56770_A0},                                        c56870, anyVariant,      3,     128, 0x64440000,      9},
  {{BCM56470_A0},                                                     c56870, anyVariant,      3,     128, 0x68480000,      0},  // its own address in the layout of its generation
  {{BCM56370_A0, BCM56275_A0, BCM56175_A0},                           c56870, anyVariant,      3,     128, 0x64440000,      0},
  {{BCM56980_A0},                                                     c56980, anyVariant,      2,     128, 0x0c7c0000,      9},
  {{BCM56990_B0, BCM56992_B0, BCM56993_B0, BCM56996_A0, BCM56996_B0}, c56990, variantZero,     2,     128, 0x0c840000,     17},
};
// clang-format on

}  // namespace

VELMAR_TABLE(VlanProfileEntry, Raw128, FIELDS, SPANS, about, layout, chips)

}  // namespace Velmar
