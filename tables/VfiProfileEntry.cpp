#include "Velmar/VfiProfileEntry.h"

#include "framework/Definitions.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"VFI profile table, forwarding switches", ingress};

// clang-format off
enum : U8 { c56870, columns };

constexpr FieldRow<columns> layout[] = {
  //                                      56870
  {FieldId::IPMCV4_L2_ENABLE,          {{7,  1}}},
  {FieldId::IPMCV6_L2_ENABLE,          {{6,  1}}},
  {FieldId::EN_IFILTER,                {{0,  1}}},
  {FieldId::PKT_FLOW_SELECT_CTRL_ID_2, {{6, 16}}, alias},  // its low two bits are the two IPMC enables
  {FieldId::L2_MISS_DROP,              {{3,  1}}},
  {FieldId::L2_MISS_TOCPU,             {{2,  1}}},
  {FieldId::L2_NON_UCAST_DROP,         {{5,  1}}},
  {FieldId::L2_NON_UCAST_TOCPU,        {{4,  1}}},
  {FieldId::LEARN_DISABLE,             {{1,  1}}},
};

constexpr ChipRow chips[] = {
  // chips                                  column  variants    words  entries base        access
  {{BCM56870_A0, BCM56770_A0},              c56870, anyVariant,    2,     128, 0x645c0000,    9},
  {{BCM56470_A0},                           c56870, anyVariant,    2,     128, 0x68600000,    0},
  {{BCM56370_A0, BCM56275_A0, BCM56175_A0}, c56870, anyVariant,    2,     128, 0x645c0000,    0},
};
// clang-format on

}  // namespace

VELMAR_DEFINE_TABLE(VfiProfileEntry, U64)

}  // namespace Velmar
