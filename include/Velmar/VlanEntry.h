// Derived from tables/VlanEntry.cpp; do not edit.
// To refresh: cmake --build --preset release --target refresh
#pragma once

#include "AsicUtils/BcmAsicBase.h"
#include "AsicUtils/ChipType.h"
#include "Oru/PerUnitBitmap.h"
#include "Velmar/Export.h"

namespace Velmar {

/// Ingress VLAN table, one entry per VLAN.
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
class VELMAR_EXPORT VlanEntry : public AsicUtils::BcmAsicBase {
 public:
  using EntrySpans = AsicUtils::EntrySpans;

  /// Binds the view to `buf`, `len` bytes that outlive it. If the chip or variant lacks the class:
  /// the soft assertion " not in metainfo for VlanEntry!", then "\"0\" == nullptr".
  VlanEntry(ChipType_ chipType, U8* buf, U16 len, bool flag, U8 variant);
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
  /// The entry with its reserved bits zero. Fails "len_ >= 64" if the buffer is shorter, also on
  /// chips whose entries are shorter.
  Raw512 getAllFields() const;
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
  /// The valid indices on BCM56996_A0 and on chips with as many entries.
  static const AsicUtils::EntrySpan _entrySpans_BCM56996_A0[1];

  /// The entry is valid. VALID: 1 bit; on all chips.
  VELMAR_NODISCARD U8 valid() const;
  /// Sets VALID.
  void validIs(U8 value);
  /// Width of VALID in bits.
  U16 validLen() const;
  /// First bit of VALID in the entry.
  U16 validOffset() const;
  /// Whether the view has VALID.
  VELMAR_NODISCARD bool isValidValid() const;

  /// Forwarding id. FID_ID: 12 bits, 13 from BCM56990_B0; on all chips.
  VELMAR_NODISCARD U16 fidId() const;
  /// Sets FID_ID.
  void fidIdIs(U16 value);
  /// Width of FID_ID in bits.
  U16 fidIdLen() const;
  /// First bit of FID_ID in the entry.
  U16 fidIdOffset() const;
  /// Whether the view has FID_ID.
  VELMAR_NODISCARD bool isFidIdValid() const;

  /// IGMP/MLD snooping is enabled. ENABLE_IGMP_MLD_SNOOPING: 1 bit; on all chips but BCM56870_A0,
  /// BCM56770_A0, BCM56470_A0, BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 enableIgmpMldSnooping() const;
  /// Sets ENABLE_IGMP_MLD_SNOOPING.
  void enableIgmpMldSnoopingIs(U8 value);
  /// Width of ENABLE_IGMP_MLD_SNOOPING in bits.
  U16 enableIgmpMldSnoopingLen() const;
  /// First bit of ENABLE_IGMP_MLD_SNOOPING in the entry.
  U16 enableIgmpMldSnoopingOffset() const;
  /// Whether the view has ENABLE_IGMP_MLD_SNOOPING.
  VELMAR_NODISCARD bool isEnableIgmpMldSnoopingValid() const;

  /// VLAN class id. VLAN_CLASS_ID: 12 bits; on all chips.
  VELMAR_NODISCARD U16 vlanClassId() const;
  /// Sets VLAN_CLASS_ID.
  void vlanClassIdIs(U16 value);
  /// Width of VLAN_CLASS_ID in bits.
  U16 vlanClassIdLen() const;
  /// First bit of VLAN_CLASS_ID in the entry.
  U16 vlanClassIdOffset() const;
  /// Whether the view has VLAN_CLASS_ID.
  VELMAR_NODISCARD bool isVlanClassIdValid() const;

  /// Spanning-tree group. STG: 9 bits, 8 from BCM56275_A0, 6 from BCM56990_B0; on all chips but
  /// BCM56970_A0, BCM56980_A0.
  VELMAR_NODISCARD U16 stg() const;
  /// Sets STG.
  void stgIs(U16 value);
  /// Width of STG in bits.
  U16 stgLen() const;
  /// First bit of STG in the entry.
  U16 stgOffset() const;
  /// Whether the view has STG.
  VELMAR_NODISCARD bool isStgValid() const;

  /// Index of the VLAN profile. VLAN_PROFILE_PTR: 7 bits; on all chips.
  VELMAR_NODISCARD U8 vlanProfilePtr() const;
  /// Sets VLAN_PROFILE_PTR.
  void vlanProfilePtrIs(U8 value);
  /// Width of VLAN_PROFILE_PTR in bits.
  U16 vlanProfilePtrLen() const;
  /// First bit of VLAN_PROFILE_PTR in the entry.
  U16 vlanProfilePtrOffset() const;
  /// Whether the view has VLAN_PROFILE_PTR.
  VELMAR_NODISCARD bool isVlanProfilePtrValid() const;

