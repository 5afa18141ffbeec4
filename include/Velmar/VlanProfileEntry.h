// Derived from tables/VlanProfileEntry.cpp; do not edit.
// To refresh: cmake --build --preset release --target refresh
#pragma once

#include "AsicUtils/BcmAsicBase.h"
#include "AsicUtils/ChipType.h"
#include "Velmar/Export.h"

namespace Velmar {

/// VLAN profile table, forwarding switches.
///
/// A view of one entry of this ingress memory. The caller owns the bytes; bit 0 of the entry is bit
/// 0 of the first byte. On BCM56960_A0, BCM56965_A0, BCM56968_A0, BCM56970_A0, BCM56870_A0,
/// BCM56770_A0, BCM56470_A0, BCM56370_A0, BCM56275_A0, BCM56175_A0, BCM56980_A0, BCM56990_B0,
/// BCM56992_B0, BCM56993_B0, BCM56996_A0, BCM56996_B0: "from" in the comments below follows this
/// order.
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
/// A static member fails "0" for a chip without the memory and "variant == 0" for a variant that
/// the chip does not have, unless its comment says otherwise.
class VELMAR_EXPORT VlanProfileEntry : public AsicUtils::BcmAsicBase {
 public:
  using EntrySpans = AsicUtils::EntrySpans;

  /// Binds the view to `buf`, `len` bytes that outlive it. If the chip or variant lacks the class:
  /// the soft assertion " not in metainfo for VlanProfileEntry!", then "\"0\" == nullptr".
  VlanProfileEntry(ChipType_ chipType, U8* buf, U16 len, bool flag, U8 variant);
  /// Does nothing.
  static void handleBuf(ChipType_ chipType, U8* buf, U16 len, bool flag, U8 variant);
  /// Whether the constructor accepts the pair. Never fails.
  VELMAR_NODISCARD static bool chipTypeVariantValid(ChipType_ chipType, U8 variant);
  /// True.
  bool isPrimary() const;
  /// True: a memory.
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
  /// The entry with its reserved bits zero. Fails "len_ >= 16" if the buffer is shorter, also on
  /// chips whose entries are shorter.
  Raw128 getAllFields() const;
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
  /// nothing if the chip or variant lacks the class. Fails "tableEntry < N", "arrayIndex == 0",
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
  VELMAR_NODISCARD static U16 tableWidth(U32 chipType, U8 variant);
  /// 1.
  VELMAR_NODISCARD static U32 arrayElements(U32 chipType, U8 variant);
  /// The same for the view's chip and variant.
  VELMAR_NODISCARD U32 arrayElements() const override;
  /// Number of instances: 1.
  VELMAR_NODISCARD static U32 instanceCount(U32 chipType, U8 variant);
  /// The same for the view's chip and variant.
  VELMAR_NODISCARD U32 instanceCount() const override;
  /// Number of entries.
  VELMAR_NODISCARD static U32 entries(U32 chipType, U8 variant);
  /// The same for the view's chip and variant.
  VELMAR_NODISCARD U32 entries() const override;
  /// Lowest index of an entry: 0.
  VELMAR_NODISCARD static U32 index_min(U32 chipType, U8 variant);
  /// The same for the view's chip and variant.
  VELMAR_NODISCARD U32 index_min() const;
  /// 0.
  VELMAR_NODISCARD static U32 arrayIndex_min(U32 chipType, U8 variant);
  /// The same for the view's chip and variant.
  VELMAR_NODISCARD U32 arrayIndex_min() const;
  /// The ranges of valid indices.
  VELMAR_NODISCARD static EntrySpans entrySpans(U32 chipType, U8 variant);
  /// The same for the view's chip and variant.
  VELMAR_NODISCARD EntrySpans entrySpans() const override;
  /// 1 if the chip has the memory, else 0. Never fails.
  static U32 tableVariantCount(U32 chipType);
  /// The same for the view's chip.
  U32 tableVariantCount() const override;
  /// The valid indices on BCM56968_A0 and on chips with as many entries.
  static const AsicUtils::EntrySpan _entrySpans_BCM56968_A0[1];

