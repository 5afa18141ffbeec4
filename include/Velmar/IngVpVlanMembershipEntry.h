// Derived from tables/IngVpVlanMembershipEntry.cpp; do not edit.
// To refresh: cmake --build --preset release --target refresh
#pragma once

#include "AsicUtils/BcmAsicBase.h"
#include "AsicUtils/ChipType.h"
#include "Velmar/Export.h"

namespace Velmar {

/// Ingress virtual-port VLAN membership, hash entries.
///
/// A view of one entry of this ingress memory. The caller owns the bytes; bit 0 of the entry is bit
/// 0 of the first byte. On BCM56470_A0: "from" in the comments below follows this order.
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
class VELMAR_EXPORT IngVpVlanMembershipEntry : public AsicUtils::BcmAsicBase {
 public:
  using EntrySpans = AsicUtils::EntrySpans;

  /// Binds the view to `buf`, `len` bytes that outlive it. If the chip or variant lacks the class:
  /// the soft assertion " not in metainfo for IngVpVlanMembershipEntry!", then "\"0\" == nullptr".
  IngVpVlanMembershipEntry(ChipType_ chipType, U8* buf, U16 len, bool flag, U8 variant);
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
  /// The entry with its reserved bits zero. Fails "len_ >= 8" if the buffer is shorter, also on
  /// chips whose entries are shorter.
  U64 getAllFields() const;
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
  /// The valid indices on BCM56470_A0 and on chips with as many entries.
  static const AsicUtils::EntrySpan _entrySpans_BCM56470_A0[1];

  /// Valid code. BASE_VALID: 3 bits; on all chips.
  VELMAR_NODISCARD U8 baseValid() const;
  /// Sets BASE_VALID.
  void baseValidIs(U8 value);
  /// Width of BASE_VALID in bits.
  U16 baseValidLen() const;
  /// First bit of BASE_VALID in the entry.
  U16 baseValidOffset() const;
  /// Whether the view has BASE_VALID.
  VELMAR_NODISCARD bool isBaseValidValid() const;

  /// VLAN of the key. VLAN: 12 bits; on all chips.
  VELMAR_NODISCARD U16 vlan() const;
  /// Sets VLAN.
  void vlanIs(U16 value);
  /// Width of VLAN in bits.
  U16 vlanLen() const;
  /// First bit of VLAN in the entry.
  U16 vlanOffset() const;
  /// Whether the view has VLAN.
  VELMAR_NODISCARD bool isVlanValid() const;

  /// Low bits of the key payload that feed the hash. HASH_LSB: 11 bits; on all chips.
  VELMAR_NODISCARD U16 hashLsb() const;
  /// Sets HASH_LSB.
  void hashLsbIs(U16 value);
  /// Width of HASH_LSB in bits.
  U16 hashLsbLen() const;
  /// First bit of HASH_LSB in the entry.
  U16 hashLsbOffset() const;
  /// Whether the view has HASH_LSB.
  VELMAR_NODISCARD bool isHashLsbValid() const;

  /// Whole key: key type and payload. KEY: 36 bits; on all chips.
  VELMAR_NODISCARD U64 key() const;
  /// Sets KEY.
  void keyIs(const U64& value);
  /// Width of KEY in bits.
  U16 keyLen() const;
  /// First bit of KEY in the entry.
  U16 keyOffset() const;
  /// Whether the view has KEY.
  VELMAR_NODISCARD bool isKeyValid() const;

  /// Virtual port of the key. VP: 15 bits; on all chips.
  VELMAR_NODISCARD U16 vp() const;
  /// Sets VP.
  void vpIs(U16 value);
  /// Width of VP in bits.
  U16 vpLen() const;
  /// First bit of VP in the entry.
  U16 vpOffset() const;
  /// Whether the view has VP.
  VELMAR_NODISCARD bool isVpValid() const;

