#include "Verb.h"

namespace Tool {

const std::vector<VerbName> verbs = {
    {"decode", decodeVerb}, {"addr", addrVerb},     {"layout", layoutVerb},
    {"chips", chipsVerb},   {"tables", tablesVerb}, {"fields", fieldsVerb},

};

}  // namespace Tool
