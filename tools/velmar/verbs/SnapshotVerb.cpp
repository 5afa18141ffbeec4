#include "core/Identification.h"
#include "output/SnapshotFolder.h"
#include "verbs/Inputs.h"
#include "verbs/Requests.h"
#include "verbs/Verbs.h"

namespace Tool {
namespace {

struct SnapshotRequest {
  std::string folder;
  Texts dumps;
  std::optional<Catalogue::Chip> chip;
  U8 variant = 0;
  std::string time, label;
  ReadOptions options;
  bool identifies = false;
};

/// A dump as it is given: "vlan=vlan.bin", with an identifier "vlan:1=vlan.bin", or a file alone.
struct Given {
  std::optional<Catalogue::Table> table;
  U32 identifier = 0;
  std::string file;
};

Given givenDump(const std::string& text, bool identifies) {
  const size_t sign = text.find('=');
  const bool isNamed = sign < text.find('/');
  if (!isNamed && !identifies) {
    fail("{}: no table is named; give TABLE={}, or --identify", text, text);
  }
  Given given;
  given.file = isNamed ? text.substr(sign + 1) : text;
  if (given.file.empty()) fail("{}: no file is named; give TABLE=FILE", text);
  if (!isNamed) return given;
  const size_t colon = text.substr(0, sign).find(':');
  given.table = taken(findTable(text.substr(0, std::min(sign, colon))));
  if (colon == std::string::npos) return given;
  const std::string identifier = text.substr(colon + 1, sign - colon - 1);
  given.identifier = static_cast<U32>(numberOf(formatText("{}:", given.table->name()), identifier,
                                               std::numeric_limits<U32>::max()));
  return given;
}

Catalogue::Table identifiedTable(const SnapshotRequest& request, const Input& input) {
  const std::vector<Fit> fits =
      taken(identify(input.bytes(), request.options, std::nullopt, request.chip), input.name());
  std::vector<std::string> names;
  for (const Fit& fit : fits) {
    names.push_back(formatText("{}={}", fit.layouts.front().name(), input.name()));
  }
  if (names.empty()) {
    fail("{}: no table of {} fits; give TABLE={}", input.name(), request.chip->name, input.name());
  }
  if (names.size() > 1) {
    fail("{}: {} tables fit; give one of {}", input.name(), names.size(), join(names, ", "));
  }
  return fits.front().layouts.front().table();
}

/// A dump that is read, with what the manifest says of it.
struct ReadEntries {
  SnapshotDump described;
  Input input;
  Dump dump;
};

bool isFromZero(const Dump& dump) {
  for (size_t i = 0; i < dump.count(); ++i) {
    if (dump.index(i) != i) return false;
  }
  return true;
}

std::unique_ptr<ReadEntries> readEntries(const SnapshotRequest& request, const Given& given) {
  Input input(given.file);
  const Catalogue::Table table = given.table ? *given.table : identifiedTable(request, input);
  const Layout layout = taken(Layout::of(table, *request.chip, request.variant));
  auto result = std::make_unique<ReadEntries>(
      ReadEntries{{table, given.identifier, "", Notation::raw}, std::move(input), Dump()});
  result->dump = taken(readDump(layout, request.options, result->input.bytes()), given.file);
  report(result->dump, result->input.name());
  // Entries without gaps need no indexes.
  if (!isFromZero(result->dump)) result->described.notation = Notation::hex;
  return result;
}

int run(SnapshotRequest& request) {
  Snapshot snapshot;
  snapshot.chip = *request.chip;
  snapshot.variant = request.variant;
  snapshot.time = request.time;
  snapshot.label = request.label;
  ReadOptions& options = request.options;
  const bool isShared = request.dumps.size() > 1;
  options.shared = {isShared, isShared, isShared, isShared, isShared};
  std::vector<std::unique_ptr<ReadEntries>> all;
  std::vector<const Dump*> dumps;
  for (const std::string& text : request.dumps) {
    all.push_back(readEntries(request, givenDump(text, request.identifies)));
    snapshot.dumps.push_back(all.back()->described);
    dumps.push_back(&all.back()->dump);
  }
  writeSnapshot(request.folder, snapshot, dumps, Format::hex);
  return exitSuccess;
}

}  // namespace

Verb snapshotVerb() {
  const auto request = std::make_shared<SnapshotRequest>();
  SnapshotRequest& to = *request;
  return {"snapshot",
          "Writes a snapshot: a folder with dumps of several tables of a chip.",
          "Its manifest, snapshot.json, says what the dumps are, so that DIR stands for them in "
          "every verb that takes a dump. A dump may be partial: the entries that it does not have "
          "are unknown. The folder is written whole or not at all.",
          {{Positionals::newFolder, into(to.folder)}, {Positionals::dumps, into(to.dumps)}},
          {{Options::chip, into(to.chip)},
           {Options::variant, intoVariant(to.variant)},
           {Options::identify, into(to.identifies)},
           {Options::time, into(to.time)},
           {Options::label, into(to.label)},
           Options::input,
           Options::hexOrder,
           Options::byteOrder,
           Options::stride,
           Options::first,
           Options::origin},
          {"velmar snapshot lab --chip 56980 egrvlan=samples/egr-vlan-bcm56980.bin "
           "vlanstg=samples/vlan-stg-bcm56980.bin --time 2026-11-21T08:30:00Z && velmar decode "
           "vlanstg lab --index 1",
           "velmar snapshot profiles --chip 56870 --identify samples/vlan-profile-bcm56870.bin && "
           "velmar decode vlanprofile profiles --index 1"},
          [request] { return run(*request); },
          {&to.options}};
}

}  // namespace Tool
