#pragma once

#include "Oru/PerUnitBitmap.h"
#include "Velmar/Declarations.h"

// clang-format off
#define VELMAR_FIELDS_EgrVlanVfiUntagEntry(FIELD) \
  FIELD(utPortBitmap, UtPortBitmap, UT_PORT_BITMAP, Bitmap, "untagged ports")

#define VELMAR_SPANS_EgrVlanVfiUntagEntry(SPAN) SPAN(BCM56470_A0)
// clang-format on

namespace Velmar {

/// Egress untag profiles: the untagged ports.
class VELMAR_EXPORT EgrVlanVfiUntagEntry : public AsicUtils::BcmAsicBase {
  VELMAR_DECLARE_TABLE(EgrVlanVfiUntagEntry, Raw256)
};

}  // namespace Velmar
