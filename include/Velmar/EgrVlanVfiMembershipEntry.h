#pragma once

#include "Oru/PerUnitBitmap.h"
#include "Velmar/Declarations.h"

// clang-format off
#define VELMAR_FIELDS_EgrVlanVfiMembershipEntry(FIELD) \
  FIELD(portBitmap, PortBitmap, PORT_BITMAP, Bitmap, "member ports")

#define VELMAR_SPANS_EgrVlanVfiMembershipEntry(SPAN) SPAN(BCM56470_A0)
// clang-format on

namespace Velmar {

/// Egress membership profiles: the member ports.
class VELMAR_EXPORT EgrVlanVfiMembershipEntry : public AsicUtils::BcmAsicBase {
  VELMAR_DECLARE_TABLE(EgrVlanVfiMembershipEntry, Raw512)
};

}  // namespace Velmar
