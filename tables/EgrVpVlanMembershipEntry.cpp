#include "tables/Table.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"egress virtual-port VLAN membership, hash entries", egress};

// clang-format off
#define FIELDS(FIELD) \
  FIELD(baseValid,          BaseValid,          BASE_VALID,           U8,  "valid code") \
  FIELD(vlan,               Vlan,               VLAN,                 U16, "VLAN of the key") \
  FIELD(hashLsb,            HashLsb,            HASH_LSB,             U16, "low bits of the key payload that feed the hash") \
  FIELD(key,                Key,                KEY,                  U64, "whole key: key type and payload") \
  FIELD(vp,                 Vp,                 VP,                   U16, "virtual port of the key") \
  FIELD(untag,              Untag,              UNTAG,                U8,  "the port is untagged") \
  FIELD(data,               Data,               DATA,                 U8,  "whole data part above the key") \
  FIELD(tableFields,        TableFields,        TABLE_FIELDS,         U64, "all above the key type: key payload and data") \
  FIELD(dglp,               Dglp,               DGLP,                 U32, "destination global port of the key") \
  FIELD(vfi,                Vfi,                VFI,                  U16, "virtual forwarding instance") \
  FIELD(keyType,            KeyType,            KEY_TYPE,             U8,  "key type") \
  FIELD(rsvdVp,             RsvdVp,             RSVD_VP,              U8,  "reserved bit above the virtual port") \
  FIELD(reservedKeyPadding, ReservedKeyPadding, RESERVED_KEY_PADDING, U8,  "padding of the key") \
  FIELD(spTree,             SpTree,             SP_TREE,              U8,  "spanning-tree state") \
  FIELD(rsvdVlan,           RsvdVlan,           RSVD_VLAN,            U8,  "reserved bits above the VLAN")

#define SPANS(SPAN) SPAN(BCM56470_A0)

enum : U8 { c56470, columns };

constexpr FieldRow<columns> layout[] = {
  //                                 56470
  {FieldId::BASE_VALID,           {{ 0,  3}}},
  {FieldId::VLAN,                 {{ 5, 12}}},
  {FieldId::HASH_LSB,             {{ 5, 11}}, alias},  // the low bits of VLAN and VFI
  {FieldId::KEY,                  {{ 3, 36}}, alias},  // KEY_TYPE and all above it up to the data
  {FieldId::VP,                   {{19, 15}}},
  {FieldId::UNTAG,                {{41,  1}}},
  {FieldId::DATA,                 {{39,  3}}, alias},  // SP_TREE and UNTAG
  {FieldId::TABLE_FIELDS,         {{ 5, 37}}, alias},  // the key above its type, and the data
  {FieldId::DGLP,                 {{19, 17}}, alias},  // in place of VP
  {FieldId::VFI,                  {{ 5, 14}}, alias},  // in place of VLAN and RSVD_VLAN
  {FieldId::KEY_TYPE,             {{ 3,  2}}},
  {FieldId::RSVD_VP,              {{34,  1}}},
  {FieldId::RESERVED_KEY_PADDING, {{36,  3}}},
  {FieldId::SP_TREE,              {{39,  2}}},
  {FieldId::RSVD_VLAN,            {{17,  2}}},
};

constexpr ChipRow chips[] = {
  // chips        column  variants    words  entries  base        access
  {{BCM56470_A0}, c56470, anyVariant,     2,   16384, 0x0a2c0000,      0},
};
// clang-format on

}  // namespace

VELMAR_TABLE(EgrVpVlanMembershipEntry, U64, FIELDS, SPANS, about, layout, chips)

}  // namespace Velmar
