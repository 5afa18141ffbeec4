// Derived from tables/ProtocolPktControl.cpp; do not edit.
// To refresh: cmake --build --preset release --target refresh
#pragma once

#include "AsicUtils/BcmAsicBase.h"
#include "AsicUtils/ChipType.h"
#include "Velmar/Export.h"

namespace Velmar {

/// Protocol packet control, actions per packet kind.
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
class VELMAR_EXPORT ProtocolPktControl : public AsicUtils::BcmAsicBase {
 public:
  using EntrySpans = AsicUtils::EntrySpans;

  /// Binds the view to `buf`, `len` bytes that outlive it. If the chip or variant lacks the class:
  /// the soft assertion " not in metainfo for ProtocolPktControl!", then "\"0\" == nullptr".
  ProtocolPktControl(ChipType_ chipType, U8* buf, U16 len, bool flag, U8 variant);
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

  /// DHCP packets are copied to the CPU. DHCP_PKT_TO_CPU: 1 bit; on all chips.
  VELMAR_NODISCARD U8 dhcpPktToCpu() const;
  /// Sets DHCP_PKT_TO_CPU.
  void dhcpPktToCpuIs(U8 value);
  /// Width of DHCP_PKT_TO_CPU in bits.
  U16 dhcpPktToCpuLen() const;
  /// First bit of DHCP_PKT_TO_CPU in the entry.
  U16 dhcpPktToCpuOffset() const;
  /// Whether the view has DHCP_PKT_TO_CPU.
  VELMAR_NODISCARD bool isDhcpPktToCpuValid() const;

  /// DHCP packets are dropped. DHCP_PKT_DROP: 1 bit; on all chips.
  VELMAR_NODISCARD U8 dhcpPktDrop() const;
  /// Sets DHCP_PKT_DROP.
  void dhcpPktDropIs(U8 value);
  /// Width of DHCP_PKT_DROP in bits.
  U16 dhcpPktDropLen() const;
  /// First bit of DHCP_PKT_DROP in the entry.
  U16 dhcpPktDropOffset() const;
  /// Whether the view has DHCP_PKT_DROP.
  VELMAR_NODISCARD bool isDhcpPktDropValid() const;

  /// IPv6 neighbour discovery packets are copied to the CPU. ND_PKT_TO_CPU: 1 bit; on all chips.
  VELMAR_NODISCARD U8 ndPktToCpu() const;
  /// Sets ND_PKT_TO_CPU.
  void ndPktToCpuIs(U8 value);
  /// Width of ND_PKT_TO_CPU in bits.
  U16 ndPktToCpuLen() const;
  /// First bit of ND_PKT_TO_CPU in the entry.
  U16 ndPktToCpuOffset() const;
  /// Whether the view has ND_PKT_TO_CPU.
  VELMAR_NODISCARD bool isNdPktToCpuValid() const;

  /// IPv6 neighbour discovery packets are dropped. ND_PKT_DROP: 1 bit; on all chips.
  VELMAR_NODISCARD U8 ndPktDrop() const;
  /// Sets ND_PKT_DROP.
  void ndPktDropIs(U8 value);
  /// Width of ND_PKT_DROP in bits.
  U16 ndPktDropLen() const;
  /// First bit of ND_PKT_DROP in the entry.
  U16 ndPktDropOffset() const;
  /// Whether the view has ND_PKT_DROP.
  VELMAR_NODISCARD bool isNdPktDropValid() const;

  /// ARP requests are copied to the CPU. ARP_REQUEST_TO_CPU: 1 bit; on all chips.
  VELMAR_NODISCARD U8 arpRequestToCpu() const;
  /// Sets ARP_REQUEST_TO_CPU.
  void arpRequestToCpuIs(U8 value);
  /// Width of ARP_REQUEST_TO_CPU in bits.
  U16 arpRequestToCpuLen() const;
  /// First bit of ARP_REQUEST_TO_CPU in the entry.
  U16 arpRequestToCpuOffset() const;
  /// Whether the view has ARP_REQUEST_TO_CPU.
  VELMAR_NODISCARD bool isArpRequestToCpuValid() const;

