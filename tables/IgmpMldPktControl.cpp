#include "Velmar/IgmpMldPktControl.h"

#include "framework/Definitions.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"IGMP/MLD packet control, actions per packet kind", ingress};

// clang-format off
enum : U8 { c56960, c56980, columns };

constexpr FieldRow<columns> layout[] = {
  //                                              56960    56980
  {FieldId::IPV6_MC_ROUTER_ADV_PKT_TO_CPU,     {{ 0, 1}, {17, 1}}},
  {FieldId::IPV6_MC_ROUTER_ADV_PKT_FWD_ACTION, {{ 1, 2}, {15, 2}}},
  {FieldId::IPV4_MC_ROUTER_ADV_PKT_TO_CPU,     {{ 3, 1}, {11, 1}}},
  {FieldId::IPV4_MC_ROUTER_ADV_PKT_FWD_ACTION, {{ 4, 2}, { 9, 2}}},
  {FieldId::IPV6_RESVD_MC_PKT_TO_CPU,          {{ 6, 1}, {20, 1}}},
  {FieldId::IPV6_RESVD_MC_PKT_FWD_ACTION,      {{ 7, 2}, {18, 2}}},
  {FieldId::IPV4_RESVD_MC_PKT_TO_CPU,          {{ 9, 1}, {14, 1}}},
  {FieldId::IPV4_RESVD_MC_PKT_FWD_ACTION,      {{10, 2}, {12, 2}}},
  {FieldId::MLD_QUERY_TO_CPU,                  {{12, 1}, {23, 1}}},
  {FieldId::MLD_QUERY_FWD_ACTION,              {{13, 2}, {21, 2}}},
  {FieldId::MLD_REP_DONE_TO_CPU,               {{15, 1}, {26, 1}}},
  {FieldId::MLD_REP_DONE_FWD_ACTION,           {{16, 2}, {24, 2}}},
  {FieldId::IGMP_UNKNOWN_MSG_TO_CPU,           {{18, 1}, { 8, 1}}},
  {FieldId::IGMP_UNKNOWN_MSG_FWD_ACTION,       {{19, 2}, { 6, 2}}},
  {FieldId::IGMP_QUERY_TO_CPU,                 {{21, 1}, { 2, 1}}},
  {FieldId::IGMP_QUERY_FWD_ACTION,             {{22, 2}, { 0, 2}}},
  {FieldId::IGMP_REP_LEAVE_TO_CPU,             {{24, 1}, { 5, 1}}},
  {FieldId::IGMP_REP_LEAVE_FWD_ACTION,         {{25, 2}, { 3, 2}}},
  {FieldId::PFM_RULE_APPLY,                    {{27, 1}, {27, 1}}},
};

constexpr ChipRow chips[] = {
  // chips                                               column  variants    words  entries base        access  stride  identifiers
  {{BCM56960_A0, BCM56965_A0, BCM56968_A0},              c56960, anyVariant,    1,       1, 0x4200c000,    9,     256,  2},
  {{BCM56970_A0},                                        c56960, anyVariant,    1,       1, 0x8200c000,    9,     256,  2},
  {{BCM56870_A0, BCM56770_A0},                           c56960, anyVariant,    1,       1, 0x7200c000,    9,     256,  2},
  {{BCM56470_A0, BCM56370_A0, BCM56275_A0, BCM56175_A0}, c56960, anyVariant,    1,       1, 0x7200c000,    0,     256,  2},
  {{BCM56980_A0},                                        c56980, anyVariant,    1,       1, 0x12000400,    9,     256,  2},
  {bcm5699x,                                             c56980, anyVariant,    1,       1, 0x12001000,   17,    1024,  1},
};
// clang-format on

}  // namespace

VELMAR_DEFINE_REGISTER(IgmpMldPktControl, U32)

}  // namespace Velmar
