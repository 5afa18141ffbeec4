#pragma once

#include <algorithm>
#include <vector>

#include "cli/Options.h"

namespace Tool {

/// One verb of the command, as the help, the man page and the completion see it.
struct Verb {
  const char* name;
  const char* summary;
  const char* details;
  std::vector<Positional> positionals;
  std::vector<Option> options;
  std::vector<const char*> examples;
  int (*run)(const Arguments& arguments);
};

/// Whether a verb takes two dumps, each with its own --old- and --new- options.
inline bool hasTwoDumps(const Verb& verb) {
  return std::any_of(verb.positionals.begin(), verb.positionals.end(),
                     [](const Positional& one) { return one.hasTwoDumps; });
}

/// A verb that is made only when it is needed.
struct VerbName {
  const char* name;
  Verb (*make)();
};

/// The verbs in the order of the help.
using VerbList = std::vector<VerbName>;

}  // namespace Tool
