#include <algorithm>
#include <cstdio>
#include <exception>
#include <new>

#include "cli/CommandLine.h"
#include "cli/Failure.h"
#include "cli/Parser.h"
#include "output/Output.h"
#include "verbs/Verbs.h"

int main(int count, char** words) {
  using namespace Tool;
  installSignalHandlers();
  bool isForPrograms = false;
  try {
    const std::vector<std::string> given(words + std::min(count, 1), words + count);
    isForPrograms = asksForJson(given);
    const VerbList verbs = {{"decode", decodeVerb},       {"encode", encodeVerb},
                            {"diff", diffVerb},           {"identify", identifyVerb},
                            {"translate", translateVerb}, {"snapshot", snapshotVerb},
                            {"trace", traceVerb},         {"sql", sqlVerb},
                            {"addr", addrVerb},           {"layout", layoutVerb},
                            {"compare", compareVerb},     {"chips", chipsVerb},
                            {"tables", tablesVerb},       {"fields", fieldsVerb},
                            {"export", exportVerb}};
    return runCommandLine(verbs, given);
  } catch (const std::bad_alloc&) {
    std::fputs("velmar: out of memory; free some and try again\n", stderr);
  } catch (const Failure& failure) {
    // Names of files may have any bytes.
    const std::string text = "velmar: " + printable(failure.what());
    std::fprintf(stderr, "%s\n", isForPrograms ? failure.json().c_str() : text.c_str());
  } catch (const std::exception&) {
    std::fputs("velmar: internal fault; please report the command and its input\n", stderr);
  }
  return exitFailure;
}
