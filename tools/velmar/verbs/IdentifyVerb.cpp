#include "core/Identification.h"
#include "files/Files.h"

#include "verbs/Inputs.h"
#include "verbs/Requests.h"
#include "verbs/Verbs.h"

namespace Tool {
namespace {

namespace Files = Velmar::Files;

struct IdentifyRequest {
  std::optional<Catalogue::Table> table;
  std::optional<Catalogue::Chip> chip;
  InputRequest input;
  OutputRequest output;
};

Input inputOf(IdentifyRequest& request) {
  InputRequest& input = request.input;
  if (input.file.empty() || !Files::isFolder(input.file)) return Input(input.file);
  if (!request.table) {
    fail("{}: a snapshot, whose manifest names its tables; give --table to ask of one", input.file);
  }
  TableRequest table{request.table, request.chip};
  findInSnapshot(input, table);
  return Input(input);
}

int run(IdentifyRequest& request) {
  const Input input = inputOf(request);
  const std::vector<Fit> fits = taken(
      identify(input.bytes(), request.input.options, request.table, request.chip), input.name());
  printIfAny(request.output, listingOf(fits), frameOf("identification", "fits"));
  if (!fits.empty()) return exitSuccess;
  std::fprintf(stderr,
               "velmar: no table fits: its entries, its size or its bits speak against each; "
               "check --input, --hex-order, --stride, --table and --chip\n");
  return exitFinding;
}

}  // namespace

Verb identifyVerb() {
  const auto request = std::make_shared<IdentifyRequest>();
  IdentifyRequest& to = *request;
  return {"identify",
          "Lists the tables and chips that a dump fits, the likeliest first.",
          "A table fits if the dump is a whole number of its entries, all entries are in the "
          "table, and no bit outside all fields is set. Exit code 1 says that none fits.",
          {{Positionals::dump, intoOnlyFile(to.input.file)}},
          {{Options::tableOption, into(to.table)},
           {Options::chipIfAny, into(to.chip)},
           Options::input,
           Options::hexOrder,
           Options::byteOrder,
           Options::stride,
           Options::first,
           Options::origin,
           {Options::listFormat, into(to.output.format)},
           {Options::output, into(to.output.file)},
           {Options::color, into(to.output.color)}},
          {"velmar identify samples/vlan-bcm56990.bin",
           "velmar encode VlanMpls --chip 56980 mplsEnable=1 --whole -f raw | velmar identify -"},
          [request] { return run(*request); },
          {&to.input.options}};
}

}  // namespace Tool
