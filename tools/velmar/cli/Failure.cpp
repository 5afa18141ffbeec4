#include "cli/Failure.h"

namespace Tool {
namespace {

/// A remedy as an option, such as "--hex-order bytes or words".
void appendOption(Text& to, const Remedy& remedy) {
  to.append("--{}{}", remedy.option, remedy.option == std::string_view("origin") ? " ADDRESS" : "");
  const char* separator = " ";
  for (const char* choice : remedy.choices) {
    if (choice == nullptr) break;
    to.append("{}{}", separator, choice);
    separator = " or ";
  }
}

/// Whether it is the command line that is wrong, and not what is read.
bool isOfCommandLine(const Fault& fault) {
  return fault.code == Code::option || (fault.code == Code::notOnChip && fault.place.line == 0);
}

}  // namespace

Failure::Failure(const Fault& fault, const std::string& source)
    : std::runtime_error(worded(fault, isOfCommandLine(fault) ? "" : source, appendOption)) {}

}  // namespace Tool
