#include "Velmar/EgrVpVlanMembershipEccEntry.h"

#include "framework/Definitions.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"egress virtual-port VLAN membership, raw data with check bits", egress,
                            12};

// clang-format off
enum : U8 { c56470, columns };

constexpr FieldRow<columns> layout[] = {
  //                     56470
  {FieldId::ECC_DATA, {{ 0, 84}}},
  {FieldId::ECC,      {{84,  7}}},
  {FieldId::ECCP,     {{84,  8}}, alias},  // the check bits and the parity bit in one
  {FieldId::PARITY,   {{91,  1}}},
};

constexpr ChipRow chips[] = {
  // chips        column  variants    words  entries base        access
  {{BCM56470_A0}, c56470, anyVariant,    3,    8192, 0x0a0c0000,    0},
};
// clang-format on

}  // namespace

VELMAR_DEFINE_TABLE(EgrVpVlanMembershipEccEntry, Raw128)

}  // namespace Velmar
