#pragma once

#include "framework/Addressing.h"
#include "framework/GenericAccess.h"
#include "framework/Geometry.h"
#include "framework/Proofs.h"

// What a table's source defines. The source names, in an anonymous namespace,
//   about     ClassRow: purpose, block
//   layout    FieldRow for each field, or portRows of a rule
//   chips     ChipRow for each set of chips that share everything
//   columns   number of layout columns
// and then calls VELMAR_DEFINE_TABLE(<Class>, <RawType>) or VELMAR_DEFINE_REGISTER, which proves
// the rows and defines every member that Velmar/Declarations.h declared. A member is one call of
// the engine.

/// The member that stands here.
#define VELMAR_SITE (::Velmar::Framework::Site{__PRETTY_FUNCTION__, __LINE__})

/// One row of the field list, as data and as index.
#define VELMAR_FIELD_ENTRY(accessor, Accessor, HARDWARE_NAME, TYPE, meaning) \
  {#accessor,                                                                \
   #Accessor,                                                                \
   #HARDWARE_NAME,                                                           \
   ::Velmar::FieldId::HARDWARE_NAME,                                         \
   ::Velmar::Framework::valueTypeOf<VELMAR_VALUE_##TYPE>,                    \
   meaning},
#define VELMAR_FIELD_INDEX(accessor, Accessor, HARDWARE_NAME, TYPE, meaning) HARDWARE_NAME,

/// The quintet of a field.
#define VELMAR_DEFINE_FIELD(accessor, Accessor, HARDWARE_NAME, TYPE, meaning)                    \
  VELMAR_VALUE_##TYPE View::accessor() const {                                                   \
    return ViewFields::get<VELMAR_VALUE_##TYPE>(*this, Index::HARDWARE_NAME);                    \
  }                                                                                              \
  void View::accessor##Is(VELMAR_PARAMETER_##TYPE value) {                                       \
    ViewFields::set<VELMAR_VALUE_##TYPE>(*this, value, Index::HARDWARE_NAME);                    \
  }                                                                                              \
  U16 View::accessor##Len() const { return ViewFields::length(*this, Index::HARDWARE_NAME); }    \
  U16 View::accessor##Offset() const { return ViewFields::offset(*this, Index::HARDWARE_NAME); } \
  bool View::is##Accessor##Valid() const {                                                       \
    return ViewFields::isValid(*this, Index::HARDWARE_NAME);                                     \
  }

/// A geometry value and its const form; READ is facts, or tracedFacts where the member traces.
#define VELMAR_DEFINE_GEOMETRY(TYPE, member, READ)                            \
  TYPE View::member(U32 chipType, U8 variant) {                               \
    return Framework::READ(classData, chipType, variant, VELMAR_SITE).member; \
  }                                                                           \
  TYPE View::member() const { return member(chipType_, variant_); }

#define VELMAR_SPAN_MEMBER(CHIP) {CHIP, View::_entrySpans_##CHIP},
#define VELMAR_DEFINE_SPAN(CHIP)                             \
  const AsicUtils::EntrySpan View::_entrySpans_##CHIP[1] = { \
      {0, ::Velmar::Framework::entriesOn(chips, CHIP)}};

