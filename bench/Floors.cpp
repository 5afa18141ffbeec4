#include "Floors.h"

#include <cstring>

#include "Detail/CopyBits.h"
#include "proofs/CopyBitsLoop.h"

namespace Floors {
namespace {

constexpr U32 entryBytes = 16;

template <class T>
T load(const U8* from) {
  T value;
  std::memcpy(&value, from, sizeof(value));
  return value;
}
template <class T>
void store(U8* into, T value) {
  std::memcpy(into, &value, sizeof(value));
}

/// The first of the eight bytes that hold a field of a VLAN entry: a multiple of 8 if it can be, else
/// of 4. Fewer fields than at other places then wait for a write that overlaps theirs.
constexpr U32 windowOf(U32 offset, U32 width) {
  if (offset / 64 == (offset + width - 1) / 64) return offset / 64 * 8;
  const U32 start = offset / 32 * 4;
  return start < entryBytes - 8 ? start : entryBytes - 8;
}

template <U32 offset, U32 width>
U64 get(const U8* buf) {
  constexpr U32 start = windowOf(offset, width);
  return load<U64>(buf + start) >> (offset - 8 * start) & ((U64{1} << width) - 1);
}

template <U32 offset, U32 width>
void set(U8* buf, U64 value) {
  constexpr U32 start = windowOf(offset, width);
  constexpr U32 shift = offset - 8 * start;
  constexpr U64 mask = ((U64{1} << width) - 1) << shift;
  store<U64>(buf + start, (load<U64>(buf + start) & ~mask) | (value << shift & mask));
}

template <U32 words, U32 lastBits>
Oru::PerUnitBitmap getBitmap(const U8* buf) {
  Oru::PerUnitBitmap bitmap;
  bitmap.bitListIs(words - 1, load<U32>(buf + 4 * (words - 1)) & ((1U << lastBits) - 1));
  for (U32 i = 0; i + 1 < words; ++i) bitmap.bitListIs(i, load<U32>(buf + 4 * i));
  return bitmap;
}

template <U32 words, U32 lastBits>
void setBitmap(U8* buf, const Oru::PerUnitBitmap& value) {
  for (U32 i = 0; i + 1 < words; ++i) store<U32>(buf + 4 * i, value.word(i));
  constexpr U32 mask = (1U << lastBits) - 1;
  U8* const last = buf + 4 * (words - 1);
  store<U32>(last, (load<U32>(last) & ~mask) | (value.word(words - 1) & mask));
}

constexpr U16 numbers[] = {9, 13};

}  // namespace

Vlan::Vlan(ChipType_, U8* buf, U16, bool, U8) : buf_(buf) {}

U16 Vlan::constant() const { return 12; }

#define FLOORS_DEFINE(name, TYPE, offset, width)                                  \
  TYPE Vlan::name() const { return static_cast<TYPE>(get<offset, width>(buf_)); } \
  void Vlan::name##Is(TYPE value) { set<offset, width>(buf_, value); }
FLOORS_VLAN_FIELDS(FLOORS_DEFINE)
#undef FLOORS_DEFINE

bool Vlan::getSchanAddress(U32, U8, U32& address, U32& accessType, U32& block, U16, U32 tableEntry,
                           U16) {
  address = 0x0c7c0000 + tableEntry;
  block = 1;
  accessType = 17;
  return true;
}

Walked::Walked(ChipType_ chipType, U8* buf, U16 len, bool flag, U8 variant)
    : BcmAsicBase(static_cast<U8>(chipType), buf, len, flag, variant, 0) {}

void Walked::setField64(U32, U64) {}
U16 Walked::fieldWidth(U32 fieldId) const { return numbers[fieldId & 1]; }
U16 Walked::fieldOffset(U32 fieldId) const { return numbers[fieldId & 1]; }
bool Walked::isFieldValid(U32 fieldId) const { return fieldId != 0; }
U16 Walked::width() const { return 4; }
U32 Walked::fieldCount() const { return 15; }
bool Walked::isTable() const { return true; }
Raw8192 Walked::allFieldsMask() const { return {}; }
U32 Walked::instanceCount() const { return 1; }
bool Walked::hasIdentifier(U32 identifier) const { return identifier == 0; }
U32 Walked::arrayElements() const { return 1; }
bool Walked::getSchanAddress(U32& address, U32& accessType, U32& block, U16 identifier,
                             U32 tableEntry, U16 arrayIndex) const {
  return Vlan::getSchanAddress(chipType_, variant_, address, accessType, block, identifier,
                               tableEntry, arrayIndex);
}

Oru::PerUnitBitmap Bitmaps::bitmap136() const { return getBitmap<5, 8>(buf_ + 17); }
void Bitmaps::bitmap136Is(Oru::PerUnitBitmap value) { setBitmap<5, 8>(buf_ + 17, value); }
Oru::PerUnitBitmap Bitmaps::bitmap272() const { return getBitmap<9, 16>(buf_); }
void Bitmaps::bitmap272Is(Oru::PerUnitBitmap value) { setBitmap<9, 16>(buf_, value); }

void copyNothing(U8*, int, const U8*, int, int, int, int) {}

void copyRoutine(U8* dst, int dstLen, const U8* src, int srcLen, int bits, int dstOffset,
                 int srcOffset) {
  Detail::copyBits(dst, dstLen, src, srcLen, bits, dstOffset, srcOffset);
}

void copyBitLoop(U8* dst, int, const U8* src, int, int bits, int dstOffset, int srcOffset) {
  for (int i = 0; i < bits; ++i) {
    const U32 from = static_cast<U32>(srcOffset + i);
    const U32 into = static_cast<U32>(dstOffset + i);
    const U32 bit = src[from / 8] >> from % 8 & 1U;
    dst[into / 8] = static_cast<U8>((dst[into / 8] & ~(1U << into % 8)) | bit << into % 8);
  }
}

void copyByteLoop(U8* dst, int, const U8* src, int, int bits, int dstOffset, int srcOffset) {
  detailCopyBitsLoop(dst, src, bits, dstOffset, srcOffset);
}

}  // namespace Floors
