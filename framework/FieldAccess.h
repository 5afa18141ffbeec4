#pragma once

#include "framework/PlatformAdapter.h"
#include "framework/Reports.h"

// The field quintet. Each operation decides with one look at the slot whether the straight way is
// open. Where it is not, or where the trace may be on, it hands over to a routine out of line that
// traces first, then makes the checks in their order, and only then does the work.

namespace Velmar {
namespace Framework {

/// The whole operation, whatever the buffer's length, for any value type.
template <class T>
T wholeGet(const EntryView& view, const FieldSlot& slot, const ClassData& data);
/// The same for scalar values.
template <class T>
void wholeSet(const EntryView& view, T value, const FieldSlot& slot, const ClassData& data);
/// The same for values that are never too large.
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

/// Whether to leave the straight way: something is wrong, or the trace may be on.
inline bool mustCheck(bool isWrong) {
  return __builtin_expect(isWrong || traceMayBeOn(entryLevel), false);
}

/// The fields of one class. `table` is its TableData, `data` the same as ClassData. Classes of many
/// alike fields share one routine for each operation; in the others each accessor has its own copy.
template <const auto& table, const auto& data>
class Fields {
 public:
  template <class T>
  [[gnu::always_inline]] static T get(const EntryView& view, U32 field) {
    if constexpr (!isScalar(valueTypeOf<T>)) {
      return wholeGet<T>(view, slotOf(view, field), data);
    } else if constexpr (table.shareRoutines) {
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
    } else if constexpr (table.shareRoutines) {
      sharedSet<T>(view, value, field);
    } else {
      inlineSet<T>(view, value, field);
    }
  }

  [[gnu::always_inline]] static U16 offset(const EntryView& view, U32 field) {
    if constexpr (table.shareRoutines) {
      return sharedOffset(view, field);
    } else {
      return inlineOffset(view, field);
    }
  }

  [[gnu::always_inline]] static U16 length(const EntryView& view, U32 field) {
    if constexpr (table.shareRoutines) {
      return sharedLength(view, field);
    } else {
      return inlineLength(view, field);
    }
  }

  [[gnu::always_inline]] static bool isValid(const EntryView& view, U32 field) {
    if constexpr (table.shareRoutines) {
      return sharedIsValid(view, field);
    } else {
      return inlineIsValid(view, field);
    }
  }

 private:
  static const FieldSlot& slotOf(const EntryView& view, U32 field) {
    return table.slot(
        field, table.rowIndex.row[ViewAccess::chipType(view)][ViewAccess::variant(view) != 0]);
  }

  // What the straight way may rely on, for the compiler's sake.
  /// The layout rows are proved: the width lies within the value type.
  template <class T>
  static int provedWidth(const FieldSlot& slot) {
    const int width = slot.width;
    if (width < 1 || width > static_cast<int>(8 * sizeof(T))) __builtin_unreachable();
    return width;
  }
  /// The length was compared with the slot's: the buffer holds a whole window.
  static int provedLen(U16 len) {
    if (len < plainCopyBytes) __builtin_unreachable();
    return len;
  }

  template <class T>
  [[gnu::always_inline]] static T inlineGet(const EntryView& view, U32 field) {
    const FieldSlot& slot = slotOf(view, field);
    const U16 len = ViewAccess::len(view);
    if (mustCheck(len <= slot.straightLen)) return wholeGet<T>(view, slot, data);
    T value = 0;
    Detail::copyBits(bytesOf(value), sizeof(value), ViewAccess::buf(view), provedLen(len),
                     provedWidth<T>(slot), 0, slot.offset);
    return value;
  }

  template <class T>
  [[gnu::always_inline]] static void inlineSet(const EntryView& view, T value, U32 field) {
    const FieldSlot& slot = slotOf(view, field);
    const U16 len = ViewAccess::len(view);
    if (mustCheck(len <= slot.straightLen || value > largestValue(slot))) {
      return wholeSet<T>(view, value, slot, data);
    }
    Detail::copyBits(ViewAccess::buf(view), provedLen(len), bytesOf(value), sizeof(value),
                     provedWidth<T>(slot), slot.offset, 0);
  }

  [[gnu::always_inline]] static U16 inlineOffset(const EntryView& view, U32 field) {
    const FieldSlot& slot = slotOf(view, field);
    if (mustCheck(slot.width == 0)) return checkedOffset(view, slot, data);
    return slot.offset;
  }

  [[gnu::always_inline]] static U16 inlineLength(const EntryView& view, U32 field) {
    const FieldSlot& slot = slotOf(view, field);
    if (mustCheck(slot.width == 0)) return checkedLength(view, slot, data);
    return slot.width;
  }

  [[gnu::always_inline]] static bool inlineIsValid(const EntryView& view, U32 field) {
    const FieldSlot& slot = slotOf(view, field);
    if (mustCheck(false)) return checkedIsValid(view, slot, data);
    return slot.width != 0;
  }

  template <class T>
  [[gnu::noinline]] static T sharedGet(const EntryView& view, U32 field) {
    return inlineGet<T>(view, field);
  }
  template <class T>
  [[gnu::noinline]] static void sharedSet(const EntryView& view, T value, U32 field) {
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
