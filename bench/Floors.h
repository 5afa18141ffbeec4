#pragma once

#include "AsicUtils/BcmAsicBase.h"
#include "Oru/PerUnitBitmap.h"

#define FLOORS_EXPORT __attribute__((visibility("default")))

/// Minimal implementations of the library's operations: one layout fixed at compile time, no chip,
/// check or trace. They are exported members of a shared object, called like the library's.
namespace Floors {

/// The scalar fields of the VLAN table on the BCM5699x chips: FIELD(name, type, offset, width).
#define FLOORS_VLAN_FIELDS(FIELD)          \
  FIELD(valid, U8, 66, 1)                  \
  FIELD(fidId, U16, 10, 13)                \
  FIELD(enableIgmpMldSnooping, U8, 9, 1)   \
  FIELD(vlanClassId, U16, 67, 12)          \
  FIELD(stg, U16, 42, 6)                   \
  FIELD(vlanProfilePtr, U8, 91, 7)         \
  FIELD(membershipProfilePtr, U16, 79, 12) \
  FIELD(portBitmapProfilePtr, U16, 31, 11) \
  FIELD(virtualPortEn, U8, 98, 1)          \
  FIELD(learnDisable, U8, 30, 1)           \
  FIELD(l2EntryKeyType, U8, 28, 2)         \
  FIELD(flexCtrAction, U8, 23, 5)          \
  FIELD(uucIdx, U16, 57, 9)                \
  FIELD(umcIdx, U16, 48, 9)                \
  FIELD(bcIdx, U16, 0, 9)

/// A view of a 16-byte VLAN entry.
class FLOORS_EXPORT Vlan {
 public:
  Vlan(ChipType_ chipType, U8* buf, U16 len, bool flag, U8 variant);

  U16 constant() const;
#define FLOORS_DECLARE(name, TYPE, offset, width) \
  TYPE name() const;                              \
  void name##Is(TYPE value);
  FLOORS_VLAN_FIELDS(FLOORS_DECLARE)
#undef FLOORS_DECLARE

  static bool getSchanAddress(U32 chipType, U8 variant, U32& address, U32& accessType, U32& block,
                              U16 identifier, U32 tableEntry, U16 arrayIndex);

 private:
  U8* buf_;
};

/// A view whose virtual members return at once for any identifier.
class FLOORS_EXPORT Walked : public AsicUtils::BcmAsicBase {
 public:
  Walked(ChipType_ chipType, U8* buf, U16 len, bool flag, U8 variant);

  void setField64(U32 fieldId, U64 value) override;
  U16 fieldWidth(U32 fieldId) const override;
  U16 fieldOffset(U32 fieldId) const override;
  bool isFieldValid(U32 fieldId) const override;
  U16 width() const override;
  U32 fieldCount() const override;
  bool isTable() const override;
  Raw8192 allFieldsMask() const override;
  U32 instanceCount() const override;
  bool hasIdentifier(U32 identifier) const override;
  U32 arrayElements() const override;
  bool getSchanAddress(U32& address, U32& accessType, U32& block, U16 identifier, U32 tableEntry,
                       U16 arrayIndex) const override;
};

/// A bitmap of 136 bits at bit 136 and one of 272 bits at bit 0, word by word. The getters size the
/// bitmap once, by its last word.
class FLOORS_EXPORT Bitmaps {
 public:
  explicit Bitmaps(U8* buf) : buf_(buf) {}
  Oru::PerUnitBitmap bitmap136() const;
  void bitmap136Is(Oru::PerUnitBitmap value);
  Oru::PerUnitBitmap bitmap272() const;
  void bitmap272Is(Oru::PerUnitBitmap value);

 private:
  U8* buf_;
};

/// The arguments of Detail::copyBits. `copyRoutine` is that routine behind an opaque call; the
/// others are compared with it.
using Copy = void (*)(U8* dst, int dstLen, const U8* src, int srcLen, int bits, int dstOffset,
                      int srcOffset);
#define FLOORS_COPY(name)                                                                          \
  FLOORS_EXPORT void name(U8* dst, int dstLen, const U8* src, int srcLen, int bits, int dstOffset, \
                          int srcOffset)
FLOORS_COPY(copyNothing);
FLOORS_COPY(copyRoutine);
FLOORS_COPY(copyBitLoop);
FLOORS_COPY(copyByteLoop);

}  // namespace Floors