  /// Ingress member ports. ING_PORT_BITMAP: 136 bits; on BCM56960_A0, BCM56965_A0, BCM56968_A0.
  VELMAR_NODISCARD Oru::PerUnitBitmap ingPortBitmap() const;
  /// Sets ING_PORT_BITMAP.
  void ingPortBitmapIs(Oru::PerUnitBitmap value);
  /// Width of ING_PORT_BITMAP in bits.
  U16 ingPortBitmapLen() const;
  /// First bit of ING_PORT_BITMAP in the entry.
  U16 ingPortBitmapOffset() const;
  /// Whether the view has ING_PORT_BITMAP.
  VELMAR_NODISCARD bool isIngPortBitmapValid() const;

  /// Member ports. PORT_BITMAP: 136 bits, 132 from BCM56870_A0, 72 from BCM56470_A0; on all chips
  /// but BCM56970_A0, BCM56980_A0, BCM56990_B0, BCM56992_B0, BCM56993_B0, BCM56996_A0, BCM56996_B0.
  VELMAR_NODISCARD Oru::PerUnitBitmap portBitmap() const;
  /// Sets PORT_BITMAP.
  void portBitmapIs(Oru::PerUnitBitmap value);
  /// Width of PORT_BITMAP in bits.
  U16 portBitmapLen() const;
  /// First bit of PORT_BITMAP in the entry.
  U16 portBitmapOffset() const;
  /// Whether the view has PORT_BITMAP.
  VELMAR_NODISCARD bool isPortBitmapValid() const;

  /// Virtual forwarding instance. VFI: 14 bits, 12 from BCM56370_A0, 10 from BCM56275_A0, 9 from
  /// BCM56175_A0; on BCM56870_A0, BCM56770_A0, BCM56470_A0, BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U16 vfi() const;
  /// Sets VFI.
  void vfiIs(U16 value);
  /// Width of VFI in bits.
  U16 vfiLen() const;
  /// First bit of VFI in the entry.
  U16 vfiOffset() const;
  /// Whether the view has VFI.
  VELMAR_NODISCARD bool isVfiValid() const;

  /// Index of the membership profile. MEMBERSHIP_PROFILE_PTR: 12 bits; on all chips but
  /// BCM56960_A0, BCM56965_A0, BCM56968_A0, BCM56970_A0, BCM56980_A0.
  VELMAR_NODISCARD U16 membershipProfilePtr() const;
  /// Sets MEMBERSHIP_PROFILE_PTR.
  void membershipProfilePtrIs(U16 value);
  /// Width of MEMBERSHIP_PROFILE_PTR in bits.
  U16 membershipProfilePtrLen() const;
  /// First bit of MEMBERSHIP_PROFILE_PTR in the entry.
  U16 membershipProfilePtrOffset() const;
  /// Whether the view has MEMBERSHIP_PROFILE_PTR.
  VELMAR_NODISCARD bool isMembershipProfilePtrValid() const;

  /// Index of the port bitmap profile. PORT_BITMAP_PROFILE_PTR: 11 bits; on BCM56990_B0,
  /// BCM56992_B0, BCM56993_B0, BCM56996_A0, BCM56996_B0.
  VELMAR_NODISCARD U16 portBitmapProfilePtr() const;
  /// Sets PORT_BITMAP_PROFILE_PTR.
  void portBitmapProfilePtrIs(U16 value);
  /// Width of PORT_BITMAP_PROFILE_PTR in bits.
  U16 portBitmapProfilePtrLen() const;
  /// First bit of PORT_BITMAP_PROFILE_PTR in the entry.
  U16 portBitmapProfilePtrOffset() const;
  /// Whether the view has PORT_BITMAP_PROFILE_PTR.
  VELMAR_NODISCARD bool isPortBitmapProfilePtrValid() const;

  /// The ingress filter is enabled. EN_IFILTER: 1 bit; on BCM56870_A0, BCM56770_A0, BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 enIfilter() const;
  /// Sets EN_IFILTER.
  void enIfilterIs(U8 value);
  /// Width of EN_IFILTER in bits.
  U16 enIfilterLen() const;
  /// First bit of EN_IFILTER in the entry.
  U16 enIfilterOffset() const;
  /// Whether the view has EN_IFILTER.
  VELMAR_NODISCARD bool isEnIfilterValid() const;

  /// Layer-3 ingress interface. L3_IIF: 14 bits, 13 from BCM56370_A0, 11 from BCM56275_A0, 10 from
  /// BCM56175_A0; on BCM56870_A0, BCM56770_A0, BCM56470_A0, BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U16 l3Iif() const;
  /// Sets L3_IIF.
  void l3IifIs(U16 value);
  /// Width of L3_IIF in bits.
  U16 l3IifLen() const;
  /// First bit of L3_IIF in the entry.
  U16 l3IifOffset() const;
  /// Whether the view has L3_IIF.
  VELMAR_NODISCARD bool isL3IifValid() const;

