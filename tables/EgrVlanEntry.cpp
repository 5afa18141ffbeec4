#include "Velmar/EgrVlanEntry.h"

#include "framework/Definitions.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"egress VLAN table, one entry per VLAN", egress};

// clang-format off
enum : U8 { c56960, c56870, c56470, c56980, c5699x, columns };

constexpr FieldRow<columns> layout[] = {
  //                                   56960       56870     56470     56980       5699x
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
  // chips                                  column  variants     words  entries base        access
  {{BCM56960_A0, BCM56965_A0, BCM56968_A0}, c56960, anyVariant,    12,    4096, 0x08040000,   14},
  {{BCM56970_A0},                           c56960, anyVariant,    13,    4096, 0x08040000,   14},
  {{BCM56870_A0, BCM56770_A0},              c56870, anyVariant,     3,    4096, 0x090c0000,    9},
  {{BCM56470_A0},                           c56470, anyVariant,     3,    4096, 0x090c0000,    0},
  {{BCM56370_A0, BCM56275_A0, BCM56175_A0}, c56870, anyVariant,     3,    4096, 0x090c0000,    0},
  {{BCM56980_A0},                           c56980, anyVariant,    13,    4096, 0x04580000,   14},
  {bcm5699x,                                c5699x, variantZero,    2,    8192, 0x04700000,   17},
};
// clang-format on

}  // namespace

VELMAR_DEFINE_TABLE(EgrVlanEntry, Raw512)

}  // namespace Velmar
