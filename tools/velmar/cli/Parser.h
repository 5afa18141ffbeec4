#pragma once

#include <optional>

#include "cli/Verb.h"

namespace Tool {

/// What the words after a verb's name say, as it was typed.
struct Typed {
  /// An option of one of two dumps, such as --old-first.
  struct OfSide {
    bool isNew;
    const Option* option;
    std::string text;
  };

  std::vector<Texts> positionals;             ///< of each one of the verb
  std::vector<std::optional<Texts>> options;  ///< of each one of the verb
  std::vector<OfSide> sides;

  /// What is typed for an option; null if it is not given.
  const Texts* find(const Verb& verb, const char* longName) const;
};

/// Whether the words ask for help: whoever does gets it, whatever else is wrong.
bool asksForHelp(const std::vector<std::string>& words);

/// Whether the words ask for JSON, also where they cannot be parsed.
bool asksForJson(const std::vector<std::string>& words);

/// Writes what the words say into the request of the verb. Fails for words that the verb does not take,
/// where something required is missing, and for an option that changes nothing.
void parse(const Verb& verb, const std::vector<std::string>& words);

}  // namespace Tool