  /// IPv4 multicast is forwarded on layer 2. IPMCV4_L2_ENABLE: 1 bit; on all chips.
  VELMAR_NODISCARD U8 ipmcv4L2Enable() const;
  /// Sets IPMCV4_L2_ENABLE.
  void ipmcv4L2EnableIs(U8 value);
  /// Width of IPMCV4_L2_ENABLE in bits.
  U16 ipmcv4L2EnableLen() const;
  /// First bit of IPMCV4_L2_ENABLE in the entry.
  U16 ipmcv4L2EnableOffset() const;
  /// Whether the view has IPMCV4_L2_ENABLE.
  VELMAR_NODISCARD bool isIpmcv4L2EnableValid() const;

  /// IPv6 multicast is forwarded on layer 2. IPMCV6_L2_ENABLE: 1 bit; on all chips.
  VELMAR_NODISCARD U8 ipmcv6L2Enable() const;
  /// Sets IPMCV6_L2_ENABLE.
  void ipmcv6L2EnableIs(U8 value);
  /// Width of IPMCV6_L2_ENABLE in bits.
  U16 ipmcv6L2EnableLen() const;
  /// First bit of IPMCV6_L2_ENABLE in the entry.
  U16 ipmcv6L2EnableOffset() const;
  /// Whether the view has IPMCV6_L2_ENABLE.
  VELMAR_NODISCARD bool isIpmcv6L2EnableValid() const;

  /// Element of the packet control registers. PROTOCOL_PKT_INDEX: 6 bits; on all chips.
  VELMAR_NODISCARD U8 protocolPktIndex() const;
  /// Sets PROTOCOL_PKT_INDEX.
  void protocolPktIndexIs(U8 value);
  /// Width of PROTOCOL_PKT_INDEX in bits.
  U16 protocolPktIndexLen() const;
  /// First bit of PROTOCOL_PKT_INDEX in the entry.
  U16 protocolPktIndexOffset() const;
  /// Whether the view has PROTOCOL_PKT_INDEX.
  VELMAR_NODISCARD bool isProtocolPktIndexValid() const;

  /// The ingress filter is enabled. EN_IFILTER: 1 bit; on BCM56990_B0, BCM56992_B0, BCM56993_B0,
  /// BCM56996_A0, BCM56996_B0.
  VELMAR_NODISCARD U8 enIfilter() const;
  /// Sets EN_IFILTER.
  void enIfilterIs(U8 value);
  /// Width of EN_IFILTER in bits.
  U16 enIfilterLen() const;
  /// First bit of EN_IFILTER in the entry.
  U16 enIfilterOffset() const;
  /// Whether the view has EN_IFILTER.
  VELMAR_NODISCARD bool isEnIfilterValid() const;

  /// Packet forwarding mode, layer-3 IPv6. L3_IPV6_PFM: 2 bits; on all chips.
  VELMAR_NODISCARD U8 l3Ipv6Pfm() const;
  /// Sets L3_IPV6_PFM.
  void l3Ipv6PfmIs(U8 value);
  /// Width of L3_IPV6_PFM in bits.
  U16 l3Ipv6PfmLen() const;
  /// First bit of L3_IPV6_PFM in the entry.
  U16 l3Ipv6PfmOffset() const;
  /// Whether the view has L3_IPV6_PFM.
  VELMAR_NODISCARD bool isL3Ipv6PfmValid() const;

  /// Packet forwarding mode, layer-3 IPv4. L3_IPV4_PFM: 2 bits; on all chips.
  VELMAR_NODISCARD U8 l3Ipv4Pfm() const;
  /// Sets L3_IPV4_PFM.
  void l3Ipv4PfmIs(U8 value);
  /// Width of L3_IPV4_PFM in bits.
  U16 l3Ipv4PfmLen() const;
  /// First bit of L3_IPV4_PFM in the entry.
  U16 l3Ipv4PfmOffset() const;
  /// Whether the view has L3_IPV4_PFM.
  VELMAR_NODISCARD bool isL3Ipv4PfmValid() const;

