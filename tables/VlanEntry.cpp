#include "tables/Table.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"ingress VLAN table, one entry per VLAN", ingress};

// clang-format off
#define FIELDS(FIELD) \
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

#define SPANS(SPAN) SPAN(BCM56968_A0) SPAN(BCM56996_A0)

enum : U8 { c56960, c56970, c56870, c56470, c56370, c56275, c56175, c56980, c56990, columns };

constexpr FieldRow<columns> layout[] = {
  //                                  56960       56970       56870       56470       56370       56275       56175       56980       56990
  {FieldId::VALID,                   {{345,   1}, {  0,   1}, {150,   1}, {150,   1}, {150,   1}, {150,   1}, {150,   1}, { 62,   1}, { 66,   1}}},
  {FieldId::FID_ID,                  {{365,  12}, { 20,  12}, {172,  12}, {172,  12}, {172,  12}, {172,  12}, {172,  12}, { 10,  12}, { 10,  13}}},  // 56990: 13 bits
  {FieldId::ENABLE_IGMP_MLD_SNOOPING,{{380,   1}, { 35,   1}, none      , none      , none      , none      , none      , {  9,   1}, {  9,   1}}},
  {FieldId::VLAN_CLASS_ID,           {{465,  12}, {120,  12}, {266,  12}, {265,  12}, {266,  12}, {266,  12}, {266,  12}, { 63,  12}, { 67,  12}}},  // 56470: one bit below its generation
  {FieldId::STG,                     {{272,   9}, none      , {141,   9}, {141,   9}, {141,   9}, {141,   8}, {141,   8}, none      , { 42,   6}}},  // 56275, 56175: 8 of 16 bits, whole bytes, so any value is taken and its low 8 bits are kept
  {FieldId::VLAN_PROFILE_PTR,        {{358,   7}, { 13,   7}, {165,   7}, {165,   7}, {165,   7}, {165,   7}, {165,   7}, { 75,   7}, { 91,   7}}},
  {FieldId::ING_PORT_BITMAP,         {{  0, 136}, none      , none      , none      , none      , none      , none      , none      , none      }},
  {FieldId::PORT_BITMAP,             {{136, 136}, none      , {  0, 132}, {  0,  72}, {  0,  72}, {  0,  72}, {  0,  72}, none      , none      }},
  {FieldId::VFI,                     {none      , none      , {332,  14}, {332,  14}, {332,  12}, {332,  10}, {332,   9}, none      , none      }},
  {FieldId::MEMBERSHIP_PROFILE_PTR,  {none      , none      , {297,  12}, {297,  12}, {297,  12}, {297,  12}, {297,  12}, none      , { 79,  12}}},
  {FieldId::PORT_BITMAP_PROFILE_PTR, {none      , none      , none      , none      , none      , none      , none      , none      , { 31,  11}}},
  {FieldId::EN_IFILTER,              {none      , none      , {296,   1}, {296,   1}, {296,   1}, {296,   1}, {296,   1}, none      , none      }},
  {FieldId::L3_IIF,                  {none      , none      , {318,  14}, {318,  14}, {318,  13}, {318,  11}, {318,  10}, none      , none      }},
  {FieldId::VIRTUAL_PORT_EN,         {{444,   1}, { 99,   1}, {244,   1}, {243,   1}, {244,   1}, {244,   1}, {244,   1}, none      , { 98,   1}}},  // 56470: likewise
  {FieldId::LEARN_DISABLE,           {none      , none      , none      , none      , none      , none      , none      , none      , { 30,   1}}},
  {FieldId::L2_ENTRY_KEY_TYPE,       {{346,   2}, {  1,   2}, {151,   2}, {151,   2}, {151,   2}, {151,   2}, {151,   2}, { 40,   2}, { 28,   2}}},
  {FieldId::FLEX_CTR_ACTION,         {none      , none      , none      , none      , none      , none      , none      , none      , { 23,   5}}},
  {FieldId::UUC_IDX,                 {{399,  13}, { 54,  13}, none      , none      , none      , none      , none      , { 53,   9}, { 57,   9}}},
  {FieldId::UMC_IDX,                 {{413,  13}, { 68,  13}, none      , none      , none      , none      , none      , { 44,   9}, { 48,   9}}},
  {FieldId::BC_IDX,                  {{385,  13}, { 40,  13}, none      , none      , none      , none      , none      , {  0,   9}, {  0,   9}}},
};

constexpr ChipRow chips[] = {
  // chips                                                            column  variants     words  entries  base        access
  {{BCM56960_A0, BCM56965_A0, BCM56968_A0},                           c56960, anyVariant,     16,    4096, 0x380c0000,     14},
  {{BCM56970_A0},                                                     c56970, anyVariant,      5,    4096, 0x5c280000,     14},
  {{BCM56870_A0, BCM56770_A0},                                        c56870, anyVariant,     12,    4096, 0x643c0000,      9},
  {{BCM56470_A0},                                                     c56470, anyVariant,     12,    4096, 0x68400000,      0},
  {{BCM56370_A0},                                                     c56370, anyVariant,     12,    4096, 0x643c0000,      0},
  {{BCM56275_A0},                                                     c56275, anyVariant,     12,    4096, 0x643c0000,      0},
  {{BCM56175_A0},                                                     c56175, anyVariant,     12,    4096, 0x643c0000,      0},
  {{BCM56980_A0},                                                     c56980, anyVariant,      3,    4096, 0x0c740000,      9},
  {{BCM56990_B0, BCM56992_B0, BCM56993_B0, BCM56996_A0, BCM56996_B0}, c56990, variantZero,     4,    8192, 0x0c7c0000,     17},
};
// clang-format on

}  // namespace

VELMAR_TABLE(VlanEntry, Raw512, FIELDS, SPANS, about, layout, chips)

}  // namespace Velmar
