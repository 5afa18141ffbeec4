// Derived from tables/VlanStgBEntry.cpp; do not edit.
// To refresh: cmake --build --preset release --target refresh
#pragma once

#include "AsicUtils/BcmAsicBase.h"
#include "AsicUtils/ChipType.h"
#include "Velmar/Export.h"

namespace Velmar {

/// Ingress spanning-tree groups, upper ports, a state per port.
///
/// A view of one entry of this ingress memory. The caller owns the bytes; bit 0 of the entry is bit
/// 0 of the first byte. On BCM56990_B0, BCM56992_B0, BCM56993_B0, BCM56996_A0, BCM56996_B0: "from"
/// in the comments below follows this order.
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
class VELMAR_EXPORT VlanStgBEntry : public AsicUtils::BcmAsicBase {
 public:
  using EntrySpans = AsicUtils::EntrySpans;

  /// Binds the view to `buf`, `len` bytes that outlive it. If the chip or variant lacks the class:
  /// the soft assertion " not in metainfo for VlanStgBEntry!", then "\"0\" == nullptr".
  VlanStgBEntry(ChipType_ chipType, U8* buf, U16 len, bool flag, U8 variant);
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
  /// The valid indices on BCM56996_A0 and on chips with as many entries.
  static const AsicUtils::EntrySpan _entrySpans_BCM56996_A0[1];

