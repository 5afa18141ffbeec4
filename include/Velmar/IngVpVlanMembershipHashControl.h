#pragma once

#include "Velmar/Declarations.h"

// clang-format off
#define VELMAR_FIELDS_IngVpVlanMembershipHashControl(FIELD) \
  FIELD(hashOffsetDedicatedBank0, HashOffsetDedicatedBank0, HASH_OFFSET_DEDICATED_BANK_0, U8, "hash offset of dedicated bank 0") \
  FIELD(hashOffsetDedicatedBank1, HashOffsetDedicatedBank1, HASH_OFFSET_DEDICATED_BANK_1, U8, "hash offset of dedicated bank 1") \
  FIELD(robustHashEn,             RobustHashEn,             ROBUST_HASH_EN,               U8, "robust hashing is enabled") \
  FIELD(enCorErrRpt,              EnCorErrRpt,              EN_COR_ERR_RPT,               U8, "corrected errors are reported") \
  FIELD(eccEn,                    EccEn,                    ECC_EN,                       U8, "ECC is enabled")

#define VELMAR_SPANS_IngVpVlanMembershipHashControl(SPAN) SPAN(BCM56470_A0)
// clang-format on

namespace Velmar {

/// Hash control of the ingress virtual-port VLAN membership.
class VELMAR_EXPORT IngVpVlanMembershipHashControl : public AsicUtils::BcmAsicBase {
  VELMAR_DECLARE_TABLE(IngVpVlanMembershipHashControl, U32)
};

}  // namespace Velmar
