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

/// The inputs of an address look-up besides chip and variant.
struct SchanInputs {
  U16 identifier;
  U32 tableEntry;
  U16 arrayIndex;
};

using HasIdentifier = bool (*)(U32 chipType, U8 variant, U32 identifier);

/// The slow path of a look-up: trace, checks in their order, address, identifier. `hasIdentifier` is the
/// class's member, which traces a line of its own.
[[gnu::cold]] bool lookUpAddress(const ClassData& data, U32 chipType, U8 variant,
                                 SchanOutputs outputs, SchanInputs inputs,
                                 HasIdentifier hasIdentifier, Site site);

/// The same, with the fast path of an accepted entry of identifier 0.
template <class Class>
bool getAddress(U32 chipType, U8 variant, SchanOutputs outputs, SchanInputs inputs,
                HasIdentifier hasIdentifier, Site site) {
  const RowFacts& facts = Class::facts.ofRow[rowIn(Class::arrays, chipType, variant)];
  // The last row has no entries and is refused here too.
  const bool isRefused = inputs.tableEntry >= facts.entries ||
                         inputs.arrayIndex >= facts.arrayElements || inputs.identifier != 0;
  if (takesSlowPath(isRefused)) {
    return lookUpAddress(Class::data, chipType, variant, outputs, inputs, hasIdentifier, site);
  }
  outputs.address = facts.addressOf(inputs.tableEntry, inputs.arrayIndex, 0);
  outputs.block = facts.block;
  outputs.accessType = facts.accessType;
  return true;
}

}  // namespace Framework
}  // namespace Velmar
