#pragma once

#include "cli/Verb.h"

namespace Tool {

/// Fails for an option that changes nothing beside the others.
void checkEffects(const Verb& verb, const Arguments& arguments);

}  // namespace Tool
