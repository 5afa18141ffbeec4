#include "framework/Reports.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "AsicUtils/ChipAndVariant.h"
#include "Velmar/ChipAndVariantText.h"
#include "Velmar/FieldId.h"
#include "framework/ChipSet.h"
#include "framework/Names.h"
#include "framework/PlatformAdapter.h"

// The C library's report of a failed assertion, under a name of our own: <cassert> declares it as one
// that never throws, but a test may replace it by one that does.
extern "C" [[noreturn]] void velmarAssertFail(const char* expression, const char* file,
                                              unsigned int line,
                                              const char* function) __asm__("__assert_fail");

namespace Velmar {

Kiv::TraceStream& operator<<(Kiv::TraceStream& stream,
                             const AsicUtils::ChipAndVariant& chipAndVariant) {
  return stream << " chipType: " << chipAndVariant.chipType
                << " variant: " << static_cast<int>(chipAndVariant.variant);
}

namespace Framework {
namespace {

constexpr const char* sourceFile = "VelmarMetaInfo";

/// The short function name in a signature: from after the last ':' or ' ' before the parameters up
/// to the parameters.
class ShortName {
 public:
  explicit ShortName(const char* signature) {
    const char* const end = std::strchr(signature, '(');
    const char* begin = end;
    while (begin != signature && begin[-1] != ':' && begin[-1] != ' ') --begin;
    const std::size_t length = std::min(static_cast<std::size_t>(end - begin), sizeof(text_) - 1);
    std::memcpy(text_, begin, length);
    text_[length] = '\0';
  }
  const char* text() const { return text_; }

 private:
  char text_[64];
};

/// Writes one line under the member's name, unless its level is off; `write` streams the text.
template <class Write>
void traceLine(U32 level, Site site, Write write) {
  if (!traceIsOn(level)) return;
  const ShortName function(site.signature);
  Kiv::TraceHelper line(traceHandle, level, sourceFile, site.line, function.text());
  write(line.stream());
}

template <class Write>
[[noreturn]] void failSoftly(U32 chipType, U8 variant, Site site, Write write) {
  {
    Kiv::SassertHelper report("0", sourceFile, site.line, site.signature);
    report.stream() << AsicUtils::ChipAndVariant{chipType, variant};
    write(report.stream());
  }
  fail("\"0\" == nullptr", site);
}

/// The text after the name in each member's signature.
constexpr const char* suffixes[] = {"() const", "Is(", "Len() const", "Offset() const",
                                    "Valid() const"};

}  // namespace

FieldSite::FieldSite(const ClassData& data, U32 field, Member member) : line_(data.line) {
  const FieldFacts& facts = data.fieldFacts[field];
  const char* const accessor = FieldId::accessorName(facts.id);
  const bool isSetter = member == Member::setter;
  const bool isValidity = member == Member::validity;

  char* end = text_;
  const auto append = [&end](const char* text) { end = stpcpy(end, text); };
  append(isSetter                   ? "void"
         : isValidity               ? "bool"
         : member == Member::getter ? valueName(facts.type)
                                    : "U16");
  append(" Velmar::");
  append(data.name);
  append(isValidity ? "::is" : "::");
  char* const name = end;
  append(accessor);
  if (isValidity) *name = toUpper(*name);
  append(suffixes[static_cast<int>(member)]);
  if (isSetter) {
    append(parameterName(facts.type));
    append(")");
  }
}

void fail(const char* expression, Site site) {
  velmarAssertFail(expression, sourceFile, site.line, site.signature);
}

void failDecimal(const char* expression, U32 number, Site site) {
  char text[64];
  std::snprintf(text, sizeof(text), "%s%u", expression, number);
  fail(text, site);
}

void failHexadecimal(const char* expression, U64 number, Site site) {
  char text[64];
  std::snprintf(text, sizeof(text), "%s0x%llx", expression,
                static_cast<unsigned long long>(number));
  fail(text, site);
}

void failFieldMissing(U32 fieldId, U32 chipType, U8 variant, Site site) {
  failSoftly(chipType, variant, site, [&](Kiv::TraceStream& stream) {
    stream << " does not have field " << FieldId::hardwareName(fieldId);
  });
}

void failClassMissing(const char* className, U32 chipType, U8 variant, Site site) {
  failSoftly(chipType, variant, site, [&](Kiv::TraceStream& stream) {
    stream << " not in metainfo for " << className << "!";
  });
}

void traceMember(const EntryView& view, Site site) {
  traceStatic(ViewAccess::chipType(view), ViewAccess::variant(view), site);
}

void traceStatic(U32 chipType, U8 variant, Site site) {
  traceLine(entryLevel, site, [&](Kiv::TraceStream& stream) {
    stream << site.signature << AsicUtils::ChipAndVariant{chipType, variant};
  });
}

void traceIdentifier(U32 chipType, U8 variant, U32 identifier, Site site) {
  traceLine(entryLevel, site, [&](Kiv::TraceStream& stream) {
    stream << site.signature << AsicUtils::ChipAndVariant{chipType, variant}
           << " identifier: " << identifier;
  });
}

void traceFailure(U32 chipType, U8 variant, Site site) {
  traceLine(failureLevel, site, [&](Kiv::TraceStream& stream) {
    stream << site.signature << AsicUtils::ChipAndVariant{chipType, variant} << " failed.";
  });
}

void traceConstruction(const ClassData& data, U32 chipType, Site site) {
  const Variants variants = data.facts[data.rowOfChip(chipType)].variants;
  traceLine(entryLevel, site, [&](Kiv::TraceStream& stream) {
    stream << data.name << " chipType: " << chipName(chipType)
           << " variant: " << (variants == Variants::any ? "None" : "0");
  });
}

}  // namespace Framework
}  // namespace Velmar
