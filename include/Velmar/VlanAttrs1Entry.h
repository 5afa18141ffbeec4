#pragma once

#include "Velmar/Declarations.h"

// clang-format off
#define VELMAR_FIELDS_VlanAttrs1Entry(FIELD) \
  FIELD(mplsEnable,    MplsEnable,    MPLS_ENABLE,     U8, "MPLS is enabled") \
  FIELD(mimTermEnable, MimTermEnable, MIM_TERM_ENABLE, U8, "MAC-in-MAC termination is enabled") \
  FIELD(valid,         Valid,         VALID,           U8, "the entry is valid")

#define VELMAR_SPANS_VlanAttrs1Entry(SPAN) SPAN(BCM56470_A0)
// clang-format on

namespace Velmar {

/// VLAN attributes: MPLS and MAC-in-MAC termination enables per VLAN.
class VELMAR_EXPORT VlanAttrs1Entry : public AsicUtils::BcmAsicBase {
  VELMAR_DECLARE_TABLE(VlanAttrs1Entry, Raw128)
};

}  // namespace Velmar
