#include "core/Translation.h"

#include "output/Entries.h"
#include "verbs/Inputs.h"
#include "verbs/Requests.h"
#include "verbs/Verbs.h"

namespace Tool {
namespace {

struct TranslateRequest {
  TableRequest from;
  std::optional<Catalogue::Chip> to;
  IndexRequest index;
  InputRequest input;
  OutputRequest output;
  bool lossy = false;
};

void print(const std::vector<Loss>& losses) {
  constexpr size_t longest = 60;
  for (const Loss& loss : losses) {
    std::string indexes = rangesText(loss.indexes);
    if (indexes.size() > longest) indexes = indexes.substr(0, indexes.rfind(',', longest)) + ",...";
    std::fprintf(stderr, "velmar: lost: %s: %s; in %zu entr%s: %s\n", loss.field.c_str(),
                 loss.reason.c_str(), loss.indexes.size(), loss.indexes.size() == 1 ? "y" : "ies",
                 indexes.c_str());
  }
}

Dump selected(const IndexSet& indexes, const DumpInput& input) {
  if (indexes.isAll()) return input.dump;
  Dump dump(input.dump.entryBytes());
  for (size_t i = 0; i < input.dump.count(); ++i) {
    if (indexes.has(input.dump.index(i))) dump.add(input.dump.index(i), input.dump.bytes(i));
  }
  const std::string unmet = indexes.unmet();
  if (unmet.empty()) return dump;
  fail("{}: no entry has an index in {}; check --index", input.input.name(), unmet);
}

int run(TranslateRequest& request) {
  findInSnapshot(request.input, request.from);
  requireChip(request.from, "--from");
  const Layout from = request.from.layout();
  const Layout to = taken(Layout::of(*request.from.table, *request.to, request.from.variant));
  request.index.check(from, "--index");
  Output output(request.output.file, "never");
  const DumpInput input(request.input, from);
  const Translation translation = translate(from, to, selected(request.index.set, input));
  print(translation.losses);
  const bool isLossless = translation.losses.empty();
  if (!isLossless && !request.lossy) {
    std::fprintf(stderr, "velmar: nothing is written; give --lossy to write the rest\n");
    return exitFinding;
  }
  const Format format = request.output.format;
  if (isRowFormat(format)) {
    writeEntries(output, to, {format, false, false}, translation.dump);
  } else {
    writeBytes(output, format, true, translation.dump);
  }
  output.finish();
  return isLossless ? exitSuccess : exitFinding;
}

}  // namespace

Verb translateVerb() {
  const auto request = std::make_shared<TranslateRequest>();
  TranslateRequest& to = *request;
  to.output.format = Format::hex;
  return {
      "translate",
      "Moves the entries of a dump to another chip: each field to its place there.",
      "What gets lost (a field that the other chip does not have or that is too narrow there, "
      "an entry too many) is listed for each field; then the exit code is 1, and nothing is "
      "written unless --lossy is given. Fields that only the other chip has are zero.",
      {{Positionals::table, into(to.from.table)}, {Positionals::dump, intoOnlyFile(to.input.file)}},
      {{Options::from, into(to.from.chip)},
       {Options::to, into(to.to)},
       {Options::variant, intoVariant(to.from.variant)},
       {Options::index, into(to.index)},
       {Options::lossy, into(to.lossy)},
       Options::input,
       Options::hexOrder,
       Options::byteOrder,
       Options::stride,
       Options::first,
       Options::origin,
       {Options::format("hex,words,raw,json,jsonl"), into(to.output.format)},
       {Options::output, into(to.output.file)}},
      {"velmar translate VlanProfile --from BCM56870_A0 --to BCM56980_A0 "
       "samples/vlan-profile-bcm56870.bin",
       "velmar encode VlanMpls --chip 56980 --index 7 mplsEnable=1 | velmar translate VlanMpls "
       "--from 56980 --to 56990_B0 -f json"},
      [request] { return run(*request); },
      {&to.input.options}};
}

}  // namespace Tool
