#include "core/TraceTime.h"

#include <tuple>

#include "core/Text.h"

namespace Velmar {
namespace Core {
namespace {

std::string_view takeDigits(std::string_view& text) {
  size_t size = 0;
  while (size < text.size() && isDecimalDigit(text[size])) ++size;
  const std::string_view digits = text.substr(0, size);
  text.remove_prefix(size);
  return digits;
}

}  // namespace

std::optional<LogTime> LogTime::of(std::string_view text) {
  LogTime time;
  for (;;) {
    const std::string_view digits = takeDigits(text);
    const std::optional<U64> number = parseNumber(digits);
    if (!number) return std::nullopt;
    time.numbers_.push_back(*number);
    const char sign = text.empty() ? '\0' : text[0];
    const bool goesOn = sign == ':' || sign == '-' || sign == ' ' || sign == 'T';
    if (!goesOn) break;
    // A time of day with a blank or a T before it is the same.
    time.form_ += sign == 'T' ? ' ' : sign;
    text.remove_prefix(1);
    if (time.form_ == "-- ::" && time.numbers_.size() == 6) break;
  }
  const bool isKnown = time.form_.empty() || time.form_ == ":" || time.form_ == "::" ||
                       time.form_ == "-- :" || time.form_ == "-- ::";
  if (!isKnown) return std::nullopt;
  if (!text.empty() && (text[0] == '.' || text[0] == ',')) {
    text.remove_prefix(1);
    time.fraction_ = takeDigits(text);
    if (time.fraction_.empty()) return std::nullopt;
    time.fraction_.erase(time.fraction_.find_last_not_of('0') + 1);
  }
  const bool isZone = text.empty() || text == "Z" || text[0] == '+' || text[0] == '-';
  if (!isZone) return std::nullopt;
  time.form_ += text;
  return time;
}

bool LogTime::isBefore(const LogTime& other) const {
  return std::tie(numbers_, fraction_) < std::tie(other.numbers_, other.fraction_);
}

}  // namespace Core
}  // namespace Velmar
