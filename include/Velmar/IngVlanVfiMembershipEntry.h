#pragma once

#include "Oru/PerUnitBitmap.h"
#include "Velmar/Declarations.h"

// clang-format off
#define VELMAR_FIELDS_IngVlanVfiMembershipEntry(FIELD) \
  FIELD(ingPortBitmap, IngPortBitmap, ING_PORT_BITMAP, Bitmap, "ingress member ports")

#define VELMAR_SPANS_IngVlanVfiMembershipEntry(SPAN) SPAN(BCM56470_A0)
// clang-format on

namespace Velmar {

/// Ingress membership profiles: the member ports.
class VELMAR_EXPORT IngVlanVfiMembershipEntry : public AsicUtils::BcmAsicBase {
  VELMAR_DECLARE_TABLE(IngVlanVfiMembershipEntry, Raw512)
};

}  // namespace Velmar
