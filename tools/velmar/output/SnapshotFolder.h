#pragma once

#include "core/Snapshot.h"
#include "output/Output.h"

namespace Tool {

/// Writes a snapshot with the entries of its dumps, whole or not at all. It names the files. Dumps that
/// are not raw are written as `text`: hex or words.
void writeSnapshot(const std::string& folder, Snapshot& snapshot,
                   const std::vector<const Dump*>& dumps, Format text);

}  // namespace Tool