/// The proofs, before anything is made of the rows: a slip gives one sentence.
#define VELMAR_PROVE(CLASS, KIND)                                                               \
  static_assert(Framework::Proofs::namesDerive(list),                                           \
                #CLASS ": an accessor is not the lowerCamelCase of its hardware name");         \
  static_assert(Framework::Proofs::rowsMatchList(list, layout), #CLASS                          \
                ": fields and layout rows differ: each field has one row, each row a field");   \
  static_assert(Framework::Proofs::cellsAreFilled(layout),                                      \
                #CLASS ": a layout row leaves a column out or gives a width of 0; write none"); \
  static_assert(Framework::Proofs::columnsAreUsed(chips, columns), #CLASS                       \
                ": a chip row names a column that does not exist, or a column has no chip");    \
  static_assert(Framework::Proofs::chipsAreOnce(chips),                                         \
                #CLASS ": a chip stands in two rows, or a row has no chip");                    \
  static_assert(Framework::Proofs::generationsAreApart(chips),                                  \
                #CLASS ": a row mixes bcm5699x with other chips, or gives variants to others"); \
  static_assert(Framework::Proofs::shapesAreSound(KIND, chips), #CLASS                          \
                ": a chip row has no width, entries or identifiers, or a stride or "            \
                "identifiers that its kind does not have");                                     \
  static_assert(Framework::Proofs::fieldsFitEntries(layout, chips),                             \
                #CLASS ": a field ends beyond its entry");                                      \
  static_assert(Framework::Proofs::typesFitFields(list, layout),                                \
                #CLASS ": a value type is too small for its field, or larger than it needs");   \
  static_assert(Framework::Proofs::overlapsAreMarked(layout, columns), #CLASS                   \
                ": two fields share bits and neither is marked alias, or an alias shares "      \
                "none");                                                                        \
  static_assert(Framework::Proofs::rawTypeFits(rawWords, about.allFieldsBytes, chips),          \
                #CLASS ": the raw type is not the smallest that holds the widest entry");       \
  static_assert(Framework::Proofs::spansMatchEntries(KIND, chips, spans),                       \
                #CLASS ": span members and numbers of entries differ");                         \
  static_assert(Framework::Proofs::blockFitsName(about.block, #CLASS),                          \
                #CLASS ": the block is egress for the Egr classes and ingress for all others");

#define VELMAR_DEFINE_VIEW(CLASS, KIND, RAW)                                                      \
  namespace {                                                                                     \
  using View = CLASS;                                                                             \
  }                                                                                               \
  VELMAR_SPANS_##CLASS(VELMAR_DEFINE_SPAN) namespace {                                            \
    constexpr Framework::FieldEntry list[] = {VELMAR_FIELDS_##CLASS(VELMAR_FIELD_ENTRY)};         \
    namespace Index {                                                                             \
    enum : U32 { VELMAR_FIELDS_##CLASS(VELMAR_FIELD_INDEX) };                                     \
    }                                                                                             \
    constexpr Framework::SpanMember spans[] = {                                                   \
        VELMAR_SPANS_##CLASS(VELMAR_SPAN_MEMBER){ChipType_{}, nullptr}};                          \
    constexpr U32 rawWords = sizeof(RAW) / 4;                                                     \
    VELMAR_PROVE(CLASS, KIND)                                                                     \
    constexpr auto table = Framework::makeTable<rawWords, Framework::idRangeOf(list).count>(      \
        KIND, list, layout, chips, spans);                                                        \
  }                                                                                               \
  extern const Framework::ClassData classData_##CLASS;                                            \
  constexpr Framework::ClassData classData_##CLASS =                                              \
      Framework::makeClassData(#CLASS, __LINE__, KIND, about, table);                             \
  namespace {                                                                                     \
  constexpr const Framework::ClassData& classData = classData_##CLASS;                            \
  using ViewFields = Framework::Fields<table, classData_##CLASS>;                                 \
  using ViewAddressing = Framework::Addressing<table, classData_##CLASS>;                         \
  }                                                                                               \
                                                                                                  \
  CLASS::CLASS(ChipType_ chipType, U8* buf, U16 len, bool flag, U8 variant)                       \
      : BcmAsicBase(static_cast<U8>(chipType), buf, len, flag, variant, 0) {                      \
    Framework::construct<table, classData_##CLASS>(chipType, variant, VELMAR_SITE);               \
  }                                                                                               \
  void View::handleBuf(ChipType_, U8*, U16, bool, U8) {}                                          \
  bool View::chipTypeVariantValid(ChipType_ chipType, U8 variant) {                               \
    return Framework::isKnown(classData, chipType, variant);                                      \
  }                                                                                               \
  bool View::isPrimary() const { return true; }                                                   \
  bool View::isTable() const { return (KIND) == Framework::Kind::table; }                         \
                                                                                                  \
  VELMAR_FIELDS_##CLASS(VELMAR_DEFINE_FIELD)                                                      \
                                                                                                  \
      U16                                                                                         \
      View::fieldOffset(U32 fieldId) const {                                                      \
    return Framework::offsetOfId(*this, fieldId, classData, VELMAR_SITE);                         \
  }                                                                                               \
  U16 View::fieldWidth(U32 fieldId) const {                                                       \
    return Framework::widthOfId(*this, fieldId, classData, VELMAR_SITE);                          \
  }                                                                                               \
  bool View::isFieldValid(U32 fieldId) const {                                                    \
    return Framework::isIdValid(*this, fieldId, classData, VELMAR_SITE);                          \
  }                                                                                               \
  void View::setField64(U32 fieldId, U64 value) {                                                 \
    Framework::setById(*this, fieldId, value, classData, VELMAR_SITE);                            \
  }                                                                                               \
                                                                                                  \
  RAW View::getAllFields() const {                                                                \
    return Framework::allFieldsAs<RAW>(classData, *this, VELMAR_SITE);                            \
  }                                                                                               \
  Raw8192 View::allFieldsMask(U32 chipType, U8 variant) {                                         \
    return Framework::allFieldsMask(classData, chipType, variant, VELMAR_SITE);                   \
  }                                                                                               \
  Raw8192 View::allFieldsMask() const { return allFieldsMask(chipType_, variant_); }              \
  VELMAR_DEFINE_GEOMETRY(U32, fieldCount, tracedFacts)                                            \
  VELMAR_DEFINE_GEOMETRY(U16, width, facts)                                                       \
  VELMAR_DEFINE_GEOMETRY(U32, arrayElements, facts)                                               \
  VELMAR_DEFINE_GEOMETRY(U32, instanceCount, tracedFacts)                                         \
  bool View::hasIdentifier(U32 chipType, U8 variant, U32 identifier) {                            \
    return Framework::hasIdentifier(classData, chipType, variant, identifier, VELMAR_SITE);       \
  }                                                                                               \
  bool View::hasIdentifier(U32 identifier) const {                                                \
    return hasIdentifier(chipType_, variant_, identifier);                                        \
  }                                                                                               \
  bool View::getSchanAddress(U32 chipType, U8 variant, U32& address, U32& accessType, U32& block, \
                             U16 identifier, U32 tableEntry, U16 arrayIndex) {                    \
    return ViewAddressing::look(chipType, variant, {address, accessType, block},                  \
                                {identifier, tableEntry, arrayIndex}, &View::hasIdentifier,       \
                                VELMAR_SITE);                                                     \
  }                                                                                               \
  bool View::getSchanAddress(U32& address, U32& accessType, U32& block, U16 identifier,           \
                             U32 tableEntry, U16 arrayIndex) const {                              \
    return getSchanAddress(chipType_, variant_, address, accessType, block, identifier,           \
                           tableEntry, arrayIndex);                                               \
  }

#define VELMAR_DEFINE_TABLE(CLASS, RAW)                                                 \
  VELMAR_DEFINE_VIEW(CLASS, Framework::Kind::table, RAW)                                \
  VELMAR_DEFINE_GEOMETRY(U32, entries, facts)                                           \
  VELMAR_DEFINE_GEOMETRY(U32, index_min, facts)                                         \
  VELMAR_DEFINE_GEOMETRY(U32, arrayIndex_min, facts)                                    \
  U16 View::tableWidth(U32 chipType, U8 variant) { return width(chipType, variant); }   \
  View::EntrySpans View::entrySpans(U32 chipType, U8 variant) {                         \
    return {Framework::tracedFacts(classData, chipType, variant, VELMAR_SITE).span, 1}; \
  }                                                                                     \
  View::EntrySpans View::entrySpans() const { return entrySpans(chipType_, variant_); } \
  U32 View::tableVariantCount(U32 chipType) {                                           \
    return Framework::isKnown(classData, chipType, 0) ? 1 : 0;                          \
  }                                                                                     \
  U32 View::tableVariantCount() const { return tableVariantCount(chipType_); }

#define VELMAR_DEFINE_REGISTER(CLASS, RAW)                                    \
  VELMAR_DEFINE_VIEW(CLASS, Framework::Kind::registerArray, RAW)              \
  U16 View::regWidth(U32 chipType, U8 variant) {                              \
    return Framework::facts(classData, chipType, variant, VELMAR_SITE).width; \
  }                                                                           \
  VELMAR_DEFINE_GEOMETRY(U32, addrStride, facts)                              \
  VELMAR_DEFINE_GEOMETRY(U32, maxIdentifier, facts)