  /// Packet forwarding mode, layer 2. L2_PFM: 2 bits; on all chips.
  VELMAR_NODISCARD U8 l2Pfm() const;
  /// Sets L2_PFM.
  void l2PfmIs(U8 value);
  /// Width of L2_PFM in bits.
  U16 l2PfmLen() const;
  /// First bit of L2_PFM in the entry.
  U16 l2PfmOffset() const;
  /// Whether the view has L2_PFM.
  VELMAR_NODISCARD bool isL2PfmValid() const;

  /// Layer-2 misses are dropped. L2_MISS_DROP: 1 bit; on all chips.
  VELMAR_NODISCARD U8 l2MissDrop() const;
  /// Sets L2_MISS_DROP.
  void l2MissDropIs(U8 value);
  /// Width of L2_MISS_DROP in bits.
  U16 l2MissDropLen() const;
  /// First bit of L2_MISS_DROP in the entry.
  U16 l2MissDropOffset() const;
  /// Whether the view has L2_MISS_DROP.
  VELMAR_NODISCARD bool isL2MissDropValid() const;

  /// Layer-2 misses are copied to the CPU. L2_MISS_TOCPU: 1 bit; on all chips.
  VELMAR_NODISCARD U8 l2MissTocpu() const;
  /// Sets L2_MISS_TOCPU.
  void l2MissTocpuIs(U8 value);
  /// Width of L2_MISS_TOCPU in bits.
  U16 l2MissTocpuLen() const;
  /// First bit of L2_MISS_TOCPU in the entry.
  U16 l2MissTocpuOffset() const;
  /// Whether the view has L2_MISS_TOCPU.
  VELMAR_NODISCARD bool isL2MissTocpuValid() const;

  /// Layer-2 non-unicast is dropped. L2_NON_UCAST_DROP: 1 bit; on all chips.
  VELMAR_NODISCARD U8 l2NonUcastDrop() const;
  /// Sets L2_NON_UCAST_DROP.
  void l2NonUcastDropIs(U8 value);
  /// Width of L2_NON_UCAST_DROP in bits.
  U16 l2NonUcastDropLen() const;
  /// First bit of L2_NON_UCAST_DROP in the entry.
  U16 l2NonUcastDropOffset() const;
  /// Whether the view has L2_NON_UCAST_DROP.
  VELMAR_NODISCARD bool isL2NonUcastDropValid() const;

  /// Layer-2 non-unicast is copied to the CPU. L2_NON_UCAST_TOCPU: 1 bit; on all chips.
  VELMAR_NODISCARD U8 l2NonUcastTocpu() const;
  /// Sets L2_NON_UCAST_TOCPU.
  void l2NonUcastTocpuIs(U8 value);
  /// Width of L2_NON_UCAST_TOCPU in bits.
  U16 l2NonUcastTocpuLen() const;
  /// First bit of L2_NON_UCAST_TOCPU in the entry.
  U16 l2NonUcastTocpuOffset() const;
  /// Whether the view has L2_NON_UCAST_TOCPU.
  VELMAR_NODISCARD bool isL2NonUcastTocpuValid() const;

  /// Learning is disabled. LEARN_DISABLE: 1 bit; on all chips but BCM56990_B0, BCM56992_B0,
  /// BCM56993_B0, BCM56996_A0, BCM56996_B0.
  VELMAR_NODISCARD U8 learnDisable() const;
  /// Sets LEARN_DISABLE.
  void learnDisableIs(U8 value);
  /// Width of LEARN_DISABLE in bits.
  U16 learnDisableLen() const;
  /// First bit of LEARN_DISABLE in the entry.
  U16 learnDisableOffset() const;
  /// Whether the view has LEARN_DISABLE.
  VELMAR_NODISCARD bool isLearnDisableValid() const;
};

}  // namespace Velmar
