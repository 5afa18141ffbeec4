#pragma once

#include "Velmar/FieldId.h"
#include "framework/Addressing.h"
#include "framework/GenericAccess.h"
#include "framework/Geometry.h"
#include "framework/RowChecks.h"

// VELMAR_DEFINE_TABLE and VELMAR_DEFINE_REGISTER, at the end, check the rows of a class and define
// every member that the class's header declares. A member is one call into the engine. All macros
// rely on names that VELMAR_DEFINE_DATA and VELMAR_DEFINE_VIEW_DATA define: View, Index, ViewData,
// ViewFields.
// `scripts/expand <Class>` prints the expansion for a class.

namespace Velmar {
namespace Framework {

/// The data of a view class.
template <class View>
struct ClassDataOf;

}  // namespace Framework

template <class View>
Catalogue::Table Catalogue::Table::of() {
  return Table(Framework::ClassDataOf<View>::data);
}

}  // namespace Velmar

// clang-format off

/// The call site of the enclosing member.
#define VELMAR_SITE (::Velmar::Framework::Site{__PRETTY_FUNCTION__, __LINE__})

/// A field as an index into the class's rows of names.
#define VELMAR_FIELD_INDEX(accessor, Accessor, HARDWARE_NAME, TYPE, meaning) HARDWARE_NAME,

#define VELMAR_SPAN_MEMBER(CHIP) {CHIP, View::_entrySpans_##CHIP},
#define VELMAR_DEFINE_SPAN(CHIP)                             \
  const AsicUtils::EntrySpan View::_entrySpans_##CHIP[1] = { \
      {0, ::Velmar::Framework::entriesOn(chipRows, CHIP)}};

/// The checks, and the class's constant data.
#define VELMAR_DEFINE_DATA(CLASS, KIND, RAW, FIELDS, SPANS, about, layout, chips, chipFacts)   \
  namespace {                                                                                  \
  using View = CLASS;                                                                          \
  namespace Index { enum : U32 { FIELDS(VELMAR_FIELD_INDEX) }; }                               \
  constexpr Framework::FieldName names[] = {FIELDS(VELMAR_FIELD_NAME)};                        \
  [[maybe_unused]] constexpr const auto& chipRows = chips;                                     \
  }                                                                                            \
  SPANS(VELMAR_DEFINE_SPAN)                                                                    \
  namespace {                                                                                  \
  constexpr Framework::SpanMember spans[] = {SPANS(VELMAR_SPAN_MEMBER){ChipType_{}, nullptr}}; \
  VELMAR_CHECK_ROWS(CLASS, KIND, sizeof(RAW) / 4, names, spans, about, layout, chips, chipFacts) \
  constexpr auto tableArrays =                                                                 \
      Framework::makeArrays<sizeof(RAW) / 4, Framework::idRangeOf(names).count>(names, layout, \
                                                                                chips);        \
  constexpr auto tableFacts =                                                                  \
      Framework::makeFacts(KIND, names, about, layout, chips, spans, chipFacts);               \
  }                                                                                            \
  extern const Framework::ClassData classData_##CLASS;                                         \
  constexpr Framework::ClassData classData_##CLASS = Framework::makeClassData(                 \
      #CLASS, __LINE__, KIND, about, Framework::idRangeOf(names).first, tableArrays,           \
      tableFacts);

/// The class's table in the catalogue.
#define VELMAR_DEFINE_TABLE_OF(CLASS)                                      \
  template <>                                                              \
  struct Framework::ClassDataOf<CLASS> {                                   \
    static constexpr const Framework::ClassData& data = classData_##CLASS; \
  };                                                                       \
  template VELMAR_EXPORT Catalogue::Table Catalogue::Table::of<CLASS>();

/// What the engine's templates read of the class.
#define VELMAR_DEFINE_VIEW_DATA(CLASS)                                     \
  namespace {                                                              \
  struct ViewData {                                                        \
    static constexpr const auto& arrays = tableArrays;                     \
    static constexpr const auto& facts = tableFacts;                       \
    static constexpr const Framework::ClassData& data = classData_##CLASS; \
  };                                                                       \
  using ViewFields = Framework::Fields<ViewData>;                          \
  }

