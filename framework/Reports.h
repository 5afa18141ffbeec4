#pragma once

#include "framework/EntryView.h"
#include "framework/PlatformAdapter.h"

// The reports of the library: trace lines, soft assertions and assertions. All are out of line;
// texts are built only when a report is made.

namespace Velmar {
namespace Framework {

/// The member that reports: its whole signature and its source line.
struct Site {
  const char* signature;
  U32 line;
};

/// The five members of a field.
enum class Member : U8 { getter, setter, length, offset, validity };

/// The site of a field member. Its signature is assembled only when a report is made: stored for
/// each accessor, the texts would take a quarter of the library.
class FieldSite {
 public:
  FieldSite(const ClassData& data, U32 field, Member member);
  operator Site() const { return {text_, line_}; }  // NOLINT(google-explicit-constructor)

 private:
  char text_[160];
  U32 line_;
};

/// Level of the lines that members write on entry.
constexpr U32 entryLevel = 8;
/// Level of the line that a failed address look-up writes.
constexpr U32 failureLevel = 0;

/// Whether a member may have to write its line: false only if the trace is off.
inline bool mayTrace() { return __builtin_expect(traceMayBeOn(entryLevel), false); }
/// Whether a member leaves its fast path: its comparison failed, or the trace may be on. The
/// expectation covers both, so that the fast path is a straight line: a taken branch more would
/// cost a getter a quarter of its time. With the probability that __builtin_expect stands for, the
/// library is 8 KB larger.
inline bool takesSlowPath(bool isWrong) {
  return __builtin_expect_with_probability(isWrong || traceMayBeOn(entryLevel), false, 0.999);
}

/// Fails an assertion. May throw: a test may replace the C library's report.
[[noreturn, gnu::cold]] void fail(const char* expression, Site site);
/// Fails an assertion whose expression ends in a decimal number: "len_ >= 44".
[[noreturn, gnu::cold]] void failDecimal(const char* expression, U32 number, Site site);
/// Fails an assertion whose expression ends in a hexadecimal number: "value <= 0x1ff".
[[noreturn, gnu::cold]] void failHexadecimal(const char* expression, U64 number, Site site);

/// Reports "<chip and variant> does not have field <HARDWARE_NAME>" softly, then fails.
[[noreturn, gnu::cold]] void failFieldMissing(U32 fieldId, U32 chipType, U8 variant, Site site);
/// Reports "<chip and variant> not in metainfo for <Class>!" softly, then fails.
[[noreturn, gnu::cold]] void failClassMissing(const char* className, U32 chipType, U8 variant,
                                              Site site);

/// The line that a member of a view writes on entry, where the level is on.
[[gnu::cold]] void traceMember(const EntryView& view, Site site);
/// The line that a static member writes on entry, where the level is on.
[[gnu::cold]] void traceStatic(U32 chipType, U8 variant, Site site);
/// The same, with the identifier that was passed.
[[gnu::cold]] void traceIdentifier(U32 chipType, U8 variant, U32 identifier, Site site);
/// The line of a failed address look-up, where its level is on.
[[gnu::cold]] void traceFailure(U32 chipType, U8 variant, Site site);
/// The constructor's line, where the level is on.
[[gnu::cold]] void traceConstruction(const ClassData& data, U32 chipType, Site site);

}  // namespace Framework
}  // namespace Velmar
