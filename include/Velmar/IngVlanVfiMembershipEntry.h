// Derived from tables/IngVlanVfiMembershipEntry.cpp; do not edit.
// To refresh: cmake --build --preset release --target refresh
#pragma once

#include "AsicUtils/BcmAsicBase.h"
#include "AsicUtils/ChipType.h"
#include "Oru/PerUnitBitmap.h"
#include "Velmar/Export.h"

namespace Velmar {

/// Ingress membership profiles, member ports.
///
/// A view of one entry of this ingress memory. The caller owns the bytes; bit 0 of the entry is bit
/// 0 of the first byte. On BCM56870_A0, BCM56770_A0, BCM56470_A0, BCM56370_A0, BCM56275_A0,
/// BCM56175_A0, BCM56990_B0, BCM56992_B0, BCM56993_B0, BCM56996_A0, BCM56996_B0: "from" in the
/// comments below follows this order.
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
class VELMAR_EXPORT IngVlanVfiMembershipEntry : public AsicUtils::BcmAsicBase {
 public:
  using EntrySpans = AsicUtils::EntrySpans;

  /// Binds the view to `buf`, `len` bytes that outlive it. If the chip or variant lacks the class:
  /// the soft assertion " not in metainfo for IngVlanVfiMembershipEntry!", then "\"0\" == nullptr".
  IngVlanVfiMembershipEntry(ChipType_ chipType, U8* buf, U16 len, bool flag, U8 variant);
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
  /// The valid indices on BCM56470_A0 and on chips with as many entries.
  static const AsicUtils::EntrySpan _entrySpans_BCM56470_A0[1];

  /// Ingress member ports. ING_PORT_BITMAP: 132 bits, 72 from BCM56470_A0, 272 from BCM56990_B0; on
  /// all chips.
  VELMAR_NODISCARD Oru::PerUnitBitmap ingPortBitmap() const;
  /// Sets ING_PORT_BITMAP.
  void ingPortBitmapIs(Oru::PerUnitBitmap value);
  /// Width of ING_PORT_BITMAP in bits.
  U16 ingPortBitmapLen() const;
  /// First bit of ING_PORT_BITMAP in the entry.
  U16 ingPortBitmapOffset() const;
  /// Whether the view has ING_PORT_BITMAP.
  VELMAR_NODISCARD bool isIngPortBitmapValid() const;
};

}  // namespace Velmar
