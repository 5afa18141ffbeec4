#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/Dump.h"

// A snapshot is a folder with dumps of the tables of one chip, and a manifest that says what they are.

namespace Velmar {
namespace Core {

/// The name of the manifest.
constexpr const char* manifestName = "snapshot.json";
constexpr size_t longestManifest = size_t{1} << 20;

/// A dump of a snapshot. It may be partial: entries that it does not have are unknown, not zero.
struct SnapshotDump {
  Catalogue::Table table;
  U32 identifier = 0;  ///< instance
  std::string file;    ///< in the folder
  Notation notation = Notation::automatic;
};

/// What the manifest says.
struct Snapshot {
  Catalogue::Chip chip{};
  U8 variant = 0;
  std::string time;   ///< such as "2026-11-21T08:30:00Z"; empty: not known
  std::string label;  ///< any text; may be empty
  std::vector<SnapshotDump> dumps;

  /// The dumps of a table, one for each identifier.
  std::vector<const SnapshotDump*> dumpsOf(const Catalogue::Table& table) const;
};

/// A fault if a manifest cannot say that, or if nobody should follow it.
Done checkSnapshot(const Snapshot& snapshot);
/// A manifest from its text, checked.
Expected<Snapshot> readSnapshot(std::string_view manifest);
/// The text of a manifest.
std::string snapshotText(const Snapshot& snapshot);

}  // namespace Core
}  // namespace Velmar
