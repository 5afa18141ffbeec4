#pragma once

#include "tables/PortLists.h"

// The field identifiers: ID(number, HARDWARE_NAME). A hardware name has one number, in every class.
//
// The first list is closed. Its numbers are the places of the names in a naturally sorted list that
// is longer than this one, so numbers are missing; it is never changed. It is split around the
// fields of the ports, whose numbers follow by rule.
//
// The second list takes every new name, in order of arrival, from the next free number on.

// clang-format off
#define VELMAR_FIELD_IDS_BEFORE_PORTS(ID) \
  ID(  1, ARP_REPLY_DROP) \
  ID(  2, ARP_REPLY_TO_CPU) \
  ID(  3, ARP_REQUEST_DROP) \
  ID(  4, ARP_REQUEST_TO_CPU) \
  ID(  5, BASE_VALID) \
  ID(  6, BCAST_MASK_SEL) \
  ID(  8, BC_IDX) \
  ID( 10, BITMAP) \
  ID( 11, BLOCK_MASK_A) \
  ID( 12, BLOCK_MASK_B) \
  ID( 14, DATA) \
  ID( 15, DGLP) \
  ID( 16, DHCP_PKT_DROP) \
  ID( 17, DHCP_PKT_TO_CPU) \
  ID( 19, ECC) \
  ID( 24, ECCP) \
  ID( 48, ECC_DATA) \
  ID( 54, ECC_EN) \
  ID( 67, ENABLE_IGMP_MLD_SNOOPING) \
  ID( 68, EN_COR_ERR_RPT) \
  ID( 69, EN_EFILTER) \
  ID( 70, EN_IFILTER) \
  ID( 90, FID_ID) \
  ID( 91, FLEX_CTR_ACTION) \
  ID( 96, HASH_LSB) \
  ID( 97, HASH_OFFSET_DEDICATED_BANK_0) \
  ID( 98, HASH_OFFSET_DEDICATED_BANK_1) \
  ID(101, IGMP_QUERY_FWD_ACTION) \
  ID(102, IGMP_QUERY_TO_CPU) \
  ID(103, IGMP_REP_LEAVE_FWD_ACTION) \
  ID(104, IGMP_REP_LEAVE_TO_CPU) \
  ID(105, IGMP_UNKNOWN_MSG_FWD_ACTION) \
  ID(106, IGMP_UNKNOWN_MSG_TO_CPU) \
  ID(107, ING_PORT_BITMAP) \
  ID(118, IPMCV4_L2_ENABLE) \
  ID(119, IPMCV6_L2_ENABLE) \
  ID(120, IPV4_MC_ROUTER_ADV_PKT_FWD_ACTION) \
  ID(121, IPV4_MC_ROUTER_ADV_PKT_TO_CPU) \
  ID(122, IPV4_RESVD_MC_PKT_FWD_ACTION) \
  ID(123, IPV4_RESVD_MC_PKT_TO_CPU) \
  ID(124, IPV6_MC_ROUTER_ADV_PKT_FWD_ACTION) \
  ID(125, IPV6_MC_ROUTER_ADV_PKT_TO_CPU) \
  ID(126, IPV6_RESVD_MC_PKT_FWD_ACTION) \
  ID(127, IPV6_RESVD_MC_PKT_TO_CPU) \
  ID(128, KEY) \
  ID(129, KEY_TYPE) \
  ID(130, KNOWN_MCAST_MASK_SEL) \
  ID(131, L2_ENTRY_KEY_TYPE) \
  ID(132, L2_MISS_DROP) \
  ID(133, L2_MISS_TOCPU) \
  ID(134, L2_NON_UCAST_DROP) \
  ID(135, L2_NON_UCAST_TOCPU) \
  ID(136, L2_PFM) \
  ID(137, L3_IIF) \
  ID(138, L3_IPV4_PFM) \
  ID(139, L3_IPV6_PFM) \
  ID(140, LEARN_DISABLE) \
  ID(141, MEMBERSHIP_PROFILE_PTR) \
  ID(142, MIM_TERM_ENABLE) \
  ID(143, MLD_QUERY_FWD_ACTION) \
  ID(144, MLD_QUERY_TO_CPU) \
  ID(145, MLD_REP_DONE_FWD_ACTION) \
  ID(146, MLD_REP_DONE_TO_CPU) \
  ID(147, MMRP_FWD_ACTION) \
  ID(148, MMRP_PKT_TO_CPU) \
  ID(149, MPLS_ENABLE) \
  ID(150, ND_PKT_DROP) \
  ID(151, ND_PKT_TO_CPU) \
  ID(154, OVID) \
  ID(155, OVID_VALID) \
  ID(156, PARITY) \
  ID(176, PFM_RULE_APPLY) \
  ID(181, PKT_FLOW_SELECT_CTRL_ID_2) \
  ID(182, PORT_BITMAP) \
  ID(191, PORT_BITMAP_PROFILE_PTR) \
  ID(194, PROTOCOL_PKT_INDEX) \
  ID(216, RESERVED_KEY_PADDING) \
  ID(221, ROBUST_HASH_EN) \
  ID(231, RSVD_VLAN) \
  ID(232, RSVD_VP) \
  ID(233, SGLP) \
  ID(243, SP_TREE)

// Here the ports: SP_TREE_PORT<n> is 244 + n.

#define VELMAR_FIELD_IDS_AFTER_PORTS(ID) \
  ID(583, SRP_FWD_ACTION) \
  ID(584, SRP_PKT_TO_CPU) \
  ID(585, STG) \
  ID(587, TABLE_FIELDS) \
  ID(595, UMC_IDX) \
  ID(597, UNKNOWN_MCAST_MASK_SEL) \
  ID(598, UNKNOWN_UCAST_MASK_SEL) \
  ID(599, UNTAG) \
  ID(600, UNTAG_PROFILE_PTR) \
  ID(602, UT_PORT_BITMAP) \
  ID(614, UUC_IDX) \
  ID(616, VALID) \
  ID(617, VFI) \
  ID(618, VIRTUAL_PORT_EN) \
  ID(619, VLAN) \
  ID(620, VLAN_CLASS_ID) \
  ID(622, VLAN_PROFILE_PTR) \
  ID(623, VP)

// New names. The first number is 624.
#define VELMAR_NEW_FIELD_IDS(ID)

/// All of them in ascending order: ID as above, and FIELD(accessor, Accessor, HARDWARE_NAME, TYPE,
/// meaning) for a port.
#define VELMAR_FIELD_IDS(ID, FIELD)                                                          \
  VELMAR_FIELD_IDS_BEFORE_PORTS(ID)                                                          \
  VELMAR_SP_TREE_PORTS_0_TO_159(FIELD) VELMAR_SP_TREE_PORTS_160_TO_271(FIELD)                \
  VELMAR_FIELD_IDS_AFTER_PORTS(ID)                                                           \
  VELMAR_NEW_FIELD_IDS(ID)
// clang-format on
