#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "AsicUtils/Types.h"

namespace Velmar {
namespace Core {

/// A time of a log, as far as it can be compared: seconds, a time of day, or a date and a time, each with
/// or without a fraction.
class LogTime {
 public:
  /// Nothing for another form.
  static std::optional<LogTime> of(std::string_view text);

  /// Only times of one form compare.
  bool hasFormOf(const LogTime& other) const { return form_ == other.form_; }
  bool isBefore(const LogTime& other) const;

 private:
  std::string form_;          ///< the signs between the numbers, and the zone
  std::vector<U64> numbers_;  ///< before the fraction, the largest unit first
  std::string fraction_;      ///< without zeros at its end
};

}  // namespace Core
}  // namespace Velmar
