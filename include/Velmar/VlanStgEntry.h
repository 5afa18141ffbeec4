#pragma once

#include "Velmar/Declarations.h"

// clang-format off
#define VELMAR_FIELDS_VlanStgEntry(FIELD) VELMAR_SP_TREE_PORTS_0_TO_159(FIELD)

#define VELMAR_SPANS_VlanStgEntry(SPAN) SPAN(BCM56968_A0) SPAN(BCM56175_A0) SPAN(BCM56996_A0)
// clang-format on

namespace Velmar {

/// Ingress spanning-tree groups: the state of each port, from port 0.
class VELMAR_EXPORT VlanStgEntry : public AsicUtils::BcmAsicBase {
  VELMAR_DECLARE_TABLE(VlanStgEntry, Raw512)
};

}  // namespace Velmar
