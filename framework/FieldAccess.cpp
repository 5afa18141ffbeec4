#include "framework/FieldAccess.h"

namespace Velmar {
namespace Framework {
namespace {

/// The slot on the view's chip and variant, absent where the view does not have the field.
const FieldSlot& slotOf(const ClassData& data, U32 field, ViewState state) {
  return data.slot(field, data.rowOf(state.chipType, state.variant));
}

/// The field's slot, after the checks that getter, setter and offset share.
const FieldSlot& checkPresent(const ClassData& data, U32 field, ViewState state, Site site) {
  const FieldSlot& slot = data.slot(field, data.rowOfChip(state.chipType));
  if (slot.width == 0) fail("0", site);
  if (slotOf(data, field, state).width == 0) fail("variant_ == 0", site);
  return slot;
}

/// The same, after the check that the buffer reaches the field's last bit.
const FieldSlot& checkReach(const ClassData& data, U32 field, ViewState state, Site site) {
  const FieldSlot& slot = checkPresent(data, field, state, site);
  if (state.len <= slot.lastByte) failDecimal("len_ >= ", slot.lastByte + 1U, site);
  return slot;
}

/// The whole entry of a getter or setter that copies more than one word: trace and checks where the
/// straight way is not open.
const FieldSlot& enter(const ClassData& data, U32 field, ViewState state, Member member) {
  const FieldSlot& slot = slotOf(data, field, state);
  if (mustCheck(state.len <= slot.lastByte)) {
    const FieldSite site(data, field, member);
    traceMember(state, site);
    checkReach(data, field, state, site);
  }
  return slot;
}

/// Bits of word `index` of a bitmap that is `width` bits wide.
int wordBits(int width, U32 index) {
  const int left = width - 32 * static_cast<int>(index);
  return left < 32 ? left : 32;
}

}  // namespace

U64 checkedGet(const ClassData& data, U32 field, ViewState state) {
  const FieldSite site(data, field, Member::getter);
  traceMember(state, site);
  const FieldSlot& slot = checkReach(data, field, state, site);
  U64 value = 0;
  Detail::copyBits(bytesOf(value), sizeof(value), state.buf, state.len, slot.width, 0, slot.offset);
  return value;
}

void checkedSet(const ClassData& data, U32 field, ViewState state, U64 value) {
  const FieldSite site(data, field, Member::setter);
  traceMember(state, site);
  const FieldSlot& slot = checkReach(data, field, state, site);
  if (value > largestValue(slot)) failHexadecimal("value <= ", largestValue(slot), site);
  Detail::copyBits(state.buf, state.len, bytesOf(value), sizeof(value), slot.width, slot.offset, 0);
}

U16 checkedOffset(const ClassData& data, U32 field, ViewState state) {
  const FieldSite site(data, field, Member::offset);
  traceMember(state, site);
  return checkPresent(data, field, state, site).offset;
}

U16 checkedLength(const ClassData& data, U32 field, ViewState state) {
  const FieldSite site(data, field, Member::length);
  traceMember(state, site);
  const FieldSlot& slot = slotOf(data, field, state);
  if (slot.width == 0) {
    failFieldMissing(data.fieldFacts[field].id, state.chipType, state.variant, site);
  }
  return slot.width;
}

bool checkedIsValid(const ClassData& data, U32 field, ViewState state) {
  const FieldSite site(data, field, Member::validity);
  traceMember(state, site);
  return slotOf(data, field, state).width != 0;
}

Oru::PerUnitBitmap getBitmap(const ClassData& data, U32 field, ViewState state) {
  const FieldSlot& slot = enter(data, field, state, Member::getter);
  Oru::PerUnitBitmap bitmap;
  for (U32 i = 0; 32 * i < slot.width; ++i) {
    U32 word = 0;
    Detail::copyBits(bytesOf(word), sizeof(word), state.buf, state.len, wordBits(slot.width, i), 0,
                     slot.offset + 32 * static_cast<int>(i));
    bitmap.bitListIs(i, word);
  }
  return bitmap;
}

void setBitmap(const ClassData& data, U32 field, ViewState state, const Oru::PerUnitBitmap& value) {
  const FieldSlot& slot = enter(data, field, state, Member::setter);
  for (U32 i = 0; 32 * i < slot.width; ++i) {
    if (i >= wordCountOf(value)) {
      Morvo::Impl::throwVectorOutOfRangeException(i, wordCountOf(value));
    }
    const U32 word = wordOf(value, i);
    Detail::copyBits(state.buf, state.len, bytesOf(word), sizeof(word), wordBits(slot.width, i),
                     slot.offset + 32 * static_cast<int>(i), 0);
  }
}

Raw128 getRaw(const ClassData& data, U32 field, ViewState state) {
  const FieldSlot& slot = enter(data, field, state, Member::getter);
  Raw128 value{};
  Detail::copyBits(bytesOf(value), sizeof(value), state.buf, state.len, slot.width, 0, slot.offset);
  return value;
}

void setRaw(const ClassData& data, U32 field, ViewState state, const Raw128& value) {
  const FieldSlot& slot = enter(data, field, state, Member::setter);
  Detail::copyBits(state.buf, state.len, bytesOf(value), sizeof(value), slot.width, slot.offset, 0);
}

}  // namespace Framework
}  // namespace Velmar
