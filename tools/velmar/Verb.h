#pragma once

#include <string>
#include <vector>

#include "Options.h"

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

Verb chipsVerb();
Verb tablesVerb();
Verb fieldsVerb();
Verb layoutVerb();
Verb decodeVerb();
Verb encodeVerb();
Verb diffVerb();
Verb compareVerb();
Verb addrVerb();
Verb exportVerb();

/// The verbs in the order of the help.
using VerbMaker = Verb (*)();
struct VerbName {
  const char* name;
  VerbMaker make;
};
extern const std::vector<VerbName> verbs;

}  // namespace Tool
