#pragma once

#include "Velmar/Declarations.h"

// clang-format off
#define VELMAR_FIELDS_VlanStg2Entry(FIELD) VELMAR_SP_TREE_PORTS_0_TO_159(FIELD)

#define VELMAR_SPANS_VlanStg2Entry(SPAN) SPAN(BCM56980_A0)
// clang-format on

namespace Velmar {

/// Second ingress spanning-tree groups: the state of each port.
class VELMAR_EXPORT VlanStg2Entry : public AsicUtils::BcmAsicBase {
  VELMAR_DECLARE_TABLE(VlanStg2Entry, Raw512)
};

}  // namespace Velmar
