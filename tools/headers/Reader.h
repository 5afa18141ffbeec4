#pragma once

// The macros with which this program compiles the sources of tables/: they check the rows and keep
// them for the header texts. Neither the headers nor the library are needed.

#include "tables/FieldIds.h"
#include "tools/headers/ClassRows.h"

namespace Velmar {
namespace FieldId {

enum Id : U32 {
#define VELMAR_ENUMERATOR(number, NAME) NAME = number,
#define VELMAR_PORT_ENUMERATOR(accessor, Accessor, NAME, TYPE, meaning) NAME,
  VELMAR_FIELD_IDS(VELMAR_ENUMERATOR, VELMAR_PORT_ENUMERATOR)
#undef VELMAR_ENUMERATOR
#undef VELMAR_PORT_ENUMERATOR
};

}  // namespace FieldId
}  // namespace Velmar

#include "framework/RowChecks.h"

// clang-format off
#define VELMAR_READ_SPAN_MEMBER(CHIP) {CHIP, nullptr},
#define VELMAR_READ_SPAN_NAME(CHIP) #CHIP,

#define VELMAR_READ(CLASS, KIND, RAW, FIELDS, SPANS, about, layout, chips, chipFacts)             \
  class CLASS;                                                                                    \
  namespace {                                                                                     \
  constexpr FieldName names[] = {FIELDS(VELMAR_FIELD_NAME)};                                      \
  constexpr SpanMember spans[] = {SPANS(VELMAR_READ_SPAN_MEMBER){ChipType_{}, nullptr}};          \
  VELMAR_CHECK_ROWS(CLASS, KIND, sizeof(RAW) / 4, names, spans, about, layout, chips, chipFacts)  \
  [[maybe_unused]] const bool isRead = ::Headers::add(::Headers::completed(                       \
      {#CLASS, #RAW, KIND, about, {SPANS(VELMAR_READ_SPAN_NAME)}, {}, {}, {}}, names, layout,     \
      chips, chipFacts));                                                                         \
  }
#define VELMAR_DEFINE_TABLE(CLASS, RAW, FIELDS, SPANS, about, layout, chips, chipFacts) \
  VELMAR_READ(CLASS, Kind::table, RAW, FIELDS, SPANS, about, layout, chips, chipFacts)
#define VELMAR_DEFINE_REGISTER(CLASS, RAW, FIELDS, SPANS, about, layout, chips, chipFacts) \
  VELMAR_READ(CLASS, Kind::registerArray, RAW, FIELDS, SPANS, about, layout, chips, chipFacts)
// clang-format on
