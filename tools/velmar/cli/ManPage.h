#pragma once

#include <string>

#include "cli/Verb.h"

namespace Tool {

/// The manual page, made from the same texts as the help.
std::string manPage(const VerbList& verbs);

}  // namespace Tool
