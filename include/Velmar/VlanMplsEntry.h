#pragma once

#include "Velmar/Declarations.h"

// clang-format off
#define VELMAR_FIELDS_VlanMplsEntry(FIELD) \
  FIELD(mplsEnable,           MplsEnable,           MPLS_ENABLE,            U8,  "MPLS is enabled") \
  FIELD(mimTermEnable,        MimTermEnable,        MIM_TERM_ENABLE,        U8,  "MAC-in-MAC termination is enabled") \
  FIELD(l3Iif,                L3Iif,                L3_IIF,                 U16, "layer-3 ingress interface") \
  FIELD(enIfilter,            EnIfilter,            EN_IFILTER,             U8,  "the ingress filter is enabled") \
  FIELD(membershipProfilePtr, MembershipProfilePtr, MEMBERSHIP_PROFILE_PTR, U8,  "index of the membership profile") \
  FIELD(vfi,                  Vfi,                  VFI,                    U8,  "virtual forwarding instance")

#define VELMAR_SPANS_VlanMplsEntry(SPAN) SPAN(BCM56968_A0) SPAN(BCM56996_A0)
// clang-format on

namespace Velmar {

/// VLAN MPLS table: MPLS enables and the layer-3 ingress interface per VLAN.
class VELMAR_EXPORT VlanMplsEntry : public AsicUtils::BcmAsicBase {
  VELMAR_DECLARE_TABLE(VlanMplsEntry, U32)
};

}  // namespace Velmar
