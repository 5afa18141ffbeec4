#include "tables/Table.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"VFI profile table, forwarding switches", ingress};

// clang-format off
#define FIELDS(FIELD) \
  FIELD(ipmcv4L2Enable,       Ipmcv4L2Enable,       IPMCV4_L2_ENABLE,          U8,  "IPv4 multicast is forwarded on layer 2") \
  FIELD(ipmcv6L2Enable,       Ipmcv6L2Enable,       IPMCV6_L2_ENABLE,          U8,  "IPv6 multicast is forwarded on layer 2") \
  FIELD(enIfilter,            EnIfilter,            EN_IFILTER,                U8,  "the ingress filter is enabled") \
  FIELD(pktFlowSelectCtrlId2, PktFlowSelectCtrlId2, PKT_FLOW_SELECT_CTRL_ID_2, U16, "packet flow selection control id") \
  FIELD(l2MissDrop,           L2MissDrop,           L2_MISS_DROP,              U8,  "layer-2 misses are dropped") \
  FIELD(l2MissTocpu,          L2MissTocpu,          L2_MISS_TOCPU,             U8,  "layer-2 misses are copied to the CPU") \
  FIELD(l2NonUcastDrop,       L2NonUcastDrop,       L2_NON_UCAST_DROP,         U8,  "layer-2 non-unicast is dropped") \
  FIELD(l2NonUcastTocpu,      L2NonUcastTocpu,      L2_NON_UCAST_TOCPU,        U8,  "layer-2 non-unicast is copied to the CPU") \
  FIELD(learnDisable,         LearnDisable,         LEARN_DISABLE,             U8,  "learning is disabled")

#define SPANS(SPAN) SPAN(BCM56470_A0)

enum : U8 { c56870, columns };

constexpr FieldRow<columns> layout[] = {
  //                                      56870
  {FieldId::IPMCV4_L2_ENABLE,          {{7,  1}}},
  {FieldId::IPMCV6_L2_ENABLE,          {{6,  1}}},
  {FieldId::EN_IFILTER,                {{0,  1}}},
  {FieldId::PKT_FLOW_SELECT_CTRL_ID_2, {{6, 16}}, alias},  // its low two bits are the two IPMC enables
  {FieldId::L2_MISS_DROP,              {{3,  1}}},
  {FieldId::L2_MISS_TOCPU,             {{2,  1}}},
  {FieldId::L2_NON_UCAST_DROP,         {{5,  1}}},
  {FieldId::L2_NON_UCAST_TOCPU,        {{4,  1}}},
  {FieldId::LEARN_DISABLE,             {{1,  1}}},
};

constexpr ChipRow chips[] = {
  // chips                                  column  variants    words  entries  base        access
  {{BCM56870_A0, BCM56770_A0},              c56870, anyVariant,     2,     128, 0x645c0000,      9},
  {{BCM56470_A0},                           c56870, anyVariant,     2,     128, 0x68600000,      0},
  {{BCM56370_A0, BCM56275_A0, BCM56175_A0}, c56870, anyVariant,     2,     128, 0x645c0000,      0},
};
// clang-format on

}  // namespace

VELMAR_TABLE(VfiProfileEntry, U64, FIELDS, SPANS, about, layout, chips)

}  // namespace Velmar