#define VELMAR_DEFINE_CONSTRUCTION(CLASS, KIND)                                      \
  [[gnu::aligned(32)]]                                                               \
  CLASS::CLASS(ChipType_ chipType, U8* buf, U16 len, bool flag, U8 variant)          \
      : BcmAsicBase(static_cast<U8>(chipType), buf, len, flag, variant, 0) {         \
    Framework::construct<ViewData>(chipType, variant, VELMAR_SITE);                  \
  }                                                                                  \
  void CLASS::handleBuf(ChipType_, U8*, U16, bool, U8) {}                            \
  bool CLASS::chipTypeVariantValid(ChipType_ chipType, U8 variant) {                 \
    return Framework::isKnown(classData_##CLASS, chipType, variant);                 \
  }                                                                                  \
  bool CLASS::isPrimary() const { return true; }                                     \
  bool CLASS::isTable() const { return (KIND) == Framework::Kind::table; }

/// The five members of a field.
#define VELMAR_DEFINE_FIELD(accessor, Accessor, HARDWARE_NAME, TYPE, meaning)                    \
  [[gnu::aligned(ViewFields::getterAlignment)]]                                                  \
  VELMAR_VALUE_##TYPE View::accessor() const {                                                   \
    return ViewFields::get<VELMAR_VALUE_##TYPE>(*this, Index::HARDWARE_NAME);                    \
  }                                                                                              \
  [[gnu::aligned(ViewFields::setterAlignment)]]                                                  \
  void View::accessor##Is(VELMAR_PARAMETER_##TYPE value) {                                       \
    ViewFields::set<VELMAR_VALUE_##TYPE>(*this, value, Index::HARDWARE_NAME);                    \
  }                                                                                              \
  U16 View::accessor##Len() const { return ViewFields::length(*this, Index::HARDWARE_NAME); }    \
  U16 View::accessor##Offset() const { return ViewFields::offset(*this, Index::HARDWARE_NAME); } \
  bool View::is##Accessor##Valid() const {                                                       \
    return ViewFields::isValid(*this, Index::HARDWARE_NAME);                                     \
  }

