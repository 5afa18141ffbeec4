#include "Velmar/EgrVpVlanMembershipEntry.h"

#include "framework/Definitions.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"egress virtual-port VLAN membership, hash entries", egress};

// clang-format off
enum : U8 { c56470, columns };

constexpr FieldRow<columns> layout[] = {
  //                                 56470
  {FieldId::BASE_VALID,           {{ 0,  3}}},
  {FieldId::VLAN,                 {{ 5, 12}}},
  {FieldId::HASH_LSB,             {{ 5, 11}}, alias},
  {FieldId::KEY,                  {{ 3, 36}}, alias},
  {FieldId::VP,                   {{19, 15}}},
  {FieldId::UNTAG,                {{41,  1}}},
  {FieldId::DATA,                 {{39,  3}}, alias},
  {FieldId::TABLE_FIELDS,         {{ 5, 37}}, alias},
  {FieldId::DGLP,                 {{19, 17}}, alias},
  {FieldId::VFI,                  {{ 5, 14}}, alias},
  {FieldId::KEY_TYPE,             {{ 3,  2}}},
  {FieldId::RSVD_VP,              {{34,  1}}},
  {FieldId::RESERVED_KEY_PADDING, {{36,  3}}},
  {FieldId::SP_TREE,              {{39,  2}}},
  {FieldId::RSVD_VLAN,            {{17,  2}}},
};

constexpr ChipRow chips[] = {
  // chips        column  variants    words  entries base        access
  {{BCM56470_A0}, c56470, anyVariant,    2,   16384, 0x0a2c0000,    0},
};
// clang-format on

}  // namespace

VELMAR_DEFINE_TABLE(EgrVpVlanMembershipEntry, U64)

}  // namespace Velmar
