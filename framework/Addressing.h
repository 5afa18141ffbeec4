#pragma once

#include "framework/PlatformAdapter.h"
#include "framework/Reports.h"

namespace Velmar {
namespace Framework {

/// The three outputs of an address look-up.
struct SchanOutputs {
  U32& address;
  U32& accessType;
  U32& block;
};

/// The three inputs of an address look-up beside chip and variant.
struct SchanInputs {
  U16 identifier;
  U32 tableEntry;
  U16 arrayIndex;
};

using HasIdentifier = bool (*)(U32 chipType, U8 variant, U32 identifier);

/// The whole look-up: trace, checks in their order, address, identifier. `hasIdentifier` is the
/// class's own, which traces its own line.
[[gnu::cold]] bool lookUpAddress(const ClassData& data, U32 chipType, U8 variant,
                                 SchanOutputs outputs, SchanInputs inputs,
                                 HasIdentifier hasIdentifier, Site site);

template <const auto& table, const auto& data>
struct Addressing {
  static bool look(U32 chipType, U8 variant, SchanOutputs outputs, SchanInputs inputs,
                   HasIdentifier hasIdentifier, Site site) {
    const RowFacts& facts = table.facts[table.rowOf(chipType, variant)];
    // The last row has no entries and fails this test too.
    const bool isPlain = inputs.tableEntry < facts.entries &&
                         inputs.arrayIndex < facts.arrayElements && inputs.identifier == 0;
    if (__builtin_expect(!isPlain || traceMayBeOn(entryLevel), false)) {
      return lookUpAddress(data, chipType, variant, outputs, inputs, hasIdentifier, site);
    }
    outputs.address = facts.base + inputs.tableEntry + inputs.arrayIndex * facts.addrStride;
    outputs.block = static_cast<U32>(data.block);
    outputs.accessType = facts.accessType;
    return true;
  }
};

}  // namespace Framework
}  // namespace Velmar
