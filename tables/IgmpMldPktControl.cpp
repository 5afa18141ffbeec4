#include "tables/Table.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"IGMP/MLD packet control, actions per packet kind", ingress,
                            /* elements */ 64};

// clang-format off
#define FIELDS(FIELD) \
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

#define SPANS(SPAN)

enum : U8 { c56960, c56980, columns };

constexpr FieldRow<columns> layout[] = {
  //                                              56960    56980
  {FieldId::IPV6_MC_ROUTER_ADV_PKT_TO_CPU,     {{ 0, 1}, {17, 1}}},
  {FieldId::IPV6_MC_ROUTER_ADV_PKT_FWD_ACTION, {{ 1, 2}, {15, 2}}},
  {FieldId::IPV4_MC_ROUTER_ADV_PKT_TO_CPU,     {{ 3, 1}, {11, 1}}},
  {FieldId::IPV4_MC_ROUTER_ADV_PKT_FWD_ACTION, {{ 4, 2}, { 9, 2}}},
  {FieldId::IPV6_RESVD_MC_PKT_TO_CPU,          {{ 6, 1}, {20, 1}}},
  {FieldId::IPV6_RESVD_MC_PKT_FWD_ACTION,      {{ 7, 2}, {18, 2}}},
  {FieldId::IPV4_RESVD_MC_PKT_TO_CPU,          {{ 9, 1}, {14, 1}}},
  {FieldId::IPV4_RESVD_MC_PKT_FWD_ACTION,      {{10, 2}, {12, 2}}},
  {FieldId::MLD_QUERY_TO_CPU,                  {{12, 1}, {23, 1}}},
  {FieldId::MLD_QUERY_FWD_ACTION,              {{13, 2}, {21, 2}}},
  {FieldId::MLD_REP_DONE_TO_CPU,               {{15, 1}, {26, 1}}},
  {FieldId::MLD_REP_DONE_FWD_ACTION,           {{16, 2}, {24, 2}}},
  {FieldId::IGMP_UNKNOWN_MSG_TO_CPU,           {{18, 1}, { 8, 1}}},
  {FieldId::IGMP_UNKNOWN_MSG_FWD_ACTION,       {{19, 2}, { 6, 2}}},
  {FieldId::IGMP_QUERY_TO_CPU,                 {{21, 1}, { 2, 1}}},
  {FieldId::IGMP_QUERY_FWD_ACTION,             {{22, 2}, { 0, 2}}},
  {FieldId::IGMP_REP_LEAVE_TO_CPU,             {{24, 1}, { 5, 1}}},
  {FieldId::IGMP_REP_LEAVE_FWD_ACTION,         {{25, 2}, { 3, 2}}},
  {FieldId::PFM_RULE_APPLY,                    {{27, 1}, {27, 1}}},
};

constexpr ChipRow chips[] = {
  // chips                                                            column  variants    words  entries  base        access
  {{BCM56960_A0, BCM56965_A0, BCM56968_A0},                           c56960, anyVariant,     1,       1, 0x4200c000,      9},
  {{BCM56970_A0},                                                     c56960, anyVariant,     1,       1, 0x8200c000,      9},
  {{BCM56870_A0, BCM56770_A0},                                        c56960, anyVariant,     1,       1, 0x7200c000,      9},
  {{BCM56470_A0, BCM56370_A0, BCM56275_A0, BCM56175_A0},              c56960, anyVariant,     1,       1, 0x7200c000,      0},
  {{BCM56980_A0},                                                     c56980, anyVariant,     1,       1, 0x12000400,      9},
  {{BCM56990_B0, BCM56992_B0, BCM56993_B0, BCM56996_A0, BCM56996_B0}, c56980, anyVariant,     1,       1, 0x12001000,     17},  // registers take any variant on every chip
};
// clang-format on

}  // namespace

VELMAR_REGISTER(IgmpMldPktControl, U32, FIELDS, SPANS, about, layout, chips)

}  // namespace Velmar
