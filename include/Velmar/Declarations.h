#pragma once

#include "AsicUtils/BcmAsicBase.h"
#include "Velmar/Export.h"
#include "Velmar/PortLists.h"

// What a view class declares. A class header gives its field list, VELMAR_FIELDS_<Class>(FIELD),
// and its span list, VELMAR_SPANS_<Class>(SPAN), and calls VELMAR_DECLARE_TABLE or
// VELMAR_DECLARE_REGISTER in the class; the macros here turn that into declarations.
//
// A field row is FIELD(accessor, Accessor, HARDWARE_NAME, TYPE, meaning). TYPE is one of the words
// below; it decides what the getter returns and what the setter takes.

#define VELMAR_VALUE_U8 U8
#define VELMAR_VALUE_U16 U16
#define VELMAR_VALUE_U32 U32
#define VELMAR_VALUE_U64 U64
#define VELMAR_VALUE_Raw128 Raw128
#define VELMAR_VALUE_Bitmap Oru::PerUnitBitmap

#define VELMAR_PARAMETER_U8 U8
#define VELMAR_PARAMETER_U16 U16
#define VELMAR_PARAMETER_U32 U32
#define VELMAR_PARAMETER_U64 const U64&
#define VELMAR_PARAMETER_Raw128 const Raw128&
#define VELMAR_PARAMETER_Bitmap Oru::PerUnitBitmap

/// The five members of a field. Each traces at level 8 before it does anything else.
///  - `F()`: the value, zero-extended. Fails "0" where the chip lacks the field, "variant_ == 0"
///    for a variant that the chip lacks, "len_ >= N" where the buffer ends before the field.
///  - `FIs(value)`: writes the value; other bits stay. Fails as `F()`, and "value <= 0x<mask>"
///    where the value is too large and the width no multiple of 8. A bitmap of too few words throws
///    Morvo::VectorOutOfRangeException after the words it had; surplus words are ignored.
///  - `FLen()`: the width in bits. Where the view does not have the field: the soft assertion
///    " does not have field <HARDWARE_NAME>", then fails "\"0\" == nullptr".
///  - `FOffset()`: the first bit in the entry. Fails "0" or "variant_ == 0" as `F()`.
///  - `isFValid()`: whether the view's chip and variant have the field. Never fails.
#define VELMAR_DECLARE_FIELD(accessor, Accessor, HARDWARE_NAME, TYPE, meaning) \
  VELMAR_VALUE_##TYPE accessor() const;                                        \
  void accessor##Is(VELMAR_PARAMETER_##TYPE value);                            \
  U16 accessor##Len() const;                                                   \
  U16 accessor##Offset() const;                                                \
  bool is##Accessor##Valid() const;

/// A geometry value: the static form fails "0" for a chip that the class does not support and
/// "variant == 0" for a variant that the chip does not have; the const form asks the static one for
/// the view's chip and variant. OVERRIDE is the word itself where the base has the member.
#define VELMAR_DECLARE_GEOMETRY(TYPE, member, OVERRIDE) \
  static TYPE member(U32 chipType, U8 variant);         \
  TYPE member() const OVERRIDE;

