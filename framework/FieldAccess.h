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

  /// In a class of many fields the accessors share one routine for each operation, since port
  /// families have hundreds of them; in the others each accessor has its own copy.
  static constexpr bool sharesRoutines = Class::arrays.fields > 64;

 public:
  /// Of the code of getters and setters; that of the shared routines is 64.
  static constexpr int alignment = sharesRoutines ? 16 : 32;

  template <class T>
  [[gnu::always_inline]] static T get(const EntryView& view, U32 field) {
    if constexpr (!isScalar(valueTypeOf<T>)) {
      return checkedGet<T>(view, slotOf(view, field), data);
    } else if constexpr (sharesRoutines) {
      return sharedGet<T>(view, field);
    } else {
      return inlineGet<T>(view, field);
    }
  }

  template <class T>
  [[gnu::always_inline]] static void set(const EntryView& view, const T& value, U32 field) {
    if constexpr (valueTypeOf<T> == ValueType::bitmap) {
      setBitmap(view, value, slotOf(view, field), data);
    } else if constexpr (valueTypeOf<T> == ValueType::raw128) {
      setRaw(view, value, slotOf(view, field), data);
    } else if constexpr (sharesRoutines) {
      sharedSet<T>(view, value, field);
    } else {
      inlineSet<T>(view, value, field);
    }
  }

  [[gnu::always_inline]] static U16 offset(const EntryView& view, U32 field) {
    if constexpr (sharesRoutines) {
      return sharedOffset(view, field);
    } else {
      return inlineOffset(view, field);
    }
  }

  [[gnu::always_inline]] static U16 length(const EntryView& view, U32 field) {
    if constexpr (sharesRoutines) {
      return sharedLength(view, field);
    } else {
      return inlineLength(view, field);
    }
  }

  [[gnu::always_inline]] static bool isValid(const EntryView& view, U32 field) {
    if constexpr (sharesRoutines) {
      return sharedIsValid(view, field);
    } else {
      return inlineIsValid(view, field);
    }
  }

 private:
  static const FieldSlot& slotOf(const EntryView& view, U32 field) {
    const U32 row = rowIn(Class::arrays, ViewAccess::chipType(view), ViewAccess::variant(view));
    return slotIn(Class::arrays, field, row);
  }

  template <class T>
  [[gnu::always_inline]] static T inlineGet(const EntryView& view, U32 field) {
    const FieldSlot& slot = slotOf(view, field);
    if (takesSlowPath(ViewAccess::len(view) <= slot.slowLen))
      return checkedGet<T>(view, slot, data);
    return static_cast<T>(readWindow(ViewAccess::buf(view), slot));
  }

  template <class T>
  [[gnu::always_inline]] static void inlineSet(const EntryView& view, T value, U32 field) {
    const FieldSlot& slot = slotOf(view, field);
    const bool isShort = ViewAccess::len(view) <= slot.slowLen;
    const bool isTooWide = value > lowBits(slot.width);
    if (takesSlowPath(isShort || isTooWide)) return checkedSet<T>(view, value, slot, data);
    writeWindow(ViewAccess::buf(view), slot, value);
  }

  [[gnu::always_inline]] static U16 inlineOffset(const EntryView& view, U32 field) {
    const FieldSlot& slot = slotOf(view, field);
    if (takesSlowPath(slot.width == 0)) return checkedOffset(view, slot, data);
    return slot.offset;
  }

  [[gnu::always_inline]] static U16 inlineLength(const EntryView& view, U32 field) {
    const FieldSlot& slot = slotOf(view, field);
    if (takesSlowPath(slot.width == 0)) return checkedLength(view, slot, data);
    return slot.width;
  }

  [[gnu::always_inline]] static bool inlineIsValid(const EntryView& view, U32 field) {
    const FieldSlot& slot = slotOf(view, field);
    if (mayTrace()) return checkedIsValid(view, slot, data);
    return slot.width != 0;
  }

  template <class T>
  [[gnu::noinline, gnu::aligned(64)]] static T sharedGet(const EntryView& view, U32 field) {
    return inlineGet<T>(view, field);
  }
  template <class T>
  [[gnu::noinline, gnu::aligned(64)]] static void sharedSet(const EntryView& view, T value,
                                                            U32 field) {
    inlineSet<T>(view, value, field);
  }
  [[gnu::noinline]] static U16 sharedOffset(const EntryView& view, U32 field) {
    return inlineOffset(view, field);
  }
  [[gnu::noinline]] static U16 sharedLength(const EntryView& view, U32 field) {
    return inlineLength(view, field);
  }
  [[gnu::noinline]] static bool sharedIsValid(const EntryView& view, U32 field) {
    return inlineIsValid(view, field);
  }
};

}  // namespace Framework
}  // namespace Velmar
