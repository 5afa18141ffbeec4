#include "verbs/Inputs.h"

#include <unistd.h>

#include <cstdio>

#include "cli/Failure.h"
#include "files/Files.h"

namespace Tool {
namespace {

using namespace Velmar;

/// A file that cannot be read is a fault of the command line.
std::string bytesOf(Expected<std::string> bytes, const std::string& name) {
  if (bytes) return std::move(*bytes);
  const Fault& fault = bytes.error();
  fail("{}: {}; {}", name, fault.what.text(), fault.advice.text());
}

/// The manifest says how its dumps are read.
void checkOptions(const InputRequest& input) {
  const ReadOptions& options = input.options;
  const auto refuse = [&input](bool isGiven, bool isShared, const char* option) {
    if (!isGiven || isShared) return;
    fail("{} has no effect on {}, a snapshot, whose manifest says how to read it; leave it out",
         option, input.file);
  };
  refuse(options.notation != Notation::automatic, false, "--input");
  refuse(options.hexOrder != HexOrder::byGroups, options.shared.hexOrder, "--hex-order");
  refuse(options.bigEndian, options.shared.byteOrder, "--byte-order");
  refuse(options.stride != 0, options.shared.stride, "--stride");
  refuse(options.first.has_value(), options.shared.first, "--first");
  refuse(options.origin.has_value(), options.shared.origin, "--origin");
}

std::string tablesIn(const Snapshot& snapshot) {
  std::vector<std::string> names;
  for (const SnapshotDump& dump : snapshot.dumps) names.emplace_back(dump.table.name());
  return join(names, ", ");
}

/// The dump of a table. Verbs work with entries of the instance 0.
const SnapshotDump& dumpIn(const std::string& folder, const Snapshot& snapshot,
                           const Catalogue::Table& table) {
  const std::vector<const SnapshotDump*> dumps = snapshot.dumpsOf(table);
  if (dumps.empty()) {
    fail("{}: a snapshot without {}; it has {}", folder, table.name(), tablesIn(snapshot));
  }
  if (dumps.size() > 1 || dumps.front()->identifier != 0) {
    fail("{}: {} is there with an identifier; give the dump itself, such as {}, and --chip {}",
         folder, table.name(), Files::pathIn(folder, dumps.front()->file), snapshot.chip.name);
  }
  return *dumps.front();
}

}  // namespace

Input::Input(const std::string& path) : name_(path) {
  if (path.empty() || path == "-") {
    name_ = "standard input";
    if (path.empty() && isatty(STDIN_FILENO) == 1) {
      fail("no FILE given, and standard input is a terminal; name a file, or pipe a dump into it");
    }
    bytes_ = bytesOf(Files::readAll(STDIN_FILENO), name_);
    return;
  }
  bytes_ = bytesOf(Files::readFile(path), name_);
}

Input::Input(const InputRequest& request)
    : name_(Files::pathIn(request.file, request.inSnapshot)),
      bytes_(bytesOf(Files::readInside(request.file, request.inSnapshot), name_)) {}

DumpInput::DumpInput(const InputRequest& request, const Layout& layout)
    : input(request.inSnapshot.empty() ? Input(request.file) : Input(request)),
      dump(taken(readDump(layout, request.options, input.bytes()), input.name())) {
  report(dump, input.name());
}

void report(const Dump& dump, const std::string& name) {
  for (const std::string& note : dump.notes) {
    std::fprintf(stderr, "velmar: note: %s: %s\n", printable(name).c_str(),
                 printable(note).c_str());
  }
}

Snapshot snapshotIn(const std::string& folder) {
  return taken(Files::readManifest(folder), Files::pathIn(folder, manifestName));
}

Snapshot checkSnapshotOptions(const InputRequest& input, const TableRequest& table) {
  checkOptions(input);
  Snapshot snapshot = snapshotIn(input.file);
  if (table.chip && table.chip->number != snapshot.chip.number) {
    fail("{}: a snapshot of {}, not of {}; give dumps of one chip, or leave out --chip", input.file,
         snapshot.chip.name, table.chip->name);
  }
  if (table.variant != 0 && table.variant != snapshot.variant) {
    fail("{}: a snapshot of variant {}, not {}; leave out --variant", input.file, snapshot.variant,
         table.variant);
  }
  return snapshot;
}

void findInSnapshot(InputRequest& input, TableRequest& table) {
  if (input.file.empty() || !Files::isFolder(input.file)) return;
  const Snapshot snapshot = checkSnapshotOptions(input, table);
  const SnapshotDump& dump = dumpIn(input.file, snapshot, *table.table);
  table.chip = snapshot.chip;
  table.variant = snapshot.variant;
  input.inSnapshot = dump.file;
  input.options = ReadOptions();
  input.options.notation = dump.notation;
}

void requireChip(const TableRequest& table, const char* option) {
  if (table.chip) return;
  fail("{} is missing; name the chip, or give a snapshot, which knows its chip", option);
}

}  // namespace Tool
