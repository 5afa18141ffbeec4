#include "framework/FieldAccess.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace Velmar {
namespace Framework {
namespace {

/// Whether each field of an entry has a window in the entry that holds it; only one that is wider than
/// 57 bits may have none.
template <class Window>
constexpr bool windowsHoldFields(U32 entryBytes) {
  constexpr U32 bytes = sizeof(Window);
  for (U32 offset = 0; offset < 8 * entryBytes; ++offset) {
    for (U32 width = 1; width <= 8 * bytes && offset + width <= 8 * entryBytes; ++width) {
      const BitRange range{static_cast<U16>(offset), static_cast<U16>(width)};
      const FieldSlot slot = makeSlot(range, entryBytes, bytes);
      if (slot.slowLen == FieldSlot{}.slowLen && width > 57) continue;
      const U32 first = slot.slowLen + 1 - bytes;
      if (8 * first + slot.shift != offset || slot.shift + width > 8 * bytes) return false;
      if (first + bytes > entryBytes) return false;
    }
  }
  return true;
}
static_assert(windowsHoldFields<U32>(4) && windowsHoldFields<U64>(8) &&
                  windowsHoldFields<U64>(12) && windowsHoldFields<U64>(20),
              "a field's window does not hold it");

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

/// Whether the view has the field and its buffer holds it, in one comparison: the width of an absent
/// field, less one, is larger than any buffer.
bool isHeld(const EntryView& view, const FieldSlot& slot) {
  return slot.width - 1U < 8 * std::int64_t{ViewAccess::len(view)} - slot.offset;
}

// The work itself, after the checks.

/// The bytes that a field has bits in: what the slow path reads and writes, whatever the buffer.
struct FieldBytes {
  U8* first;
  int count;
  int offset;  ///< the field's first bit, from the first byte
  int width;
};

/// The row checks hold a field's width to its value type; stated here for the optimiser.
template <class T>
[[gnu::always_inline]] inline FieldBytes bytesOfField(const EntryView& view,
                                                      const FieldSlot& slot) {
  constexpr int bytes = sizeof(T);
  const U32 first = slot.offset / 8;
  const int count = static_cast<int>(bytesUpTo(slot) - first);
  const int width = slot.width;
  if (width < 1 || width > 8 * bytes || count < 1 || count > bytes + 1) __builtin_unreachable();
  return {ViewAccess::buf(view) + first, count, slot.offset % 8, width};
}

template <class T>
[[gnu::always_inline]] inline T valueOf(const EntryView& view, const FieldSlot& slot) {
  T value{};
  const FieldBytes field = bytesOfField<T>(view, slot);
  Detail::copyBits(bytesOf(value), sizeof(value), field.first, field.count, field.width, 0,
                   field.offset);
  return value;
}

template <class T>
[[gnu::always_inline]] inline void write(const EntryView& view, const FieldSlot& slot, T value) {
  const FieldBytes field = bytesOfField<T>(view, slot);
  Detail::copyBits(field.first, field.count, bytesOf(value), sizeof(value), field.width,
                   field.offset, 0);
}

U32 wordsOf(const FieldSlot& slot) { return (slot.width + 31U) / 32; }

// The words of a bitmap go from buffer to list, and back, through registers: what is written in
// pieces of one size and read in pieces of another waits for both.

/// Word `i` of a bitmap at the end of a buffer, where a window of 8 bytes would reach beyond it.
[[gnu::noinline]] U32 wordAtEnd(const EntryView& view, const FieldSlot& slot, U32 i) {
  U64 word = 0;
  const U32 bits = std::min(32U, slot.width - 32 * i);
  Detail::copyBits(bytesOf(word), sizeof(word), ViewAccess::buf(view), ViewAccess::len(view),
                   static_cast<int>(bits), 0, static_cast<int>(slot.offset + 32 * i));
  return static_cast<U32>(word);
}

template <>
[[gnu::always_inline]] inline Oru::PerUnitBitmap valueOf(const EntryView& view,
                                                         const FieldSlot& slot) {
  Oru::PerUnitBitmap bitmap;
  const U8* const first = ViewAccess::buf(view) + slot.offset / 8;
  const U32 held = ViewAccess::len(view) - slot.offset / 8U;  // bytes from there to the end
  const U32 shift = slot.offset % 8;
  const auto windowAt = [first, shift](U32 i) {
    U64 window;
    std::memcpy(&window, first + 4 * i, sizeof(window));
    return static_cast<U32>(window >> shift);
  };
  const auto wordAt = [&view, &slot, held, windowAt](U32 i) {
    return 4 * i + sizeof(U64) <= held ? windowAt(i) : wordAtEnd(view, slot, i);
  };
  // From the last word down, so that the list grows once. A window reaches one word beyond its own,
  // so only the last two can reach beyond the field.
  U32 i = wordsOf(slot) - 1;
  bitmap.bitListIs(i, wordAt(i) & ~0U >> (32 * (i + 1) - slot.width));
  if (i > 0) bitmap.bitListIs(i - 1, wordAt(i - 1));
  for (i = i > 0 ? i - 1 : 0; i-- > 0;) bitmap.bitListIs(i, windowAt(i));
  return bitmap;
}

/// Puts the lowest `bits` bits of the words, at least one, at an offset of the buffer.
[[gnu::always_inline]] inline void putWords(U8* buf, U32 offset, U32 bits,
                                            const Oru::PerUnitBitmap& bitmap) {
  U8* into = buf + offset / 8;
  U32 held = offset % 8;  // bits that wait to be written: first those of the first byte to keep
  U64 waiting = *into & lowBits(held);
  U32 word = 0;
  for (; bits > 32; bits -= 32, into += sizeof(U32)) {
    waiting |= U64{wordOf(bitmap, word++)} << held;
    const U32 next = static_cast<U32>(waiting);
    std::memcpy(into, &next, sizeof(next));
    waiting >>= 32;
  }
  waiting |= (wordOf(bitmap, word) & lowBits(bits)) << held;
  for (held += bits; held >= 8; held -= 8, waiting >>= 8) *into++ = static_cast<U8>(waiting);
  if (held != 0) *into = static_cast<U8>((*into & ~lowBits(held)) | waiting);
}

/// Writes the words of a bitmap that has fewer than the field needs.
[[noreturn, gnu::cold]] void writeShort(const EntryView& view, const FieldSlot& slot,
                                        const Oru::PerUnitBitmap& bitmap) {
  const U32 given = wordCountOf(bitmap);
  if (given != 0) putWords(ViewAccess::buf(view), slot.offset, 32 * given, bitmap);
  Morvo::Impl::throwVectorOutOfRangeException(given, given);
}

[[gnu::always_inline]] inline void write(const EntryView& view, const FieldSlot& slot,
                                         const Oru::PerUnitBitmap& bitmap) {
  if (wordCountOf(bitmap) < wordsOf(slot)) writeShort(view, slot, bitmap);
  putWords(ViewAccess::buf(view), slot.offset, slot.width, bitmap);
}

/// checkedGet with the trace on, or with a failing check. Apart, so that the other path needs no
/// stack.
template <class T>
[[gnu::cold, gnu::noinline]] T tracedGet(const EntryView& view, const FieldSlot& slot,
                                         const ClassData& data) {
  traceAndCheck(view, data.fieldOf(slot), data, Member::getter);
  return valueOf<T>(view, slot);
}

/// The same for setters.
template <class T>
[[gnu::cold, gnu::noinline]] void tracedSet(const EntryView& view, T value, U64 checkedValue,
                                            const FieldSlot& slot, const ClassData& data) {
  traceAndCheck(view, data.fieldOf(slot), data, Member::setter, checkedValue);
  write(view, slot, value);
}

}  // namespace

template <class T>
T checkedGet(const EntryView& view, const FieldSlot& slot, const ClassData& data) {
  if (takesSlowPath(!isHeld(view, slot))) return tracedGet<T>(view, slot, data);
  return valueOf<T>(view, slot);
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
  const bool isShort = !isHeld(view, slot);
  const bool isTooLarge = value > largestValue(slot);
  if (takesSlowPath(isShort || isTooLarge)) return tracedSet<T>(view, value, value, slot, data);
  write(view, slot, value);
}

template void checkedSet<U8>(const EntryView&, U8, const FieldSlot&, const ClassData&);
template void checkedSet<U16>(const EntryView&, U16, const FieldSlot&, const ClassData&);
template void checkedSet<U32>(const EntryView&, U32, const FieldSlot&, const ClassData&);
template void checkedSet<U64>(const EntryView&, U64, const FieldSlot&, const ClassData&);

void setBitmap(const EntryView& view, const Oru::PerUnitBitmap& value, const FieldSlot& slot,
               const ClassData& data) {
  if (takesSlowPath(!isHeld(view, slot)))
    return tracedSet<const Oru::PerUnitBitmap&>(view, value, 0, slot, data);
  write(view, slot, value);
}

void setRaw(const EntryView& view, const Raw128& value, const FieldSlot& slot,
            const ClassData& data) {
  if (takesSlowPath(!isHeld(view, slot))) return tracedSet(view, value, 0, slot, data);
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
