#pragma once

#include "Velmar/Declarations.h"

// clang-format off
#define VELMAR_FIELDS_IngVpVlanMembershipEntry(FIELD) \
  FIELD(baseValid,          BaseValid,          BASE_VALID,           U8,  "valid code") \
  FIELD(vlan,               Vlan,               VLAN,                 U16, "VLAN of the key") \
  FIELD(hashLsb,            HashLsb,            HASH_LSB,             U16, "low bits of the key payload that feed the hash") \
  FIELD(key,                Key,                KEY,                  U64, "whole key: key type and payload") \
  FIELD(vp,                 Vp,                 VP,                   U16, "virtual port of the key") \
  FIELD(data,               Data,               DATA,                 U8,  "whole data part above the key") \
  FIELD(tableFields,        TableFields,        TABLE_FIELDS,         U64, "all above the key type: key payload and data") \
  FIELD(vfi,                Vfi,                VFI,                  U16, "virtual forwarding instance") \
  FIELD(keyType,            KeyType,            KEY_TYPE,             U8,  "key type") \
  FIELD(sglp,               Sglp,               SGLP,                 U32, "source global port of the key") \
  FIELD(reservedKeyPadding, ReservedKeyPadding, RESERVED_KEY_PADDING, U8,  "padding of the key") \
  FIELD(spTree,             SpTree,             SP_TREE,              U8,  "spanning-tree state") \
  FIELD(rsvdVlan,           RsvdVlan,           RSVD_VLAN,            U8,  "reserved bits above the VLAN")

#define VELMAR_SPANS_IngVpVlanMembershipEntry(SPAN) SPAN(BCM56470_A0)
// clang-format on

namespace Velmar {

/// Ingress virtual-port VLAN membership: a hash table of ports in VLANs.
class VELMAR_EXPORT IngVpVlanMembershipEntry : public AsicUtils::BcmAsicBase {
  VELMAR_DECLARE_TABLE(IngVpVlanMembershipEntry, U64)
};

}  // namespace Velmar
