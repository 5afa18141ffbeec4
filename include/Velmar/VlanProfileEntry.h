#pragma once

#include "Velmar/Declarations.h"

// clang-format off
#define VELMAR_FIELDS_VlanProfileEntry(FIELD) \
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

#define VELMAR_SPANS_VlanProfileEntry(SPAN) SPAN(BCM56968_A0)
// clang-format on

namespace Velmar {

/// VLAN profile table: the forwarding switches that VLANs share.
class VELMAR_EXPORT VlanProfileEntry : public AsicUtils::BcmAsicBase {
  VELMAR_DECLARE_TABLE(VlanProfileEntry, Raw128)
};

}  // namespace Velmar