  /// Spanning-tree state of the port. SP_TREE_PORT136: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort136() const;
  /// Sets SP_TREE_PORT136.
  void spTreePort136Is(U8 value);
  /// Width of SP_TREE_PORT136 in bits.
  U16 spTreePort136Len() const;
  /// First bit of SP_TREE_PORT136 in the entry.
  U16 spTreePort136Offset() const;
  /// Whether the view has SP_TREE_PORT136.
  VELMAR_NODISCARD bool isSpTreePort136Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT137: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort137() const;
  /// Sets SP_TREE_PORT137.
  void spTreePort137Is(U8 value);
  /// Width of SP_TREE_PORT137 in bits.
  U16 spTreePort137Len() const;
  /// First bit of SP_TREE_PORT137 in the entry.
  U16 spTreePort137Offset() const;
  /// Whether the view has SP_TREE_PORT137.
  VELMAR_NODISCARD bool isSpTreePort137Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT138: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort138() const;
  /// Sets SP_TREE_PORT138.
  void spTreePort138Is(U8 value);
  /// Width of SP_TREE_PORT138 in bits.
  U16 spTreePort138Len() const;
  /// First bit of SP_TREE_PORT138 in the entry.
  U16 spTreePort138Offset() const;
  /// Whether the view has SP_TREE_PORT138.
  VELMAR_NODISCARD bool isSpTreePort138Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT139: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort139() const;
  /// Sets SP_TREE_PORT139.
  void spTreePort139Is(U8 value);
  /// Width of SP_TREE_PORT139 in bits.
  U16 spTreePort139Len() const;
  /// First bit of SP_TREE_PORT139 in the entry.
  U16 spTreePort139Offset() const;
  /// Whether the view has SP_TREE_PORT139.
  VELMAR_NODISCARD bool isSpTreePort139Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT140: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort140() const;
  /// Sets SP_TREE_PORT140.
  void spTreePort140Is(U8 value);
  /// Width of SP_TREE_PORT140 in bits.
  U16 spTreePort140Len() const;
  /// First bit of SP_TREE_PORT140 in the entry.
  U16 spTreePort140Offset() const;
  /// Whether the view has SP_TREE_PORT140.
  VELMAR_NODISCARD bool isSpTreePort140Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT141: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort141() const;
  /// Sets SP_TREE_PORT141.
  void spTreePort141Is(U8 value);
  /// Width of SP_TREE_PORT141 in bits.
  U16 spTreePort141Len() const;
  /// First bit of SP_TREE_PORT141 in the entry.
  U16 spTreePort141Offset() const;
  /// Whether the view has SP_TREE_PORT141.
  VELMAR_NODISCARD bool isSpTreePort141Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT142: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort142() const;
  /// Sets SP_TREE_PORT142.
  void spTreePort142Is(U8 value);
  /// Width of SP_TREE_PORT142 in bits.
  U16 spTreePort142Len() const;
  /// First bit of SP_TREE_PORT142 in the entry.
  U16 spTreePort142Offset() const;
  /// Whether the view has SP_TREE_PORT142.
  VELMAR_NODISCARD bool isSpTreePort142Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT143: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort143() const;
  /// Sets SP_TREE_PORT143.
  void spTreePort143Is(U8 value);
  /// Width of SP_TREE_PORT143 in bits.
  U16 spTreePort143Len() const;
  /// First bit of SP_TREE_PORT143 in the entry.
  U16 spTreePort143Offset() const;
  /// Whether the view has SP_TREE_PORT143.
  VELMAR_NODISCARD bool isSpTreePort143Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT144: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort144() const;
  /// Sets SP_TREE_PORT144.
  void spTreePort144Is(U8 value);
  /// Width of SP_TREE_PORT144 in bits.
  U16 spTreePort144Len() const;
  /// First bit of SP_TREE_PORT144 in the entry.
  U16 spTreePort144Offset() const;
  /// Whether the view has SP_TREE_PORT144.
  VELMAR_NODISCARD bool isSpTreePort144Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT145: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort145() const;
  /// Sets SP_TREE_PORT145.
  void spTreePort145Is(U8 value);
  /// Width of SP_TREE_PORT145 in bits.
  U16 spTreePort145Len() const;
  /// First bit of SP_TREE_PORT145 in the entry.
  U16 spTreePort145Offset() const;
  /// Whether the view has SP_TREE_PORT145.
  VELMAR_NODISCARD bool isSpTreePort145Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT146: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort146() const;
  /// Sets SP_TREE_PORT146.
  void spTreePort146Is(U8 value);
  /// Width of SP_TREE_PORT146 in bits.
  U16 spTreePort146Len() const;
  /// First bit of SP_TREE_PORT146 in the entry.
  U16 spTreePort146Offset() const;
  /// Whether the view has SP_TREE_PORT146.
  VELMAR_NODISCARD bool isSpTreePort146Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT147: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort147() const;
  /// Sets SP_TREE_PORT147.
  void spTreePort147Is(U8 value);
  /// Width of SP_TREE_PORT147 in bits.
  U16 spTreePort147Len() const;
  /// First bit of SP_TREE_PORT147 in the entry.
  U16 spTreePort147Offset() const;
  /// Whether the view has SP_TREE_PORT147.
  VELMAR_NODISCARD bool isSpTreePort147Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT148: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort148() const;
  /// Sets SP_TREE_PORT148.
  void spTreePort148Is(U8 value);
  /// Width of SP_TREE_PORT148 in bits.
  U16 spTreePort148Len() const;
  /// First bit of SP_TREE_PORT148 in the entry.
  U16 spTreePort148Offset() const;
  /// Whether the view has SP_TREE_PORT148.
  VELMAR_NODISCARD bool isSpTreePort148Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT149: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort149() const;
  /// Sets SP_TREE_PORT149.
  void spTreePort149Is(U8 value);
  /// Width of SP_TREE_PORT149 in bits.
  U16 spTreePort149Len() const;
  /// First bit of SP_TREE_PORT149 in the entry.
  U16 spTreePort149Offset() const;
  /// Whether the view has SP_TREE_PORT149.
  VELMAR_NODISCARD bool isSpTreePort149Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT150: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort150() const;
  /// Sets SP_TREE_PORT150.
  void spTreePort150Is(U8 value);
  /// Width of SP_TREE_PORT150 in bits.
  U16 spTreePort150Len() const;
  /// First bit of SP_TREE_PORT150 in the entry.
  U16 spTreePort150Offset() const;
  /// Whether the view has SP_TREE_PORT150.
  VELMAR_NODISCARD bool isSpTreePort150Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT151: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort151() const;
  /// Sets SP_TREE_PORT151.
  void spTreePort151Is(U8 value);
  /// Width of SP_TREE_PORT151 in bits.
  U16 spTreePort151Len() const;
  /// First bit of SP_TREE_PORT151 in the entry.
  U16 spTreePort151Offset() const;
  /// Whether the view has SP_TREE_PORT151.
  VELMAR_NODISCARD bool isSpTreePort151Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT152: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort152() const;
  /// Sets SP_TREE_PORT152.
  void spTreePort152Is(U8 value);
  /// Width of SP_TREE_PORT152 in bits.
  U16 spTreePort152Len() const;
  /// First bit of SP_TREE_PORT152 in the entry.
  U16 spTreePort152Offset() const;
  /// Whether the view has SP_TREE_PORT152.
  VELMAR_NODISCARD bool isSpTreePort152Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT153: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort153() const;
  /// Sets SP_TREE_PORT153.
  void spTreePort153Is(U8 value);
  /// Width of SP_TREE_PORT153 in bits.
  U16 spTreePort153Len() const;
  /// First bit of SP_TREE_PORT153 in the entry.
  U16 spTreePort153Offset() const;
  /// Whether the view has SP_TREE_PORT153.
  VELMAR_NODISCARD bool isSpTreePort153Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT154: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort154() const;
  /// Sets SP_TREE_PORT154.
  void spTreePort154Is(U8 value);
  /// Width of SP_TREE_PORT154 in bits.
  U16 spTreePort154Len() const;
  /// First bit of SP_TREE_PORT154 in the entry.
  U16 spTreePort154Offset() const;
  /// Whether the view has SP_TREE_PORT154.
  VELMAR_NODISCARD bool isSpTreePort154Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT155: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort155() const;
  /// Sets SP_TREE_PORT155.
  void spTreePort155Is(U8 value);
  /// Width of SP_TREE_PORT155 in bits.
  U16 spTreePort155Len() const;
  /// First bit of SP_TREE_PORT155 in the entry.
  U16 spTreePort155Offset() const;
  /// Whether the view has SP_TREE_PORT155.
  VELMAR_NODISCARD bool isSpTreePort155Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT156: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort156() const;
  /// Sets SP_TREE_PORT156.
  void spTreePort156Is(U8 value);
  /// Width of SP_TREE_PORT156 in bits.
  U16 spTreePort156Len() const;
  /// First bit of SP_TREE_PORT156 in the entry.
  U16 spTreePort156Offset() const;
  /// Whether the view has SP_TREE_PORT156.
  VELMAR_NODISCARD bool isSpTreePort156Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT157: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort157() const;
  /// Sets SP_TREE_PORT157.
  void spTreePort157Is(U8 value);
  /// Width of SP_TREE_PORT157 in bits.
  U16 spTreePort157Len() const;
  /// First bit of SP_TREE_PORT157 in the entry.
  U16 spTreePort157Offset() const;
  /// Whether the view has SP_TREE_PORT157.
  VELMAR_NODISCARD bool isSpTreePort157Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT158: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort158() const;
  /// Sets SP_TREE_PORT158.
  void spTreePort158Is(U8 value);
  /// Width of SP_TREE_PORT158 in bits.
  U16 spTreePort158Len() const;
  /// First bit of SP_TREE_PORT158 in the entry.
  U16 spTreePort158Offset() const;
  /// Whether the view has SP_TREE_PORT158.
  VELMAR_NODISCARD bool isSpTreePort158Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT159: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort159() const;
  /// Sets SP_TREE_PORT159.
  void spTreePort159Is(U8 value);
  /// Width of SP_TREE_PORT159 in bits.
  U16 spTreePort159Len() const;
  /// First bit of SP_TREE_PORT159 in the entry.
  U16 spTreePort159Offset() const;
  /// Whether the view has SP_TREE_PORT159.
  VELMAR_NODISCARD bool isSpTreePort159Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT160: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort160() const;
  /// Sets SP_TREE_PORT160.
  void spTreePort160Is(U8 value);
  /// Width of SP_TREE_PORT160 in bits.
  U16 spTreePort160Len() const;
  /// First bit of SP_TREE_PORT160 in the entry.
  U16 spTreePort160Offset() const;
  /// Whether the view has SP_TREE_PORT160.
  VELMAR_NODISCARD bool isSpTreePort160Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT161: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort161() const;
  /// Sets SP_TREE_PORT161.
  void spTreePort161Is(U8 value);
  /// Width of SP_TREE_PORT161 in bits.
  U16 spTreePort161Len() const;
  /// First bit of SP_TREE_PORT161 in the entry.
  U16 spTreePort161Offset() const;
  /// Whether the view has SP_TREE_PORT161.
  VELMAR_NODISCARD bool isSpTreePort161Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT162: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort162() const;
  /// Sets SP_TREE_PORT162.
  void spTreePort162Is(U8 value);
  /// Width of SP_TREE_PORT162 in bits.
  U16 spTreePort162Len() const;
  /// First bit of SP_TREE_PORT162 in the entry.
  U16 spTreePort162Offset() const;
  /// Whether the view has SP_TREE_PORT162.
  VELMAR_NODISCARD bool isSpTreePort162Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT163: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort163() const;
  /// Sets SP_TREE_PORT163.
  void spTreePort163Is(U8 value);
  /// Width of SP_TREE_PORT163 in bits.
  U16 spTreePort163Len() const;
  /// First bit of SP_TREE_PORT163 in the entry.
  U16 spTreePort163Offset() const;
  /// Whether the view has SP_TREE_PORT163.
  VELMAR_NODISCARD bool isSpTreePort163Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT164: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort164() const;
  /// Sets SP_TREE_PORT164.
  void spTreePort164Is(U8 value);
  /// Width of SP_TREE_PORT164 in bits.
  U16 spTreePort164Len() const;
  /// First bit of SP_TREE_PORT164 in the entry.
  U16 spTreePort164Offset() const;
  /// Whether the view has SP_TREE_PORT164.
  VELMAR_NODISCARD bool isSpTreePort164Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT165: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort165() const;
  /// Sets SP_TREE_PORT165.
  void spTreePort165Is(U8 value);
  /// Width of SP_TREE_PORT165 in bits.
  U16 spTreePort165Len() const;
  /// First bit of SP_TREE_PORT165 in the entry.
  U16 spTreePort165Offset() const;
  /// Whether the view has SP_TREE_PORT165.
  VELMAR_NODISCARD bool isSpTreePort165Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT166: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort166() const;
  /// Sets SP_TREE_PORT166.
  void spTreePort166Is(U8 value);
  /// Width of SP_TREE_PORT166 in bits.
  U16 spTreePort166Len() const;
  /// First bit of SP_TREE_PORT166 in the entry.
  U16 spTreePort166Offset() const;
  /// Whether the view has SP_TREE_PORT166.
  VELMAR_NODISCARD bool isSpTreePort166Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT167: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort167() const;
  /// Sets SP_TREE_PORT167.
  void spTreePort167Is(U8 value);
  /// Width of SP_TREE_PORT167 in bits.
  U16 spTreePort167Len() const;
  /// First bit of SP_TREE_PORT167 in the entry.
  U16 spTreePort167Offset() const;
  /// Whether the view has SP_TREE_PORT167.
  VELMAR_NODISCARD bool isSpTreePort167Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT168: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort168() const;
  /// Sets SP_TREE_PORT168.
  void spTreePort168Is(U8 value);
  /// Width of SP_TREE_PORT168 in bits.
  U16 spTreePort168Len() const;
  /// First bit of SP_TREE_PORT168 in the entry.
  U16 spTreePort168Offset() const;
  /// Whether the view has SP_TREE_PORT168.
  VELMAR_NODISCARD bool isSpTreePort168Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT169: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort169() const;
  /// Sets SP_TREE_PORT169.
  void spTreePort169Is(U8 value);
  /// Width of SP_TREE_PORT169 in bits.
  U16 spTreePort169Len() const;
  /// First bit of SP_TREE_PORT169 in the entry.
  U16 spTreePort169Offset() const;
  /// Whether the view has SP_TREE_PORT169.
  VELMAR_NODISCARD bool isSpTreePort169Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT170: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort170() const;
  /// Sets SP_TREE_PORT170.
  void spTreePort170Is(U8 value);
  /// Width of SP_TREE_PORT170 in bits.
  U16 spTreePort170Len() const;
  /// First bit of SP_TREE_PORT170 in the entry.
  U16 spTreePort170Offset() const;
  /// Whether the view has SP_TREE_PORT170.
  VELMAR_NODISCARD bool isSpTreePort170Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT171: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort171() const;
  /// Sets SP_TREE_PORT171.
  void spTreePort171Is(U8 value);
  /// Width of SP_TREE_PORT171 in bits.
  U16 spTreePort171Len() const;
  /// First bit of SP_TREE_PORT171 in the entry.
  U16 spTreePort171Offset() const;
  /// Whether the view has SP_TREE_PORT171.
  VELMAR_NODISCARD bool isSpTreePort171Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT172: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort172() const;
  /// Sets SP_TREE_PORT172.
  void spTreePort172Is(U8 value);
  /// Width of SP_TREE_PORT172 in bits.
  U16 spTreePort172Len() const;
  /// First bit of SP_TREE_PORT172 in the entry.
  U16 spTreePort172Offset() const;
  /// Whether the view has SP_TREE_PORT172.
  VELMAR_NODISCARD bool isSpTreePort172Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT173: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort173() const;
  /// Sets SP_TREE_PORT173.
  void spTreePort173Is(U8 value);
  /// Width of SP_TREE_PORT173 in bits.
  U16 spTreePort173Len() const;
  /// First bit of SP_TREE_PORT173 in the entry.
  U16 spTreePort173Offset() const;
  /// Whether the view has SP_TREE_PORT173.
  VELMAR_NODISCARD bool isSpTreePort173Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT174: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort174() const;
  /// Sets SP_TREE_PORT174.
  void spTreePort174Is(U8 value);
  /// Width of SP_TREE_PORT174 in bits.
  U16 spTreePort174Len() const;
  /// First bit of SP_TREE_PORT174 in the entry.
  U16 spTreePort174Offset() const;
  /// Whether the view has SP_TREE_PORT174.
  VELMAR_NODISCARD bool isSpTreePort174Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT175: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort175() const;
  /// Sets SP_TREE_PORT175.
  void spTreePort175Is(U8 value);
  /// Width of SP_TREE_PORT175 in bits.
  U16 spTreePort175Len() const;
  /// First bit of SP_TREE_PORT175 in the entry.
  U16 spTreePort175Offset() const;
  /// Whether the view has SP_TREE_PORT175.
  VELMAR_NODISCARD bool isSpTreePort175Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT176: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort176() const;
  /// Sets SP_TREE_PORT176.
  void spTreePort176Is(U8 value);
  /// Width of SP_TREE_PORT176 in bits.
  U16 spTreePort176Len() const;
  /// First bit of SP_TREE_PORT176 in the entry.
  U16 spTreePort176Offset() const;
  /// Whether the view has SP_TREE_PORT176.
  VELMAR_NODISCARD bool isSpTreePort176Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT177: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort177() const;
  /// Sets SP_TREE_PORT177.
  void spTreePort177Is(U8 value);
  /// Width of SP_TREE_PORT177 in bits.
  U16 spTreePort177Len() const;
  /// First bit of SP_TREE_PORT177 in the entry.
  U16 spTreePort177Offset() const;
  /// Whether the view has SP_TREE_PORT177.
  VELMAR_NODISCARD bool isSpTreePort177Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT178: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort178() const;
  /// Sets SP_TREE_PORT178.
  void spTreePort178Is(U8 value);
  /// Width of SP_TREE_PORT178 in bits.
  U16 spTreePort178Len() const;
  /// First bit of SP_TREE_PORT178 in the entry.
  U16 spTreePort178Offset() const;
  /// Whether the view has SP_TREE_PORT178.
  VELMAR_NODISCARD bool isSpTreePort178Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT179: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort179() const;
  /// Sets SP_TREE_PORT179.
  void spTreePort179Is(U8 value);
  /// Width of SP_TREE_PORT179 in bits.
  U16 spTreePort179Len() const;
  /// First bit of SP_TREE_PORT179 in the entry.
  U16 spTreePort179Offset() const;
  /// Whether the view has SP_TREE_PORT179.
  VELMAR_NODISCARD bool isSpTreePort179Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT180: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort180() const;
  /// Sets SP_TREE_PORT180.
  void spTreePort180Is(U8 value);
  /// Width of SP_TREE_PORT180 in bits.
  U16 spTreePort180Len() const;
  /// First bit of SP_TREE_PORT180 in the entry.
  U16 spTreePort180Offset() const;
  /// Whether the view has SP_TREE_PORT180.
  VELMAR_NODISCARD bool isSpTreePort180Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT181: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort181() const;
  /// Sets SP_TREE_PORT181.
  void spTreePort181Is(U8 value);
  /// Width of SP_TREE_PORT181 in bits.
  U16 spTreePort181Len() const;
  /// First bit of SP_TREE_PORT181 in the entry.
  U16 spTreePort181Offset() const;
  /// Whether the view has SP_TREE_PORT181.
  VELMAR_NODISCARD bool isSpTreePort181Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT182: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort182() const;
  /// Sets SP_TREE_PORT182.
  void spTreePort182Is(U8 value);
  /// Width of SP_TREE_PORT182 in bits.
  U16 spTreePort182Len() const;
  /// First bit of SP_TREE_PORT182 in the entry.
  U16 spTreePort182Offset() const;
  /// Whether the view has SP_TREE_PORT182.
  VELMAR_NODISCARD bool isSpTreePort182Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT183: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort183() const;
  /// Sets SP_TREE_PORT183.
  void spTreePort183Is(U8 value);
  /// Width of SP_TREE_PORT183 in bits.
  U16 spTreePort183Len() const;
  /// First bit of SP_TREE_PORT183 in the entry.
  U16 spTreePort183Offset() const;
  /// Whether the view has SP_TREE_PORT183.
  VELMAR_NODISCARD bool isSpTreePort183Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT184: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort184() const;
  /// Sets SP_TREE_PORT184.
  void spTreePort184Is(U8 value);
  /// Width of SP_TREE_PORT184 in bits.
  U16 spTreePort184Len() const;
  /// First bit of SP_TREE_PORT184 in the entry.
  U16 spTreePort184Offset() const;
  /// Whether the view has SP_TREE_PORT184.
  VELMAR_NODISCARD bool isSpTreePort184Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT185: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort185() const;
  /// Sets SP_TREE_PORT185.
  void spTreePort185Is(U8 value);
  /// Width of SP_TREE_PORT185 in bits.
  U16 spTreePort185Len() const;
  /// First bit of SP_TREE_PORT185 in the entry.
  U16 spTreePort185Offset() const;
  /// Whether the view has SP_TREE_PORT185.
  VELMAR_NODISCARD bool isSpTreePort185Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT186: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort186() const;
  /// Sets SP_TREE_PORT186.
  void spTreePort186Is(U8 value);
  /// Width of SP_TREE_PORT186 in bits.
  U16 spTreePort186Len() const;
  /// First bit of SP_TREE_PORT186 in the entry.
  U16 spTreePort186Offset() const;
  /// Whether the view has SP_TREE_PORT186.
  VELMAR_NODISCARD bool isSpTreePort186Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT187: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort187() const;
  /// Sets SP_TREE_PORT187.
  void spTreePort187Is(U8 value);
  /// Width of SP_TREE_PORT187 in bits.
  U16 spTreePort187Len() const;
  /// First bit of SP_TREE_PORT187 in the entry.
  U16 spTreePort187Offset() const;
  /// Whether the view has SP_TREE_PORT187.
  VELMAR_NODISCARD bool isSpTreePort187Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT188: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort188() const;
  /// Sets SP_TREE_PORT188.
  void spTreePort188Is(U8 value);
  /// Width of SP_TREE_PORT188 in bits.
  U16 spTreePort188Len() const;
  /// First bit of SP_TREE_PORT188 in the entry.
  U16 spTreePort188Offset() const;
  /// Whether the view has SP_TREE_PORT188.
  VELMAR_NODISCARD bool isSpTreePort188Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT189: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort189() const;
  /// Sets SP_TREE_PORT189.
  void spTreePort189Is(U8 value);
  /// Width of SP_TREE_PORT189 in bits.
  U16 spTreePort189Len() const;
  /// First bit of SP_TREE_PORT189 in the entry.
  U16 spTreePort189Offset() const;
  /// Whether the view has SP_TREE_PORT189.
  VELMAR_NODISCARD bool isSpTreePort189Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT190: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort190() const;
  /// Sets SP_TREE_PORT190.
  void spTreePort190Is(U8 value);
  /// Width of SP_TREE_PORT190 in bits.
  U16 spTreePort190Len() const;
  /// First bit of SP_TREE_PORT190 in the entry.
  U16 spTreePort190Offset() const;
  /// Whether the view has SP_TREE_PORT190.
  VELMAR_NODISCARD bool isSpTreePort190Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT191: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort191() const;
  /// Sets SP_TREE_PORT191.
  void spTreePort191Is(U8 value);
  /// Width of SP_TREE_PORT191 in bits.
  U16 spTreePort191Len() const;
  /// First bit of SP_TREE_PORT191 in the entry.
  U16 spTreePort191Offset() const;
  /// Whether the view has SP_TREE_PORT191.
  VELMAR_NODISCARD bool isSpTreePort191Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT192: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort192() const;
  /// Sets SP_TREE_PORT192.
  void spTreePort192Is(U8 value);
  /// Width of SP_TREE_PORT192 in bits.
  U16 spTreePort192Len() const;
  /// First bit of SP_TREE_PORT192 in the entry.
  U16 spTreePort192Offset() const;
  /// Whether the view has SP_TREE_PORT192.
  VELMAR_NODISCARD bool isSpTreePort192Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT193: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort193() const;
  /// Sets SP_TREE_PORT193.
  void spTreePort193Is(U8 value);
  /// Width of SP_TREE_PORT193 in bits.
  U16 spTreePort193Len() const;
  /// First bit of SP_TREE_PORT193 in the entry.
  U16 spTreePort193Offset() const;
  /// Whether the view has SP_TREE_PORT193.
  VELMAR_NODISCARD bool isSpTreePort193Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT194: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort194() const;
  /// Sets SP_TREE_PORT194.
  void spTreePort194Is(U8 value);
  /// Width of SP_TREE_PORT194 in bits.
  U16 spTreePort194Len() const;
  /// First bit of SP_TREE_PORT194 in the entry.
  U16 spTreePort194Offset() const;
  /// Whether the view has SP_TREE_PORT194.
  VELMAR_NODISCARD bool isSpTreePort194Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT195: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort195() const;
  /// Sets SP_TREE_PORT195.
  void spTreePort195Is(U8 value);
  /// Width of SP_TREE_PORT195 in bits.
  U16 spTreePort195Len() const;
  /// First bit of SP_TREE_PORT195 in the entry.
  U16 spTreePort195Offset() const;
  /// Whether the view has SP_TREE_PORT195.
  VELMAR_NODISCARD bool isSpTreePort195Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT196: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort196() const;
  /// Sets SP_TREE_PORT196.
  void spTreePort196Is(U8 value);
  /// Width of SP_TREE_PORT196 in bits.
  U16 spTreePort196Len() const;
  /// First bit of SP_TREE_PORT196 in the entry.
  U16 spTreePort196Offset() const;
  /// Whether the view has SP_TREE_PORT196.
  VELMAR_NODISCARD bool isSpTreePort196Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT197: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort197() const;
  /// Sets SP_TREE_PORT197.
  void spTreePort197Is(U8 value);
  /// Width of SP_TREE_PORT197 in bits.
  U16 spTreePort197Len() const;
  /// First bit of SP_TREE_PORT197 in the entry.
  U16 spTreePort197Offset() const;
  /// Whether the view has SP_TREE_PORT197.
  VELMAR_NODISCARD bool isSpTreePort197Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT198: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort198() const;
  /// Sets SP_TREE_PORT198.
  void spTreePort198Is(U8 value);
  /// Width of SP_TREE_PORT198 in bits.
  U16 spTreePort198Len() const;
  /// First bit of SP_TREE_PORT198 in the entry.
  U16 spTreePort198Offset() const;
  /// Whether the view has SP_TREE_PORT198.
  VELMAR_NODISCARD bool isSpTreePort198Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT199: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort199() const;
  /// Sets SP_TREE_PORT199.
  void spTreePort199Is(U8 value);
  /// Width of SP_TREE_PORT199 in bits.
  U16 spTreePort199Len() const;
  /// First bit of SP_TREE_PORT199 in the entry.
  U16 spTreePort199Offset() const;
  /// Whether the view has SP_TREE_PORT199.
  VELMAR_NODISCARD bool isSpTreePort199Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT200: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort200() const;
  /// Sets SP_TREE_PORT200.
  void spTreePort200Is(U8 value);
  /// Width of SP_TREE_PORT200 in bits.
  U16 spTreePort200Len() const;
  /// First bit of SP_TREE_PORT200 in the entry.
  U16 spTreePort200Offset() const;
  /// Whether the view has SP_TREE_PORT200.
  VELMAR_NODISCARD bool isSpTreePort200Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT201: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort201() const;
  /// Sets SP_TREE_PORT201.
  void spTreePort201Is(U8 value);
  /// Width of SP_TREE_PORT201 in bits.
  U16 spTreePort201Len() const;
  /// First bit of SP_TREE_PORT201 in the entry.
  U16 spTreePort201Offset() const;
  /// Whether the view has SP_TREE_PORT201.
  VELMAR_NODISCARD bool isSpTreePort201Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT202: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort202() const;
  /// Sets SP_TREE_PORT202.
  void spTreePort202Is(U8 value);
  /// Width of SP_TREE_PORT202 in bits.
  U16 spTreePort202Len() const;
  /// First bit of SP_TREE_PORT202 in the entry.
  U16 spTreePort202Offset() const;
  /// Whether the view has SP_TREE_PORT202.
  VELMAR_NODISCARD bool isSpTreePort202Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT203: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort203() const;
  /// Sets SP_TREE_PORT203.
  void spTreePort203Is(U8 value);
  /// Width of SP_TREE_PORT203 in bits.
  U16 spTreePort203Len() const;
  /// First bit of SP_TREE_PORT203 in the entry.
  U16 spTreePort203Offset() const;
  /// Whether the view has SP_TREE_PORT203.
  VELMAR_NODISCARD bool isSpTreePort203Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT204: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort204() const;
  /// Sets SP_TREE_PORT204.
  void spTreePort204Is(U8 value);
  /// Width of SP_TREE_PORT204 in bits.
  U16 spTreePort204Len() const;
  /// First bit of SP_TREE_PORT204 in the entry.
  U16 spTreePort204Offset() const;
  /// Whether the view has SP_TREE_PORT204.
  VELMAR_NODISCARD bool isSpTreePort204Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT205: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort205() const;
  /// Sets SP_TREE_PORT205.
  void spTreePort205Is(U8 value);
  /// Width of SP_TREE_PORT205 in bits.
  U16 spTreePort205Len() const;
  /// First bit of SP_TREE_PORT205 in the entry.
  U16 spTreePort205Offset() const;
  /// Whether the view has SP_TREE_PORT205.
  VELMAR_NODISCARD bool isSpTreePort205Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT206: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort206() const;
  /// Sets SP_TREE_PORT206.
  void spTreePort206Is(U8 value);
  /// Width of SP_TREE_PORT206 in bits.
  U16 spTreePort206Len() const;
  /// First bit of SP_TREE_PORT206 in the entry.
  U16 spTreePort206Offset() const;
  /// Whether the view has SP_TREE_PORT206.
  VELMAR_NODISCARD bool isSpTreePort206Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT207: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort207() const;
  /// Sets SP_TREE_PORT207.
  void spTreePort207Is(U8 value);
  /// Width of SP_TREE_PORT207 in bits.
  U16 spTreePort207Len() const;
  /// First bit of SP_TREE_PORT207 in the entry.
  U16 spTreePort207Offset() const;
  /// Whether the view has SP_TREE_PORT207.
  VELMAR_NODISCARD bool isSpTreePort207Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT208: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort208() const;
  /// Sets SP_TREE_PORT208.
  void spTreePort208Is(U8 value);
  /// Width of SP_TREE_PORT208 in bits.
  U16 spTreePort208Len() const;
  /// First bit of SP_TREE_PORT208 in the entry.
  U16 spTreePort208Offset() const;
  /// Whether the view has SP_TREE_PORT208.
  VELMAR_NODISCARD bool isSpTreePort208Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT209: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort209() const;
  /// Sets SP_TREE_PORT209.
  void spTreePort209Is(U8 value);
  /// Width of SP_TREE_PORT209 in bits.
  U16 spTreePort209Len() const;
  /// First bit of SP_TREE_PORT209 in the entry.
  U16 spTreePort209Offset() const;
  /// Whether the view has SP_TREE_PORT209.
  VELMAR_NODISCARD bool isSpTreePort209Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT210: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort210() const;
  /// Sets SP_TREE_PORT210.
  void spTreePort210Is(U8 value);
  /// Width of SP_TREE_PORT210 in bits.
  U16 spTreePort210Len() const;
  /// First bit of SP_TREE_PORT210 in the entry.
  U16 spTreePort210Offset() const;
  /// Whether the view has SP_TREE_PORT210.
  VELMAR_NODISCARD bool isSpTreePort210Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT211: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort211() const;
  /// Sets SP_TREE_PORT211.
  void spTreePort211Is(U8 value);
  /// Width of SP_TREE_PORT211 in bits.
  U16 spTreePort211Len() const;
  /// First bit of SP_TREE_PORT211 in the entry.
  U16 spTreePort211Offset() const;
  /// Whether the view has SP_TREE_PORT211.
  VELMAR_NODISCARD bool isSpTreePort211Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT212: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort212() const;
  /// Sets SP_TREE_PORT212.
  void spTreePort212Is(U8 value);
  /// Width of SP_TREE_PORT212 in bits.
  U16 spTreePort212Len() const;
  /// First bit of SP_TREE_PORT212 in the entry.
  U16 spTreePort212Offset() const;
  /// Whether the view has SP_TREE_PORT212.
  VELMAR_NODISCARD bool isSpTreePort212Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT213: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort213() const;
  /// Sets SP_TREE_PORT213.
  void spTreePort213Is(U8 value);
  /// Width of SP_TREE_PORT213 in bits.
  U16 spTreePort213Len() const;
  /// First bit of SP_TREE_PORT213 in the entry.
  U16 spTreePort213Offset() const;
  /// Whether the view has SP_TREE_PORT213.
  VELMAR_NODISCARD bool isSpTreePort213Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT214: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort214() const;
  /// Sets SP_TREE_PORT214.
  void spTreePort214Is(U8 value);
  /// Width of SP_TREE_PORT214 in bits.
  U16 spTreePort214Len() const;
  /// First bit of SP_TREE_PORT214 in the entry.
  U16 spTreePort214Offset() const;
  /// Whether the view has SP_TREE_PORT214.
  VELMAR_NODISCARD bool isSpTreePort214Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT215: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort215() const;
  /// Sets SP_TREE_PORT215.
  void spTreePort215Is(U8 value);
  /// Width of SP_TREE_PORT215 in bits.
  U16 spTreePort215Len() const;
  /// First bit of SP_TREE_PORT215 in the entry.
  U16 spTreePort215Offset() const;
  /// Whether the view has SP_TREE_PORT215.
  VELMAR_NODISCARD bool isSpTreePort215Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT216: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort216() const;
  /// Sets SP_TREE_PORT216.
  void spTreePort216Is(U8 value);
  /// Width of SP_TREE_PORT216 in bits.
  U16 spTreePort216Len() const;
  /// First bit of SP_TREE_PORT216 in the entry.
  U16 spTreePort216Offset() const;
  /// Whether the view has SP_TREE_PORT216.
  VELMAR_NODISCARD bool isSpTreePort216Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT217: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort217() const;
  /// Sets SP_TREE_PORT217.
  void spTreePort217Is(U8 value);
  /// Width of SP_TREE_PORT217 in bits.
  U16 spTreePort217Len() const;
  /// First bit of SP_TREE_PORT217 in the entry.
  U16 spTreePort217Offset() const;
  /// Whether the view has SP_TREE_PORT217.
  VELMAR_NODISCARD bool isSpTreePort217Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT218: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort218() const;
  /// Sets SP_TREE_PORT218.
  void spTreePort218Is(U8 value);
  /// Width of SP_TREE_PORT218 in bits.
  U16 spTreePort218Len() const;
  /// First bit of SP_TREE_PORT218 in the entry.
  U16 spTreePort218Offset() const;
  /// Whether the view has SP_TREE_PORT218.
  VELMAR_NODISCARD bool isSpTreePort218Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT219: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort219() const;
  /// Sets SP_TREE_PORT219.
  void spTreePort219Is(U8 value);
  /// Width of SP_TREE_PORT219 in bits.
  U16 spTreePort219Len() const;
  /// First bit of SP_TREE_PORT219 in the entry.
  U16 spTreePort219Offset() const;
  /// Whether the view has SP_TREE_PORT219.
  VELMAR_NODISCARD bool isSpTreePort219Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT220: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort220() const;
  /// Sets SP_TREE_PORT220.
  void spTreePort220Is(U8 value);
  /// Width of SP_TREE_PORT220 in bits.
  U16 spTreePort220Len() const;
  /// First bit of SP_TREE_PORT220 in the entry.
  U16 spTreePort220Offset() const;
  /// Whether the view has SP_TREE_PORT220.
  VELMAR_NODISCARD bool isSpTreePort220Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT221: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort221() const;
  /// Sets SP_TREE_PORT221.
  void spTreePort221Is(U8 value);
  /// Width of SP_TREE_PORT221 in bits.
  U16 spTreePort221Len() const;
  /// First bit of SP_TREE_PORT221 in the entry.
  U16 spTreePort221Offset() const;
  /// Whether the view has SP_TREE_PORT221.
  VELMAR_NODISCARD bool isSpTreePort221Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT222: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort222() const;
  /// Sets SP_TREE_PORT222.
  void spTreePort222Is(U8 value);
  /// Width of SP_TREE_PORT222 in bits.
  U16 spTreePort222Len() const;
  /// First bit of SP_TREE_PORT222 in the entry.
  U16 spTreePort222Offset() const;
  /// Whether the view has SP_TREE_PORT222.
  VELMAR_NODISCARD bool isSpTreePort222Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT223: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort223() const;
  /// Sets SP_TREE_PORT223.
  void spTreePort223Is(U8 value);
  /// Width of SP_TREE_PORT223 in bits.
  U16 spTreePort223Len() const;
  /// First bit of SP_TREE_PORT223 in the entry.
  U16 spTreePort223Offset() const;
  /// Whether the view has SP_TREE_PORT223.
  VELMAR_NODISCARD bool isSpTreePort223Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT224: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort224() const;
  /// Sets SP_TREE_PORT224.
  void spTreePort224Is(U8 value);
  /// Width of SP_TREE_PORT224 in bits.
  U16 spTreePort224Len() const;
  /// First bit of SP_TREE_PORT224 in the entry.
  U16 spTreePort224Offset() const;
  /// Whether the view has SP_TREE_PORT224.
  VELMAR_NODISCARD bool isSpTreePort224Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT225: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort225() const;
  /// Sets SP_TREE_PORT225.
  void spTreePort225Is(U8 value);
  /// Width of SP_TREE_PORT225 in bits.
  U16 spTreePort225Len() const;
  /// First bit of SP_TREE_PORT225 in the entry.
  U16 spTreePort225Offset() const;
  /// Whether the view has SP_TREE_PORT225.
  VELMAR_NODISCARD bool isSpTreePort225Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT226: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort226() const;
  /// Sets SP_TREE_PORT226.
  void spTreePort226Is(U8 value);
  /// Width of SP_TREE_PORT226 in bits.
  U16 spTreePort226Len() const;
  /// First bit of SP_TREE_PORT226 in the entry.
  U16 spTreePort226Offset() const;
  /// Whether the view has SP_TREE_PORT226.
  VELMAR_NODISCARD bool isSpTreePort226Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT227: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort227() const;
  /// Sets SP_TREE_PORT227.
  void spTreePort227Is(U8 value);
  /// Width of SP_TREE_PORT227 in bits.
  U16 spTreePort227Len() const;
  /// First bit of SP_TREE_PORT227 in the entry.
  U16 spTreePort227Offset() const;
  /// Whether the view has SP_TREE_PORT227.
  VELMAR_NODISCARD bool isSpTreePort227Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT228: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort228() const;
  /// Sets SP_TREE_PORT228.
  void spTreePort228Is(U8 value);
  /// Width of SP_TREE_PORT228 in bits.
  U16 spTreePort228Len() const;
  /// First bit of SP_TREE_PORT228 in the entry.
  U16 spTreePort228Offset() const;
  /// Whether the view has SP_TREE_PORT228.
  VELMAR_NODISCARD bool isSpTreePort228Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT229: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort229() const;
  /// Sets SP_TREE_PORT229.
  void spTreePort229Is(U8 value);
  /// Width of SP_TREE_PORT229 in bits.
  U16 spTreePort229Len() const;
  /// First bit of SP_TREE_PORT229 in the entry.
  U16 spTreePort229Offset() const;
  /// Whether the view has SP_TREE_PORT229.
  VELMAR_NODISCARD bool isSpTreePort229Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT230: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort230() const;
  /// Sets SP_TREE_PORT230.
  void spTreePort230Is(U8 value);
  /// Width of SP_TREE_PORT230 in bits.
  U16 spTreePort230Len() const;
  /// First bit of SP_TREE_PORT230 in the entry.
  U16 spTreePort230Offset() const;
  /// Whether the view has SP_TREE_PORT230.
  VELMAR_NODISCARD bool isSpTreePort230Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT231: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort231() const;
  /// Sets SP_TREE_PORT231.
  void spTreePort231Is(U8 value);
  /// Width of SP_TREE_PORT231 in bits.
  U16 spTreePort231Len() const;
  /// First bit of SP_TREE_PORT231 in the entry.
  U16 spTreePort231Offset() const;
  /// Whether the view has SP_TREE_PORT231.
  VELMAR_NODISCARD bool isSpTreePort231Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT232: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort232() const;
  /// Sets SP_TREE_PORT232.
  void spTreePort232Is(U8 value);
  /// Width of SP_TREE_PORT232 in bits.
  U16 spTreePort232Len() const;
  /// First bit of SP_TREE_PORT232 in the entry.
  U16 spTreePort232Offset() const;
  /// Whether the view has SP_TREE_PORT232.
  VELMAR_NODISCARD bool isSpTreePort232Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT233: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort233() const;
  /// Sets SP_TREE_PORT233.
  void spTreePort233Is(U8 value);
  /// Width of SP_TREE_PORT233 in bits.
  U16 spTreePort233Len() const;
  /// First bit of SP_TREE_PORT233 in the entry.
  U16 spTreePort233Offset() const;
  /// Whether the view has SP_TREE_PORT233.
  VELMAR_NODISCARD bool isSpTreePort233Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT234: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort234() const;
  /// Sets SP_TREE_PORT234.
  void spTreePort234Is(U8 value);
  /// Width of SP_TREE_PORT234 in bits.
  U16 spTreePort234Len() const;
  /// First bit of SP_TREE_PORT234 in the entry.
  U16 spTreePort234Offset() const;
  /// Whether the view has SP_TREE_PORT234.
  VELMAR_NODISCARD bool isSpTreePort234Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT235: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort235() const;
  /// Sets SP_TREE_PORT235.
  void spTreePort235Is(U8 value);
  /// Width of SP_TREE_PORT235 in bits.
  U16 spTreePort235Len() const;
  /// First bit of SP_TREE_PORT235 in the entry.
  U16 spTreePort235Offset() const;
  /// Whether the view has SP_TREE_PORT235.
  VELMAR_NODISCARD bool isSpTreePort235Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT236: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort236() const;
  /// Sets SP_TREE_PORT236.
  void spTreePort236Is(U8 value);
  /// Width of SP_TREE_PORT236 in bits.
  U16 spTreePort236Len() const;
  /// First bit of SP_TREE_PORT236 in the entry.
  U16 spTreePort236Offset() const;
  /// Whether the view has SP_TREE_PORT236.
  VELMAR_NODISCARD bool isSpTreePort236Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT237: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort237() const;
  /// Sets SP_TREE_PORT237.
  void spTreePort237Is(U8 value);
  /// Width of SP_TREE_PORT237 in bits.
  U16 spTreePort237Len() const;
  /// First bit of SP_TREE_PORT237 in the entry.
  U16 spTreePort237Offset() const;
  /// Whether the view has SP_TREE_PORT237.
  VELMAR_NODISCARD bool isSpTreePort237Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT238: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort238() const;
  /// Sets SP_TREE_PORT238.
  void spTreePort238Is(U8 value);
  /// Width of SP_TREE_PORT238 in bits.
  U16 spTreePort238Len() const;
  /// First bit of SP_TREE_PORT238 in the entry.
  U16 spTreePort238Offset() const;
  /// Whether the view has SP_TREE_PORT238.
  VELMAR_NODISCARD bool isSpTreePort238Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT239: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort239() const;
  /// Sets SP_TREE_PORT239.
  void spTreePort239Is(U8 value);
  /// Width of SP_TREE_PORT239 in bits.
  U16 spTreePort239Len() const;
  /// First bit of SP_TREE_PORT239 in the entry.
  U16 spTreePort239Offset() const;
  /// Whether the view has SP_TREE_PORT239.
  VELMAR_NODISCARD bool isSpTreePort239Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT240: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort240() const;
  /// Sets SP_TREE_PORT240.
  void spTreePort240Is(U8 value);
  /// Width of SP_TREE_PORT240 in bits.
  U16 spTreePort240Len() const;
  /// First bit of SP_TREE_PORT240 in the entry.
  U16 spTreePort240Offset() const;
  /// Whether the view has SP_TREE_PORT240.
  VELMAR_NODISCARD bool isSpTreePort240Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT241: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort241() const;
  /// Sets SP_TREE_PORT241.
  void spTreePort241Is(U8 value);
  /// Width of SP_TREE_PORT241 in bits.
  U16 spTreePort241Len() const;
  /// First bit of SP_TREE_PORT241 in the entry.
  U16 spTreePort241Offset() const;
  /// Whether the view has SP_TREE_PORT241.
  VELMAR_NODISCARD bool isSpTreePort241Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT242: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort242() const;
  /// Sets SP_TREE_PORT242.
  void spTreePort242Is(U8 value);
  /// Width of SP_TREE_PORT242 in bits.
  U16 spTreePort242Len() const;
  /// First bit of SP_TREE_PORT242 in the entry.
  U16 spTreePort242Offset() const;
  /// Whether the view has SP_TREE_PORT242.
  VELMAR_NODISCARD bool isSpTreePort242Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT243: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort243() const;
  /// Sets SP_TREE_PORT243.
  void spTreePort243Is(U8 value);
  /// Width of SP_TREE_PORT243 in bits.
  U16 spTreePort243Len() const;
  /// First bit of SP_TREE_PORT243 in the entry.
  U16 spTreePort243Offset() const;
  /// Whether the view has SP_TREE_PORT243.
  VELMAR_NODISCARD bool isSpTreePort243Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT244: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort244() const;
  /// Sets SP_TREE_PORT244.
  void spTreePort244Is(U8 value);
  /// Width of SP_TREE_PORT244 in bits.
  U16 spTreePort244Len() const;
  /// First bit of SP_TREE_PORT244 in the entry.
  U16 spTreePort244Offset() const;
  /// Whether the view has SP_TREE_PORT244.
  VELMAR_NODISCARD bool isSpTreePort244Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT245: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort245() const;
  /// Sets SP_TREE_PORT245.
  void spTreePort245Is(U8 value);
  /// Width of SP_TREE_PORT245 in bits.
  U16 spTreePort245Len() const;
  /// First bit of SP_TREE_PORT245 in the entry.
  U16 spTreePort245Offset() const;
  /// Whether the view has SP_TREE_PORT245.
  VELMAR_NODISCARD bool isSpTreePort245Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT246: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort246() const;
  /// Sets SP_TREE_PORT246.
  void spTreePort246Is(U8 value);
  /// Width of SP_TREE_PORT246 in bits.
  U16 spTreePort246Len() const;
  /// First bit of SP_TREE_PORT246 in the entry.
  U16 spTreePort246Offset() const;
  /// Whether the view has SP_TREE_PORT246.
  VELMAR_NODISCARD bool isSpTreePort246Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT247: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort247() const;
  /// Sets SP_TREE_PORT247.
  void spTreePort247Is(U8 value);
  /// Width of SP_TREE_PORT247 in bits.
  U16 spTreePort247Len() const;
  /// First bit of SP_TREE_PORT247 in the entry.
  U16 spTreePort247Offset() const;
  /// Whether the view has SP_TREE_PORT247.
  VELMAR_NODISCARD bool isSpTreePort247Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT248: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort248() const;
  /// Sets SP_TREE_PORT248.
  void spTreePort248Is(U8 value);
  /// Width of SP_TREE_PORT248 in bits.
  U16 spTreePort248Len() const;
  /// First bit of SP_TREE_PORT248 in the entry.
  U16 spTreePort248Offset() const;
  /// Whether the view has SP_TREE_PORT248.
  VELMAR_NODISCARD bool isSpTreePort248Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT249: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort249() const;
  /// Sets SP_TREE_PORT249.
  void spTreePort249Is(U8 value);
  /// Width of SP_TREE_PORT249 in bits.
  U16 spTreePort249Len() const;
  /// First bit of SP_TREE_PORT249 in the entry.
  U16 spTreePort249Offset() const;
  /// Whether the view has SP_TREE_PORT249.
  VELMAR_NODISCARD bool isSpTreePort249Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT250: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort250() const;
  /// Sets SP_TREE_PORT250.
  void spTreePort250Is(U8 value);
  /// Width of SP_TREE_PORT250 in bits.
  U16 spTreePort250Len() const;
  /// First bit of SP_TREE_PORT250 in the entry.
  U16 spTreePort250Offset() const;
  /// Whether the view has SP_TREE_PORT250.
  VELMAR_NODISCARD bool isSpTreePort250Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT251: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort251() const;
  /// Sets SP_TREE_PORT251.
  void spTreePort251Is(U8 value);
  /// Width of SP_TREE_PORT251 in bits.
  U16 spTreePort251Len() const;
  /// First bit of SP_TREE_PORT251 in the entry.
  U16 spTreePort251Offset() const;
  /// Whether the view has SP_TREE_PORT251.
  VELMAR_NODISCARD bool isSpTreePort251Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT252: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort252() const;
  /// Sets SP_TREE_PORT252.
  void spTreePort252Is(U8 value);
  /// Width of SP_TREE_PORT252 in bits.
  U16 spTreePort252Len() const;
  /// First bit of SP_TREE_PORT252 in the entry.
  U16 spTreePort252Offset() const;
  /// Whether the view has SP_TREE_PORT252.
  VELMAR_NODISCARD bool isSpTreePort252Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT253: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort253() const;
  /// Sets SP_TREE_PORT253.
  void spTreePort253Is(U8 value);
  /// Width of SP_TREE_PORT253 in bits.
  U16 spTreePort253Len() const;
  /// First bit of SP_TREE_PORT253 in the entry.
  U16 spTreePort253Offset() const;
  /// Whether the view has SP_TREE_PORT253.
  VELMAR_NODISCARD bool isSpTreePort253Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT254: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort254() const;
  /// Sets SP_TREE_PORT254.
  void spTreePort254Is(U8 value);
  /// Width of SP_TREE_PORT254 in bits.
  U16 spTreePort254Len() const;
  /// First bit of SP_TREE_PORT254 in the entry.
  U16 spTreePort254Offset() const;
  /// Whether the view has SP_TREE_PORT254.
  VELMAR_NODISCARD bool isSpTreePort254Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT255: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort255() const;
  /// Sets SP_TREE_PORT255.
  void spTreePort255Is(U8 value);
  /// Width of SP_TREE_PORT255 in bits.
  U16 spTreePort255Len() const;
  /// First bit of SP_TREE_PORT255 in the entry.
  U16 spTreePort255Offset() const;
  /// Whether the view has SP_TREE_PORT255.
  VELMAR_NODISCARD bool isSpTreePort255Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT256: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort256() const;
  /// Sets SP_TREE_PORT256.
  void spTreePort256Is(U8 value);
  /// Width of SP_TREE_PORT256 in bits.
  U16 spTreePort256Len() const;
  /// First bit of SP_TREE_PORT256 in the entry.
  U16 spTreePort256Offset() const;
  /// Whether the view has SP_TREE_PORT256.
  VELMAR_NODISCARD bool isSpTreePort256Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT257: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort257() const;
  /// Sets SP_TREE_PORT257.
  void spTreePort257Is(U8 value);
  /// Width of SP_TREE_PORT257 in bits.
  U16 spTreePort257Len() const;
  /// First bit of SP_TREE_PORT257 in the entry.
  U16 spTreePort257Offset() const;
  /// Whether the view has SP_TREE_PORT257.
  VELMAR_NODISCARD bool isSpTreePort257Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT258: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort258() const;
  /// Sets SP_TREE_PORT258.
  void spTreePort258Is(U8 value);
  /// Width of SP_TREE_PORT258 in bits.
  U16 spTreePort258Len() const;
  /// First bit of SP_TREE_PORT258 in the entry.
  U16 spTreePort258Offset() const;
  /// Whether the view has SP_TREE_PORT258.
  VELMAR_NODISCARD bool isSpTreePort258Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT259: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort259() const;
  /// Sets SP_TREE_PORT259.
  void spTreePort259Is(U8 value);
  /// Width of SP_TREE_PORT259 in bits.
  U16 spTreePort259Len() const;
  /// First bit of SP_TREE_PORT259 in the entry.
  U16 spTreePort259Offset() const;
  /// Whether the view has SP_TREE_PORT259.
  VELMAR_NODISCARD bool isSpTreePort259Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT260: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort260() const;
  /// Sets SP_TREE_PORT260.
  void spTreePort260Is(U8 value);
  /// Width of SP_TREE_PORT260 in bits.
  U16 spTreePort260Len() const;
  /// First bit of SP_TREE_PORT260 in the entry.
  U16 spTreePort260Offset() const;
  /// Whether the view has SP_TREE_PORT260.
  VELMAR_NODISCARD bool isSpTreePort260Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT261: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort261() const;
  /// Sets SP_TREE_PORT261.
  void spTreePort261Is(U8 value);
  /// Width of SP_TREE_PORT261 in bits.
  U16 spTreePort261Len() const;
  /// First bit of SP_TREE_PORT261 in the entry.
  U16 spTreePort261Offset() const;
  /// Whether the view has SP_TREE_PORT261.
  VELMAR_NODISCARD bool isSpTreePort261Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT262: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort262() const;
  /// Sets SP_TREE_PORT262.
  void spTreePort262Is(U8 value);
  /// Width of SP_TREE_PORT262 in bits.
  U16 spTreePort262Len() const;
  /// First bit of SP_TREE_PORT262 in the entry.
  U16 spTreePort262Offset() const;
  /// Whether the view has SP_TREE_PORT262.
  VELMAR_NODISCARD bool isSpTreePort262Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT263: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort263() const;
  /// Sets SP_TREE_PORT263.
  void spTreePort263Is(U8 value);
  /// Width of SP_TREE_PORT263 in bits.
  U16 spTreePort263Len() const;
  /// First bit of SP_TREE_PORT263 in the entry.
  U16 spTreePort263Offset() const;
  /// Whether the view has SP_TREE_PORT263.
  VELMAR_NODISCARD bool isSpTreePort263Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT264: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort264() const;
  /// Sets SP_TREE_PORT264.
  void spTreePort264Is(U8 value);
  /// Width of SP_TREE_PORT264 in bits.
  U16 spTreePort264Len() const;
  /// First bit of SP_TREE_PORT264 in the entry.
  U16 spTreePort264Offset() const;
  /// Whether the view has SP_TREE_PORT264.
  VELMAR_NODISCARD bool isSpTreePort264Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT265: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort265() const;
  /// Sets SP_TREE_PORT265.
  void spTreePort265Is(U8 value);
  /// Width of SP_TREE_PORT265 in bits.
  U16 spTreePort265Len() const;
  /// First bit of SP_TREE_PORT265 in the entry.
  U16 spTreePort265Offset() const;
  /// Whether the view has SP_TREE_PORT265.
  VELMAR_NODISCARD bool isSpTreePort265Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT266: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort266() const;
  /// Sets SP_TREE_PORT266.
  void spTreePort266Is(U8 value);
  /// Width of SP_TREE_PORT266 in bits.
  U16 spTreePort266Len() const;
  /// First bit of SP_TREE_PORT266 in the entry.
  U16 spTreePort266Offset() const;
  /// Whether the view has SP_TREE_PORT266.
  VELMAR_NODISCARD bool isSpTreePort266Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT267: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort267() const;
  /// Sets SP_TREE_PORT267.
  void spTreePort267Is(U8 value);
  /// Width of SP_TREE_PORT267 in bits.
  U16 spTreePort267Len() const;
  /// First bit of SP_TREE_PORT267 in the entry.
  U16 spTreePort267Offset() const;
  /// Whether the view has SP_TREE_PORT267.
  VELMAR_NODISCARD bool isSpTreePort267Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT268: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort268() const;
  /// Sets SP_TREE_PORT268.
  void spTreePort268Is(U8 value);
  /// Width of SP_TREE_PORT268 in bits.
  U16 spTreePort268Len() const;
  /// First bit of SP_TREE_PORT268 in the entry.
  U16 spTreePort268Offset() const;
  /// Whether the view has SP_TREE_PORT268.
  VELMAR_NODISCARD bool isSpTreePort268Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT269: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort269() const;
  /// Sets SP_TREE_PORT269.
  void spTreePort269Is(U8 value);
  /// Width of SP_TREE_PORT269 in bits.
  U16 spTreePort269Len() const;
  /// First bit of SP_TREE_PORT269 in the entry.
  U16 spTreePort269Offset() const;
  /// Whether the view has SP_TREE_PORT269.
  VELMAR_NODISCARD bool isSpTreePort269Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT270: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort270() const;
  /// Sets SP_TREE_PORT270.
  void spTreePort270Is(U8 value);
  /// Width of SP_TREE_PORT270 in bits.
  U16 spTreePort270Len() const;
  /// First bit of SP_TREE_PORT270 in the entry.
  U16 spTreePort270Offset() const;
  /// Whether the view has SP_TREE_PORT270.
  VELMAR_NODISCARD bool isSpTreePort270Valid() const;

  /// Spanning-tree state of the port. SP_TREE_PORT271: 2 bits; on all chips.
  VELMAR_NODISCARD U8 spTreePort271() const;
  /// Sets SP_TREE_PORT271.
  void spTreePort271Is(U8 value);
  /// Width of SP_TREE_PORT271 in bits.
  U16 spTreePort271Len() const;
  /// First bit of SP_TREE_PORT271 in the entry.
  U16 spTreePort271Offset() const;
  /// Whether the view has SP_TREE_PORT271.
  VELMAR_NODISCARD bool isSpTreePort271Valid() const;
};

}  // namespace Velmar
