#pragma once

#include "Velmar/Declarations.h"

// clang-format off
#define VELMAR_FIELDS_EgrVlanStgBEntry(FIELD) VELMAR_SP_TREE_PORTS_136_TO_271(FIELD)

#define VELMAR_SPANS_EgrVlanStgBEntry(SPAN) SPAN(BCM56996_A0)
// clang-format on

namespace Velmar {

/// Egress spanning-tree groups: the state of each port, from port 136.
class VELMAR_EXPORT EgrVlanStgBEntry : public AsicUtils::BcmAsicBase {
  VELMAR_DECLARE_TABLE(EgrVlanStgBEntry, Raw512)
};

}  // namespace Velmar
