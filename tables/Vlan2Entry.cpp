#include "tables/Table.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"second ingress VLAN table, port bitmaps or their profile per VLAN",
                            ingress};

// clang-format off
#define FIELDS(FIELD) \
  FIELD(valid,                Valid,                VALID,                   U8,     "the entry is valid") \
  FIELD(stg,                  Stg,                  STG,                     U16,    "spanning-tree group") \
  FIELD(portBitmapProfilePtr, PortBitmapProfilePtr, PORT_BITMAP_PROFILE_PTR, U16,    "index of the port bitmap profile") \
  FIELD(ingPortBitmap,        IngPortBitmap,        ING_PORT_BITMAP,         Bitmap, "ingress member ports") \
  FIELD(portBitmap,           PortBitmap,           PORT_BITMAP,             Bitmap, "member ports")

#define SPANS(SPAN) SPAN(BCM56970_A0)

enum : U8 { c56970, c56980, columns };

constexpr FieldRow<columns> layout[] = {
  //                                    56970       56980
  {FieldId::VALID,                   {{345,   1}, {176,   1}}},
  {FieldId::STG,                     {{272,   9}, {170,   6}}},
  {FieldId::PORT_BITMAP_PROFILE_PTR, {none,       {160,  10}}},
  {FieldId::ING_PORT_BITMAP,         {{  0, 136}, {  0, 160}}},
  {FieldId::PORT_BITMAP,             {{136, 136}, none}},
};

constexpr ChipRow chips[] = {
  // chips        column  variants    words  entries  base        access
  {{BCM56970_A0}, c56970, anyVariant,    12,    4096, 0x5c2c0000,     14},
  {{BCM56980_A0}, c56980, anyVariant,     8,    4096, 0x0c780000,     14},
};
// clang-format on

}  // namespace

VELMAR_TABLE(Vlan2Entry, Raw512, FIELDS, SPANS, about, layout, chips)

}  // namespace Velmar
