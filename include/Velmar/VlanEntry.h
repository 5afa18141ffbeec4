#pragma once

#include "Oru/PerUnitBitmap.h"
#include "Velmar/Declarations.h"

// clang-format off
#define VELMAR_FIELDS_VlanEntry(FIELD) \
  FIELD(valid,                 Valid,                 VALID,                    U8,     "the entry is valid") \
  FIELD(fidId,                 FidId,                 FID_ID,                   U16,    "forwarding id") \
  FIELD(enableIgmpMldSnooping, EnableIgmpMldSnooping, ENABLE_IGMP_MLD_SNOOPING, U8,     "IGMP/MLD snooping is enabled") \
  FIELD(vlanClassId,           VlanClassId,           VLAN_CLASS_ID,            U16,    "VLAN class id") \
  FIELD(stg,                   Stg,                   STG,                      U16,    "spanning-tree group") \
  FIELD(vlanProfilePtr,        VlanProfilePtr,        VLAN_PROFILE_PTR,         U8,     "index of the VLAN profile") \
  FIELD(ingPortBitmap,         IngPortBitmap,         ING_PORT_BITMAP,          Bitmap, "ingress member ports") \
  FIELD(portBitmap,            PortBitmap,            PORT_BITMAP,              Bitmap, "member ports") \
  FIELD(vfi,                   Vfi,                   VFI,                      U16,    "virtual forwarding instance") \
  FIELD(membershipProfilePtr,  MembershipProfilePtr,  MEMBERSHIP_PROFILE_PTR,   U16,    "index of the membership profile") \
  FIELD(portBitmapProfilePtr,  PortBitmapProfilePtr,  PORT_BITMAP_PROFILE_PTR,  U16,    "index of the port bitmap profile") \
  FIELD(enIfilter,             EnIfilter,             EN_IFILTER,               U8,     "the ingress filter is enabled") \
  FIELD(l3Iif,                 L3Iif,                 L3_IIF,                   U16,    "layer-3 ingress interface") \
  FIELD(virtualPortEn,         VirtualPortEn,         VIRTUAL_PORT_EN,          U8,     "virtual ports are enabled") \
  FIELD(learnDisable,          LearnDisable,          LEARN_DISABLE,            U8,     "learning is disabled") \
  FIELD(l2EntryKeyType,        L2EntryKeyType,        L2_ENTRY_KEY_TYPE,        U8,     "key type of the layer-2 entry") \
  FIELD(flexCtrAction,         FlexCtrAction,         FLEX_CTR_ACTION,          U8,     "flexible counter action") \
  FIELD(uucIdx,                UucIdx,                UUC_IDX,                  U16,    "unknown unicast flood index") \
  FIELD(umcIdx,                UmcIdx,                UMC_IDX,                  U16,    "unknown multicast flood index") \
  FIELD(bcIdx,                 BcIdx,                 BC_IDX,                   U16,    "broadcast flood index")

#define VELMAR_SPANS_VlanEntry(SPAN) SPAN(BCM56968_A0) SPAN(BCM56996_A0)
// clang-format on

namespace Velmar {

/// Ingress VLAN table: one entry per VLAN.
class VELMAR_EXPORT VlanEntry : public AsicUtils::BcmAsicBase {
  VELMAR_DECLARE_TABLE(VlanEntry, Raw512)
};

}  // namespace Velmar
