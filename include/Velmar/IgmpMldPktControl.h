// Derived from tables/IgmpMldPktControl.cpp; do not edit.
// To refresh: cmake --build --preset release --target refresh
#pragma once

#include "AsicUtils/BcmAsicBase.h"
#include "AsicUtils/ChipType.h"
#include "Velmar/Export.h"

namespace Velmar {

/// IGMP/MLD packet control, actions per packet kind.
///
/// A view of one element of this ingress register array. The caller owns the bytes; bit 0 of the
/// element is bit 0 of the first byte. On BCM56960_A0, BCM56965_A0, BCM56968_A0, BCM56970_A0,
/// BCM56870_A0, BCM56770_A0, BCM56470_A0, BCM56370_A0, BCM56275_A0, BCM56175_A0, BCM56980_A0,
/// BCM56990_B0, BCM56992_B0, BCM56993_B0, BCM56996_A0, BCM56996_B0: "from" in the comments below
/// follows this order.
///
/// Two threads must not write through views of the same bytes, not even to different fields.
///
/// The members of a field F trace at level 8, then check in this order:
///  - F() and FIs(): "0" if the chip lacks the field, "variant_ == 0" if only the variant lacks it,
///    "len_ >= N" if the buffer ends before the end of the field. FIs() also: "value <= 0x<mask>"
///    if the value is too large and the width is not a multiple of 8. A bitmap with too few words
///    throws Morvo::VectorOutOfRangeException after its last word is written; surplus words are
///    ignored.
///  - FLen(): if the view lacks the field, the soft assertion " does not have field
///    <HARDWARE_NAME>", then "\"0\" == nullptr". FOffset(): "0" and "variant_ == 0" as for F().
///  - isFValid() never fails.
/// A static member fails "0" for a chip without the register array and "variant == 0" for a variant
/// that the chip does not have, unless its comment says otherwise.
class VELMAR_EXPORT IgmpMldPktControl : public AsicUtils::BcmAsicBase {
 public:
  using EntrySpans = AsicUtils::EntrySpans;

  /// Binds the view to `buf`, `len` bytes that outlive it. If the chip or variant lacks the class:
  /// the soft assertion " not in metainfo for IgmpMldPktControl!", then "\"0\" == nullptr".
  IgmpMldPktControl(ChipType_ chipType, U8* buf, U16 len, bool flag, U8 variant);
  /// Does nothing.
  static void handleBuf(ChipType_ chipType, U8* buf, U16 len, bool flag, U8 variant);
  /// Whether the constructor accepts the pair. Never fails.
  VELMAR_NODISCARD static bool chipTypeVariantValid(ChipType_ chipType, U8 variant);
  /// True.
  bool isPrimary() const;
  /// False: a register array.
  bool isTable() const override;

  /// Sets a scalar field by identifier (Velmar/FieldId.h). The value is first truncated to the
  /// field's type. Any other identifier fails "false".
  void setField64(U32 fieldId, U64 value) override;
  /// Width of a field in bits; 0 if the view lacks it.
  U16 fieldWidth(U32 fieldId) const override;
  /// First bit of a field. An identifier that the class does not declare fails "false".
  U16 fieldOffset(U32 fieldId) const override;
  /// Whether the view has a field. Never fails.
  VELMAR_NODISCARD bool isFieldValid(U32 fieldId) const override;
  /// The entry with its reserved bits zero. Fails "len_ >= 4" if the buffer is shorter, also on
  /// chips whose entries are shorter.
  U32 getAllFields() const;
  /// A one at every bit of an entry that belongs to a field.
  VELMAR_NODISCARD static Raw8192 allFieldsMask(U32 chipType, U8 variant);
  /// The same for the view's chip and variant.
  VELMAR_NODISCARD Raw8192 allFieldsMask() const override;
  /// Number of fields that the chip has.
  VELMAR_NODISCARD static U32 fieldCount(U32 chipType, U8 variant);
  /// The same for the view's chip and variant.
  VELMAR_NODISCARD U32 fieldCount() const override;

