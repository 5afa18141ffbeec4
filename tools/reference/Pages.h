#pragma once

#include <string>

#include "Velmar/Catalogue.h"

namespace Reference {

/// The page of a class, in Markdown.
std::string pageOf(const Velmar::Catalogue::Table& table);

/// The page that lists all classes and explains their pages.
std::string indexPage();

}  // namespace Reference
