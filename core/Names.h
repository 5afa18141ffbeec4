#pragma once

#include <optional>

#include "core/Text.h"

// Names as people type them: any case, with or without underscores and hyphens, but for one at the start.

namespace Velmar {
namespace Core {

/// A character of a simplified name: lower case; 0 for one that does not count.
constexpr char simpleCharacter(char character) {
  if (character == '_' || character == '-') return '\0';
  return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a')
                                              : character;
}

/// A simplified name. It keeps more characters than any name of the catalogue has.
class SimpleName {
 public:
  static constexpr std::size_t most = 128;

  explicit SimpleName(std::string_view name);
  std::string_view text() const { return {characters_, size_}; }
  /// Without "entry" or "control" at its end.
  std::string_view withoutSuffix() const;

 private:
  char characters_[most];
  std::size_t size_ = 0;
};

/// The candidates that are near misses of a name.
class Suggestions {
 public:
  explicit Suggestions(std::string_view name);
  void consider(std::string_view candidate);
  /// "did you mean A, B? "; nothing if no candidate is near.
  Text text() const;

 private:
  static constexpr std::size_t longest = 80;
  static constexpr std::size_t most = 3;

  struct Near {
    std::size_t steps;
    std::string_view name;
  };

  SimpleName name_;
  Near near_[most + 1];
  std::size_t count_ = 0;
};

/// A name that ends in a number, taken apart.
struct NumberedName {
  std::string_view prefix;
  U32 number;
};
std::optional<NumberedName> numberedName(std::string_view name);

/// Lower case, without underscores and hyphens.
std::string simplified(std::string_view name);
/// "did you mean A, B? " if candidates are near misses of `name`, otherwise nothing.
std::string didYouMean(std::string_view name, const std::vector<std::string>& candidates);
/// Whether a name is that of a pattern with * and ?.
bool matchesPattern(std::string_view pattern, std::string_view name);

}  // namespace Core
}  // namespace Velmar
