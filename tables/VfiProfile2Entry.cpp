#include "tables/Table.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"second VFI profile table, block masks and their selectors", ingress};

// clang-format off
#define FIELDS(FIELD) \
  FIELD(bcastMaskSel,        BcastMaskSel,        BCAST_MASK_SEL,         U8,     "block mask for broadcast") \
  FIELD(unknownUcastMaskSel, UnknownUcastMaskSel, UNKNOWN_UCAST_MASK_SEL, U8,     "block mask for unknown unicast") \
  FIELD(knownMcastMaskSel,   KnownMcastMaskSel,   KNOWN_MCAST_MASK_SEL,   U8,     "block mask for known multicast") \
  FIELD(unknownMcastMaskSel, UnknownMcastMaskSel, UNKNOWN_MCAST_MASK_SEL, U8,     "block mask for unknown multicast") \
  FIELD(blockMaskA,          BlockMaskA,          BLOCK_MASK_A,           Bitmap, "block mask A") \
  FIELD(blockMaskB,          BlockMaskB,          BLOCK_MASK_B,           Bitmap, "block mask B")

#define SPANS(SPAN) SPAN(BCM56470_A0)

enum : U8 { c56870, c56470, c56990, columns };

constexpr FieldRow<columns> layout[] = {
  //                                   56870       56470      56990
  {FieldId::BCAST_MASK_SEL,         {{280,   2}, {150,  2}, {  0,   2}}},
  {FieldId::UNKNOWN_UCAST_MASK_SEL, {{282,   2}, {152,  2}, {550,   2}}},
  {FieldId::KNOWN_MCAST_MASK_SEL,   {{286,   2}, {156,  2}, {546,   2}}},
  {FieldId::UNKNOWN_MCAST_MASK_SEL, {{284,   2}, {154,  2}, {548,   2}}},
  {FieldId::BLOCK_MASK_A,           {{  0, 132}, {  0, 72}, {  2, 272}}},
  {FieldId::BLOCK_MASK_B,           {{140, 132}, { 75, 72}, {274, 272}}},  // 56870, 56470: reserved bits lie between the two masks
};

constexpr ChipRow chips[] = {
  // chips                                                            column  variants    words  entries  base        access
  {{BCM56870_A0, BCM56770_A0},                                        c56870, anyVariant,    10,     128, 0x80ec0000,      9},
  {{BCM56470_A0, BCM56370_A0, BCM56275_A0, BCM56175_A0},              c56470, anyVariant,     6,     128, 0x80ec0000,      0},
  {{BCM56990_B0, BCM56992_B0, BCM56993_B0, BCM56996_A0, BCM56996_B0}, c56990, anyVariant,    18,     128, 0x20f80000,     17},  // the memory of VlanProfile2Entry under another name, with any variant
};
// clang-format on

}  // namespace

VELMAR_TABLE(VfiProfile2Entry, Raw1024, FIELDS, SPANS, about, layout, chips)

}  // namespace Velmar
