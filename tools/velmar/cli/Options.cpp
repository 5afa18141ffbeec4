#include "cli/Options.h"

#include "model/Text.h"

namespace Tool {

std::string Option::longName() const { return split(names, ',').back(); }

}  // namespace Tool
