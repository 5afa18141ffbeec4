#pragma once

#include "Oru/PerUnitBitmap.h"
#include "Velmar/Declarations.h"

// clang-format off
#define VELMAR_FIELDS_Vlan2Entry(FIELD) \
  FIELD(valid,                Valid,                VALID,                   U8,     "the entry is valid") \
  FIELD(stg,                  Stg,                  STG,                     U16,    "spanning-tree group") \
  FIELD(portBitmapProfilePtr, PortBitmapProfilePtr, PORT_BITMAP_PROFILE_PTR, U16,    "index of the port bitmap profile") \
  FIELD(ingPortBitmap,        IngPortBitmap,        ING_PORT_BITMAP,         Bitmap, "ingress member ports") \
  FIELD(portBitmap,           PortBitmap,           PORT_BITMAP,             Bitmap, "member ports")

#define VELMAR_SPANS_Vlan2Entry(SPAN) SPAN(BCM56970_A0)
// clang-format on

namespace Velmar {

/// Second ingress VLAN table: port bitmaps, or the profile that holds them, per VLAN.
class VELMAR_EXPORT Vlan2Entry : public AsicUtils::BcmAsicBase {
  VELMAR_DECLARE_TABLE(Vlan2Entry, Raw512)
};

}  // namespace Velmar
