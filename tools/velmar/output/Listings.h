#pragma once

#include "output/Output.h"

namespace Tool {

/// Writes a list as a table for people, or as core does for programs.
void write(Output& output, const Listing& listing, Format format, const JsonFrame& frame);

}  // namespace Tool
