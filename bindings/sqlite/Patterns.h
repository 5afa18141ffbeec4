#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/Fault.h"

namespace Velmar {
namespace Sqlite {

/// A file or folder that a pattern finds.
struct Match {
  std::string path;
  std::vector<std::string> values;  ///< of the placeholders
};

/// A path with placeholders, such as "fleet/{switch}/{time}/".
class PathPattern {
 public:
  static Core::Expected<PathPattern> of(std::string_view text);

  const std::vector<std::string>& placeholders() const { return placeholders_; }
  /// What there is, in the order of the names. A path without placeholders is not looked for.
  std::vector<Match> matches() const;

 private:
  std::vector<std::string> parts_;  ///< of the path
  std::vector<std::string> placeholders_;
  bool isAbsolute_ = false;
  bool isFolder_ = false;  ///< it ends in a slash
};

}  // namespace Sqlite
}  // namespace Velmar
