#pragma once

#include <memory>

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
  /// Answers the request that the options have written.
  std::function<int()> run;
  /// Of the dumps that the verb reads: one, or the old and the new one.
  std::vector<ReadOptions*> dumps = {};

  /// Whether it takes two dumps, each with its own --old- and --new- options.
  bool hasTwoDumps() const { return dumps.size() == 2; }
};

/// A verb that is made only when it is needed.
struct VerbName {
  const char* name;
  Verb (*make)();
};

/// The verbs in the order of the help.
using VerbList = std::vector<VerbName>;

}  // namespace Tool
