#include "tables/Table.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"egress VLAN table, one entry per VLAN", egress};

// clang-format off
#define FIELDS(FIELD) \
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

#define SPANS(SPAN) SPAN(BCM56968_A0) SPAN(BCM56996_A0)

enum : U8 { c56960, c56870, c56470, c56980, c56990, columns };

constexpr FieldRow<columns> layout[] = {
  //                                   56960       56870     56470     56980       56990
  {FieldId::VALID,                  {{  0,   1}, { 0,  1}, { 0,  1}, {320,   1}, {44,  1}}},
  {FieldId::STG,                    {{  1,   9}, { 1,  9}, { 1,  9}, {345,   6}, {38,  6}}},
  {FieldId::UT_PORT_BITMAP,         {{103, 136}, none,     none,     {  0, 160}, none}},
  {FieldId::PORT_BITMAP,            {{239, 136}, none,     none,     {160, 160}, none}},
  {FieldId::UNTAG_PROFILE_PTR,      {none,       {22, 12}, {22, 12}, none,       none}},
  {FieldId::MEMBERSHIP_PROFILE_PTR, {none,       {56, 12}, {56, 12}, none,       { 9, 12}}},
  {FieldId::OVID,                   {none,       none,     none,     none,       {23, 12}}},
  {FieldId::OVID_VALID,             {none,       none,     none,     none,       {35,  1}}},
  {FieldId::FLEX_CTR_ACTION,        {none,       none,     none,     none,       { 5,  4}}},
  {FieldId::EN_EFILTER,             {none,       {68,  1}, {70,  1}, none,       { 4,  1}}},  // 56470: two bits above its generation
};

constexpr ChipRow chips[] = {
  // chips                                                            column  variants     words  entries  base        access
  {{BCM56960_A0, BCM56965_A0, BCM56968_A0},                           c56960, anyVariant,     12,    4096, 0x08040000,     14},
  {{BCM56970_A0},                                                     c56960, anyVariant,     13,    4096, 0x08040000,     14},  // the layout of BCM56960_A0 in an entry of one more word
  {{BCM56870_A0, BCM56770_A0},                                        c56870, anyVariant,      3,    4096, 0x090c0000,      9},
  {{BCM56470_A0},                                                     c56470, anyVariant,      3,    4096, 0x090c0000,      0},
  {{BCM56370_A0, BCM56275_A0, BCM56175_A0},                           c56870, anyVariant,      3,    4096, 0x090c0000,      0},
  {{BCM56980_A0},                                                     c56980, anyVariant,     13,    4096, 0x04580000,     14},
  {{BCM56990_B0, BCM56992_B0, BCM56993_B0, BCM56996_A0, BCM56996_B0}, c56990, variantZero,     2,    8192, 0x04700000,     17},
};
// clang-format on

}  // namespace

VELMAR_TABLE(EgrVlanEntry, Raw512, FIELDS, SPANS, about, layout, chips)

}  // namespace Velmar
