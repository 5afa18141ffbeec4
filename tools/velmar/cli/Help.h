#pragma once

#include <string>
#include <vector>

#include "cli/Verb.h"

namespace Tool {

/// What "velmar --help" prints, in lines of a width.
std::string overview(const VerbList& verbs, size_t lineWidth);
/// What "velmar VERB --help" prints.
std::string helpOf(const Verb& verb, size_t lineWidth);

/// The command line of a verb, such as "velmar decode TABLE --chip CHIP [OPTION...] [FILE]".
std::string usageOf(const Verb& verb);
/// An option as the help lists it, such as "-o, --output FILE".
std::string headingOf(const OptionText& option);
/// What the help says of an option, with its choices.
std::string meaningOf(const OptionText& option);

extern const char* const purposeText;
extern const char* const exitCodeText;

/// What the manual page explains.
struct Notation {
  const char* name;
  const char* meaning;
};
extern const std::vector<Notation> notations;  ///< in which dumps are read
extern const std::vector<Notation> conditions;
extern const std::vector<Notation> logs;         ///< shapes of their lines
extern const std::vector<Notation> findings;     ///< of a trace
extern const std::vector<Notation> sql;          ///< what a statement can use
extern const std::vector<Notation> outputs;      ///< forms of the result
extern const std::vector<Notation> environment;  ///< variables
extern const std::vector<Notation> files;        ///< that are installed

}  // namespace Tool
