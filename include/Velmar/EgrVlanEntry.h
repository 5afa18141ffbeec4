#pragma once

#include "Oru/PerUnitBitmap.h"
#include "Velmar/Declarations.h"

// clang-format off
#define VELMAR_FIELDS_EgrVlanEntry(FIELD) \
  FIELD(valid,                Valid,                VALID,                  U8,     "the entry is valid") \
  FIELD(stg,                  Stg,                  STG,                    U16,    "spanning-tree group") \
  FIELD(utPortBitmap,         UtPortBitmap,         UT_PORT_BITMAP,         Bitmap, "untagged ports") \
  FIELD(portBitmap,           PortBitmap,           PORT_BITMAP,            Bitmap, "member ports") \
  FIELD(untagProfilePtr,      UntagProfilePtr,      UNTAG_PROFILE_PTR,      U16,    "index of the untag profile") \
  FIELD(membershipProfilePtr, MembershipProfilePtr, MEMBERSHIP_PROFILE_PTR, U16,    "index of the membership profile") \
  FIELD(ovid,                 Ovid,                 OVID,                   U16,    "outer VLAN id") \
  FIELD(ovidValid,            OvidValid,            OVID_VALID,             U8,     "the outer VLAN id is valid") \
  FIELD(flexCtrAction,        FlexCtrAction,        FLEX_CTR_ACTION,        U8,     "flexible counter action") \
  FIELD(enEfilter,            EnEfilter,            EN_EFILTER,             U8,     "the egress filter is enabled")

#define VELMAR_SPANS_EgrVlanEntry(SPAN) SPAN(BCM56968_A0) SPAN(BCM56996_A0)
// clang-format on

namespace Velmar {

/// Egress VLAN table: one entry per VLAN.
class VELMAR_EXPORT EgrVlanEntry : public AsicUtils::BcmAsicBase {
  VELMAR_DECLARE_TABLE(EgrVlanEntry, Raw512)
};

}  // namespace Velmar
