#pragma once

#include "Velmar/Declarations.h"

// clang-format off
#define VELMAR_FIELDS_EgrVpVlanMembershipEccEntry(FIELD) \
  FIELD(eccData, EccData, ECC_DATA, Raw128, "raw data of a pair of membership entries") \
  FIELD(ecc,     Ecc,     ECC,      U8,     "check bits") \
  FIELD(eccp,    Eccp,    ECCP,     U8,     "check bits and parity") \
  FIELD(parity,  Parity,  PARITY,   U8,     "parity bit")

#define VELMAR_SPANS_EgrVpVlanMembershipEccEntry(SPAN) SPAN(BCM56470_A0)
// clang-format on

namespace Velmar {

/// Egress virtual-port VLAN membership as raw data with check bits.
class VELMAR_EXPORT EgrVpVlanMembershipEccEntry : public AsicUtils::BcmAsicBase {
  VELMAR_DECLARE_TABLE(EgrVpVlanMembershipEccEntry, Raw128)
};

}  // namespace Velmar