  /// Whether an instance identifier is accepted.
  VELMAR_NODISCARD static bool hasIdentifier(U32 chipType, U8 variant, U32 identifier);
  /// The same for the view's chip and variant.
  VELMAR_NODISCARD bool hasIdentifier(U32 identifier) const override;
  /// S-channel address, access code and block (1 ingress, 2 egress). Returns false and writes
  /// nothing if the chip or variant lacks the class. Fails "tableEntry == 0", "arrayIndex < 64",
  /// "hasIdentifier( chipType, variant, identifier )".
  static bool getSchanAddress(U32 chipType, U8 variant, U32& address, U32& accessType, U32& block,
                              U16 identifier, U32 tableEntry, U16 arrayIndex);
  /// The same for the view's chip and variant.
  bool getSchanAddress(U32& address, U32& accessType, U32& block, U16 identifier, U32 tableEntry,
                       U16 arrayIndex) const override;

  /// Size of an entry in 32-bit words.
  VELMAR_NODISCARD static U16 width(U32 chipType, U8 variant);
  /// The same for the view's chip and variant.
  VELMAR_NODISCARD U16 width() const override;
  /// The same as width().
  VELMAR_NODISCARD static U16 regWidth(U32 chipType, U8 variant);
  /// Number of elements.
  VELMAR_NODISCARD static U32 arrayElements(U32 chipType, U8 variant);
  /// The same for the view's chip and variant.
  VELMAR_NODISCARD U32 arrayElements() const override;
  /// Number of instances: 1.
  VELMAR_NODISCARD static U32 instanceCount(U32 chipType, U8 variant);
  /// The same for the view's chip and variant.
  VELMAR_NODISCARD U32 instanceCount() const override;
  /// Address distance between two elements.
  VELMAR_NODISCARD static U32 addrStride(U32 chipType, U8 variant);
  /// The same for the view's chip and variant.
  VELMAR_NODISCARD U32 addrStride() const;
  /// 0, even if hasIdentifier() accepts more.
  VELMAR_NODISCARD static U32 maxIdentifier(U32 chipType, U8 variant);
  /// The same for the view's chip and variant.
  VELMAR_NODISCARD U32 maxIdentifier() const override;

  /// IPv6 multicast router advertisements are copied to the CPU. IPV6_MC_ROUTER_ADV_PKT_TO_CPU: 1
  /// bit; on all chips.
  VELMAR_NODISCARD U8 ipv6McRouterAdvPktToCpu() const;
  /// Sets IPV6_MC_ROUTER_ADV_PKT_TO_CPU.
  void ipv6McRouterAdvPktToCpuIs(U8 value);
  /// Width of IPV6_MC_ROUTER_ADV_PKT_TO_CPU in bits.
  U16 ipv6McRouterAdvPktToCpuLen() const;
  /// First bit of IPV6_MC_ROUTER_ADV_PKT_TO_CPU in the entry.
  U16 ipv6McRouterAdvPktToCpuOffset() const;
  /// Whether the view has IPV6_MC_ROUTER_ADV_PKT_TO_CPU.
  VELMAR_NODISCARD bool isIpv6McRouterAdvPktToCpuValid() const;

  /// Forward action for IPv6 multicast router advertisements. IPV6_MC_ROUTER_ADV_PKT_FWD_ACTION: 2
  /// bits; on all chips.
  VELMAR_NODISCARD U8 ipv6McRouterAdvPktFwdAction() const;
  /// Sets IPV6_MC_ROUTER_ADV_PKT_FWD_ACTION.
  void ipv6McRouterAdvPktFwdActionIs(U8 value);
  /// Width of IPV6_MC_ROUTER_ADV_PKT_FWD_ACTION in bits.
  U16 ipv6McRouterAdvPktFwdActionLen() const;
  /// First bit of IPV6_MC_ROUTER_ADV_PKT_FWD_ACTION in the entry.
  U16 ipv6McRouterAdvPktFwdActionOffset() const;
  /// Whether the view has IPV6_MC_ROUTER_ADV_PKT_FWD_ACTION.
  VELMAR_NODISCARD bool isIpv6McRouterAdvPktFwdActionValid() const;

  /// IPv4 multicast router advertisements are copied to the CPU. IPV4_MC_ROUTER_ADV_PKT_TO_CPU: 1
  /// bit; on all chips.
  VELMAR_NODISCARD U8 ipv4McRouterAdvPktToCpu() const;
  /// Sets IPV4_MC_ROUTER_ADV_PKT_TO_CPU.
  void ipv4McRouterAdvPktToCpuIs(U8 value);
  /// Width of IPV4_MC_ROUTER_ADV_PKT_TO_CPU in bits.
  U16 ipv4McRouterAdvPktToCpuLen() const;
  /// First bit of IPV4_MC_ROUTER_ADV_PKT_TO_CPU in the entry.
  U16 ipv4McRouterAdvPktToCpuOffset() const;
  /// Whether the view has IPV4_MC_ROUTER_ADV_PKT_TO_CPU.
  VELMAR_NODISCARD bool isIpv4McRouterAdvPktToCpuValid() const;

