#pragma once

#include "Oru/PerUnitBitmap.h"
#include "Velmar/Declarations.h"

// clang-format off
#define VELMAR_FIELDS_EgrVlan2Entry(FIELD) \
  FIELD(utPortBitmap, UtPortBitmap, UT_PORT_BITMAP, Bitmap, "untagged ports")

#define VELMAR_SPANS_EgrVlan2Entry(SPAN) SPAN(BCM56996_A0)
// clang-format on

namespace Velmar {

/// Second egress VLAN table: the untagged ports per VLAN.
class VELMAR_EXPORT EgrVlan2Entry : public AsicUtils::BcmAsicBase {
  VELMAR_DECLARE_TABLE(EgrVlan2Entry, Raw512)
};

}  // namespace Velmar
