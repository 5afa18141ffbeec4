#include "output/SnapshotFolder.h"

#include "cli/Failure.h"
#include "core/Names.h"
#include "output/Entries.h"
#include "output/NewFolder.h"

namespace Tool {
namespace {

std::string fileNameOf(const SnapshotDump& dump) {
  std::string name(SimpleName(dump.table.name()).withoutSuffix());
  if (dump.identifier != 0) name += formatText("-{}", dump.identifier);
  return name + (dump.notation == Notation::raw ? ".bin" : ".txt");
}

}  // namespace

void writeSnapshot(const std::string& folder, Snapshot& snapshot,
                   const std::vector<const Dump*>& dumps, Format text) {
  for (SnapshotDump& dump : snapshot.dumps) dump.file = fileNameOf(dump);
  check(checkSnapshot(snapshot));
  NewFolder parts(folder);
  for (size_t i = 0; i < dumps.size(); ++i) {
    const SnapshotDump& described = snapshot.dumps[i];
    Output output(parts.pathOf(described.file), "never");
    writeBytes(output, described.notation == Notation::raw ? Format::raw : text, true, *dumps[i]);
    output.finish();
  }
  Output manifest(parts.pathOf(manifestName), "never");
  manifest.write(snapshotText(snapshot));
  manifest.finish();
  parts.finish();
}

}  // namespace Tool
