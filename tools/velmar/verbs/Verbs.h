#pragma once

#include "cli/Verb.h"

namespace Tool {

Verb addrVerb();
Verb chipsVerb();
Verb compareVerb();
Verb decodeVerb();
Verb diffVerb();
Verb encodeVerb();
Verb exportVerb();
Verb fieldsVerb();
Verb identifyVerb();
Verb layoutVerb();
Verb snapshotVerb();
Verb sqlVerb();
Verb tablesVerb();
Verb traceVerb();
Verb translateVerb();

}  // namespace Tool
