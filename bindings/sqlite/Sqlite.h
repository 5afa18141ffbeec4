#pragma once

#include <sqlite3ext.h>

#include <new>

// What the files of the extension share. All calls of SQLite go through the routines that it hands to the
// extension, so that nothing is linked to it.
SQLITE_EXTENSION_INIT3

namespace Velmar {
namespace Sqlite {

/// Runs what SQLite calls: a lack of memory is a code there.
template <class Work>
int guarded(const Work& work) {
  try {
    return work();
  } catch (const std::bad_alloc&) {
    return SQLITE_NOMEM;
  }
}

}  // namespace Sqlite
}  // namespace Velmar
