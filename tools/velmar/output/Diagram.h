#pragma once

#include "core/Families.h"
#include "output/Output.h"

namespace Tool {

/// Draws an entry in rows of 32 bits, highest bit on the left. A name that does not fit its field
/// is replaced by a letter and explained under the row; fields that share bits with others are drawn
/// on lines of their own.
/// `asFamilies`: neighbours of a family share a box.
void drawDiagram(Output& output, const Layout& layout, bool asFamilies);

}  // namespace Tool