  /// Virtual ports are enabled. VIRTUAL_PORT_EN: 1 bit; on all chips but BCM56980_A0.
  VELMAR_NODISCARD U8 virtualPortEn() const;
  /// Sets VIRTUAL_PORT_EN.
  void virtualPortEnIs(U8 value);
  /// Width of VIRTUAL_PORT_EN in bits.
  U16 virtualPortEnLen() const;
  /// First bit of VIRTUAL_PORT_EN in the entry.
  U16 virtualPortEnOffset() const;
  /// Whether the view has VIRTUAL_PORT_EN.
  VELMAR_NODISCARD bool isVirtualPortEnValid() const;

  /// Learning is disabled. LEARN_DISABLE: 1 bit; on BCM56990_B0, BCM56992_B0, BCM56993_B0,
  /// BCM56996_A0, BCM56996_B0.
  VELMAR_NODISCARD U8 learnDisable() const;
  /// Sets LEARN_DISABLE.
  void learnDisableIs(U8 value);
  /// Width of LEARN_DISABLE in bits.
  U16 learnDisableLen() const;
  /// First bit of LEARN_DISABLE in the entry.
  U16 learnDisableOffset() const;
  /// Whether the view has LEARN_DISABLE.
  VELMAR_NODISCARD bool isLearnDisableValid() const;

  /// Key type of the layer-2 entry. L2_ENTRY_KEY_TYPE: 2 bits; on all chips.
  VELMAR_NODISCARD U8 l2EntryKeyType() const;
  /// Sets L2_ENTRY_KEY_TYPE.
  void l2EntryKeyTypeIs(U8 value);
  /// Width of L2_ENTRY_KEY_TYPE in bits.
  U16 l2EntryKeyTypeLen() const;
  /// First bit of L2_ENTRY_KEY_TYPE in the entry.
  U16 l2EntryKeyTypeOffset() const;
  /// Whether the view has L2_ENTRY_KEY_TYPE.
  VELMAR_NODISCARD bool isL2EntryKeyTypeValid() const;

  /// Flexible counter action. FLEX_CTR_ACTION: 5 bits; on BCM56990_B0, BCM56992_B0, BCM56993_B0,
  /// BCM56996_A0, BCM56996_B0.
  VELMAR_NODISCARD U8 flexCtrAction() const;
  /// Sets FLEX_CTR_ACTION.
  void flexCtrActionIs(U8 value);
  /// Width of FLEX_CTR_ACTION in bits.
  U16 flexCtrActionLen() const;
  /// First bit of FLEX_CTR_ACTION in the entry.
  U16 flexCtrActionOffset() const;
  /// Whether the view has FLEX_CTR_ACTION.
  VELMAR_NODISCARD bool isFlexCtrActionValid() const;

  /// Unknown unicast flood index. UUC_IDX: 13 bits, 9 from BCM56980_A0; on all chips but
  /// BCM56870_A0, BCM56770_A0, BCM56470_A0, BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U16 uucIdx() const;
  /// Sets UUC_IDX.
  void uucIdxIs(U16 value);
  /// Width of UUC_IDX in bits.
  U16 uucIdxLen() const;
  /// First bit of UUC_IDX in the entry.
  U16 uucIdxOffset() const;
  /// Whether the view has UUC_IDX.
  VELMAR_NODISCARD bool isUucIdxValid() const;

  /// Unknown multicast flood index. UMC_IDX: 13 bits, 9 from BCM56980_A0; on all chips but
  /// BCM56870_A0, BCM56770_A0, BCM56470_A0, BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U16 umcIdx() const;
  /// Sets UMC_IDX.
  void umcIdxIs(U16 value);
  /// Width of UMC_IDX in bits.
  U16 umcIdxLen() const;
  /// First bit of UMC_IDX in the entry.
  U16 umcIdxOffset() const;
  /// Whether the view has UMC_IDX.
  VELMAR_NODISCARD bool isUmcIdxValid() const;

  /// Broadcast flood index. BC_IDX: 13 bits, 9 from BCM56980_A0; on all chips but BCM56870_A0,
  /// BCM56770_A0, BCM56470_A0, BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U16 bcIdx() const;
  /// Sets BC_IDX.
  void bcIdxIs(U16 value);
  /// Width of BC_IDX in bits.
  U16 bcIdxLen() const;
  /// First bit of BC_IDX in the entry.
  U16 bcIdxOffset() const;
  /// Whether the view has BC_IDX.
  VELMAR_NODISCARD bool isBcIdxValid() const;
};

}  // namespace Velmar
