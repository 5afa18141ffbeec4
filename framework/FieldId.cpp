#include "Velmar/FieldId.h"

#include <algorithm>

#include "framework/Knowledge.h"
#include "framework/Names.h"

namespace Velmar {
namespace FieldId {
namespace {

using Framework::IdRow;

const IdRow* begin() { return Framework::idRows; }
const IdRow* end() { return Framework::idRows + Framework::idCount; }

const IdRow* rowOf(U32 id) {
  const IdRow* const row = std::lower_bound(
      begin(), end(), id, [](const IdRow& each, U32 wanted) { return each.id < wanted; });
  return row != end() && row->id == id ? row : nullptr;
}

}  // namespace

const char* hardwareName(U32 id) {
  const IdRow* const row = rowOf(id);
  return row != nullptr ? row->hardwareName : nullptr;
}

const char* accessorName(U32 id) {
  const IdRow* const row = rowOf(id);
  return row != nullptr ? row->accessor : nullptr;
}

U32 find(const char* name) {
  for (const IdRow* row = begin(); row != end(); ++row) {
    if (Framework::sameText(row->hardwareName, name) || Framework::sameText(row->accessor, name)) {
      return row->id;
    }
  }
  return 0;
}

}  // namespace FieldId
}  // namespace Velmar
