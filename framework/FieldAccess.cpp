#include "framework/FieldAccess.h"

namespace Velmar {
namespace Framework {
namespace {

/// The field's slot, after the checks that getter, setter and offset share.
const FieldSlot& checkPresent(const EntryView& view, U32 field, const ClassData& data, Site site) {
  const FieldSlot& slot = data.slot(field, data.rowOfChip(ViewAccess::chipType(view)));
  if (slot.width == 0) fail("0", site);
  if (data.slot(field, rowOf(view, data)).width == 0) fail("variant_ == 0", site);
  return slot;
}

/// Trace and checks of a member that reads or writes the entry.
[[gnu::cold, gnu::noinline]] void traceAndCheck(const EntryView& view, U32 field,
                                                const ClassData& data, Member member,
                                                U64 value = 0) {
  const FieldSite site(data, field, member);
  traceMember(view, site);
  const FieldSlot& slot = checkPresent(view, field, data, site);
  if (ViewAccess::len(view) < bytesUpTo(slot)) failDecimal("len_ >= ", bytesUpTo(slot), site);
  if (value > largestValue(slot)) failHexadecimal("value <= ", largestValue(slot), site);
}

/// Whether the view's buffer holds the field; false where the view does not have it.
bool isHeld(const EntryView& view, const FieldSlot& slot) {
  return slot.width != 0 && ViewAccess::len(view) >= bytesUpTo(slot);
}

/// Writes a value that was checked, in memory as the copy takes it.
template <class T>
void put(const EntryView& view, const T& value, const FieldSlot& slot) {
  Detail::copyBits(ViewAccess::buf(view), ViewAccess::len(view), bytesOf(value), sizeof(value),
                   slot.width, slot.offset, 0);
}

/// Bits of word `index` of a bitmap that is `width` bits wide.
int wordBits(int width, U32 index) {
  const int left = width - 32 * static_cast<int>(index);
  return left < 32 ? left : 32;
}

void read(const EntryView& view, const FieldSlot& slot, Oru::PerUnitBitmap& bitmap) {
  for (U32 i = 0; 32 * i < slot.width; ++i) {
    U32 word = 0;
    Detail::copyBits(bytesOf(word), sizeof(word), ViewAccess::buf(view), ViewAccess::len(view),
                     wordBits(slot.width, i), 0, slot.offset + 32 * static_cast<int>(i));
    bitmap.bitListIs(i, word);
  }
}

template <class T>
void read(const EntryView& view, const FieldSlot& slot, T& value) {
  Detail::copyBits(bytesOf(value), sizeof(value), ViewAccess::buf(view), ViewAccess::len(view),
                   slot.width, 0, slot.offset);
}

}  // namespace

template <class T>
T wholeGet(const EntryView& view, const FieldSlot& slot, const ClassData& data) {
  if (mustCheck(!isHeld(view, slot))) {
    traceAndCheck(view, data.fieldOf(slot), data, Member::getter);
  }
  T value{};
  read(view, slot, value);
  return value;
}

template U8 wholeGet<U8>(const EntryView&, const FieldSlot&, const ClassData&);
template U16 wholeGet<U16>(const EntryView&, const FieldSlot&, const ClassData&);
template U32 wholeGet<U32>(const EntryView&, const FieldSlot&, const ClassData&);
template U64 wholeGet<U64>(const EntryView&, const FieldSlot&, const ClassData&);
template Raw128 wholeGet<Raw128>(const EntryView&, const FieldSlot&, const ClassData&);
template Oru::PerUnitBitmap wholeGet<Oru::PerUnitBitmap>(const EntryView&, const FieldSlot&,
                                                         const ClassData&);

template <class T>
void wholeSet(const EntryView& view, T value, const FieldSlot& slot, const ClassData& data) {
  if (mustCheck(!isHeld(view, slot) || value > largestValue(slot))) {
    traceAndCheck(view, data.fieldOf(slot), data, Member::setter, value);
  }
  put(view, value, slot);
}

template void wholeSet<U8>(const EntryView&, U8, const FieldSlot&, const ClassData&);
template void wholeSet<U16>(const EntryView&, U16, const FieldSlot&, const ClassData&);
template void wholeSet<U32>(const EntryView&, U32, const FieldSlot&, const ClassData&);
template void wholeSet<U64>(const EntryView&, U64, const FieldSlot&, const ClassData&);

void setBitmap(const EntryView& view, const Oru::PerUnitBitmap& value, const FieldSlot& slot,
               const ClassData& data) {
  if (mustCheck(!isHeld(view, slot))) {
    traceAndCheck(view, data.fieldOf(slot), data, Member::setter);
  }
  for (U32 i = 0; 32 * i < slot.width; ++i) {
    if (i >= wordCountOf(value)) {
      Morvo::Impl::throwVectorOutOfRangeException(i, wordCountOf(value));
    }
    const U32 word = wordOf(value, i);
    Detail::copyBits(ViewAccess::buf(view), ViewAccess::len(view), bytesOf(word), sizeof(word),
                     wordBits(slot.width, i), slot.offset + 32 * static_cast<int>(i), 0);
  }
}

void setRaw(const EntryView& view, const Raw128& value, const FieldSlot& slot,
            const ClassData& data) {
  if (mustCheck(!isHeld(view, slot))) {
    traceAndCheck(view, data.fieldOf(slot), data, Member::setter);
  }
  put(view, value, slot);
}

U16 checkedOffset(const EntryView& view, const FieldSlot& slot, const ClassData& data) {
  const U32 field = data.fieldOf(slot);
  const FieldSite site(data, field, Member::offset);
  traceMember(view, site);
  return checkPresent(view, field, data, site).offset;
}

U16 checkedLength(const EntryView& view, const FieldSlot& slot, const ClassData& data) {
  const U32 field = data.fieldOf(slot);
  const FieldSite site(data, field, Member::length);
  traceMember(view, site);
  if (slot.width == 0) {
    failFieldMissing(data.fieldFacts[field].id, ViewAccess::chipType(view),
                     ViewAccess::variant(view), site);
  }
  return slot.width;
}

bool checkedIsValid(const EntryView& view, const FieldSlot& slot, const ClassData& data) {
  traceMember(view, FieldSite(data, data.fieldOf(slot), Member::validity));
  return slot.width != 0;
}

}  // namespace Framework
}  // namespace Velmar