/// Fields chosen by identifier, and the whole entry.
#define VELMAR_DEFINE_GENERIC_ACCESS(CLASS, RAW)                                             \
  U16 CLASS::fieldOffset(U32 fieldId) const {                                                \
    return Framework::offsetOfId<ViewData>(*this, fieldId, VELMAR_SITE);                     \
  }                                                                                          \
  U16 CLASS::fieldWidth(U32 fieldId) const {                                                 \
    return Framework::widthOfId<ViewData>(*this, fieldId, VELMAR_SITE);                      \
  }                                                                                          \
  bool CLASS::isFieldValid(U32 fieldId) const {                                              \
    return Framework::isIdValid<ViewData>(*this, fieldId, VELMAR_SITE);                      \
  }                                                                                          \
  void CLASS::setField64(U32 fieldId, U64 value) {                                           \
    Framework::setById(*this, fieldId, value, classData_##CLASS, VELMAR_SITE);               \
  }                                                                                          \
  RAW CLASS::getAllFields() const {                                                          \
    return Framework::allFieldsAs<RAW>(classData_##CLASS, *this, VELMAR_SITE);               \
  }                                                                                          \
  Raw8192 CLASS::allFieldsMask(U32 chipType, U8 variant) {                                   \
    return Framework::allFieldsMask(classData_##CLASS, chipType, variant, VELMAR_SITE);      \
  }                                                                                          \
  Raw8192 CLASS::allFieldsMask() const { return allFieldsMask(chipType_, variant_); }

/// A geometry value as a static and a view member; READ is facts, or tracedFacts if the member
/// traces.
#define VELMAR_DEFINE_GEOMETRY(CLASS, TYPE, member, fact, READ)                             \
  TYPE CLASS::member(U32 chipType, U8 variant) {                                            \
    return Framework::READ(classData_##CLASS, chipType, variant, VELMAR_SITE).fact;         \
  }                                                                                         \
  TYPE CLASS::member() const { return member(chipType_, variant_); }

#define VELMAR_DEFINE_ADDRESSING(CLASS)                                                           \
  bool CLASS::hasIdentifier(U32 chipType, U8 variant, U32 identifier) {                           \
    return Framework::hasIdentifier(classData_##CLASS, chipType, variant, identifier,             \
                                    VELMAR_SITE);                                                 \
  }                                                                                               \
  bool CLASS::hasIdentifier(U32 identifier) const {                                               \
    return hasIdentifier(chipType_, variant_, identifier);                                        \
  }                                                                                               \
  [[gnu::aligned(32)]]                                                                            \
  bool CLASS::getSchanAddress(U32 chipType, U8 variant, U32& address, U32& accessType,            \
                              U32& block, U16 identifier, U32 tableEntry, U16 arrayIndex) {       \
    return Framework::getAddress<ViewData>(                                                       \
        chipType, variant, {address, accessType, block}, {identifier, tableEntry, arrayIndex},    \
        &CLASS::hasIdentifier, VELMAR_SITE);                                                      \
  }                                                                                               \
  bool CLASS::getSchanAddress(U32& address, U32& accessType, U32& block, U16 identifier,          \
                              U32 tableEntry, U16 arrayIndex) const {                             \
    return getSchanAddress(chipType_, variant_, address, accessType, block, identifier,           \
                           tableEntry, arrayIndex);                                               \
  }

/// Everything common to memories and register arrays.
#define VELMAR_DEFINE_VIEW(CLASS, KIND, RAW, FIELDS, SPANS, about, layout, chips, chipFacts)    \
  VELMAR_DEFINE_DATA(CLASS, KIND, RAW, FIELDS, SPANS, about, layout, chips, chipFacts)          \
  VELMAR_DEFINE_VIEW_DATA(CLASS)                                                                \
  VELMAR_DEFINE_TABLE_OF(CLASS)                                                                 \
  VELMAR_DEFINE_CONSTRUCTION(CLASS, KIND)                                                       \
  FIELDS(VELMAR_DEFINE_FIELD)                                                                   \
  VELMAR_DEFINE_GENERIC_ACCESS(CLASS, RAW)                                                      \
  VELMAR_DEFINE_GEOMETRY(CLASS, U32, fieldCount, fieldCount, tracedFacts)                       \
  VELMAR_DEFINE_GEOMETRY(CLASS, U16, width, words, facts)                                       \
  VELMAR_DEFINE_GEOMETRY(CLASS, U32, arrayElements, arrayElements, facts)                       \
  VELMAR_DEFINE_GEOMETRY(CLASS, U32, instanceCount, instanceCount, tracedFacts)                 \
  VELMAR_DEFINE_ADDRESSING(CLASS)

/// The class of a memory.
#define VELMAR_DEFINE_TABLE(CLASS, RAW, FIELDS, SPANS, about, layout, chips, chipFacts)         \
  VELMAR_DEFINE_VIEW(CLASS, Framework::Kind::table, RAW, FIELDS, SPANS, about, layout, chips,   \
                     chipFacts)                                                                 \
  VELMAR_DEFINE_GEOMETRY(CLASS, U32, entries, entries, facts)                                   \
  VELMAR_DEFINE_GEOMETRY(CLASS, U32, index_min, index_min, facts)                               \
  VELMAR_DEFINE_GEOMETRY(CLASS, U32, arrayIndex_min, arrayIndex_min, facts)                     \
  U16 CLASS::tableWidth(U32 chipType, U8 variant) { return width(chipType, variant); }          \
  CLASS::EntrySpans CLASS::entrySpans(U32 chipType, U8 variant) {                               \
    return {Framework::tracedFacts(classData_##CLASS, chipType, variant, VELMAR_SITE).span, 1}; \
  }                                                                                             \
  CLASS::EntrySpans CLASS::entrySpans() const { return entrySpans(chipType_, variant_); }       \
  U32 CLASS::tableVariantCount(U32 chipType) {                                                  \
    return Framework::isKnown(classData_##CLASS, chipType, 0) ? 1 : 0;                          \
  }                                                                                             \
  U32 CLASS::tableVariantCount() const { return tableVariantCount(chipType_); }

/// The class of a register array.
#define VELMAR_DEFINE_REGISTER(CLASS, RAW, FIELDS, SPANS, about, layout, chips, chipFacts)     \
  VELMAR_DEFINE_VIEW(CLASS, Framework::Kind::registerArray, RAW, FIELDS, SPANS, about, layout, \
                     chips, chipFacts)                                                         \
  U16 CLASS::regWidth(U32 chipType, U8 variant) {                                              \
    return Framework::facts(classData_##CLASS, chipType, variant, VELMAR_SITE).words;          \
  }                                                                                            \
  VELMAR_DEFINE_GEOMETRY(CLASS, U32, addrStride, addrStride, facts)                            \
  VELMAR_DEFINE_GEOMETRY(CLASS, U32, maxIdentifier, maxIdentifier, facts)

// clang-format on
