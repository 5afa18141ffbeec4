#pragma once

#include <string>

namespace Morvo {
using String = std::string;
}
