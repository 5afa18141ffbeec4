// Derived from tables/VlanStgEntry.cpp; do not edit.
// To refresh: cmake --build --preset release --target refresh
#pragma once

#include "AsicUtils/BcmAsicBase.h"
#include "AsicUtils/ChipType.h"
#include "Velmar/Export.h"

namespace Velmar {

/// Ingress spanning-tree groups, a state per port.
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
class VELMAR_EXPORT VlanStgEntry : public AsicUtils::BcmAsicBase {
 public:
  using EntrySpans = AsicUtils::EntrySpans;

  /// Binds the view to `buf`, `len` bytes that outlive it. If the chip or variant lacks the class:
  /// the soft assertion " not in metainfo for VlanStgEntry!", then "\"0\" == nullptr".
  VlanStgEntry(ChipType_ chipType, U8* buf, U16 len, bool flag, U8 variant);
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
  /// The valid indices on BCM56175_A0 and on chips with as many entries.
  static const AsicUtils::EntrySpan _entrySpans_BCM56175_A0[1];
  /// The valid indices on BCM56996_A0 and on chips with as many entries.
  static const AsicUtils::EntrySpan _entrySpans_BCM56996_A0[1];

  /// Spanning-tree state of the port. SP_TREE_PORT0: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort0() const;
  /// Sets SP_TREE_PORT0.
  void spTreePort0Is(U8 value);
  /// Width of SP_TREE_PORT0 in bits.
  U16 spTreePort0Len() const;
  /// First bit of SP_TREE_PORT0 in the entry.
  U16 spTreePort0Offset() const;
  /// Whether the view has SP_TREE_PORT0.
  VELMAR_NODISCARD bool isSpTreePort0Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT1: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort1() const;
  /// Sets SP_TREE_PORT1.
  void spTreePort1Is(U8 value);
  /// Width of SP_TREE_PORT1 in bits.
  U16 spTreePort1Len() const;
  /// First bit of SP_TREE_PORT1 in the entry.
  U16 spTreePort1Offset() const;
  /// Whether the view has SP_TREE_PORT1.
  VELMAR_NODISCARD bool isSpTreePort1Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT2: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort2() const;
  /// Sets SP_TREE_PORT2.
  void spTreePort2Is(U8 value);
  /// Width of SP_TREE_PORT2 in bits.
  U16 spTreePort2Len() const;
  /// First bit of SP_TREE_PORT2 in the entry.
  U16 spTreePort2Offset() const;
  /// Whether the view has SP_TREE_PORT2.
  VELMAR_NODISCARD bool isSpTreePort2Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT3: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort3() const;
  /// Sets SP_TREE_PORT3.
  void spTreePort3Is(U8 value);
  /// Width of SP_TREE_PORT3 in bits.
  U16 spTreePort3Len() const;
  /// First bit of SP_TREE_PORT3 in the entry.
  U16 spTreePort3Offset() const;
  /// Whether the view has SP_TREE_PORT3.
  VELMAR_NODISCARD bool isSpTreePort3Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT4: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort4() const;
  /// Sets SP_TREE_PORT4.
  void spTreePort4Is(U8 value);
  /// Width of SP_TREE_PORT4 in bits.
  U16 spTreePort4Len() const;
  /// First bit of SP_TREE_PORT4 in the entry.
  U16 spTreePort4Offset() const;
  /// Whether the view has SP_TREE_PORT4.
  VELMAR_NODISCARD bool isSpTreePort4Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT5: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort5() const;
  /// Sets SP_TREE_PORT5.
  void spTreePort5Is(U8 value);
  /// Width of SP_TREE_PORT5 in bits.
  U16 spTreePort5Len() const;
  /// First bit of SP_TREE_PORT5 in the entry.
  U16 spTreePort5Offset() const;
  /// Whether the view has SP_TREE_PORT5.
  VELMAR_NODISCARD bool isSpTreePort5Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT6: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort6() const;
  /// Sets SP_TREE_PORT6.
  void spTreePort6Is(U8 value);
  /// Width of SP_TREE_PORT6 in bits.
  U16 spTreePort6Len() const;
  /// First bit of SP_TREE_PORT6 in the entry.
  U16 spTreePort6Offset() const;
  /// Whether the view has SP_TREE_PORT6.
  VELMAR_NODISCARD bool isSpTreePort6Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT7: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort7() const;
  /// Sets SP_TREE_PORT7.
  void spTreePort7Is(U8 value);
  /// Width of SP_TREE_PORT7 in bits.
  U16 spTreePort7Len() const;
  /// First bit of SP_TREE_PORT7 in the entry.
  U16 spTreePort7Offset() const;
  /// Whether the view has SP_TREE_PORT7.
  VELMAR_NODISCARD bool isSpTreePort7Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT8: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort8() const;
  /// Sets SP_TREE_PORT8.
  void spTreePort8Is(U8 value);
  /// Width of SP_TREE_PORT8 in bits.
  U16 spTreePort8Len() const;
  /// First bit of SP_TREE_PORT8 in the entry.
  U16 spTreePort8Offset() const;
  /// Whether the view has SP_TREE_PORT8.
  VELMAR_NODISCARD bool isSpTreePort8Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT9: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort9() const;
  /// Sets SP_TREE_PORT9.
  void spTreePort9Is(U8 value);
  /// Width of SP_TREE_PORT9 in bits.
  U16 spTreePort9Len() const;
  /// First bit of SP_TREE_PORT9 in the entry.
  U16 spTreePort9Offset() const;
  /// Whether the view has SP_TREE_PORT9.
  VELMAR_NODISCARD bool isSpTreePort9Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT10: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort10() const;
  /// Sets SP_TREE_PORT10.
  void spTreePort10Is(U8 value);
  /// Width of SP_TREE_PORT10 in bits.
  U16 spTreePort10Len() const;
  /// First bit of SP_TREE_PORT10 in the entry.
  U16 spTreePort10Offset() const;
  /// Whether the view has SP_TREE_PORT10.
  VELMAR_NODISCARD bool isSpTreePort10Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT11: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort11() const;
  /// Sets SP_TREE_PORT11.
  void spTreePort11Is(U8 value);
  /// Width of SP_TREE_PORT11 in bits.
  U16 spTreePort11Len() const;
  /// First bit of SP_TREE_PORT11 in the entry.
  U16 spTreePort11Offset() const;
  /// Whether the view has SP_TREE_PORT11.
  VELMAR_NODISCARD bool isSpTreePort11Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT12: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort12() const;
  /// Sets SP_TREE_PORT12.
  void spTreePort12Is(U8 value);
  /// Width of SP_TREE_PORT12 in bits.
  U16 spTreePort12Len() const;
  /// First bit of SP_TREE_PORT12 in the entry.
  U16 spTreePort12Offset() const;
  /// Whether the view has SP_TREE_PORT12.
  VELMAR_NODISCARD bool isSpTreePort12Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT13: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort13() const;
  /// Sets SP_TREE_PORT13.
  void spTreePort13Is(U8 value);
  /// Width of SP_TREE_PORT13 in bits.
  U16 spTreePort13Len() const;
  /// First bit of SP_TREE_PORT13 in the entry.
  U16 spTreePort13Offset() const;
  /// Whether the view has SP_TREE_PORT13.
  VELMAR_NODISCARD bool isSpTreePort13Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT14: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort14() const;
  /// Sets SP_TREE_PORT14.
  void spTreePort14Is(U8 value);
  /// Width of SP_TREE_PORT14 in bits.
  U16 spTreePort14Len() const;
  /// First bit of SP_TREE_PORT14 in the entry.
  U16 spTreePort14Offset() const;
  /// Whether the view has SP_TREE_PORT14.
  VELMAR_NODISCARD bool isSpTreePort14Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT15: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort15() const;
  /// Sets SP_TREE_PORT15.
  void spTreePort15Is(U8 value);
  /// Width of SP_TREE_PORT15 in bits.
  U16 spTreePort15Len() const;
  /// First bit of SP_TREE_PORT15 in the entry.
  U16 spTreePort15Offset() const;
  /// Whether the view has SP_TREE_PORT15.
  VELMAR_NODISCARD bool isSpTreePort15Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT16: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort16() const;
  /// Sets SP_TREE_PORT16.
  void spTreePort16Is(U8 value);
  /// Width of SP_TREE_PORT16 in bits.
  U16 spTreePort16Len() const;
  /// First bit of SP_TREE_PORT16 in the entry.
  U16 spTreePort16Offset() const;
  /// Whether the view has SP_TREE_PORT16.
  VELMAR_NODISCARD bool isSpTreePort16Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT17: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort17() const;
  /// Sets SP_TREE_PORT17.
  void spTreePort17Is(U8 value);
  /// Width of SP_TREE_PORT17 in bits.
  U16 spTreePort17Len() const;
  /// First bit of SP_TREE_PORT17 in the entry.
  U16 spTreePort17Offset() const;
  /// Whether the view has SP_TREE_PORT17.
  VELMAR_NODISCARD bool isSpTreePort17Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT18: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort18() const;
  /// Sets SP_TREE_PORT18.
  void spTreePort18Is(U8 value);
  /// Width of SP_TREE_PORT18 in bits.
  U16 spTreePort18Len() const;
  /// First bit of SP_TREE_PORT18 in the entry.
  U16 spTreePort18Offset() const;
  /// Whether the view has SP_TREE_PORT18.
  VELMAR_NODISCARD bool isSpTreePort18Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT19: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort19() const;
  /// Sets SP_TREE_PORT19.
  void spTreePort19Is(U8 value);
  /// Width of SP_TREE_PORT19 in bits.
  U16 spTreePort19Len() const;
  /// First bit of SP_TREE_PORT19 in the entry.
  U16 spTreePort19Offset() const;
  /// Whether the view has SP_TREE_PORT19.
  VELMAR_NODISCARD bool isSpTreePort19Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT20: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort20() const;
  /// Sets SP_TREE_PORT20.
  void spTreePort20Is(U8 value);
  /// Width of SP_TREE_PORT20 in bits.
  U16 spTreePort20Len() const;
  /// First bit of SP_TREE_PORT20 in the entry.
  U16 spTreePort20Offset() const;
  /// Whether the view has SP_TREE_PORT20.
  VELMAR_NODISCARD bool isSpTreePort20Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT21: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort21() const;
  /// Sets SP_TREE_PORT21.
  void spTreePort21Is(U8 value);
  /// Width of SP_TREE_PORT21 in bits.
  U16 spTreePort21Len() const;
  /// First bit of SP_TREE_PORT21 in the entry.
  U16 spTreePort21Offset() const;
  /// Whether the view has SP_TREE_PORT21.
  VELMAR_NODISCARD bool isSpTreePort21Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT22: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort22() const;
  /// Sets SP_TREE_PORT22.
  void spTreePort22Is(U8 value);
  /// Width of SP_TREE_PORT22 in bits.
  U16 spTreePort22Len() const;
  /// First bit of SP_TREE_PORT22 in the entry.
  U16 spTreePort22Offset() const;
  /// Whether the view has SP_TREE_PORT22.
  VELMAR_NODISCARD bool isSpTreePort22Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT23: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort23() const;
  /// Sets SP_TREE_PORT23.
  void spTreePort23Is(U8 value);
  /// Width of SP_TREE_PORT23 in bits.
  U16 spTreePort23Len() const;
  /// First bit of SP_TREE_PORT23 in the entry.
  U16 spTreePort23Offset() const;
  /// Whether the view has SP_TREE_PORT23.
  VELMAR_NODISCARD bool isSpTreePort23Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT24: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort24() const;
  /// Sets SP_TREE_PORT24.
  void spTreePort24Is(U8 value);
  /// Width of SP_TREE_PORT24 in bits.
  U16 spTreePort24Len() const;
  /// First bit of SP_TREE_PORT24 in the entry.
  U16 spTreePort24Offset() const;
  /// Whether the view has SP_TREE_PORT24.
  VELMAR_NODISCARD bool isSpTreePort24Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT25: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort25() const;
  /// Sets SP_TREE_PORT25.
  void spTreePort25Is(U8 value);
  /// Width of SP_TREE_PORT25 in bits.
  U16 spTreePort25Len() const;
  /// First bit of SP_TREE_PORT25 in the entry.
  U16 spTreePort25Offset() const;
  /// Whether the view has SP_TREE_PORT25.
  VELMAR_NODISCARD bool isSpTreePort25Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT26: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort26() const;
  /// Sets SP_TREE_PORT26.
  void spTreePort26Is(U8 value);
  /// Width of SP_TREE_PORT26 in bits.
  U16 spTreePort26Len() const;
  /// First bit of SP_TREE_PORT26 in the entry.
  U16 spTreePort26Offset() const;
  /// Whether the view has SP_TREE_PORT26.
  VELMAR_NODISCARD bool isSpTreePort26Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT27: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort27() const;
  /// Sets SP_TREE_PORT27.
  void spTreePort27Is(U8 value);
  /// Width of SP_TREE_PORT27 in bits.
  U16 spTreePort27Len() const;
  /// First bit of SP_TREE_PORT27 in the entry.
  U16 spTreePort27Offset() const;
  /// Whether the view has SP_TREE_PORT27.
  VELMAR_NODISCARD bool isSpTreePort27Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT28: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort28() const;
  /// Sets SP_TREE_PORT28.
  void spTreePort28Is(U8 value);
  /// Width of SP_TREE_PORT28 in bits.
  U16 spTreePort28Len() const;
  /// First bit of SP_TREE_PORT28 in the entry.
  U16 spTreePort28Offset() const;
  /// Whether the view has SP_TREE_PORT28.
  VELMAR_NODISCARD bool isSpTreePort28Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT29: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort29() const;
  /// Sets SP_TREE_PORT29.
  void spTreePort29Is(U8 value);
  /// Width of SP_TREE_PORT29 in bits.
  U16 spTreePort29Len() const;
  /// First bit of SP_TREE_PORT29 in the entry.
  U16 spTreePort29Offset() const;
  /// Whether the view has SP_TREE_PORT29.
  VELMAR_NODISCARD bool isSpTreePort29Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT30: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort30() const;
  /// Sets SP_TREE_PORT30.
  void spTreePort30Is(U8 value);
  /// Width of SP_TREE_PORT30 in bits.
  U16 spTreePort30Len() const;
  /// First bit of SP_TREE_PORT30 in the entry.
  U16 spTreePort30Offset() const;
  /// Whether the view has SP_TREE_PORT30.
  VELMAR_NODISCARD bool isSpTreePort30Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT31: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort31() const;
  /// Sets SP_TREE_PORT31.
  void spTreePort31Is(U8 value);
  /// Width of SP_TREE_PORT31 in bits.
  U16 spTreePort31Len() const;
  /// First bit of SP_TREE_PORT31 in the entry.
  U16 spTreePort31Offset() const;
  /// Whether the view has SP_TREE_PORT31.
  VELMAR_NODISCARD bool isSpTreePort31Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT32: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort32() const;
  /// Sets SP_TREE_PORT32.
  void spTreePort32Is(U8 value);
  /// Width of SP_TREE_PORT32 in bits.
  U16 spTreePort32Len() const;
  /// First bit of SP_TREE_PORT32 in the entry.
  U16 spTreePort32Offset() const;
  /// Whether the view has SP_TREE_PORT32.
  VELMAR_NODISCARD bool isSpTreePort32Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT33: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort33() const;
  /// Sets SP_TREE_PORT33.
  void spTreePort33Is(U8 value);
  /// Width of SP_TREE_PORT33 in bits.
  U16 spTreePort33Len() const;
  /// First bit of SP_TREE_PORT33 in the entry.
  U16 spTreePort33Offset() const;
  /// Whether the view has SP_TREE_PORT33.
  VELMAR_NODISCARD bool isSpTreePort33Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT34: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort34() const;
  /// Sets SP_TREE_PORT34.
  void spTreePort34Is(U8 value);
  /// Width of SP_TREE_PORT34 in bits.
  U16 spTreePort34Len() const;
  /// First bit of SP_TREE_PORT34 in the entry.
  U16 spTreePort34Offset() const;
  /// Whether the view has SP_TREE_PORT34.
  VELMAR_NODISCARD bool isSpTreePort34Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT35: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort35() const;
  /// Sets SP_TREE_PORT35.
  void spTreePort35Is(U8 value);
  /// Width of SP_TREE_PORT35 in bits.
  U16 spTreePort35Len() const;
  /// First bit of SP_TREE_PORT35 in the entry.
  U16 spTreePort35Offset() const;
  /// Whether the view has SP_TREE_PORT35.
  VELMAR_NODISCARD bool isSpTreePort35Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT36: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort36() const;
  /// Sets SP_TREE_PORT36.
  void spTreePort36Is(U8 value);
  /// Width of SP_TREE_PORT36 in bits.
  U16 spTreePort36Len() const;
  /// First bit of SP_TREE_PORT36 in the entry.
  U16 spTreePort36Offset() const;
  /// Whether the view has SP_TREE_PORT36.
  VELMAR_NODISCARD bool isSpTreePort36Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT37: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort37() const;
  /// Sets SP_TREE_PORT37.
  void spTreePort37Is(U8 value);
  /// Width of SP_TREE_PORT37 in bits.
  U16 spTreePort37Len() const;
  /// First bit of SP_TREE_PORT37 in the entry.
  U16 spTreePort37Offset() const;
  /// Whether the view has SP_TREE_PORT37.
  VELMAR_NODISCARD bool isSpTreePort37Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT38: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort38() const;
  /// Sets SP_TREE_PORT38.
  void spTreePort38Is(U8 value);
  /// Width of SP_TREE_PORT38 in bits.
  U16 spTreePort38Len() const;
  /// First bit of SP_TREE_PORT38 in the entry.
  U16 spTreePort38Offset() const;
  /// Whether the view has SP_TREE_PORT38.
  VELMAR_NODISCARD bool isSpTreePort38Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT39: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort39() const;
  /// Sets SP_TREE_PORT39.
  void spTreePort39Is(U8 value);
  /// Width of SP_TREE_PORT39 in bits.
  U16 spTreePort39Len() const;
  /// First bit of SP_TREE_PORT39 in the entry.
  U16 spTreePort39Offset() const;
  /// Whether the view has SP_TREE_PORT39.
  VELMAR_NODISCARD bool isSpTreePort39Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT40: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort40() const;
  /// Sets SP_TREE_PORT40.
  void spTreePort40Is(U8 value);
  /// Width of SP_TREE_PORT40 in bits.
  U16 spTreePort40Len() const;
  /// First bit of SP_TREE_PORT40 in the entry.
  U16 spTreePort40Offset() const;
  /// Whether the view has SP_TREE_PORT40.
  VELMAR_NODISCARD bool isSpTreePort40Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT41: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort41() const;
  /// Sets SP_TREE_PORT41.
  void spTreePort41Is(U8 value);
  /// Width of SP_TREE_PORT41 in bits.
  U16 spTreePort41Len() const;
  /// First bit of SP_TREE_PORT41 in the entry.
  U16 spTreePort41Offset() const;
  /// Whether the view has SP_TREE_PORT41.
  VELMAR_NODISCARD bool isSpTreePort41Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT42: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort42() const;
  /// Sets SP_TREE_PORT42.
  void spTreePort42Is(U8 value);
  /// Width of SP_TREE_PORT42 in bits.
  U16 spTreePort42Len() const;
  /// First bit of SP_TREE_PORT42 in the entry.
  U16 spTreePort42Offset() const;
  /// Whether the view has SP_TREE_PORT42.
  VELMAR_NODISCARD bool isSpTreePort42Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT43: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort43() const;
  /// Sets SP_TREE_PORT43.
  void spTreePort43Is(U8 value);
  /// Width of SP_TREE_PORT43 in bits.
  U16 spTreePort43Len() const;
  /// First bit of SP_TREE_PORT43 in the entry.
  U16 spTreePort43Offset() const;
  /// Whether the view has SP_TREE_PORT43.
  VELMAR_NODISCARD bool isSpTreePort43Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT44: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort44() const;
  /// Sets SP_TREE_PORT44.
  void spTreePort44Is(U8 value);
  /// Width of SP_TREE_PORT44 in bits.
  U16 spTreePort44Len() const;
  /// First bit of SP_TREE_PORT44 in the entry.
  U16 spTreePort44Offset() const;
  /// Whether the view has SP_TREE_PORT44.
  VELMAR_NODISCARD bool isSpTreePort44Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT45: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort45() const;
  /// Sets SP_TREE_PORT45.
  void spTreePort45Is(U8 value);
  /// Width of SP_TREE_PORT45 in bits.
  U16 spTreePort45Len() const;
  /// First bit of SP_TREE_PORT45 in the entry.
  U16 spTreePort45Offset() const;
  /// Whether the view has SP_TREE_PORT45.
  VELMAR_NODISCARD bool isSpTreePort45Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT46: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort46() const;
  /// Sets SP_TREE_PORT46.
  void spTreePort46Is(U8 value);
  /// Width of SP_TREE_PORT46 in bits.
  U16 spTreePort46Len() const;
  /// First bit of SP_TREE_PORT46 in the entry.
  U16 spTreePort46Offset() const;
  /// Whether the view has SP_TREE_PORT46.
  VELMAR_NODISCARD bool isSpTreePort46Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT47: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort47() const;
  /// Sets SP_TREE_PORT47.
  void spTreePort47Is(U8 value);
  /// Width of SP_TREE_PORT47 in bits.
  U16 spTreePort47Len() const;
  /// First bit of SP_TREE_PORT47 in the entry.
  U16 spTreePort47Offset() const;
  /// Whether the view has SP_TREE_PORT47.
  VELMAR_NODISCARD bool isSpTreePort47Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT48: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort48() const;
  /// Sets SP_TREE_PORT48.
  void spTreePort48Is(U8 value);
  /// Width of SP_TREE_PORT48 in bits.
  U16 spTreePort48Len() const;
  /// First bit of SP_TREE_PORT48 in the entry.
  U16 spTreePort48Offset() const;
  /// Whether the view has SP_TREE_PORT48.
  VELMAR_NODISCARD bool isSpTreePort48Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT49: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort49() const;
  /// Sets SP_TREE_PORT49.
  void spTreePort49Is(U8 value);
  /// Width of SP_TREE_PORT49 in bits.
  U16 spTreePort49Len() const;
  /// First bit of SP_TREE_PORT49 in the entry.
  U16 spTreePort49Offset() const;
  /// Whether the view has SP_TREE_PORT49.
  VELMAR_NODISCARD bool isSpTreePort49Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT50: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort50() const;
  /// Sets SP_TREE_PORT50.
  void spTreePort50Is(U8 value);
  /// Width of SP_TREE_PORT50 in bits.
  U16 spTreePort50Len() const;
  /// First bit of SP_TREE_PORT50 in the entry.
  U16 spTreePort50Offset() const;
  /// Whether the view has SP_TREE_PORT50.
  VELMAR_NODISCARD bool isSpTreePort50Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT51: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort51() const;
  /// Sets SP_TREE_PORT51.
  void spTreePort51Is(U8 value);
  /// Width of SP_TREE_PORT51 in bits.
  U16 spTreePort51Len() const;
  /// First bit of SP_TREE_PORT51 in the entry.
  U16 spTreePort51Offset() const;
  /// Whether the view has SP_TREE_PORT51.
  VELMAR_NODISCARD bool isSpTreePort51Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT52: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort52() const;
  /// Sets SP_TREE_PORT52.
  void spTreePort52Is(U8 value);
  /// Width of SP_TREE_PORT52 in bits.
  U16 spTreePort52Len() const;
  /// First bit of SP_TREE_PORT52 in the entry.
  U16 spTreePort52Offset() const;
  /// Whether the view has SP_TREE_PORT52.
  VELMAR_NODISCARD bool isSpTreePort52Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT53: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort53() const;
  /// Sets SP_TREE_PORT53.
  void spTreePort53Is(U8 value);
  /// Width of SP_TREE_PORT53 in bits.
  U16 spTreePort53Len() const;
  /// First bit of SP_TREE_PORT53 in the entry.
  U16 spTreePort53Offset() const;
  /// Whether the view has SP_TREE_PORT53.
  VELMAR_NODISCARD bool isSpTreePort53Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT54: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort54() const;
  /// Sets SP_TREE_PORT54.
  void spTreePort54Is(U8 value);
  /// Width of SP_TREE_PORT54 in bits.
  U16 spTreePort54Len() const;
  /// First bit of SP_TREE_PORT54 in the entry.
  U16 spTreePort54Offset() const;
  /// Whether the view has SP_TREE_PORT54.
  VELMAR_NODISCARD bool isSpTreePort54Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT55: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort55() const;
  /// Sets SP_TREE_PORT55.
  void spTreePort55Is(U8 value);
  /// Width of SP_TREE_PORT55 in bits.
  U16 spTreePort55Len() const;
  /// First bit of SP_TREE_PORT55 in the entry.
  U16 spTreePort55Offset() const;
  /// Whether the view has SP_TREE_PORT55.
  VELMAR_NODISCARD bool isSpTreePort55Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT56: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort56() const;
  /// Sets SP_TREE_PORT56.
  void spTreePort56Is(U8 value);
  /// Width of SP_TREE_PORT56 in bits.
  U16 spTreePort56Len() const;
  /// First bit of SP_TREE_PORT56 in the entry.
  U16 spTreePort56Offset() const;
  /// Whether the view has SP_TREE_PORT56.
  VELMAR_NODISCARD bool isSpTreePort56Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT57: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort57() const;
  /// Sets SP_TREE_PORT57.
  void spTreePort57Is(U8 value);
  /// Width of SP_TREE_PORT57 in bits.
  U16 spTreePort57Len() const;
  /// First bit of SP_TREE_PORT57 in the entry.
  U16 spTreePort57Offset() const;
  /// Whether the view has SP_TREE_PORT57.
  VELMAR_NODISCARD bool isSpTreePort57Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT58: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort58() const;
  /// Sets SP_TREE_PORT58.
  void spTreePort58Is(U8 value);
  /// Width of SP_TREE_PORT58 in bits.
  U16 spTreePort58Len() const;
  /// First bit of SP_TREE_PORT58 in the entry.
  U16 spTreePort58Offset() const;
  /// Whether the view has SP_TREE_PORT58.
  VELMAR_NODISCARD bool isSpTreePort58Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT59: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort59() const;
  /// Sets SP_TREE_PORT59.
  void spTreePort59Is(U8 value);
  /// Width of SP_TREE_PORT59 in bits.
  U16 spTreePort59Len() const;
  /// First bit of SP_TREE_PORT59 in the entry.
  U16 spTreePort59Offset() const;
  /// Whether the view has SP_TREE_PORT59.
  VELMAR_NODISCARD bool isSpTreePort59Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT60: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort60() const;
  /// Sets SP_TREE_PORT60.
  void spTreePort60Is(U8 value);
  /// Width of SP_TREE_PORT60 in bits.
  U16 spTreePort60Len() const;
  /// First bit of SP_TREE_PORT60 in the entry.
  U16 spTreePort60Offset() const;
  /// Whether the view has SP_TREE_PORT60.
  VELMAR_NODISCARD bool isSpTreePort60Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT61: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort61() const;
  /// Sets SP_TREE_PORT61.
  void spTreePort61Is(U8 value);
  /// Width of SP_TREE_PORT61 in bits.
  U16 spTreePort61Len() const;
  /// First bit of SP_TREE_PORT61 in the entry.
  U16 spTreePort61Offset() const;
  /// Whether the view has SP_TREE_PORT61.
  VELMAR_NODISCARD bool isSpTreePort61Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT62: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort62() const;
  /// Sets SP_TREE_PORT62.
  void spTreePort62Is(U8 value);
  /// Width of SP_TREE_PORT62 in bits.
  U16 spTreePort62Len() const;
  /// First bit of SP_TREE_PORT62 in the entry.
  U16 spTreePort62Offset() const;
  /// Whether the view has SP_TREE_PORT62.
  VELMAR_NODISCARD bool isSpTreePort62Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT63: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort63() const;
  /// Sets SP_TREE_PORT63.
  void spTreePort63Is(U8 value);
  /// Width of SP_TREE_PORT63 in bits.
  U16 spTreePort63Len() const;
  /// First bit of SP_TREE_PORT63 in the entry.
  U16 spTreePort63Offset() const;
  /// Whether the view has SP_TREE_PORT63.
  VELMAR_NODISCARD bool isSpTreePort63Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT64: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort64() const;
  /// Sets SP_TREE_PORT64.
  void spTreePort64Is(U8 value);
  /// Width of SP_TREE_PORT64 in bits.
  U16 spTreePort64Len() const;
  /// First bit of SP_TREE_PORT64 in the entry.
  U16 spTreePort64Offset() const;
  /// Whether the view has SP_TREE_PORT64.
  VELMAR_NODISCARD bool isSpTreePort64Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT65: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort65() const;
  /// Sets SP_TREE_PORT65.
  void spTreePort65Is(U8 value);
  /// Width of SP_TREE_PORT65 in bits.
  U16 spTreePort65Len() const;
  /// First bit of SP_TREE_PORT65 in the entry.
  U16 spTreePort65Offset() const;
  /// Whether the view has SP_TREE_PORT65.
  VELMAR_NODISCARD bool isSpTreePort65Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT66: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort66() const;
  /// Sets SP_TREE_PORT66.
  void spTreePort66Is(U8 value);
  /// Width of SP_TREE_PORT66 in bits.
  U16 spTreePort66Len() const;
  /// First bit of SP_TREE_PORT66 in the entry.
  U16 spTreePort66Offset() const;
  /// Whether the view has SP_TREE_PORT66.
  VELMAR_NODISCARD bool isSpTreePort66Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT67: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort67() const;
  /// Sets SP_TREE_PORT67.
  void spTreePort67Is(U8 value);
  /// Width of SP_TREE_PORT67 in bits.
  U16 spTreePort67Len() const;
  /// First bit of SP_TREE_PORT67 in the entry.
  U16 spTreePort67Offset() const;
  /// Whether the view has SP_TREE_PORT67.
  VELMAR_NODISCARD bool isSpTreePort67Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT68: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort68() const;
  /// Sets SP_TREE_PORT68.
  void spTreePort68Is(U8 value);
  /// Width of SP_TREE_PORT68 in bits.
  U16 spTreePort68Len() const;
  /// First bit of SP_TREE_PORT68 in the entry.
  U16 spTreePort68Offset() const;
  /// Whether the view has SP_TREE_PORT68.
  VELMAR_NODISCARD bool isSpTreePort68Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT69: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort69() const;
  /// Sets SP_TREE_PORT69.
  void spTreePort69Is(U8 value);
  /// Width of SP_TREE_PORT69 in bits.
  U16 spTreePort69Len() const;
  /// First bit of SP_TREE_PORT69 in the entry.
  U16 spTreePort69Offset() const;
  /// Whether the view has SP_TREE_PORT69.
  VELMAR_NODISCARD bool isSpTreePort69Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT70: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort70() const;
  /// Sets SP_TREE_PORT70.
  void spTreePort70Is(U8 value);
  /// Width of SP_TREE_PORT70 in bits.
  U16 spTreePort70Len() const;
  /// First bit of SP_TREE_PORT70 in the entry.
  U16 spTreePort70Offset() const;
  /// Whether the view has SP_TREE_PORT70.
  VELMAR_NODISCARD bool isSpTreePort70Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT71: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort71() const;
  /// Sets SP_TREE_PORT71.
  void spTreePort71Is(U8 value);
  /// Width of SP_TREE_PORT71 in bits.
  U16 spTreePort71Len() const;
  /// First bit of SP_TREE_PORT71 in the entry.
  U16 spTreePort71Offset() const;
  /// Whether the view has SP_TREE_PORT71.
  VELMAR_NODISCARD bool isSpTreePort71Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT72: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort72() const;
  /// Sets SP_TREE_PORT72.
  void spTreePort72Is(U8 value);
  /// Width of SP_TREE_PORT72 in bits.
  U16 spTreePort72Len() const;
  /// First bit of SP_TREE_PORT72 in the entry.
  U16 spTreePort72Offset() const;
  /// Whether the view has SP_TREE_PORT72.
  VELMAR_NODISCARD bool isSpTreePort72Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT73: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort73() const;
  /// Sets SP_TREE_PORT73.
  void spTreePort73Is(U8 value);
  /// Width of SP_TREE_PORT73 in bits.
  U16 spTreePort73Len() const;
  /// First bit of SP_TREE_PORT73 in the entry.
  U16 spTreePort73Offset() const;
  /// Whether the view has SP_TREE_PORT73.
  VELMAR_NODISCARD bool isSpTreePort73Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT74: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort74() const;
  /// Sets SP_TREE_PORT74.
  void spTreePort74Is(U8 value);
  /// Width of SP_TREE_PORT74 in bits.
  U16 spTreePort74Len() const;
  /// First bit of SP_TREE_PORT74 in the entry.
  U16 spTreePort74Offset() const;
  /// Whether the view has SP_TREE_PORT74.
  VELMAR_NODISCARD bool isSpTreePort74Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT75: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort75() const;
  /// Sets SP_TREE_PORT75.
  void spTreePort75Is(U8 value);
  /// Width of SP_TREE_PORT75 in bits.
  U16 spTreePort75Len() const;
  /// First bit of SP_TREE_PORT75 in the entry.
  U16 spTreePort75Offset() const;
  /// Whether the view has SP_TREE_PORT75.
  VELMAR_NODISCARD bool isSpTreePort75Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT76: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort76() const;
  /// Sets SP_TREE_PORT76.
  void spTreePort76Is(U8 value);
  /// Width of SP_TREE_PORT76 in bits.
  U16 spTreePort76Len() const;
  /// First bit of SP_TREE_PORT76 in the entry.
  U16 spTreePort76Offset() const;
  /// Whether the view has SP_TREE_PORT76.
  VELMAR_NODISCARD bool isSpTreePort76Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT77: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort77() const;
  /// Sets SP_TREE_PORT77.
  void spTreePort77Is(U8 value);
  /// Width of SP_TREE_PORT77 in bits.
  U16 spTreePort77Len() const;
  /// First bit of SP_TREE_PORT77 in the entry.
  U16 spTreePort77Offset() const;
  /// Whether the view has SP_TREE_PORT77.
  VELMAR_NODISCARD bool isSpTreePort77Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT78: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort78() const;
  /// Sets SP_TREE_PORT78.
  void spTreePort78Is(U8 value);
  /// Width of SP_TREE_PORT78 in bits.
  U16 spTreePort78Len() const;
  /// First bit of SP_TREE_PORT78 in the entry.
  U16 spTreePort78Offset() const;
  /// Whether the view has SP_TREE_PORT78.
  VELMAR_NODISCARD bool isSpTreePort78Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT79: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort79() const;
  /// Sets SP_TREE_PORT79.
  void spTreePort79Is(U8 value);
  /// Width of SP_TREE_PORT79 in bits.
  U16 spTreePort79Len() const;
  /// First bit of SP_TREE_PORT79 in the entry.
  U16 spTreePort79Offset() const;
  /// Whether the view has SP_TREE_PORT79.
  VELMAR_NODISCARD bool isSpTreePort79Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT80: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort80() const;
  /// Sets SP_TREE_PORT80.
  void spTreePort80Is(U8 value);
  /// Width of SP_TREE_PORT80 in bits.
  U16 spTreePort80Len() const;
  /// First bit of SP_TREE_PORT80 in the entry.
  U16 spTreePort80Offset() const;
  /// Whether the view has SP_TREE_PORT80.
  VELMAR_NODISCARD bool isSpTreePort80Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT81: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort81() const;
  /// Sets SP_TREE_PORT81.
  void spTreePort81Is(U8 value);
  /// Width of SP_TREE_PORT81 in bits.
  U16 spTreePort81Len() const;
  /// First bit of SP_TREE_PORT81 in the entry.
  U16 spTreePort81Offset() const;
  /// Whether the view has SP_TREE_PORT81.
  VELMAR_NODISCARD bool isSpTreePort81Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT82: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort82() const;
  /// Sets SP_TREE_PORT82.
  void spTreePort82Is(U8 value);
  /// Width of SP_TREE_PORT82 in bits.
  U16 spTreePort82Len() const;
  /// First bit of SP_TREE_PORT82 in the entry.
  U16 spTreePort82Offset() const;
  /// Whether the view has SP_TREE_PORT82.
  VELMAR_NODISCARD bool isSpTreePort82Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT83: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort83() const;
  /// Sets SP_TREE_PORT83.
  void spTreePort83Is(U8 value);
  /// Width of SP_TREE_PORT83 in bits.
  U16 spTreePort83Len() const;
  /// First bit of SP_TREE_PORT83 in the entry.
  U16 spTreePort83Offset() const;
  /// Whether the view has SP_TREE_PORT83.
  VELMAR_NODISCARD bool isSpTreePort83Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT84: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort84() const;
  /// Sets SP_TREE_PORT84.
  void spTreePort84Is(U8 value);
  /// Width of SP_TREE_PORT84 in bits.
  U16 spTreePort84Len() const;
  /// First bit of SP_TREE_PORT84 in the entry.
  U16 spTreePort84Offset() const;
  /// Whether the view has SP_TREE_PORT84.
  VELMAR_NODISCARD bool isSpTreePort84Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT85: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort85() const;
  /// Sets SP_TREE_PORT85.
  void spTreePort85Is(U8 value);
  /// Width of SP_TREE_PORT85 in bits.
  U16 spTreePort85Len() const;
  /// First bit of SP_TREE_PORT85 in the entry.
  U16 spTreePort85Offset() const;
  /// Whether the view has SP_TREE_PORT85.
  VELMAR_NODISCARD bool isSpTreePort85Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT86: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort86() const;
  /// Sets SP_TREE_PORT86.
  void spTreePort86Is(U8 value);
  /// Width of SP_TREE_PORT86 in bits.
  U16 spTreePort86Len() const;
  /// First bit of SP_TREE_PORT86 in the entry.
  U16 spTreePort86Offset() const;
  /// Whether the view has SP_TREE_PORT86.
  VELMAR_NODISCARD bool isSpTreePort86Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT87: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort87() const;
  /// Sets SP_TREE_PORT87.
  void spTreePort87Is(U8 value);
  /// Width of SP_TREE_PORT87 in bits.
  U16 spTreePort87Len() const;
  /// First bit of SP_TREE_PORT87 in the entry.
  U16 spTreePort87Offset() const;
  /// Whether the view has SP_TREE_PORT87.
  VELMAR_NODISCARD bool isSpTreePort87Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT88: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort88() const;
  /// Sets SP_TREE_PORT88.
  void spTreePort88Is(U8 value);
  /// Width of SP_TREE_PORT88 in bits.
  U16 spTreePort88Len() const;
  /// First bit of SP_TREE_PORT88 in the entry.
  U16 spTreePort88Offset() const;
  /// Whether the view has SP_TREE_PORT88.
  VELMAR_NODISCARD bool isSpTreePort88Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT89: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort89() const;
  /// Sets SP_TREE_PORT89.
  void spTreePort89Is(U8 value);
  /// Width of SP_TREE_PORT89 in bits.
  U16 spTreePort89Len() const;
  /// First bit of SP_TREE_PORT89 in the entry.
  U16 spTreePort89Offset() const;
  /// Whether the view has SP_TREE_PORT89.
  VELMAR_NODISCARD bool isSpTreePort89Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT90: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort90() const;
  /// Sets SP_TREE_PORT90.
  void spTreePort90Is(U8 value);
  /// Width of SP_TREE_PORT90 in bits.
  U16 spTreePort90Len() const;
  /// First bit of SP_TREE_PORT90 in the entry.
  U16 spTreePort90Offset() const;
  /// Whether the view has SP_TREE_PORT90.
  VELMAR_NODISCARD bool isSpTreePort90Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT91: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort91() const;
  /// Sets SP_TREE_PORT91.
  void spTreePort91Is(U8 value);
  /// Width of SP_TREE_PORT91 in bits.
  U16 spTreePort91Len() const;
  /// First bit of SP_TREE_PORT91 in the entry.
  U16 spTreePort91Offset() const;
  /// Whether the view has SP_TREE_PORT91.
  VELMAR_NODISCARD bool isSpTreePort91Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT92: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort92() const;
  /// Sets SP_TREE_PORT92.
  void spTreePort92Is(U8 value);
  /// Width of SP_TREE_PORT92 in bits.
  U16 spTreePort92Len() const;
  /// First bit of SP_TREE_PORT92 in the entry.
  U16 spTreePort92Offset() const;
  /// Whether the view has SP_TREE_PORT92.
  VELMAR_NODISCARD bool isSpTreePort92Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT93: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort93() const;
  /// Sets SP_TREE_PORT93.
  void spTreePort93Is(U8 value);
  /// Width of SP_TREE_PORT93 in bits.
  U16 spTreePort93Len() const;
  /// First bit of SP_TREE_PORT93 in the entry.
  U16 spTreePort93Offset() const;
  /// Whether the view has SP_TREE_PORT93.
  VELMAR_NODISCARD bool isSpTreePort93Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT94: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort94() const;
  /// Sets SP_TREE_PORT94.
  void spTreePort94Is(U8 value);
  /// Width of SP_TREE_PORT94 in bits.
  U16 spTreePort94Len() const;
  /// First bit of SP_TREE_PORT94 in the entry.
  U16 spTreePort94Offset() const;
  /// Whether the view has SP_TREE_PORT94.
  VELMAR_NODISCARD bool isSpTreePort94Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT95: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort95() const;
  /// Sets SP_TREE_PORT95.
  void spTreePort95Is(U8 value);
  /// Width of SP_TREE_PORT95 in bits.
  U16 spTreePort95Len() const;
  /// First bit of SP_TREE_PORT95 in the entry.
  U16 spTreePort95Offset() const;
  /// Whether the view has SP_TREE_PORT95.
  VELMAR_NODISCARD bool isSpTreePort95Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT96: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort96() const;
  /// Sets SP_TREE_PORT96.
  void spTreePort96Is(U8 value);
  /// Width of SP_TREE_PORT96 in bits.
  U16 spTreePort96Len() const;
  /// First bit of SP_TREE_PORT96 in the entry.
  U16 spTreePort96Offset() const;
  /// Whether the view has SP_TREE_PORT96.
  VELMAR_NODISCARD bool isSpTreePort96Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT97: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort97() const;
  /// Sets SP_TREE_PORT97.
  void spTreePort97Is(U8 value);
  /// Width of SP_TREE_PORT97 in bits.
  U16 spTreePort97Len() const;
  /// First bit of SP_TREE_PORT97 in the entry.
  U16 spTreePort97Offset() const;
  /// Whether the view has SP_TREE_PORT97.
  VELMAR_NODISCARD bool isSpTreePort97Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT98: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort98() const;
  /// Sets SP_TREE_PORT98.
  void spTreePort98Is(U8 value);
  /// Width of SP_TREE_PORT98 in bits.
  U16 spTreePort98Len() const;
  /// First bit of SP_TREE_PORT98 in the entry.
  U16 spTreePort98Offset() const;
  /// Whether the view has SP_TREE_PORT98.
  VELMAR_NODISCARD bool isSpTreePort98Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT99: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort99() const;
  /// Sets SP_TREE_PORT99.
  void spTreePort99Is(U8 value);
  /// Width of SP_TREE_PORT99 in bits.
  U16 spTreePort99Len() const;
  /// First bit of SP_TREE_PORT99 in the entry.
  U16 spTreePort99Offset() const;
  /// Whether the view has SP_TREE_PORT99.
  VELMAR_NODISCARD bool isSpTreePort99Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT100: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort100() const;
  /// Sets SP_TREE_PORT100.
  void spTreePort100Is(U8 value);
  /// Width of SP_TREE_PORT100 in bits.
  U16 spTreePort100Len() const;
  /// First bit of SP_TREE_PORT100 in the entry.
  U16 spTreePort100Offset() const;
  /// Whether the view has SP_TREE_PORT100.
  VELMAR_NODISCARD bool isSpTreePort100Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT101: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort101() const;
  /// Sets SP_TREE_PORT101.
  void spTreePort101Is(U8 value);
  /// Width of SP_TREE_PORT101 in bits.
  U16 spTreePort101Len() const;
  /// First bit of SP_TREE_PORT101 in the entry.
  U16 spTreePort101Offset() const;
  /// Whether the view has SP_TREE_PORT101.
  VELMAR_NODISCARD bool isSpTreePort101Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT102: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort102() const;
  /// Sets SP_TREE_PORT102.
  void spTreePort102Is(U8 value);
  /// Width of SP_TREE_PORT102 in bits.
  U16 spTreePort102Len() const;
  /// First bit of SP_TREE_PORT102 in the entry.
  U16 spTreePort102Offset() const;
  /// Whether the view has SP_TREE_PORT102.
  VELMAR_NODISCARD bool isSpTreePort102Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT103: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort103() const;
  /// Sets SP_TREE_PORT103.
  void spTreePort103Is(U8 value);
  /// Width of SP_TREE_PORT103 in bits.
  U16 spTreePort103Len() const;
  /// First bit of SP_TREE_PORT103 in the entry.
  U16 spTreePort103Offset() const;
  /// Whether the view has SP_TREE_PORT103.
  VELMAR_NODISCARD bool isSpTreePort103Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT104: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort104() const;
  /// Sets SP_TREE_PORT104.
  void spTreePort104Is(U8 value);
  /// Width of SP_TREE_PORT104 in bits.
  U16 spTreePort104Len() const;
  /// First bit of SP_TREE_PORT104 in the entry.
  U16 spTreePort104Offset() const;
  /// Whether the view has SP_TREE_PORT104.
  VELMAR_NODISCARD bool isSpTreePort104Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT105: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort105() const;
  /// Sets SP_TREE_PORT105.
  void spTreePort105Is(U8 value);
  /// Width of SP_TREE_PORT105 in bits.
  U16 spTreePort105Len() const;
  /// First bit of SP_TREE_PORT105 in the entry.
  U16 spTreePort105Offset() const;
  /// Whether the view has SP_TREE_PORT105.
  VELMAR_NODISCARD bool isSpTreePort105Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT106: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort106() const;
  /// Sets SP_TREE_PORT106.
  void spTreePort106Is(U8 value);
  /// Width of SP_TREE_PORT106 in bits.
  U16 spTreePort106Len() const;
  /// First bit of SP_TREE_PORT106 in the entry.
  U16 spTreePort106Offset() const;
  /// Whether the view has SP_TREE_PORT106.
  VELMAR_NODISCARD bool isSpTreePort106Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT107: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort107() const;
  /// Sets SP_TREE_PORT107.
  void spTreePort107Is(U8 value);
  /// Width of SP_TREE_PORT107 in bits.
  U16 spTreePort107Len() const;
  /// First bit of SP_TREE_PORT107 in the entry.
  U16 spTreePort107Offset() const;
  /// Whether the view has SP_TREE_PORT107.
  VELMAR_NODISCARD bool isSpTreePort107Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT108: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort108() const;
  /// Sets SP_TREE_PORT108.
  void spTreePort108Is(U8 value);
  /// Width of SP_TREE_PORT108 in bits.
  U16 spTreePort108Len() const;
  /// First bit of SP_TREE_PORT108 in the entry.
  U16 spTreePort108Offset() const;
  /// Whether the view has SP_TREE_PORT108.
  VELMAR_NODISCARD bool isSpTreePort108Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT109: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort109() const;
  /// Sets SP_TREE_PORT109.
  void spTreePort109Is(U8 value);
  /// Width of SP_TREE_PORT109 in bits.
  U16 spTreePort109Len() const;
  /// First bit of SP_TREE_PORT109 in the entry.
  U16 spTreePort109Offset() const;
  /// Whether the view has SP_TREE_PORT109.
  VELMAR_NODISCARD bool isSpTreePort109Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT110: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort110() const;
  /// Sets SP_TREE_PORT110.
  void spTreePort110Is(U8 value);
  /// Width of SP_TREE_PORT110 in bits.
  U16 spTreePort110Len() const;
  /// First bit of SP_TREE_PORT110 in the entry.
  U16 spTreePort110Offset() const;
  /// Whether the view has SP_TREE_PORT110.
  VELMAR_NODISCARD bool isSpTreePort110Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT111: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort111() const;
  /// Sets SP_TREE_PORT111.
  void spTreePort111Is(U8 value);
  /// Width of SP_TREE_PORT111 in bits.
  U16 spTreePort111Len() const;
  /// First bit of SP_TREE_PORT111 in the entry.
  U16 spTreePort111Offset() const;
  /// Whether the view has SP_TREE_PORT111.
  VELMAR_NODISCARD bool isSpTreePort111Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT112: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort112() const;
  /// Sets SP_TREE_PORT112.
  void spTreePort112Is(U8 value);
  /// Width of SP_TREE_PORT112 in bits.
  U16 spTreePort112Len() const;
  /// First bit of SP_TREE_PORT112 in the entry.
  U16 spTreePort112Offset() const;
  /// Whether the view has SP_TREE_PORT112.
  VELMAR_NODISCARD bool isSpTreePort112Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT113: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort113() const;
  /// Sets SP_TREE_PORT113.
  void spTreePort113Is(U8 value);
  /// Width of SP_TREE_PORT113 in bits.
  U16 spTreePort113Len() const;
  /// First bit of SP_TREE_PORT113 in the entry.
  U16 spTreePort113Offset() const;
  /// Whether the view has SP_TREE_PORT113.
  VELMAR_NODISCARD bool isSpTreePort113Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT114: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort114() const;
  /// Sets SP_TREE_PORT114.
  void spTreePort114Is(U8 value);
  /// Width of SP_TREE_PORT114 in bits.
  U16 spTreePort114Len() const;
  /// First bit of SP_TREE_PORT114 in the entry.
  U16 spTreePort114Offset() const;
  /// Whether the view has SP_TREE_PORT114.
  VELMAR_NODISCARD bool isSpTreePort114Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT115: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort115() const;
  /// Sets SP_TREE_PORT115.
  void spTreePort115Is(U8 value);
  /// Width of SP_TREE_PORT115 in bits.
  U16 spTreePort115Len() const;
  /// First bit of SP_TREE_PORT115 in the entry.
  U16 spTreePort115Offset() const;
  /// Whether the view has SP_TREE_PORT115.
  VELMAR_NODISCARD bool isSpTreePort115Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT116: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort116() const;
  /// Sets SP_TREE_PORT116.
  void spTreePort116Is(U8 value);
  /// Width of SP_TREE_PORT116 in bits.
  U16 spTreePort116Len() const;
  /// First bit of SP_TREE_PORT116 in the entry.
  U16 spTreePort116Offset() const;
  /// Whether the view has SP_TREE_PORT116.
  VELMAR_NODISCARD bool isSpTreePort116Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT117: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort117() const;
  /// Sets SP_TREE_PORT117.
  void spTreePort117Is(U8 value);
  /// Width of SP_TREE_PORT117 in bits.
  U16 spTreePort117Len() const;
  /// First bit of SP_TREE_PORT117 in the entry.
  U16 spTreePort117Offset() const;
  /// Whether the view has SP_TREE_PORT117.
  VELMAR_NODISCARD bool isSpTreePort117Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT118: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort118() const;
  /// Sets SP_TREE_PORT118.
  void spTreePort118Is(U8 value);
  /// Width of SP_TREE_PORT118 in bits.
  U16 spTreePort118Len() const;
  /// First bit of SP_TREE_PORT118 in the entry.
  U16 spTreePort118Offset() const;
  /// Whether the view has SP_TREE_PORT118.
  VELMAR_NODISCARD bool isSpTreePort118Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT119: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort119() const;
  /// Sets SP_TREE_PORT119.
  void spTreePort119Is(U8 value);
  /// Width of SP_TREE_PORT119 in bits.
  U16 spTreePort119Len() const;
  /// First bit of SP_TREE_PORT119 in the entry.
  U16 spTreePort119Offset() const;
  /// Whether the view has SP_TREE_PORT119.
  VELMAR_NODISCARD bool isSpTreePort119Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT120: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort120() const;
  /// Sets SP_TREE_PORT120.
  void spTreePort120Is(U8 value);
  /// Width of SP_TREE_PORT120 in bits.
  U16 spTreePort120Len() const;
  /// First bit of SP_TREE_PORT120 in the entry.
  U16 spTreePort120Offset() const;
  /// Whether the view has SP_TREE_PORT120.
  VELMAR_NODISCARD bool isSpTreePort120Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT121: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort121() const;
  /// Sets SP_TREE_PORT121.
  void spTreePort121Is(U8 value);
  /// Width of SP_TREE_PORT121 in bits.
  U16 spTreePort121Len() const;
  /// First bit of SP_TREE_PORT121 in the entry.
  U16 spTreePort121Offset() const;
  /// Whether the view has SP_TREE_PORT121.
  VELMAR_NODISCARD bool isSpTreePort121Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT122: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort122() const;
  /// Sets SP_TREE_PORT122.
  void spTreePort122Is(U8 value);
  /// Width of SP_TREE_PORT122 in bits.
  U16 spTreePort122Len() const;
  /// First bit of SP_TREE_PORT122 in the entry.
  U16 spTreePort122Offset() const;
  /// Whether the view has SP_TREE_PORT122.
  VELMAR_NODISCARD bool isSpTreePort122Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT123: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort123() const;
  /// Sets SP_TREE_PORT123.
  void spTreePort123Is(U8 value);
  /// Width of SP_TREE_PORT123 in bits.
  U16 spTreePort123Len() const;
  /// First bit of SP_TREE_PORT123 in the entry.
  U16 spTreePort123Offset() const;
  /// Whether the view has SP_TREE_PORT123.
  VELMAR_NODISCARD bool isSpTreePort123Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT124: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort124() const;
  /// Sets SP_TREE_PORT124.
  void spTreePort124Is(U8 value);
  /// Width of SP_TREE_PORT124 in bits.
  U16 spTreePort124Len() const;
  /// First bit of SP_TREE_PORT124 in the entry.
  U16 spTreePort124Offset() const;
  /// Whether the view has SP_TREE_PORT124.
  VELMAR_NODISCARD bool isSpTreePort124Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT125: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort125() const;
  /// Sets SP_TREE_PORT125.
  void spTreePort125Is(U8 value);
  /// Width of SP_TREE_PORT125 in bits.
  U16 spTreePort125Len() const;
  /// First bit of SP_TREE_PORT125 in the entry.
  U16 spTreePort125Offset() const;
  /// Whether the view has SP_TREE_PORT125.
  VELMAR_NODISCARD bool isSpTreePort125Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT126: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort126() const;
  /// Sets SP_TREE_PORT126.
  void spTreePort126Is(U8 value);
  /// Width of SP_TREE_PORT126 in bits.
  U16 spTreePort126Len() const;
  /// First bit of SP_TREE_PORT126 in the entry.
  U16 spTreePort126Offset() const;
  /// Whether the view has SP_TREE_PORT126.
  VELMAR_NODISCARD bool isSpTreePort126Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT127: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort127() const;
  /// Sets SP_TREE_PORT127.
  void spTreePort127Is(U8 value);
  /// Width of SP_TREE_PORT127 in bits.
  U16 spTreePort127Len() const;
  /// First bit of SP_TREE_PORT127 in the entry.
  U16 spTreePort127Offset() const;
  /// Whether the view has SP_TREE_PORT127.
  VELMAR_NODISCARD bool isSpTreePort127Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT128: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort128() const;
  /// Sets SP_TREE_PORT128.
  void spTreePort128Is(U8 value);
  /// Width of SP_TREE_PORT128 in bits.
  U16 spTreePort128Len() const;
  /// First bit of SP_TREE_PORT128 in the entry.
  U16 spTreePort128Offset() const;
  /// Whether the view has SP_TREE_PORT128.
  VELMAR_NODISCARD bool isSpTreePort128Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT129: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort129() const;
  /// Sets SP_TREE_PORT129.
  void spTreePort129Is(U8 value);
  /// Width of SP_TREE_PORT129 in bits.
  U16 spTreePort129Len() const;
  /// First bit of SP_TREE_PORT129 in the entry.
  U16 spTreePort129Offset() const;
  /// Whether the view has SP_TREE_PORT129.
  VELMAR_NODISCARD bool isSpTreePort129Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT130: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort130() const;
  /// Sets SP_TREE_PORT130.
  void spTreePort130Is(U8 value);
  /// Width of SP_TREE_PORT130 in bits.
  U16 spTreePort130Len() const;
  /// First bit of SP_TREE_PORT130 in the entry.
  U16 spTreePort130Offset() const;
  /// Whether the view has SP_TREE_PORT130.
  VELMAR_NODISCARD bool isSpTreePort130Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT131: 2 bits; on all chips but BCM56470_A0,
  /// BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort131() const;
  /// Sets SP_TREE_PORT131.
  void spTreePort131Is(U8 value);
  /// Width of SP_TREE_PORT131 in bits.
  U16 spTreePort131Len() const;
  /// First bit of SP_TREE_PORT131 in the entry.
  U16 spTreePort131Offset() const;
  /// Whether the view has SP_TREE_PORT131.
  VELMAR_NODISCARD bool isSpTreePort131Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT132: 2 bits; on all chips but BCM56870_A0,
  /// BCM56770_A0, BCM56470_A0, BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort132() const;
  /// Sets SP_TREE_PORT132.
  void spTreePort132Is(U8 value);
  /// Width of SP_TREE_PORT132 in bits.
  U16 spTreePort132Len() const;
  /// First bit of SP_TREE_PORT132 in the entry.
  U16 spTreePort132Offset() const;
  /// Whether the view has SP_TREE_PORT132.
  VELMAR_NODISCARD bool isSpTreePort132Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT133: 2 bits; on all chips but BCM56870_A0,
  /// BCM56770_A0, BCM56470_A0, BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort133() const;
  /// Sets SP_TREE_PORT133.
  void spTreePort133Is(U8 value);
  /// Width of SP_TREE_PORT133 in bits.
  U16 spTreePort133Len() const;
  /// First bit of SP_TREE_PORT133 in the entry.
  U16 spTreePort133Offset() const;
  /// Whether the view has SP_TREE_PORT133.
  VELMAR_NODISCARD bool isSpTreePort133Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT134: 2 bits; on all chips but BCM56870_A0,
  /// BCM56770_A0, BCM56470_A0, BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort134() const;
  /// Sets SP_TREE_PORT134.
  void spTreePort134Is(U8 value);
  /// Width of SP_TREE_PORT134 in bits.
  U16 spTreePort134Len() const;
  /// First bit of SP_TREE_PORT134 in the entry.
  U16 spTreePort134Offset() const;
  /// Whether the view has SP_TREE_PORT134.
  VELMAR_NODISCARD bool isSpTreePort134Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT135: 2 bits; on all chips but BCM56870_A0,
  /// BCM56770_A0, BCM56470_A0, BCM56370_A0, BCM56275_A0, BCM56175_A0.
  VELMAR_NODISCARD U8 spTreePort135() const;
  /// Sets SP_TREE_PORT135.
  void spTreePort135Is(U8 value);
  /// Width of SP_TREE_PORT135 in bits.
  U16 spTreePort135Len() const;
  /// First bit of SP_TREE_PORT135 in the entry.
  U16 spTreePort135Offset() const;
  /// Whether the view has SP_TREE_PORT135.
  VELMAR_NODISCARD bool isSpTreePort135Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT136: 2 bits; on BCM56980_A0.
  VELMAR_NODISCARD U8 spTreePort136() const;
  /// Sets SP_TREE_PORT136.
  void spTreePort136Is(U8 value);
  /// Width of SP_TREE_PORT136 in bits.
  U16 spTreePort136Len() const;
  /// First bit of SP_TREE_PORT136 in the entry.
  U16 spTreePort136Offset() const;
  /// Whether the view has SP_TREE_PORT136.
  VELMAR_NODISCARD bool isSpTreePort136Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT137: 2 bits; on BCM56980_A0.
  VELMAR_NODISCARD U8 spTreePort137() const;
  /// Sets SP_TREE_PORT137.
  void spTreePort137Is(U8 value);
  /// Width of SP_TREE_PORT137 in bits.
  U16 spTreePort137Len() const;
  /// First bit of SP_TREE_PORT137 in the entry.
  U16 spTreePort137Offset() const;
  /// Whether the view has SP_TREE_PORT137.
  VELMAR_NODISCARD bool isSpTreePort137Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT138: 2 bits; on BCM56980_A0.
  VELMAR_NODISCARD U8 spTreePort138() const;
  /// Sets SP_TREE_PORT138.
  void spTreePort138Is(U8 value);
  /// Width of SP_TREE_PORT138 in bits.
  U16 spTreePort138Len() const;
  /// First bit of SP_TREE_PORT138 in the entry.
  U16 spTreePort138Offset() const;
  /// Whether the view has SP_TREE_PORT138.
  VELMAR_NODISCARD bool isSpTreePort138Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT139: 2 bits; on BCM56980_A0.
  VELMAR_NODISCARD U8 spTreePort139() const;
  /// Sets SP_TREE_PORT139.
  void spTreePort139Is(U8 value);
  /// Width of SP_TREE_PORT139 in bits.
  U16 spTreePort139Len() const;
  /// First bit of SP_TREE_PORT139 in the entry.
  U16 spTreePort139Offset() const;
  /// Whether the view has SP_TREE_PORT139.
  VELMAR_NODISCARD bool isSpTreePort139Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT140: 2 bits; on BCM56980_A0.
  VELMAR_NODISCARD U8 spTreePort140() const;
  /// Sets SP_TREE_PORT140.
  void spTreePort140Is(U8 value);
  /// Width of SP_TREE_PORT140 in bits.
  U16 spTreePort140Len() const;
  /// First bit of SP_TREE_PORT140 in the entry.
  U16 spTreePort140Offset() const;
  /// Whether the view has SP_TREE_PORT140.
  VELMAR_NODISCARD bool isSpTreePort140Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT141: 2 bits; on BCM56980_A0.
  VELMAR_NODISCARD U8 spTreePort141() const;
  /// Sets SP_TREE_PORT141.
  void spTreePort141Is(U8 value);
  /// Width of SP_TREE_PORT141 in bits.
  U16 spTreePort141Len() const;
  /// First bit of SP_TREE_PORT141 in the entry.
  U16 spTreePort141Offset() const;
  /// Whether the view has SP_TREE_PORT141.
  VELMAR_NODISCARD bool isSpTreePort141Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT142: 2 bits; on BCM56980_A0.
  VELMAR_NODISCARD U8 spTreePort142() const;
  /// Sets SP_TREE_PORT142.
  void spTreePort142Is(U8 value);
  /// Width of SP_TREE_PORT142 in bits.
  U16 spTreePort142Len() const;
  /// First bit of SP_TREE_PORT142 in the entry.
  U16 spTreePort142Offset() const;
  /// Whether the view has SP_TREE_PORT142.
  VELMAR_NODISCARD bool isSpTreePort142Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT143: 2 bits; on BCM56980_A0.
  VELMAR_NODISCARD U8 spTreePort143() const;
  /// Sets SP_TREE_PORT143.
  void spTreePort143Is(U8 value);
  /// Width of SP_TREE_PORT143 in bits.
  U16 spTreePort143Len() const;
  /// First bit of SP_TREE_PORT143 in the entry.
  U16 spTreePort143Offset() const;
  /// Whether the view has SP_TREE_PORT143.
  VELMAR_NODISCARD bool isSpTreePort143Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT144: 2 bits; on BCM56980_A0.
  VELMAR_NODISCARD U8 spTreePort144() const;
  /// Sets SP_TREE_PORT144.
  void spTreePort144Is(U8 value);
  /// Width of SP_TREE_PORT144 in bits.
  U16 spTreePort144Len() const;
  /// First bit of SP_TREE_PORT144 in the entry.
  U16 spTreePort144Offset() const;
  /// Whether the view has SP_TREE_PORT144.
  VELMAR_NODISCARD bool isSpTreePort144Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT145: 2 bits; on BCM56980_A0.
  VELMAR_NODISCARD U8 spTreePort145() const;
  /// Sets SP_TREE_PORT145.
  void spTreePort145Is(U8 value);
  /// Width of SP_TREE_PORT145 in bits.
  U16 spTreePort145Len() const;
  /// First bit of SP_TREE_PORT145 in the entry.
  U16 spTreePort145Offset() const;
  /// Whether the view has SP_TREE_PORT145.
  VELMAR_NODISCARD bool isSpTreePort145Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT146: 2 bits; on BCM56980_A0.
  VELMAR_NODISCARD U8 spTreePort146() const;
  /// Sets SP_TREE_PORT146.
  void spTreePort146Is(U8 value);
  /// Width of SP_TREE_PORT146 in bits.
  U16 spTreePort146Len() const;
  /// First bit of SP_TREE_PORT146 in the entry.
  U16 spTreePort146Offset() const;
  /// Whether the view has SP_TREE_PORT146.
  VELMAR_NODISCARD bool isSpTreePort146Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT147: 2 bits; on BCM56980_A0.
  VELMAR_NODISCARD U8 spTreePort147() const;
  /// Sets SP_TREE_PORT147.
  void spTreePort147Is(U8 value);
  /// Width of SP_TREE_PORT147 in bits.
  U16 spTreePort147Len() const;
  /// First bit of SP_TREE_PORT147 in the entry.
  U16 spTreePort147Offset() const;
  /// Whether the view has SP_TREE_PORT147.
  VELMAR_NODISCARD bool isSpTreePort147Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT148: 2 bits; on BCM56980_A0.
  VELMAR_NODISCARD U8 spTreePort148() const;
  /// Sets SP_TREE_PORT148.
  void spTreePort148Is(U8 value);
  /// Width of SP_TREE_PORT148 in bits.
  U16 spTreePort148Len() const;
  /// First bit of SP_TREE_PORT148 in the entry.
  U16 spTreePort148Offset() const;
  /// Whether the view has SP_TREE_PORT148.
  VELMAR_NODISCARD bool isSpTreePort148Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT149: 2 bits; on BCM56980_A0.
  VELMAR_NODISCARD U8 spTreePort149() const;
  /// Sets SP_TREE_PORT149.
  void spTreePort149Is(U8 value);
  /// Width of SP_TREE_PORT149 in bits.
  U16 spTreePort149Len() const;
  /// First bit of SP_TREE_PORT149 in the entry.
  U16 spTreePort149Offset() const;
  /// Whether the view has SP_TREE_PORT149.
  VELMAR_NODISCARD bool isSpTreePort149Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT150: 2 bits; on BCM56980_A0.
  VELMAR_NODISCARD U8 spTreePort150() const;
  /// Sets SP_TREE_PORT150.
  void spTreePort150Is(U8 value);
  /// Width of SP_TREE_PORT150 in bits.
  U16 spTreePort150Len() const;
  /// First bit of SP_TREE_PORT150 in the entry.
  U16 spTreePort150Offset() const;
  /// Whether the view has SP_TREE_PORT150.
  VELMAR_NODISCARD bool isSpTreePort150Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT151: 2 bits; on BCM56980_A0.
  VELMAR_NODISCARD U8 spTreePort151() const;
  /// Sets SP_TREE_PORT151.
  void spTreePort151Is(U8 value);
  /// Width of SP_TREE_PORT151 in bits.
  U16 spTreePort151Len() const;
  /// First bit of SP_TREE_PORT151 in the entry.
  U16 spTreePort151Offset() const;
  /// Whether the view has SP_TREE_PORT151.
  VELMAR_NODISCARD bool isSpTreePort151Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT152: 2 bits; on BCM56980_A0.
  VELMAR_NODISCARD U8 spTreePort152() const;
  /// Sets SP_TREE_PORT152.
  void spTreePort152Is(U8 value);
  /// Width of SP_TREE_PORT152 in bits.
  U16 spTreePort152Len() const;
  /// First bit of SP_TREE_PORT152 in the entry.
  U16 spTreePort152Offset() const;
  /// Whether the view has SP_TREE_PORT152.
  VELMAR_NODISCARD bool isSpTreePort152Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT153: 2 bits; on BCM56980_A0.
  VELMAR_NODISCARD U8 spTreePort153() const;
  /// Sets SP_TREE_PORT153.
  void spTreePort153Is(U8 value);
  /// Width of SP_TREE_PORT153 in bits.
  U16 spTreePort153Len() const;
  /// First bit of SP_TREE_PORT153 in the entry.
  U16 spTreePort153Offset() const;
  /// Whether the view has SP_TREE_PORT153.
  VELMAR_NODISCARD bool isSpTreePort153Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT154: 2 bits; on BCM56980_A0.
  VELMAR_NODISCARD U8 spTreePort154() const;
  /// Sets SP_TREE_PORT154.
  void spTreePort154Is(U8 value);
  /// Width of SP_TREE_PORT154 in bits.
  U16 spTreePort154Len() const;
  /// First bit of SP_TREE_PORT154 in the entry.
  U16 spTreePort154Offset() const;
  /// Whether the view has SP_TREE_PORT154.
  VELMAR_NODISCARD bool isSpTreePort154Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT155: 2 bits; on BCM56980_A0.
  VELMAR_NODISCARD U8 spTreePort155() const;
  /// Sets SP_TREE_PORT155.
  void spTreePort155Is(U8 value);
  /// Width of SP_TREE_PORT155 in bits.
  U16 spTreePort155Len() const;
  /// First bit of SP_TREE_PORT155 in the entry.
  U16 spTreePort155Offset() const;
  /// Whether the view has SP_TREE_PORT155.
  VELMAR_NODISCARD bool isSpTreePort155Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT156: 2 bits; on BCM56980_A0.
  VELMAR_NODISCARD U8 spTreePort156() const;
  /// Sets SP_TREE_PORT156.
  void spTreePort156Is(U8 value);
  /// Width of SP_TREE_PORT156 in bits.
  U16 spTreePort156Len() const;
  /// First bit of SP_TREE_PORT156 in the entry.
  U16 spTreePort156Offset() const;
  /// Whether the view has SP_TREE_PORT156.
  VELMAR_NODISCARD bool isSpTreePort156Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT157: 2 bits; on BCM56980_A0.
  VELMAR_NODISCARD U8 spTreePort157() const;
  /// Sets SP_TREE_PORT157.
  void spTreePort157Is(U8 value);
  /// Width of SP_TREE_PORT157 in bits.
  U16 spTreePort157Len() const;
  /// First bit of SP_TREE_PORT157 in the entry.
  U16 spTreePort157Offset() const;
  /// Whether the view has SP_TREE_PORT157.
  VELMAR_NODISCARD bool isSpTreePort157Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT158: 2 bits; on BCM56980_A0.
  VELMAR_NODISCARD U8 spTreePort158() const;
  /// Sets SP_TREE_PORT158.
  void spTreePort158Is(U8 value);
  /// Width of SP_TREE_PORT158 in bits.
  U16 spTreePort158Len() const;
  /// First bit of SP_TREE_PORT158 in the entry.
  U16 spTreePort158Offset() const;
  /// Whether the view has SP_TREE_PORT158.
  VELMAR_NODISCARD bool isSpTreePort158Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT159: 2 bits; on BCM56980_A0.
  VELMAR_NODISCARD U8 spTreePort159() const;
  /// Sets SP_TREE_PORT159.
  void spTreePort159Is(U8 value);
  /// Width of SP_TREE_PORT159 in bits.
  U16 spTreePort159Len() const;
  /// First bit of SP_TREE_PORT159 in the entry.
  U16 spTreePort159Offset() const;
  /// Whether the view has SP_TREE_PORT159.
  VELMAR_NODISCARD bool isSpTreePort159Valid() const;
};

}  // namespace Velmar
