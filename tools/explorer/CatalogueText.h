#pragma once

#include <string>

namespace Explorer {

/// The catalogue as JSON in columns: one list for each property of the fields, one layout for the
/// chips that share it. modules/catalogue.js reads it.
std::string catalogueText();

}  // namespace Explorer
