#include "Verb.h"

namespace Tool {

const std::vector<VerbName> verbs = {
    {"decode", decodeVerb}, {"encode", encodeVerb},   {"diff", diffVerb},   {"addr", addrVerb},
    {"layout", layoutVerb}, {"compare", compareVerb}, {"chips", chipsVerb}, {"tables", tablesVerb},
    {"fields", fieldsVerb}, {"export", exportVerb},
};

}  // namespace Tool
