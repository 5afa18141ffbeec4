#include "Velmar/IngVpVlanMembershipEccEntry.h"

#include "framework/Definitions.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"ingress virtual-port VLAN membership, raw data with check bits",
                            ingress, 12};

// clang-format off
enum : U8 { c56470, columns };

constexpr FieldRow<columns> layout[] = {
  //                     56470
  {FieldId::ECC_DATA, {{ 0, 82}}},
  {FieldId::ECC,      {{82,  7}}},
  {FieldId::ECCP,     {{82,  8}}, alias},  // the check bits and the parity bit in one
  {FieldId::PARITY,   {{89,  1}}},
};

constexpr ChipRow chips[] = {
  // chips        column  variants    words  entries base        access
  {{BCM56470_A0}, c56470, anyVariant,    3,    8192, 0x68a00000,    0},
};
// clang-format on

}  // namespace

VELMAR_DEFINE_TABLE(IngVpVlanMembershipEccEntry, Raw128)

}  // namespace Velmar