  /// Whole data part above the key. DATA: 2 bits; on all chips.
  VELMAR_NODISCARD U8 data() const;
  /// Sets DATA.
  void dataIs(U8 value);
  /// Width of DATA in bits.
  U16 dataLen() const;
  /// First bit of DATA in the entry.
  U16 dataOffset() const;
  /// Whether the view has DATA.
  VELMAR_NODISCARD bool isDataValid() const;

  /// All above the key type: key payload and data. TABLE_FIELDS: 36 bits; on all chips.
  VELMAR_NODISCARD U64 tableFields() const;
  /// Sets TABLE_FIELDS.
  void tableFieldsIs(const U64& value);
  /// Width of TABLE_FIELDS in bits.
  U16 tableFieldsLen() const;
  /// First bit of TABLE_FIELDS in the entry.
  U16 tableFieldsOffset() const;
  /// Whether the view has TABLE_FIELDS.
  VELMAR_NODISCARD bool isTableFieldsValid() const;

  /// Virtual forwarding instance. VFI: 14 bits; on all chips.
  VELMAR_NODISCARD U16 vfi() const;
  /// Sets VFI.
  void vfiIs(U16 value);
  /// Width of VFI in bits.
  U16 vfiLen() const;
  /// First bit of VFI in the entry.
  U16 vfiOffset() const;
  /// Whether the view has VFI.
  VELMAR_NODISCARD bool isVfiValid() const;

  /// Key type. KEY_TYPE: 2 bits; on all chips.
  VELMAR_NODISCARD U8 keyType() const;
  /// Sets KEY_TYPE.
  void keyTypeIs(U8 value);
  /// Width of KEY_TYPE in bits.
  U16 keyTypeLen() const;
  /// First bit of KEY_TYPE in the entry.
  U16 keyTypeOffset() const;
  /// Whether the view has KEY_TYPE.
  VELMAR_NODISCARD bool isKeyTypeValid() const;

  /// Source global port of the key. SGLP: 17 bits; on all chips.
  VELMAR_NODISCARD U32 sglp() const;
  /// Sets SGLP.
  void sglpIs(U32 value);
  /// Width of SGLP in bits.
  U16 sglpLen() const;
  /// First bit of SGLP in the entry.
  U16 sglpOffset() const;
  /// Whether the view has SGLP.
  VELMAR_NODISCARD bool isSglpValid() const;

  /// Padding of the key. RESERVED_KEY_PADDING: 3 bits; on all chips.
  VELMAR_NODISCARD U8 reservedKeyPadding() const;
  /// Sets RESERVED_KEY_PADDING.
  void reservedKeyPaddingIs(U8 value);
  /// Width of RESERVED_KEY_PADDING in bits.
  U16 reservedKeyPaddingLen() const;
  /// First bit of RESERVED_KEY_PADDING in the entry.
  U16 reservedKeyPaddingOffset() const;
  /// Whether the view has RESERVED_KEY_PADDING.
  VELMAR_NODISCARD bool isReservedKeyPaddingValid() const;

  /// Spanning-tree state. SP_TREE: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTree() const;
  /// Sets SP_TREE.
  void spTreeIs(U8 value);
  /// Width of SP_TREE in bits.
  U16 spTreeLen() const;
  /// First bit of SP_TREE in the entry.
  U16 spTreeOffset() const;
  /// Whether the view has SP_TREE.
  VELMAR_NODISCARD bool isSpTreeValid() const;

  /// Reserved bits above the VLAN. RSVD_VLAN: 2 bits; on all chips.
  VELMAR_NODISCARD U8 rsvdVlan() const;
  /// Sets RSVD_VLAN.
  void rsvdVlanIs(U8 value);
  /// Width of RSVD_VLAN in bits.
  U16 rsvdVlanLen() const;
  /// First bit of RSVD_VLAN in the entry.
  U16 rsvdVlanOffset() const;
  /// Whether the view has RSVD_VLAN.
  VELMAR_NODISCARD bool isRsvdVlanValid() const;
};

}  // namespace Velmar
