#include "Velmar/EgrVpVlanMembershipHashControl.h"

#include "framework/Definitions.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"hash control of the egress virtual-port VLAN membership", egress};

// clang-format off
enum : U8 { c56470, columns };

constexpr FieldRow<columns> layout[] = {
  //                                         56470
  {FieldId::HASH_OFFSET_DEDICATED_BANK_0, {{ 4, 6}}},
  {FieldId::HASH_OFFSET_DEDICATED_BANK_1, {{10, 6}}},
  {FieldId::ROBUST_HASH_EN,               {{ 2, 1}}},
  {FieldId::EN_COR_ERR_RPT,               {{ 1, 1}}},
  {FieldId::ECC_EN,                       {{ 0, 1}}},
};

constexpr ChipRow chips[] = {
  // chips        column  variants    words  entries base        access
  {{BCM56470_A0}, c56470, anyVariant,    1,       1, 0x0a5c0000,    0},
};
// clang-format on

}  // namespace

VELMAR_DEFINE_TABLE(EgrVpVlanMembershipHashControl, U32)

}  // namespace Velmar