  /// Forward action for IPv4 multicast router advertisements. IPV4_MC_ROUTER_ADV_PKT_FWD_ACTION: 2
  /// bits; on all chips.
  VELMAR_NODISCARD U8 ipv4McRouterAdvPktFwdAction() const;
  /// Sets IPV4_MC_ROUTER_ADV_PKT_FWD_ACTION.
  void ipv4McRouterAdvPktFwdActionIs(U8 value);
  /// Width of IPV4_MC_ROUTER_ADV_PKT_FWD_ACTION in bits.
  U16 ipv4McRouterAdvPktFwdActionLen() const;
  /// First bit of IPV4_MC_ROUTER_ADV_PKT_FWD_ACTION in the entry.
  U16 ipv4McRouterAdvPktFwdActionOffset() const;
  /// Whether the view has IPV4_MC_ROUTER_ADV_PKT_FWD_ACTION.
  VELMAR_NODISCARD bool isIpv4McRouterAdvPktFwdActionValid() const;

  /// Reserved IPv6 multicast packets are copied to the CPU. IPV6_RESVD_MC_PKT_TO_CPU: 1 bit; on all
  /// chips.
  VELMAR_NODISCARD U8 ipv6ResvdMcPktToCpu() const;
  /// Sets IPV6_RESVD_MC_PKT_TO_CPU.
  void ipv6ResvdMcPktToCpuIs(U8 value);
  /// Width of IPV6_RESVD_MC_PKT_TO_CPU in bits.
  U16 ipv6ResvdMcPktToCpuLen() const;
  /// First bit of IPV6_RESVD_MC_PKT_TO_CPU in the entry.
  U16 ipv6ResvdMcPktToCpuOffset() const;
  /// Whether the view has IPV6_RESVD_MC_PKT_TO_CPU.
  VELMAR_NODISCARD bool isIpv6ResvdMcPktToCpuValid() const;

  /// Forward action for reserved IPv6 multicast packets. IPV6_RESVD_MC_PKT_FWD_ACTION: 2 bits; on
  /// all chips.
  VELMAR_NODISCARD U8 ipv6ResvdMcPktFwdAction() const;
  /// Sets IPV6_RESVD_MC_PKT_FWD_ACTION.
  void ipv6ResvdMcPktFwdActionIs(U8 value);
  /// Width of IPV6_RESVD_MC_PKT_FWD_ACTION in bits.
  U16 ipv6ResvdMcPktFwdActionLen() const;
  /// First bit of IPV6_RESVD_MC_PKT_FWD_ACTION in the entry.
  U16 ipv6ResvdMcPktFwdActionOffset() const;
  /// Whether the view has IPV6_RESVD_MC_PKT_FWD_ACTION.
  VELMAR_NODISCARD bool isIpv6ResvdMcPktFwdActionValid() const;

  /// Reserved IPv4 multicast packets are copied to the CPU. IPV4_RESVD_MC_PKT_TO_CPU: 1 bit; on all
  /// chips.
  VELMAR_NODISCARD U8 ipv4ResvdMcPktToCpu() const;
  /// Sets IPV4_RESVD_MC_PKT_TO_CPU.
  void ipv4ResvdMcPktToCpuIs(U8 value);
  /// Width of IPV4_RESVD_MC_PKT_TO_CPU in bits.
  U16 ipv4ResvdMcPktToCpuLen() const;
  /// First bit of IPV4_RESVD_MC_PKT_TO_CPU in the entry.
  U16 ipv4ResvdMcPktToCpuOffset() const;
  /// Whether the view has IPV4_RESVD_MC_PKT_TO_CPU.
  VELMAR_NODISCARD bool isIpv4ResvdMcPktToCpuValid() const;

