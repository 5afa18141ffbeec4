#pragma once

#include <string>

#include "Tool.h"
#include "core/Reading.h"
#include "core/Snapshot.h"
#include "verbs/Requests.h"

namespace Tool {

/// A file that is read whole, or standard input.
class Input {
 public:
  /// `path` empty or "-": standard input; a terminal is refused for an empty one.
  explicit Input(const std::string& path);
  /// The dump of a snapshot.
  explicit Input(const InputRequest& request);

  /// For messages.
  const std::string& name() const { return name_; }
  std::string_view bytes() const { return bytes_; }

 private:
  std::string name_;
  std::string bytes_;
};

/// A dump and the bytes that it may borrow.
struct DumpInput {
  DumpInput(const InputRequest& request, const Layout& layout);
  DumpInput(const DumpInput&) = delete;
  DumpInput& operator=(const DumpInput&) = delete;

  Input input;
  Dump dump;
};

/// Says what was left out of a dump.
void report(const Dump& dump, const std::string& name);

/// The manifest of a snapshot.
Snapshot snapshotIn(const std::string& folder);
/// The manifest, if what is given for the dump agrees with it.
Snapshot checkSnapshotOptions(const InputRequest& input, const TableRequest& table);
/// If the dump is a snapshot: finds the table in it, and takes chip and variant from there.
void findInSnapshot(InputRequest& input, TableRequest& table);
/// Fails if the chip is neither given nor known by a snapshot.
void requireChip(const TableRequest& table, const char* option);

}  // namespace Tool
