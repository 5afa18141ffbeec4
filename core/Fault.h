#pragma once

#include <array>
#include <initializer_list>
#include <optional>
#include <tl/expected.hpp>

#include "core/Text.h"

namespace Velmar {
namespace Core {

/// Kinds of faults. The numbers are those that the C interface publishes.
enum class Code : U32 {
  null = 1,
  size = 2,
  index = 3,
  unknown = 4,
  ambiguous = 5,
  notOnChip = 6,
  variant = 7,
  value = 8,
  wide = 9,
  noEntry = 10,
  input = 11,   ///< what is read is damaged, incomplete, or contradicts itself
  option = 12,  ///< an option is wrong, or has no effect
  memory = 13
};
/// As documents name it, such as "not-on-chip".
const char* nameOf(Code code);

/// Where a fault is. Lines and columns count from 1; 0: not known.
struct Place {
  U64 line = 0;
  U64 column = 0;
  std::optional<U64> entry;     ///< index
  const char* field = nullptr;  ///< accessor
};

/// An option that mends a fault, and the values that it may have.
struct Remedy {
  const char* option = nullptr;  ///< such as "hex-order"
  std::array<const char*, 4> choices{};
};

/// Why something was refused, as data: each face words it for its users. Building one allocates
/// nothing.
struct Fault {
  /// "what is wrong; what to do about it": the last "; " parts the two. "$1" stands for the first
  /// remedy, as the face words it, and so on.
  template <class... Arguments>
  explicit Fault(Code faultCode, fmt::format_string<Arguments...> text, Arguments&&... arguments)
      : code(faultCode) {
    say(text, fmt::make_format_args(arguments...));
  }

  /// What to do about it, if it depends on more.
  template <class... Arguments>
  Fault& advise(fmt::format_string<Arguments...> text, Arguments&&... arguments) {
    return adviseAll(text, fmt::make_format_args(arguments...));
  }
  /// Adds a remedy.
  [[gnu::cold]] Fault& offer(const char* option, std::initializer_list<const char*> choices = {});
  Fault& onLine(U64 line, U64 column = 0) {
    place.line = line;
    place.column = column;
    return *this;
  }
  Fault& ofEntry(U64 entry) {
    place.entry = entry;
    return *this;
  }
  Fault& ofField(const char* field) {
    place.field = field;
    return *this;
  }

  Code code;
  Place place;
  Text what;
  Text advice;
  std::array<Remedy, 3> remedies{};

 private:
  // Out of line and cold: faults are built in many places, and seldom.
  [[gnu::cold]] void say(fmt::string_view text, fmt::format_args arguments);
  [[gnu::cold]] Fault& adviseAll(fmt::string_view text, fmt::format_args arguments);
};

template <class Result>
using Expected = tl::expected<Result, Fault>;
/// The result of what gives nothing.
using Done = Expected<void>;

/// Nothing is wrong. In what runs for each value: "return {}" clears the memory of a fault first.
inline Done succeeded() {
  Done done;
  return done;
}
inline tl::unexpected<Fault> failed(const Fault& fault) { return tl::make_unexpected(fault); }
template <class Result>
tl::unexpected<Fault> failed(const Expected<Result>& result) {
  return tl::make_unexpected(result.error());
}

/// Appends a remedy in the words of a face, such as "--hex-order bytes or words".
using Wording = void (*)(Text& to, const Remedy& remedy);

/// A text of the fault, `what` or `advice`, with its remedies in words. Allocates nothing.
Text withRemedies(const Fault& fault, const Text& text, Wording wording);

/// The fault as one line: "dump:3: what is wrong; what to do". `source` names what was read, and may be
/// empty.
std::string worded(const Fault& fault, std::string_view source, Wording wording);

}  // namespace Core
}  // namespace Velmar
