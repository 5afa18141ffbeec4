#include "Velmar/FieldId.h"

#include "framework/Names.h"

namespace Velmar {
namespace FieldId {
namespace {

/// One row of the identifier list. The names live in the row: no pointers, no start-up work.
struct Entry {
  U16 id;
  char hardwareName[36];
  char accessor[36];
};

constexpr Entry makeEntry(U32 id, const char* name) {
  Entry entry{static_cast<U16>(id), {}, {}};
  for (U32 i = 0; name[i] != '\0'; ++i) entry.hardwareName[i] = name[i];
  Framework::writeAccessorName(entry.accessor, name);
  return entry;
}

constexpr Entry entries[] = {
#define VELMAR_ENTRY(number, NAME) makeEntry(number, #NAME),
#define VELMAR_PORT_ENTRY(accessor, Accessor, NAME, TYPE, meaning) makeEntry(NAME, #NAME),
    VELMAR_FIELD_IDS_BEFORE_PORTS(VELMAR_ENTRY) VELMAR_SP_TREE_PORTS_0_TO_159(VELMAR_PORT_ENTRY)
        VELMAR_SP_TREE_PORTS_160_TO_271(VELMAR_PORT_ENTRY)
            VELMAR_FIELD_IDS_AFTER_PORTS(VELMAR_ENTRY)
#undef VELMAR_ENTRY
#undef VELMAR_PORT_ENTRY
};

constexpr bool rowsAscend() {
  const Entry* before = nullptr;
  for (const Entry& entry : entries) {
    if (before != nullptr &&
        (before->id >= entry.id ||
         !Framework::naturallyBefore(before->hardwareName, entry.hardwareName))) {
      return false;
    }
    before = &entry;
  }
  return true;
}
static_assert(rowsAscend(),
              "field identifiers: a number or name is out of order, or stands twice; identifiers "
              "are places in a naturally sorted list of names");
static_assert(SP_TREE_PORT271 == firstPort + 271, "field identifiers: port n is not 244 + n");

const Entry* entryOf(U32 id) {
  U32 low = 0;
  U32 high = sizeof(entries) / sizeof(entries[0]);
  while (low < high) {
    const U32 middle = (low + high) / 2;
    if (entries[middle].id == id) return &entries[middle];
    if (entries[middle].id < id) {
      low = middle + 1;
    } else {
      high = middle;
    }
  }
  return nullptr;
}

}  // namespace

const char* hardwareName(U32 id) {
  const Entry* entry = entryOf(id);
  return entry != nullptr ? entry->hardwareName : nullptr;
}

const char* accessorName(U32 id) {
  const Entry* entry = entryOf(id);
  return entry != nullptr ? entry->accessor : nullptr;
}

U32 find(const char* name) {
  for (const Entry& entry : entries) {
    if (Framework::sameText(entry.hardwareName, name) ||
        Framework::sameText(entry.accessor, name)) {
      return entry.id;
    }
  }
  return 0;
}

}  // namespace FieldId
}  // namespace Velmar
