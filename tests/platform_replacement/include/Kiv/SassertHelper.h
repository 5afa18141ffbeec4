#pragma once

#include "Kiv/TraceStream.h"

namespace Kiv {
struct SassertHelper : Line {
  SassertHelper(const char* expression, const char*, U32, const char*) : Line(expression) {}
};
}  // namespace Kiv
