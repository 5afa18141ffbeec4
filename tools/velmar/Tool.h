#pragma once

#include "core/Layout.h"

/// The command: options, verbs, files and the terminal. What is known about dumps is in core.
namespace Tool {

using namespace Velmar::Core;
namespace Catalogue = Velmar::Catalogue;

}  // namespace Tool