  /// Forward action for reserved IPv4 multicast packets. IPV4_RESVD_MC_PKT_FWD_ACTION: 2 bits; on
  /// all chips.
  VELMAR_NODISCARD U8 ipv4ResvdMcPktFwdAction() const;
  /// Sets IPV4_RESVD_MC_PKT_FWD_ACTION.
  void ipv4ResvdMcPktFwdActionIs(U8 value);
  /// Width of IPV4_RESVD_MC_PKT_FWD_ACTION in bits.
  U16 ipv4ResvdMcPktFwdActionLen() const;
  /// First bit of IPV4_RESVD_MC_PKT_FWD_ACTION in the entry.
  U16 ipv4ResvdMcPktFwdActionOffset() const;
  /// Whether the view has IPV4_RESVD_MC_PKT_FWD_ACTION.
  VELMAR_NODISCARD bool isIpv4ResvdMcPktFwdActionValid() const;

  /// MLD queries are copied to the CPU. MLD_QUERY_TO_CPU: 1 bit; on all chips.
  VELMAR_NODISCARD U8 mldQueryToCpu() const;
  /// Sets MLD_QUERY_TO_CPU.
  void mldQueryToCpuIs(U8 value);
  /// Width of MLD_QUERY_TO_CPU in bits.
  U16 mldQueryToCpuLen() const;
  /// First bit of MLD_QUERY_TO_CPU in the entry.
  U16 mldQueryToCpuOffset() const;
  /// Whether the view has MLD_QUERY_TO_CPU.
  VELMAR_NODISCARD bool isMldQueryToCpuValid() const;

  /// Forward action for MLD queries. MLD_QUERY_FWD_ACTION: 2 bits; on all chips.
  VELMAR_NODISCARD U8 mldQueryFwdAction() const;
  /// Sets MLD_QUERY_FWD_ACTION.
  void mldQueryFwdActionIs(U8 value);
  /// Width of MLD_QUERY_FWD_ACTION in bits.
  U16 mldQueryFwdActionLen() const;
  /// First bit of MLD_QUERY_FWD_ACTION in the entry.
  U16 mldQueryFwdActionOffset() const;
  /// Whether the view has MLD_QUERY_FWD_ACTION.
  VELMAR_NODISCARD bool isMldQueryFwdActionValid() const;

  /// MLD report and done messages are copied to the CPU. MLD_REP_DONE_TO_CPU: 1 bit; on all chips.
  VELMAR_NODISCARD U8 mldRepDoneToCpu() const;
  /// Sets MLD_REP_DONE_TO_CPU.
  void mldRepDoneToCpuIs(U8 value);
  /// Width of MLD_REP_DONE_TO_CPU in bits.
  U16 mldRepDoneToCpuLen() const;
  /// First bit of MLD_REP_DONE_TO_CPU in the entry.
  U16 mldRepDoneToCpuOffset() const;
  /// Whether the view has MLD_REP_DONE_TO_CPU.
  VELMAR_NODISCARD bool isMldRepDoneToCpuValid() const;

  /// Forward action for MLD report and done messages. MLD_REP_DONE_FWD_ACTION: 2 bits; on all
  /// chips.
  VELMAR_NODISCARD U8 mldRepDoneFwdAction() const;
  /// Sets MLD_REP_DONE_FWD_ACTION.
  void mldRepDoneFwdActionIs(U8 value);
  /// Width of MLD_REP_DONE_FWD_ACTION in bits.
  U16 mldRepDoneFwdActionLen() const;
  /// First bit of MLD_REP_DONE_FWD_ACTION in the entry.
  U16 mldRepDoneFwdActionOffset() const;
  /// Whether the view has MLD_REP_DONE_FWD_ACTION.
  VELMAR_NODISCARD bool isMldRepDoneFwdActionValid() const;

  /// Unknown IGMP messages are copied to the CPU. IGMP_UNKNOWN_MSG_TO_CPU: 1 bit; on all chips.
  VELMAR_NODISCARD U8 igmpUnknownMsgToCpu() const;
  /// Sets IGMP_UNKNOWN_MSG_TO_CPU.
  void igmpUnknownMsgToCpuIs(U8 value);
  /// Width of IGMP_UNKNOWN_MSG_TO_CPU in bits.
  U16 igmpUnknownMsgToCpuLen() const;
  /// First bit of IGMP_UNKNOWN_MSG_TO_CPU in the entry.
  U16 igmpUnknownMsgToCpuOffset() const;
  /// Whether the view has IGMP_UNKNOWN_MSG_TO_CPU.
  VELMAR_NODISCARD bool isIgmpUnknownMsgToCpuValid() const;