  /// ARP requests are dropped. ARP_REQUEST_DROP: 1 bit; on all chips.
  VELMAR_NODISCARD U8 arpRequestDrop() const;
  /// Sets ARP_REQUEST_DROP.
  void arpRequestDropIs(U8 value);
  /// Width of ARP_REQUEST_DROP in bits.
  U16 arpRequestDropLen() const;
  /// First bit of ARP_REQUEST_DROP in the entry.
  U16 arpRequestDropOffset() const;
  /// Whether the view has ARP_REQUEST_DROP.
  VELMAR_NODISCARD bool isArpRequestDropValid() const;

  /// ARP replies are copied to the CPU. ARP_REPLY_TO_CPU: 1 bit; on all chips.
  VELMAR_NODISCARD U8 arpReplyToCpu() const;
  /// Sets ARP_REPLY_TO_CPU.
  void arpReplyToCpuIs(U8 value);
  /// Width of ARP_REPLY_TO_CPU in bits.
  U16 arpReplyToCpuLen() const;
  /// First bit of ARP_REPLY_TO_CPU in the entry.
  U16 arpReplyToCpuOffset() const;
  /// Whether the view has ARP_REPLY_TO_CPU.
  VELMAR_NODISCARD bool isArpReplyToCpuValid() const;

  /// ARP replies are dropped. ARP_REPLY_DROP: 1 bit; on all chips.
  VELMAR_NODISCARD U8 arpReplyDrop() const;
  /// Sets ARP_REPLY_DROP.
  void arpReplyDropIs(U8 value);
  /// Width of ARP_REPLY_DROP in bits.
  U16 arpReplyDropLen() const;
  /// First bit of ARP_REPLY_DROP in the entry.
  U16 arpReplyDropOffset() const;
  /// Whether the view has ARP_REPLY_DROP.
  VELMAR_NODISCARD bool isArpReplyDropValid() const;

  /// SRP packets are copied to the CPU. SRP_PKT_TO_CPU: 1 bit; on all chips but BCM56870_A0,
  /// BCM56770_A0, BCM56470_A0, BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 srpPktToCpu() const;
  /// Sets SRP_PKT_TO_CPU.
  void srpPktToCpuIs(U8 value);
  /// Width of SRP_PKT_TO_CPU in bits.
  U16 srpPktToCpuLen() const;
  /// First bit of SRP_PKT_TO_CPU in the entry.
  U16 srpPktToCpuOffset() const;
  /// Whether the view has SRP_PKT_TO_CPU.
  VELMAR_NODISCARD bool isSrpPktToCpuValid() const;

  /// Forward action for SRP packets. SRP_FWD_ACTION: 2 bits; on all chips but BCM56870_A0,
  /// BCM56770_A0, BCM56470_A0, BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 srpFwdAction() const;
  /// Sets SRP_FWD_ACTION.
  void srpFwdActionIs(U8 value);
  /// Width of SRP_FWD_ACTION in bits.
  U16 srpFwdActionLen() const;
  /// First bit of SRP_FWD_ACTION in the entry.
  U16 srpFwdActionOffset() const;
  /// Whether the view has SRP_FWD_ACTION.
  VELMAR_NODISCARD bool isSrpFwdActionValid() const;

  /// MMRP packets are copied to the CPU. MMRP_PKT_TO_CPU: 1 bit; on all chips but BCM56870_A0,
  /// BCM56770_A0, BCM56470_A0, BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 mmrpPktToCpu() const;
  /// Sets MMRP_PKT_TO_CPU.
  void mmrpPktToCpuIs(U8 value);
  /// Width of MMRP_PKT_TO_CPU in bits.
  U16 mmrpPktToCpuLen() const;
  /// First bit of MMRP_PKT_TO_CPU in the entry.
  U16 mmrpPktToCpuOffset() const;
  /// Whether the view has MMRP_PKT_TO_CPU.
  VELMAR_NODISCARD bool isMmrpPktToCpuValid() const;

  /// Forward action for MMRP packets. MMRP_FWD_ACTION: 2 bits; on all chips but BCM56870_A0,
  /// BCM56770_A0, BCM56470_A0, BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 mmrpFwdAction() const;
  /// Sets MMRP_FWD_ACTION.
  void mmrpFwdActionIs(U8 value);
  /// Width of MMRP_FWD_ACTION in bits.
  U16 mmrpFwdActionLen() const;
  /// First bit of MMRP_FWD_ACTION in the entry.
  U16 mmrpFwdActionOffset() const;
  /// Whether the view has MMRP_FWD_ACTION.
  VELMAR_NODISCARD bool isMmrpFwdActionValid() const;
};

}  // namespace Velmar
