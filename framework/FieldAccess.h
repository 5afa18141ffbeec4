#pragma once

#include "framework/PlatformAdapter.h"
#include "framework/Reports.h"

// The five members of a field. One comparison with the field's slot decides whether to take the
// fast path. Otherwise, or if the trace may be on, an out-of-line routine takes the slow path:
// trace, then the checks in order, then the work.

namespace Velmar {
namespace Framework {

/// The slow path of the operation, for a buffer of any length and any value type.
template <class T>
T checkedGet(const EntryView& view, const FieldSlot& slot, const ClassData& data);
/// The same for scalar values.
template <class T>
void checkedSet(const EntryView& view, T value, const FieldSlot& slot, const ClassData& data);
/// The same for values that are not range-checked.
void setBitmap(const EntryView& view, const Oru::PerUnitBitmap& value, const FieldSlot& slot,
               const ClassData& data);
void setRaw(const EntryView& view, const Raw128& value, const FieldSlot& slot,
            const ClassData& data);

[[gnu::cold]] U16 checkedOffset(const EntryView& view, const FieldSlot& slot,
                                const ClassData& data);
[[gnu::cold]] U16 checkedLength(const EntryView& view, const FieldSlot& slot,
                                const ClassData& data);
[[gnu::cold]] bool checkedIsValid(const EntryView& view, const FieldSlot& slot,
                                  const ClassData& data);

/// The fields of one class. `Class` has its data twice: Class::arrays for the fast path,
/// Class::data for everything else.
template <class Class>
class Fields {
  static constexpr const ClassData& data = Class::data;
  using Window = typename std::decay_t<decltype(Class::arrays)>::Window;

  /// In a class of many fields the accessors share one routine for each operation, since port
  /// families have hundreds of them; in the others each accessor has its own copy.
  static constexpr bool sharesRoutines = Class::arrays.fields > 64;

 public:
  /// Where the code of an accessor that works itself begins, in bytes: how it lies in the lines of the
  /// instruction cache decides a tenth of its time.
  static constexpr int getterAlignment = sharesRoutines ? 16 : 32;
  static constexpr int setterAlignment = sharesRoutines ? 16 : 64;

  template <class T>
  [[gnu::always_inline]] static T get(const EntryView& view, U32 field) {
    if constexpr (!isScalar(valueTypeOf<T>)) {
      return checkedGet<T>(view, slotOf(view, field), data);
    } else if constexpr (sharesRoutines) {
      return sharedGet<T>(view, slotsOf(field));
    } else {
      return getAt<T>(view, slotOf(view, field));
    }
  }

  template <class T>
  [[gnu::always_inline]] static void set(const EntryView& view, const T& value, U32 field) {
    if constexpr (valueTypeOf<T> == ValueType::bitmap) {
      setBitmap(view, value, slotOf(view, field), data);
    } else if constexpr (valueTypeOf<T> == ValueType::raw128) {
      setRaw(view, value, slotOf(view, field), data);
    } else if constexpr (sharesRoutines) {
      sharedSet<T>(view, value, slotsOf(field));
    } else {
      setAt<T>(view, value, slotOf(view, field));
    }
  }

  [[gnu::always_inline]] static U16 offset(const EntryView& view, U32 field) {
    if constexpr (sharesRoutines) {
      return sharedOffset(view, slotsOf(field));
    } else {
      return offsetAt(view, slotOf(view, field));
    }
  }

  [[gnu::always_inline]] static U16 length(const EntryView& view, U32 field) {
    if constexpr (sharesRoutines) {
      return sharedLength(view, slotsOf(field));
    } else {
      return lengthAt(view, slotOf(view, field));
    }
  }

  [[gnu::always_inline]] static bool isValid(const EntryView& view, U32 field) {
    if constexpr (sharesRoutines) {
      return sharedIsValid(view, slotsOf(field));
    } else {
      return isValidAt(view, slotOf(view, field));
    }
  }

 private:
  static const FieldSlot& slotOf(const EntryView& view, U32 field) {
    return slotIn(Class::arrays, field, rowOf(view, Class::arrays));
  }
  /// A field's slots, by row.
  static const FieldSlot* slotsOf(U32 field) { return &slotIn(Class::arrays, field, 0); }

  template <class T>
  [[gnu::always_inline]] static T getAt(const EntryView& view, const FieldSlot& slot) {
    const bool isShort = ViewAccess::len(view) <= slot.slowLen;
    if (takesSlowPath(isShort)) return checkedGet<T>(view, slot, data);
    return static_cast<T>(readWindow<Window>(ViewAccess::buf(view), slot));
  }

  template <class T>
  [[gnu::always_inline]] static void setAt(const EntryView& view, T value, const FieldSlot& slot) {
    const bool isShort = ViewAccess::len(view) <= slot.slowLen;
    const bool isTooWide = value > lowBits(slot.width);
    if (takesSlowPath(isShort || isTooWide)) return checkedSet<T>(view, value, slot, data);
    writeWindow<Window>(ViewAccess::buf(view), slot, value);
  }

  [[gnu::always_inline]] static U16 offsetAt(const EntryView& view, const FieldSlot& slot) {
    if (takesSlowPath(slot.width == 0)) return checkedOffset(view, slot, data);
    return slot.offset;
  }

  [[gnu::always_inline]] static U16 lengthAt(const EntryView& view, const FieldSlot& slot) {
    if (takesSlowPath(slot.width == 0)) return checkedLength(view, slot, data);
    return slot.width;
  }

  [[gnu::always_inline]] static bool isValidAt(const EntryView& view, const FieldSlot& slot) {
    if (mayTrace()) return checkedIsValid(view, slot, data);
    return slot.width != 0;
  }

  template <class T>
  [[gnu::noinline, gnu::aligned(64)]] static T sharedGet(const EntryView& view,
                                                         const FieldSlot* slots) {
    return getAt<T>(view, slots[rowOf(view, Class::arrays)]);
  }
  template <class T>
  [[gnu::noinline, gnu::aligned(64)]] static void sharedSet(const EntryView& view, T value,
                                                            const FieldSlot* slots) {
    setAt<T>(view, value, slots[rowOf(view, Class::arrays)]);
  }
  [[gnu::noinline]] static U16 sharedOffset(const EntryView& view, const FieldSlot* slots) {
    return offsetAt(view, slots[rowOf(view, Class::arrays)]);
  }
  [[gnu::noinline]] static U16 sharedLength(const EntryView& view, const FieldSlot* slots) {
    return lengthAt(view, slots[rowOf(view, Class::arrays)]);
  }
  [[gnu::noinline]] static bool sharedIsValid(const EntryView& view, const FieldSlot* slots) {
    return isValidAt(view, slots[rowOf(view, Class::arrays)]);
  }
};

}  // namespace Framework
}  // namespace Velmar
