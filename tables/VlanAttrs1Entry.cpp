#include "tables/Table.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"ingress VLAN attributes, tunnel termination enables per VLAN",
                            ingress};

// clang-format off
#define FIELDS(FIELD) \
  FIELD(mplsEnable,    MplsEnable,    MPLS_ENABLE,     U8, "MPLS is enabled") \
  FIELD(mimTermEnable, MimTermEnable, MIM_TERM_ENABLE, U8, "MAC-in-MAC termination is enabled") \
  FIELD(valid,         Valid,         VALID,           U8, "the entry is valid")

#define SPANS(SPAN) SPAN(BCM56470_A0)

enum : U8 { c56870, c56275, columns };

constexpr FieldRow<columns> layout[] = {
  //                            56870    56275
  {FieldId::MPLS_ENABLE,     {{ 0, 1}, { 0, 1}}},
  {FieldId::MIM_TERM_ENABLE, {{ 1, 1}, { 1, 1}}},
  {FieldId::VALID,           {{58, 1}, {54, 1}}},
};

constexpr ChipRow chips[] = {
  // chips                     column  variants    words  entries  base        access
  {{BCM56870_A0, BCM56770_A0}, c56870, anyVariant,     3,    4096, 0x580c0000,      9},
  {{BCM56470_A0},              c56870, anyVariant,     3,    4096, 0x5c0c0000,      0},  // its own address, as for VlanProfileEntry
  {{BCM56370_A0},              c56870, anyVariant,     3,    4096, 0x580c0000,      0},
  {{BCM56275_A0, BCM56175_A0}, c56275, anyVariant,     2,    4096, 0x580c0000,      0},
};
// clang-format on

}  // namespace

VELMAR_TABLE(VlanAttrs1Entry, Raw128, FIELDS, SPANS, about, layout, chips)

}  // namespace Velmar