/// What every view has.
///  - Constructor: binds the view to `buf`, which stays the caller's and must outlive the view;
///    `len` is in bytes. A chip or variant that the class does not support: the soft assertion
///    " not in metainfo for <Class>!", then fails "\"0\" == nullptr".
///  - `chipTypeVariantValid`: whether the constructor would accept the pair. Never fails.
///  - `fieldOffset`, `fieldWidth`, `isFieldValid`, `setField64`: a field chosen by identifier
///    (Velmar/FieldId.h). An identifier that the class does not declare fails "false", is 0 bits
///    wide and is not valid. `setField64` reaches scalar fields only, any other fails "false"; the
///    value loses the bits that the field's value type lacks before it is checked.
///  - `fieldCount`: number of fields that the chip has.
///  - `allFieldsMask`: a one at every bit that belongs to a field of the chip.
///  - `getAllFields`: the entry with all other bits zero. Fails "len_ >= N" where the buffer is
///    shorter than the raw type.
///  - `hasIdentifier`: whether the object accepts an instance identifier.
///  - `getSchanAddress`: S-channel address, access code and pipeline block of an entry (tables) or
///    array element (registers). Returns false, outputs untouched, for a chip or variant that the
///    class does not support. Fails "tableEntry < N", "tableEntry == 0", "arrayIndex == 0",
///    "arrayIndex < 64" or "hasIdentifier( chipType, variant, identifier )".
#define VELMAR_DECLARE_VIEW(CLASS, RAW)                                                            \
 public:                                                                                           \
  using EntrySpans = AsicUtils::EntrySpans;                                                        \
  CLASS(ChipType_ chipType, U8* buf, U16 len, bool flag, U8 variant);                              \
  static void handleBuf(ChipType_ chipType, U8* buf, U16 len, bool flag, U8 variant);              \
  static bool chipTypeVariantValid(ChipType_ chipType, U8 variant);                                \
  bool isPrimary() const;                                                                          \
  void setField64(U32 fieldId, U64 value) override;                                                \
  U16 fieldWidth(U32 fieldId) const override;                                                      \
  U16 fieldOffset(U32 fieldId) const override;                                                     \
  bool isFieldValid(U32 fieldId) const override;                                                   \
  bool isTable() const override;                                                                   \
  static bool hasIdentifier(U32 chipType, U8 variant, U32 identifier);                             \
  bool hasIdentifier(U32 identifier) const override;                                               \
  static bool getSchanAddress(U32 chipType, U8 variant, U32& address, U32& accessType, U32& block, \
                              U16 identifier, U32 tableEntry, U16 arrayIndex);                     \
  bool getSchanAddress(U32& address, U32& accessType, U32& block, U16 identifier, U32 tableEntry,  \
                       U16 arrayIndex) const override;                                             \
  RAW getAllFields() const;                                                                        \
  VELMAR_DECLARE_GEOMETRY(Raw8192, allFieldsMask, override)                                        \
  VELMAR_DECLARE_GEOMETRY(U32, fieldCount, override)                                               \
  VELMAR_DECLARE_GEOMETRY(U16, width, override)                                                    \
  VELMAR_DECLARE_GEOMETRY(U32, arrayElements, override)                                            \
  VELMAR_DECLARE_GEOMETRY(U32, instanceCount, override)                                            \
  VELMAR_FIELDS_##CLASS(VELMAR_DECLARE_FIELD)

/// The valid entry indices of the chip, and of the chips with as many entries.
#define VELMAR_DECLARE_SPAN(CHIP) static const AsicUtils::EntrySpan _entrySpans_##CHIP[1];

/// A view of a memory. Beyond what every view has:
///  - `width`, `tableWidth`: width of an entry in 32-bit words.
///  - `entries`, `index_min`, `entrySpans`: number of entries, lowest index, ranges of indices.
///  - `arrayElements`, `arrayIndex_min`, `instanceCount`: 1, 0, 1 for every memory.
///  - `tableVariantCount`: 1 where the chip has the memory, else 0. Never fails.
#define VELMAR_DECLARE_TABLE(CLASS, RAW)                    \
  VELMAR_DECLARE_VIEW(CLASS, RAW)                           \
  static U16 tableWidth(U32 chipType, U8 variant);          \
  VELMAR_DECLARE_GEOMETRY(U32, entries, override)           \
  VELMAR_DECLARE_GEOMETRY(U32, index_min, )                 \
  VELMAR_DECLARE_GEOMETRY(U32, arrayIndex_min, )            \
  VELMAR_DECLARE_GEOMETRY(EntrySpans, entrySpans, override) \
  static U32 tableVariantCount(U32 chipType);               \
  U32 tableVariantCount() const override;                   \
  VELMAR_SPANS_##CLASS(VELMAR_DECLARE_SPAN)

/// A view of a register array. Beyond what every view has:
///  - `width`, `regWidth`: width of the register in 32-bit words.
///  - `arrayElements`: number of elements; `addrStride`: address distance between two of them.
///  - `maxIdentifier`: 0 on every chip, also where `hasIdentifier` accepts more.
#define VELMAR_DECLARE_REGISTER(CLASS, RAW)      \
  VELMAR_DECLARE_VIEW(CLASS, RAW)                \
  static U16 regWidth(U32 chipType, U8 variant); \
  VELMAR_DECLARE_GEOMETRY(U32, addrStride, )     \
  VELMAR_DECLARE_GEOMETRY(U32, maxIdentifier, override)
