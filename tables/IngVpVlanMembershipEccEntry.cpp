#include "tables/Table.h"

namespace Velmar {
namespace {

using namespace Framework;

// getAllFields needs the three words of the entry, and not the four of its Raw128.
constexpr ClassRow about = {"ingress virtual-port VLAN membership, raw data with check bits",
                            ingress, /* elements */ 1, /* allFieldsBytes */ 12};

// clang-format off
#define FIELDS(FIELD) \
  FIELD(eccData, EccData, ECC_DATA, Raw128, "raw data of a pair of membership entries") \
  FIELD(ecc,     Ecc,     ECC,      U8,     "check bits") \
  FIELD(eccp,    Eccp,    ECCP,     U8,     "check bits and parity") \
  FIELD(parity,  Parity,  PARITY,   U8,     "parity bit")

#define SPANS(SPAN) SPAN(BCM56470_A0)

enum : U8 { c56470, columns };

constexpr FieldRow<columns> layout[] = {
  //                     56470
  {FieldId::ECC_DATA, {{ 0, 82}}},
  {FieldId::ECC,      {{82,  7}}},
  {FieldId::ECCP,     {{82,  8}}, alias},  // the check bits and the parity bit in one
  {FieldId::PARITY,   {{89,  1}}},
};

constexpr ChipRow chips[] = {
  // chips        column  variants    words  entries  base        access
  {{BCM56470_A0}, c56470, anyVariant,     3,    8192, 0x68a00000,      0},
};
// clang-format on

}  // namespace

VELMAR_TABLE(IngVpVlanMembershipEccEntry, Raw128, FIELDS, SPANS, about, layout, chips)

}  // namespace Velmar
