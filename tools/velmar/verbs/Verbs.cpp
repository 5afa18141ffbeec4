#include "verbs/Verbs.h"

namespace Tool {

VerbList allVerbs() {
  return {
      {"decode", decodeVerb}, {"encode", encodeVerb}, {"diff", diffVerb},
      {"addr", addrVerb},     {"layout", layoutVerb}, {"compare", compareVerb},
      {"chips", chipsVerb},   {"tables", tablesVerb}, {"fields", fieldsVerb},
      {"export", exportVerb},
  };
}

}  // namespace Tool
