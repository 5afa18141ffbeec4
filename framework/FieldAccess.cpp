#include "framework/FieldAccess.h"

#include <algorithm>

namespace Velmar {
namespace Framework {
namespace {

/// The field's slot, after the checks common to getter, setter and offset.
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

/// Whether the view has the field and its buffer holds it.
bool isHeld(const EntryView& view, const FieldSlot& slot) {
  return slot.width != 0 && ViewAccess::len(view) >= bytesUpTo(slot);
}

// The work itself, after the checks.

template <class T>
void read(const EntryView& view, const FieldSlot& slot, T& value) {
  Detail::copyBits(bytesOf(value), sizeof(value), ViewAccess::buf(view), ViewAccess::len(view),
                   slot.width, 0, slot.offset);
}

template <class T>
void write(const EntryView& view, const FieldSlot& slot, const T& value) {
  Detail::copyBits(ViewAccess::buf(view), ViewAccess::len(view), bytesOf(value), sizeof(value),
                   slot.width, slot.offset, 0);
}

U32 wordsOf(const FieldSlot& slot) { return (slot.width + 31U) / 32; }

void read(const EntryView& view, const FieldSlot& slot, Oru::PerUnitBitmap& bitmap) {
  U32 words[mostBitmapWords] = {};
  read(view, slot, words);
  for (U32 i = 0; i < wordsOf(slot); ++i) bitmap.bitListIs(i, words[i]);
}

/// Writes the words that the bitmap has, then throws if the field needs more.
void write(const EntryView& view, const FieldSlot& slot, const Oru::PerUnitBitmap& bitmap) {
  const U32 given = std::min(wordsOf(slot), wordCountOf(bitmap));
  U32 words[mostBitmapWords];
  for (U32 i = 0; i < given; ++i) words[i] = wordOf(bitmap, i);
  Detail::copyBits(ViewAccess::buf(view), ViewAccess::len(view), bytesOf(words), sizeof(words),
                   std::min<int>(slot.width, static_cast<int>(32 * given)), slot.offset, 0);
  if (given < wordsOf(slot)) Morvo::Impl::throwVectorOutOfRangeException(given, given);
}

}  // namespace

template <class T>
T checkedGet(const EntryView& view, const FieldSlot& slot, const ClassData& data) {
  if (takesSlowPath(!isHeld(view, slot))) {
    traceAndCheck(view, data.fieldOf(slot), data, Member::getter);
  }
  T value{};
  read(view, slot, value);
  return value;
}

template U8 checkedGet<U8>(const EntryView&, const FieldSlot&, const ClassData&);
template U16 checkedGet<U16>(const EntryView&, const FieldSlot&, const ClassData&);
template U32 checkedGet<U32>(const EntryView&, const FieldSlot&, const ClassData&);
template U64 checkedGet<U64>(const EntryView&, const FieldSlot&, const ClassData&);
template Raw128 checkedGet<Raw128>(const EntryView&, const FieldSlot&, const ClassData&);
template Oru::PerUnitBitmap checkedGet<Oru::PerUnitBitmap>(const EntryView&, const FieldSlot&,
                                                           const ClassData&);

template <class T>
void checkedSet(const EntryView& view, T value, const FieldSlot& slot, const ClassData& data) {
  if (takesSlowPath(!isHeld(view, slot) || value > largestValue(slot))) {
    traceAndCheck(view, data.fieldOf(slot), data, Member::setter, value);
  }
  write(view, slot, value);
}

template void checkedSet<U8>(const EntryView&, U8, const FieldSlot&, const ClassData&);
template void checkedSet<U16>(const EntryView&, U16, const FieldSlot&, const ClassData&);
template void checkedSet<U32>(const EntryView&, U32, const FieldSlot&, const ClassData&);
template void checkedSet<U64>(const EntryView&, U64, const FieldSlot&, const ClassData&);

void setBitmap(const EntryView& view, const Oru::PerUnitBitmap& value, const FieldSlot& slot,
               const ClassData& data) {
  if (takesSlowPath(!isHeld(view, slot))) {
    traceAndCheck(view, data.fieldOf(slot), data, Member::setter);
  }
  write(view, slot, value);
}

void setRaw(const EntryView& view, const Raw128& value, const FieldSlot& slot,
            const ClassData& data) {
  if (takesSlowPath(!isHeld(view, slot))) {
    traceAndCheck(view, data.fieldOf(slot), data, Member::setter);
  }
  write(view, slot, value);
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
