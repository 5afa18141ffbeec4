#include "framework/Addressing.h"

namespace Velmar {
namespace Framework {
namespace {

void checkIndices(const ClassData& data, const RowFacts& facts, SchanInputs inputs, Site site) {
  if (data.kind == Kind::table) {
    if (inputs.tableEntry >= facts.entries) failDecimal("tableEntry < ", facts.entries, site);
    if (inputs.arrayIndex != 0) fail("arrayIndex == 0", site);
  } else {
    if (inputs.tableEntry != 0) fail("tableEntry == 0", site);
    if (inputs.arrayIndex >= facts.arrayElements) {
      failDecimal("arrayIndex < ", facts.arrayElements, site);
    }
  }
}

}  // namespace

bool lookUpAddress(const ClassData& data, U32 chipType, U8 variant, SchanOutputs outputs,
                   SchanInputs inputs, HasIdentifier hasIdentifier, Site site) {
  traceStatic(chipType, variant, site);
  const U32 row = data.rowOf(chipType, variant);
  if (row == data.rows) {
    traceFailure(chipType, variant, site);
    return false;
  }
  const RowFacts& facts = data.facts[row];
  checkIndices(data, facts, inputs, site);
  // The address is set before the identifier is checked: a caller whose assertions throw sees which
  // address was refused.
  outputs.address = facts.addressOf(inputs.tableEntry, inputs.arrayIndex, inputs.identifier);
  if (!hasIdentifier(chipType, variant, inputs.identifier)) {
    fail("hasIdentifier( chipType, variant, identifier )", site);
  }
  outputs.block = facts.block;
  outputs.accessType = facts.accessType;
  return true;
}

}  // namespace Framework
}  // namespace Velmar
