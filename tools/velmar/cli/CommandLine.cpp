#include "cli/CommandLine.h"

#include <algorithm>
#include <cstdio>

#include "Velmar/Version.h"
#include "cli/Completion.h"
#include "cli/Failure.h"
#include "cli/Help.h"
#include "cli/ManPage.h"
#include "cli/Parser.h"
#include "output/Output.h"

namespace Tool {
namespace {

constexpr size_t usualWidth = 80;

/// Prints what a function makes for the width of a line.
template <class Maker>
int print(const Maker& textFor) {
  Output output("", "never");
  const size_t columns = output.columns();
  output.write(textFor(columns == 0 ? usualWidth : std::min(columns, usualWidth)));
  output.finish();
  return exitSuccess;
}

int printHelp(const Verb& verb) {
  return print([&](size_t width) { return helpOf(verb, width); });
}

int print(const std::string& text) {
  return print([&](size_t) { return text; });
}

Verb findVerb(const VerbList& verbs, const std::string& name) {
  std::vector<std::string> names;
  for (const VerbName& verb : verbs) {
    if (name == verb.name) return verb.make();
    names.emplace_back(verb.name);
  }
  fail("unknown verb {}; {}\"velmar --help\" lists the verbs", inQuotes(name),
       didYouMean(name, names));
}

}  // namespace

int runCommandLine(const VerbList& verbs, const std::vector<std::string>& words) {
  if (words.empty()) {
    std::fputs(overview(verbs, usualWidth).c_str(), stderr);
    return exitFailure;
  }
  const std::string& first = words[0];
  const std::vector<std::string> rest(words.begin() + 1, words.end());
  const bool wantsOverview = first == "--help" || first == "-h" || first == "help";
  const size_t most = first == "help" ? 1 : 0;
  if ((first == "help" || first == "--version") && rest.size() > most) {
    fail("unexpected argument {}; leave it out", inQuotes(rest.back()));
  }
  if (first == "help" && !rest.empty()) return printHelp(findVerb(verbs, rest[0]));
  if (wantsOverview) return print([&](size_t width) { return overview(verbs, width); });
  if (first == "--version") return print(formatText("velmar {}\n", Velmar::version()));
  // For the build and for the shell, not for people.
  if (first == "__man") return print(manPage(verbs));
  if (first == "__complete") return print(completion(verbs, rest));
  const Verb verb = findVerb(verbs, first);
  if (asksForHelp(rest)) return printHelp(verb);
  parse(verb, rest);
  return verb.run();
}

}  // namespace Tool
