#pragma once

#include <optional>

#include "c/Text.h"

// Names as people type them: any case, with or without underscores and hyphens.

namespace Velmar {
namespace Binding {

/// A letter of a simplified name: lower case; 0 for one that does not count.
constexpr char simpleLetter(char letter) {
  if (letter == '_' || letter == '-') return '\0';
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

/// A simplified name. It keeps as many letters as no name of the catalogue has.
class SimpleName {
 public:
  static constexpr std::size_t most = 128;

  explicit SimpleName(std::string_view name);
  std::string_view text() const { return {letters_, size_}; }
  /// Without "entry" or "control" at its end.
  std::string_view withoutSuffix() const;

 private:
  char letters_[most];
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

/// The name of a numbered field, taken apart.
struct NumberedName {
  std::string_view prefix;
  U32 number;
};
std::optional<NumberedName> numberedName(std::string_view name);

}  // namespace Binding
}  // namespace Velmar
