#pragma once

#include "Oru/PerUnitBitmap.h"
#include "Velmar/Declarations.h"

// clang-format off
#define VELMAR_FIELDS_VfiProfile2Entry(FIELD) \
  FIELD(bcastMaskSel,        BcastMaskSel,        BCAST_MASK_SEL,         U8,     "block mask for broadcast") \
  FIELD(unknownUcastMaskSel, UnknownUcastMaskSel, UNKNOWN_UCAST_MASK_SEL, U8,     "block mask for unknown unicast") \
  FIELD(knownMcastMaskSel,   KnownMcastMaskSel,   KNOWN_MCAST_MASK_SEL,   U8,     "block mask for known multicast") \
  FIELD(unknownMcastMaskSel, UnknownMcastMaskSel, UNKNOWN_MCAST_MASK_SEL, U8,     "block mask for unknown multicast") \
  FIELD(blockMaskA,          BlockMaskA,          BLOCK_MASK_A,           Bitmap, "block mask A") \
  FIELD(blockMaskB,          BlockMaskB,          BLOCK_MASK_B,           Bitmap, "block mask B")

#define VELMAR_SPANS_VfiProfile2Entry(SPAN) SPAN(BCM56470_A0)
// clang-format on

namespace Velmar {

/// Second VFI profile table: block masks and their selectors.
class VELMAR_EXPORT VfiProfile2Entry : public AsicUtils::BcmAsicBase {
  VELMAR_DECLARE_TABLE(VfiProfile2Entry, Raw1024)
};

}  // namespace Velmar
