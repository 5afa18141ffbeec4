#pragma once

#include "Velmar/Declarations.h"

// clang-format off
#define VELMAR_FIELDS_VfiProfileEntry(FIELD) \
  FIELD(ipmcv4L2Enable,       Ipmcv4L2Enable,       IPMCV4_L2_ENABLE,          U8,  "IPv4 multicast is forwarded on layer 2") \
  FIELD(ipmcv6L2Enable,       Ipmcv6L2Enable,       IPMCV6_L2_ENABLE,          U8,  "IPv6 multicast is forwarded on layer 2") \
  FIELD(enIfilter,            EnIfilter,            EN_IFILTER,                U8,  "the ingress filter is enabled") \
  FIELD(pktFlowSelectCtrlId2, PktFlowSelectCtrlId2, PKT_FLOW_SELECT_CTRL_ID_2, U16, "packet flow selection control id") \
  FIELD(l2MissDrop,           L2MissDrop,           L2_MISS_DROP,              U8,  "layer-2 misses are dropped") \
  FIELD(l2MissTocpu,          L2MissTocpu,          L2_MISS_TOCPU,             U8,  "layer-2 misses are copied to the CPU") \
  FIELD(l2NonUcastDrop,       L2NonUcastDrop,       L2_NON_UCAST_DROP,         U8,  "layer-2 non-unicast is dropped") \
  FIELD(l2NonUcastTocpu,      L2NonUcastTocpu,      L2_NON_UCAST_TOCPU,        U8,  "layer-2 non-unicast is copied to the CPU") \
  FIELD(learnDisable,         LearnDisable,         LEARN_DISABLE,             U8,  "learning is disabled")

#define VELMAR_SPANS_VfiProfileEntry(SPAN) SPAN(BCM56470_A0)
// clang-format on

namespace Velmar {

/// VFI profile table: the forwarding switches that VFIs share.
class VELMAR_EXPORT VfiProfileEntry : public AsicUtils::BcmAsicBase {
  VELMAR_DECLARE_TABLE(VfiProfileEntry, U64)
};

}  // namespace Velmar
