#pragma once

#include "Velmar/Declarations.h"

// clang-format off
#define VELMAR_FIELDS_IgmpMldPktControl(FIELD) \
  FIELD(ipv6McRouterAdvPktToCpu,     Ipv6McRouterAdvPktToCpu,     IPV6_MC_ROUTER_ADV_PKT_TO_CPU,     U8, "IPv6 multicast router advertisements are copied to the CPU") \
  FIELD(ipv6McRouterAdvPktFwdAction, Ipv6McRouterAdvPktFwdAction, IPV6_MC_ROUTER_ADV_PKT_FWD_ACTION, U8, "forward action for IPv6 multicast router advertisements") \
  FIELD(ipv4McRouterAdvPktToCpu,     Ipv4McRouterAdvPktToCpu,     IPV4_MC_ROUTER_ADV_PKT_TO_CPU,     U8, "IPv4 multicast router advertisements are copied to the CPU") \
  FIELD(ipv4McRouterAdvPktFwdAction, Ipv4McRouterAdvPktFwdAction, IPV4_MC_ROUTER_ADV_PKT_FWD_ACTION, U8, "forward action for IPv4 multicast router advertisements") \
  FIELD(ipv6ResvdMcPktToCpu,         Ipv6ResvdMcPktToCpu,         IPV6_RESVD_MC_PKT_TO_CPU,          U8, "reserved IPv6 multicast packets are copied to the CPU") \
  FIELD(ipv6ResvdMcPktFwdAction,     Ipv6ResvdMcPktFwdAction,     IPV6_RESVD_MC_PKT_FWD_ACTION,      U8, "forward action for reserved IPv6 multicast packets") \
  FIELD(ipv4ResvdMcPktToCpu,         Ipv4ResvdMcPktToCpu,         IPV4_RESVD_MC_PKT_TO_CPU,          U8, "reserved IPv4 multicast packets are copied to the CPU") \
  FIELD(ipv4ResvdMcPktFwdAction,     Ipv4ResvdMcPktFwdAction,     IPV4_RESVD_MC_PKT_FWD_ACTION,      U8, "forward action for reserved IPv4 multicast packets") \
  FIELD(mldQueryToCpu,               MldQueryToCpu,               MLD_QUERY_TO_CPU,                  U8, "MLD queries are copied to the CPU") \
  FIELD(mldQueryFwdAction,           MldQueryFwdAction,           MLD_QUERY_FWD_ACTION,              U8, "forward action for MLD queries") \
  FIELD(mldRepDoneToCpu,             MldRepDoneToCpu,             MLD_REP_DONE_TO_CPU,               U8, "MLD report and done messages are copied to the CPU") \
  FIELD(mldRepDoneFwdAction,         MldRepDoneFwdAction,         MLD_REP_DONE_FWD_ACTION,           U8, "forward action for MLD report and done messages") \
  FIELD(igmpUnknownMsgToCpu,         IgmpUnknownMsgToCpu,         IGMP_UNKNOWN_MSG_TO_CPU,           U8, "unknown IGMP messages are copied to the CPU") \
  FIELD(igmpUnknownMsgFwdAction,     IgmpUnknownMsgFwdAction,     IGMP_UNKNOWN_MSG_FWD_ACTION,       U8, "forward action for unknown IGMP messages") \
  FIELD(igmpQueryToCpu,              IgmpQueryToCpu,              IGMP_QUERY_TO_CPU,                 U8, "IGMP queries are copied to the CPU") \
  FIELD(igmpQueryFwdAction,          IgmpQueryFwdAction,          IGMP_QUERY_FWD_ACTION,             U8, "forward action for IGMP queries") \
  FIELD(igmpRepLeaveToCpu,           IgmpRepLeaveToCpu,           IGMP_REP_LEAVE_TO_CPU,             U8, "IGMP report and leave messages are copied to the CPU") \
  FIELD(igmpRepLeaveFwdAction,       IgmpRepLeaveFwdAction,       IGMP_REP_LEAVE_FWD_ACTION,         U8, "forward action for IGMP report and leave messages") \
  FIELD(pfmRuleApply,                PfmRuleApply,                PFM_RULE_APPLY,                    U8, "the packet forwarding mode rule applies")

#define VELMAR_SPANS_IgmpMldPktControl(SPAN)
// clang-format on

namespace Velmar {

/// What happens to IGMP, MLD and special multicast packets: a register array.
class VELMAR_EXPORT IgmpMldPktControl : public AsicUtils::BcmAsicBase {
  VELMAR_DECLARE_REGISTER(IgmpMldPktControl, U32)
};

}  // namespace Velmar
