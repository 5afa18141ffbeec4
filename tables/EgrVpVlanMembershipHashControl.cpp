#include "tables/Table.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"hash control of the egress virtual-port VLAN membership", egress};

// clang-format off
#define FIELDS(FIELD) \
  FIELD(hashOffsetDedicatedBank0, HashOffsetDedicatedBank0, HASH_OFFSET_DEDICATED_BANK_0, U8, "hash offset of dedicated bank 0") \
  FIELD(hashOffsetDedicatedBank1, HashOffsetDedicatedBank1, HASH_OFFSET_DEDICATED_BANK_1, U8, "hash offset of dedicated bank 1") \
  FIELD(robustHashEn,             RobustHashEn,             ROBUST_HASH_EN,               U8, "robust hashing is enabled") \
  FIELD(enCorErrRpt,              EnCorErrRpt,              EN_COR_ERR_RPT,               U8, "corrected errors are reported") \
  FIELD(eccEn,                    EccEn,                    ECC_EN,                       U8, "ECC is enabled")

#define SPANS(SPAN) SPAN(BCM56470_A0)

enum : U8 { c56470, columns };

// Reserved: bit 3; the ingress register reserves other bits.
constexpr FieldRow<columns> layout[] = {
  //                                         56470
  {FieldId::HASH_OFFSET_DEDICATED_BANK_0, {{ 4, 6}}},
  {FieldId::HASH_OFFSET_DEDICATED_BANK_1, {{10, 6}}},
  {FieldId::ROBUST_HASH_EN,               {{ 2, 1}}},
  {FieldId::EN_COR_ERR_RPT,               {{ 1, 1}}},
  {FieldId::ECC_EN,                       {{ 0, 1}}},
};

constexpr ChipRow chips[] = {
  // chips        column  variants    words  entries  base        access
  {{BCM56470_A0}, c56470, anyVariant,     1,       1, 0x0a5c0000,      0},
};
// clang-format on

}  // namespace

VELMAR_TABLE(EgrVpVlanMembershipHashControl, U32, FIELDS, SPANS, about, layout, chips)

}  // namespace Velmar
