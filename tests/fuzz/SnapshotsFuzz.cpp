// Bytes as the manifest of a snapshot: a fault with a remedy, or a snapshot that is safe to follow, and the
// same again after it is written and read.

#include "Fuzzing.h"
#include "core/Snapshot.h"

extern "C" int LLVMFuzzerTestOneInput(const U8* data, size_t size) {
  using namespace Fuzzing;
  const std::string bytes(data, data + size);
  const auto snapshot = Core::readSnapshot(bytes);
  if (!succeeds(snapshot)) return 0;
  for (const Core::SnapshotDump& dump : snapshot->dumps) {
    const std::string path = "/" + dump.file + "/";
    require(path.find("//") == path.npos && path.find("/../") == path.npos,
            "paths stay in the folder", path);
    require(snapshot->dumpsOf(dump.table).size() <= snapshot->dumps.size(),
            "a table has its dumps");
  }
  const std::string text = Core::snapshotText(*snapshot);
  const auto again = Core::readSnapshot(text);
  require(succeeds(again), "what is written is read", text);
  require(Core::snapshotText(*again) == text, "written and read, it is the same", text);
  return 0;
}
