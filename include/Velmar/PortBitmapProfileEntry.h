#pragma once

#include "Oru/PerUnitBitmap.h"
#include "Velmar/Declarations.h"

// clang-format off
#define VELMAR_FIELDS_PortBitmapProfileEntry(FIELD) \
  FIELD(bitmap, Bitmap, BITMAP, Bitmap, "ports of the profile")

#define VELMAR_SPANS_PortBitmapProfileEntry(SPAN) SPAN(BCM56980_A0) SPAN(BCM56996_A0)
// clang-format on

namespace Velmar {

/// Port bitmap profiles: the ports that VLAN entries refer to.
class VELMAR_EXPORT PortBitmapProfileEntry : public AsicUtils::BcmAsicBase {
  VELMAR_DECLARE_TABLE(PortBitmapProfileEntry, Raw512)
};

}  // namespace Velmar
