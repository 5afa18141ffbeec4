// Derived from tables/EgrVlanEntry.cpp; do not edit.
// To refresh: cmake --build --preset release --target refresh
#pragma once

#include "AsicUtils/BcmAsicBase.h"
#include "AsicUtils/ChipType.h"
#include "Oru/PerUnitBitmap.h"
#include "Velmar/Export.h"

namespace Velmar {

/// Egress VLAN table, one entry per VLAN.
///
/// A view of one entry of this egress memory. The caller owns the bytes; bit 0 of the entry is bit
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
class VELMAR_EXPORT EgrVlanEntry : public AsicUtils::BcmAsicBase {
 public:
  using EntrySpans = AsicUtils::EntrySpans;

  /// Binds the view to `buf`, `len` bytes that outlive it. If the chip or variant lacks the class:
  /// the soft assertion " not in metainfo for EgrVlanEntry!", then "\"0\" == nullptr".
  EgrVlanEntry(ChipType_ chipType, U8* buf, U16 len, bool flag, U8 variant);
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

  /// Spanning-tree group. STG: 9 bits, 6 from BCM56980_A0; on all chips.
  VELMAR_NODISCARD U16 stg() const;
  /// Sets STG.
  void stgIs(U16 value);
  /// Width of STG in bits.
  U16 stgLen() const;
  /// First bit of STG in the entry.
  U16 stgOffset() const;
  /// Whether the view has STG.
  VELMAR_NODISCARD bool isStgValid() const;

  /// Untagged ports. UT_PORT_BITMAP: 136 bits, 160 from BCM56980_A0; on BCM56960_A0, BCM56965_A0,
  /// BCM56968_A0, BCM56970_A0, BCM56980_A0.
  VELMAR_NODISCARD Oru::PerUnitBitmap utPortBitmap() const;
  /// Sets UT_PORT_BITMAP.
  void utPortBitmapIs(Oru::PerUnitBitmap value);
  /// Width of UT_PORT_BITMAP in bits.
  U16 utPortBitmapLen() const;
  /// First bit of UT_PORT_BITMAP in the entry.
  U16 utPortBitmapOffset() const;
  /// Whether the view has UT_PORT_BITMAP.
  VELMAR_NODISCARD bool isUtPortBitmapValid() const;

  /// Member ports. PORT_BITMAP: 136 bits, 160 from BCM56980_A0; on BCM56960_A0, BCM56965_A0,
  /// BCM56968_A0, BCM56970_A0, BCM56980_A0.
  VELMAR_NODISCARD Oru::PerUnitBitmap portBitmap() const;
  /// Sets PORT_BITMAP.
  void portBitmapIs(Oru::PerUnitBitmap value);
  /// Width of PORT_BITMAP in bits.
  U16 portBitmapLen() const;
  /// First bit of PORT_BITMAP in the entry.
  U16 portBitmapOffset() const;
  /// Whether the view has PORT_BITMAP.
  VELMAR_NODISCARD bool isPortBitmapValid() const;

  /// Index of the untag profile. UNTAG_PROFILE_PTR: 12 bits; on BCM56870_A0, BCM56770_A0,
  /// BCM56470_A0, BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U16 untagProfilePtr() const;
  /// Sets UNTAG_PROFILE_PTR.
  void untagProfilePtrIs(U16 value);
  /// Width of UNTAG_PROFILE_PTR in bits.
  U16 untagProfilePtrLen() const;
  /// First bit of UNTAG_PROFILE_PTR in the entry.
  U16 untagProfilePtrOffset() const;
  /// Whether the view has UNTAG_PROFILE_PTR.
  VELMAR_NODISCARD bool isUntagProfilePtrValid() const;

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

  /// Outer VLAN id. OVID: 12 bits; on BCM56990_B0, BCM56992_B0, BCM56993_B0, BCM56996_A0,
  /// BCM56996_B0.
  VELMAR_NODISCARD U16 ovid() const;
  /// Sets OVID.
  void ovidIs(U16 value);
  /// Width of OVID in bits.
  U16 ovidLen() const;
  /// First bit of OVID in the entry.
  U16 ovidOffset() const;
  /// Whether the view has OVID.
  VELMAR_NODISCARD bool isOvidValid() const;

  /// The outer VLAN id is valid. OVID_VALID: 1 bit; on BCM56990_B0, BCM56992_B0, BCM56993_B0,
  /// BCM56996_A0, BCM56996_B0.
  VELMAR_NODISCARD U8 ovidValid() const;
  /// Sets OVID_VALID.
  void ovidValidIs(U8 value);
  /// Width of OVID_VALID in bits.
  U16 ovidValidLen() const;
  /// First bit of OVID_VALID in the entry.
  U16 ovidValidOffset() const;
  /// Whether the view has OVID_VALID.
  VELMAR_NODISCARD bool isOvidValidValid() const;

  /// Flexible counter action. FLEX_CTR_ACTION: 4 bits; on BCM56990_B0, BCM56992_B0, BCM56993_B0,
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

  /// The egress filter is enabled. EN_EFILTER: 1 bit; on all chips but BCM56960_A0, BCM56965_A0,
  /// BCM56968_A0, BCM56970_A0, BCM56980_A0.
  VELMAR_NODISCARD U8 enEfilter() const;
  /// Sets EN_EFILTER.
  void enEfilterIs(U8 value);
  /// Width of EN_EFILTER in bits.
  U16 enEfilterLen() const;
  /// First bit of EN_EFILTER in the entry.
  U16 enEfilterOffset() const;
  /// Whether the view has EN_EFILTER.
  VELMAR_NODISCARD bool isEnEfilterValid() const;
};

}  // namespace Velmar
