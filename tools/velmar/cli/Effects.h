#pragma once

#include "cli/Parser.h"

namespace Tool {

/// Fails for an option that changes nothing beside the others.
void checkEffects(const Verb& verb, const Typed& typed);

}  // namespace Tool
