#pragma once

#include "Velmar/Declarations.h"

// clang-format off
#define VELMAR_FIELDS_VlanStgBEntry(FIELD) VELMAR_SP_TREE_PORTS_136_TO_271(FIELD)

#define VELMAR_SPANS_VlanStgBEntry(SPAN) SPAN(BCM56996_A0)
// clang-format on

namespace Velmar {

/// Ingress spanning-tree groups: the state of each port, from port 136.
class VELMAR_EXPORT VlanStgBEntry : public AsicUtils::BcmAsicBase {
  VELMAR_DECLARE_TABLE(VlanStgBEntry, Raw512)
};

}  // namespace Velmar
