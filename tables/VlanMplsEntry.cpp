#include "tables/Table.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {
    "ingress VLAN MPLS table, tunnel enables and layer-3 interface per VLAN", ingress};

// clang-format off
#define FIELDS(FIELD) \
  FIELD(mplsEnable,           MplsEnable,           MPLS_ENABLE,            U8,  "MPLS is enabled") \
  FIELD(mimTermEnable,        MimTermEnable,        MIM_TERM_ENABLE,        U8,  "MAC-in-MAC termination is enabled") \
  FIELD(l3Iif,                L3Iif,                L3_IIF,                 U16, "layer-3 ingress interface") \
  FIELD(enIfilter,            EnIfilter,            EN_IFILTER,             U8,  "the ingress filter is enabled") \
  FIELD(membershipProfilePtr, MembershipProfilePtr, MEMBERSHIP_PROFILE_PTR, U8,  "index of the membership profile") \
  FIELD(vfi,                  Vfi,                  VFI,                    U8,  "virtual forwarding instance")

#define SPANS(SPAN) SPAN(BCM56968_A0) SPAN(BCM56996_A0)

enum : U8 { c56960, c56980, columns };

constexpr FieldRow<columns> layout[] = {
  //                                   56960    56980
  {FieldId::MPLS_ENABLE,            {{0,  1}, {13,  1}}},
  {FieldId::MIM_TERM_ENABLE,        {{1,  1}, none}},
  {FieldId::L3_IIF,                 {{2, 13}, { 0, 13}}},
  {FieldId::EN_IFILTER,             {none,    none}},  // on no chip; the class declares it, so it is known by identifier and never valid
  {FieldId::MEMBERSHIP_PROFILE_PTR, {none,    none}},  // likewise
  {FieldId::VFI,                    {none,    none}},  // likewise
};

constexpr ChipRow chips[] = {
  // chips                                                            column  variants     words  entries  base        access
  {{BCM56960_A0, BCM56965_A0, BCM56968_A0},                           c56960, anyVariant,      1,    4096, 0x34000000,      9},
  {{BCM56970_A0},                                                     c56960, anyVariant,      1,    4096, 0x58000000,      9},
  {{BCM56980_A0},                                                     c56980, anyVariant,      1,    4096, 0x08240000,      9},
  {{BCM56990_B0, BCM56992_B0, BCM56993_B0, BCM56996_A0, BCM56996_B0}, c56980, variantZero,     1,    8192, 0x08380000,     17},
};
// clang-format on

}  // namespace

VELMAR_TABLE(VlanMplsEntry, U32, FIELDS, SPANS, about, layout, chips)

}  // namespace Velmar
