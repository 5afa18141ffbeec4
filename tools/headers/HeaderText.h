#pragma once

#include <set>
#include <string>
#include <vector>

#include "tools/headers/ClassRows.h"

namespace Headers {

/// The first line of a derived header.
std::string derivedFrom(const std::string& sources);

/// The header of a class.
std::string classHeader(const ClassRows& rows);

/// The header of the field identifiers.
std::string idHeader();

/// The header that includes all others; `names` are those of include/Velmar/.
std::string includeAllHeader(const std::set<std::string>& names);

/// The names and spans of all classes as lists, VELMAR_FIELDS_<Class> and VELMAR_SPANS_<Class>, for
/// tests that sweep over every member: FIELD(accessor, Accessor, HARDWARE_NAME, TYPE) and SPAN(chip).
std::string fieldLists(const std::vector<ClassRows>& classes);

}  // namespace Headers