  /// Forward action for unknown IGMP messages. IGMP_UNKNOWN_MSG_FWD_ACTION: 2 bits; on all chips.
  VELMAR_NODISCARD U8 igmpUnknownMsgFwdAction() const;
  /// Sets IGMP_UNKNOWN_MSG_FWD_ACTION.
  void igmpUnknownMsgFwdActionIs(U8 value);
  /// Width of IGMP_UNKNOWN_MSG_FWD_ACTION in bits.
  U16 igmpUnknownMsgFwdActionLen() const;
  /// First bit of IGMP_UNKNOWN_MSG_FWD_ACTION in the entry.
  U16 igmpUnknownMsgFwdActionOffset() const;
  /// Whether the view has IGMP_UNKNOWN_MSG_FWD_ACTION.
  VELMAR_NODISCARD bool isIgmpUnknownMsgFwdActionValid() const;

  /// IGMP queries are copied to the CPU. IGMP_QUERY_TO_CPU: 1 bit; on all chips.
  VELMAR_NODISCARD U8 igmpQueryToCpu() const;
  /// Sets IGMP_QUERY_TO_CPU.
  void igmpQueryToCpuIs(U8 value);
  /// Width of IGMP_QUERY_TO_CPU in bits.
  U16 igmpQueryToCpuLen() const;
  /// First bit of IGMP_QUERY_TO_CPU in the entry.
  U16 igmpQueryToCpuOffset() const;
  /// Whether the view has IGMP_QUERY_TO_CPU.
  VELMAR_NODISCARD bool isIgmpQueryToCpuValid() const;

  /// Forward action for IGMP queries. IGMP_QUERY_FWD_ACTION: 2 bits; on all chips.
  VELMAR_NODISCARD U8 igmpQueryFwdAction() const;
  /// Sets IGMP_QUERY_FWD_ACTION.
  void igmpQueryFwdActionIs(U8 value);
  /// Width of IGMP_QUERY_FWD_ACTION in bits.
  U16 igmpQueryFwdActionLen() const;
  /// First bit of IGMP_QUERY_FWD_ACTION in the entry.
  U16 igmpQueryFwdActionOffset() const;
  /// Whether the view has IGMP_QUERY_FWD_ACTION.
  VELMAR_NODISCARD bool isIgmpQueryFwdActionValid() const;

  /// IGMP report and leave messages are copied to the CPU. IGMP_REP_LEAVE_TO_CPU: 1 bit; on all
  /// chips.
  VELMAR_NODISCARD U8 igmpRepLeaveToCpu() const;
  /// Sets IGMP_REP_LEAVE_TO_CPU.
  void igmpRepLeaveToCpuIs(U8 value);
  /// Width of IGMP_REP_LEAVE_TO_CPU in bits.
  U16 igmpRepLeaveToCpuLen() const;
  /// First bit of IGMP_REP_LEAVE_TO_CPU in the entry.
  U16 igmpRepLeaveToCpuOffset() const;
  /// Whether the view has IGMP_REP_LEAVE_TO_CPU.
  VELMAR_NODISCARD bool isIgmpRepLeaveToCpuValid() const;

  /// Forward action for IGMP report and leave messages. IGMP_REP_LEAVE_FWD_ACTION: 2 bits; on all
  /// chips.
  VELMAR_NODISCARD U8 igmpRepLeaveFwdAction() const;
  /// Sets IGMP_REP_LEAVE_FWD_ACTION.
  void igmpRepLeaveFwdActionIs(U8 value);
  /// Width of IGMP_REP_LEAVE_FWD_ACTION in bits.
  U16 igmpRepLeaveFwdActionLen() const;
  /// First bit of IGMP_REP_LEAVE_FWD_ACTION in the entry.
  U16 igmpRepLeaveFwdActionOffset() const;
  /// Whether the view has IGMP_REP_LEAVE_FWD_ACTION.
  VELMAR_NODISCARD bool isIgmpRepLeaveFwdActionValid() const;

  /// The packet forwarding mode rule applies. PFM_RULE_APPLY: 1 bit; on all chips.
  VELMAR_NODISCARD U8 pfmRuleApply() const;
  /// Sets PFM_RULE_APPLY.
  void pfmRuleApplyIs(U8 value);
  /// Width of PFM_RULE_APPLY in bits.
  U16 pfmRuleApplyLen() const;
  /// First bit of PFM_RULE_APPLY in the entry.
  U16 pfmRuleApplyOffset() const;
  /// Whether the view has PFM_RULE_APPLY.
  VELMAR_NODISCARD bool isPfmRuleApplyValid() const;
};

}  // namespace Velmar
