#pragma once

#include "Velmar/Declarations.h"

// clang-format off
#define VELMAR_FIELDS_EgrVlanStgEntry(FIELD) VELMAR_SP_TREE_PORTS_0_TO_159(FIELD)

#define VELMAR_SPANS_EgrVlanStgEntry(SPAN) SPAN(BCM56968_A0) SPAN(BCM56175_A0) SPAN(BCM56996_A0)
// clang-format on

namespace Velmar {

/// Egress spanning-tree groups: the state of each port, from port 0.
class VELMAR_EXPORT EgrVlanStgEntry : public AsicUtils::BcmAsicBase {
  VELMAR_DECLARE_TABLE(EgrVlanStgEntry, Raw512)
};

}  // namespace Velmar
