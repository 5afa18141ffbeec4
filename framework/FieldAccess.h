#pragma once

#include "framework/PlatformAdapter.h"
#include "framework/Reports.h"

// The field quintet. Each operation decides with one look at the slot whether all is well. Where it
// is not, or where the trace may be on, it hands over to a routine out of line that traces first,
// then makes the checks in their order, and only then does the work.

namespace Velmar {
namespace Framework {

[[gnu::cold]] U64 checkedGet(const ClassData& data, U32 field, ViewState state);
[[gnu::cold]] void checkedSet(const ClassData& data, U32 field, ViewState state, U64 value);
[[gnu::cold]] U16 checkedOffset(const ClassData& data, U32 field, ViewState state);
[[gnu::cold]] U16 checkedLength(const ClassData& data, U32 field, ViewState state);
[[gnu::cold]] bool checkedIsValid(const ClassData& data, U32 field, ViewState state);

// Values that do not fit a U64.
Oru::PerUnitBitmap getBitmap(const ClassData& data, U32 field, ViewState state);
void setBitmap(const ClassData& data, U32 field, ViewState state, const Oru::PerUnitBitmap& value);
Raw128 getRaw(const ClassData& data, U32 field, ViewState state);
void setRaw(const ClassData& data, U32 field, ViewState state, const Raw128& value);

/// Whether to leave the straight way: something is wrong, or the trace may be on.
inline bool mustCheck(bool isWrong) {
  return __builtin_expect(isWrong || traceMayBeOn(entryLevel), false);
}

/// A value without the bits that a scalar type lacks; nothing for other types.
template <class T>
T narrowed(U64 value) {
  if constexpr (isScalar(valueTypeOf<T>)) {
    return static_cast<T>(value);
  } else {
    return T{};
  }
}

/// The fields of one class. `table` is its TableData, `data` the same as ClassData. Classes of many
/// alike fields share one routine for each operation; in the others each accessor has its own copy.
template <class View, const auto& table, const auto& data>
class Fields {
 public:
  template <class T>
  static T get(const View& view, U32 field) {
    if constexpr (valueTypeOf<T> == ValueType::bitmap) {
      return getBitmap(data, field, ViewState(view));
    } else if constexpr (valueTypeOf<T> == ValueType::raw128) {
      return getRaw(data, field, ViewState(view));
    } else if constexpr (table.shareRoutines) {
      return sharedGet<T>(view, field);
    } else {
      return inlineGet<T>(view, field);
    }
  }

  template <class T>
  static void set(const View& view, U32 field, const T& value) {
    if constexpr (valueTypeOf<T> == ValueType::bitmap) {
      setBitmap(data, field, ViewState(view), value);
    } else if constexpr (valueTypeOf<T> == ValueType::raw128) {
      setRaw(data, field, ViewState(view), value);
    } else if constexpr (table.shareRoutines) {
      sharedSet<T>(view, field, value);
    } else {
      inlineSet<T>(view, field, value);
    }
  }

  static U16 offset(const View& view, U32 field) {
    if constexpr (table.shareRoutines) {
      return sharedOffset(view, field);
    } else {
      return inlineOffset(view, field);
    }
  }

  static U16 length(const View& view, U32 field) {
    if constexpr (table.shareRoutines) {
      return sharedLength(view, field);
    } else {
      return inlineLength(view, field);
    }
  }

  static bool isValid(const View& view, U32 field) {
    if constexpr (table.shareRoutines) {
      return sharedIsValid(view, field);
    } else {
      return inlineIsValid(view, field);
    }
  }

 private:
  static const FieldSlot& slotOf(const View& view, U32 field) {
    const U8 chipType = ViewAccess::chipType(view);
    return table.slots[field][table.rowIndex.row[chipType][ViewAccess::variant(view) != 0]];
  }

  /// The width, known to lie within the value type: the layout rows are proved.
  template <class T>
  static int widthWithin(const FieldSlot& slot) {
    if (slot.width < 1 || slot.width > 8 * sizeof(T)) __builtin_unreachable();
    return slot.width;
  }

  template <class T>
  [[gnu::always_inline]] static T inlineGet(const View& view, U32 field) {
    const FieldSlot& slot = slotOf(view, field);
    const U16 len = ViewAccess::len(view);
    if (mustCheck(len <= slot.lastByte)) {
      return static_cast<T>(checkedGet(data, field, ViewState(view)));
    }
    T value = 0;
    Detail::copyBits(bytesOf(value), sizeof(value), ViewAccess::buf(view), len,
                     widthWithin<T>(slot), 0, slot.offset);
    return value;
  }

  template <class T>
  [[gnu::always_inline]] static void inlineSet(const View& view, U32 field, T value) {
    const FieldSlot& slot = slotOf(view, field);
    const U16 len = ViewAccess::len(view);
    if (mustCheck(len <= slot.lastByte || value > largestValue(slot))) {
      return checkedSet(data, field, ViewState(view), value);
    }
    Detail::copyBits(ViewAccess::buf(view), len, bytesOf(value), sizeof(value),
                     widthWithin<T>(slot), slot.offset, 0);
  }

  [[gnu::always_inline]] static U16 inlineOffset(const View& view, U32 field) {
    const FieldSlot& slot = slotOf(view, field);
    if (mustCheck(slot.width == 0)) return checkedOffset(data, field, ViewState(view));
    return slot.offset;
  }

  [[gnu::always_inline]] static U16 inlineLength(const View& view, U32 field) {
    const FieldSlot& slot = slotOf(view, field);
    if (mustCheck(slot.width == 0)) return checkedLength(data, field, ViewState(view));
    return slot.width;
  }

  [[gnu::always_inline]] static bool inlineIsValid(const View& view, U32 field) {
    if (mustCheck(false)) return checkedIsValid(data, field, ViewState(view));
    return slotOf(view, field).width != 0;
  }

  template <class T>
  [[gnu::noinline]] static T sharedGet(const View& view, U32 field) {
    return inlineGet<T>(view, field);
  }
  template <class T>
  [[gnu::noinline]] static void sharedSet(const View& view, U32 field, T value) {
    inlineSet<T>(view, field, value);
  }
  [[gnu::noinline]] static U16 sharedOffset(const View& view, U32 field) {
    return inlineOffset(view, field);
  }
  [[gnu::noinline]] static U16 sharedLength(const View& view, U32 field) {
    return inlineLength(view, field);
  }
  [[gnu::noinline]] static bool sharedIsValid(const View& view, U32 field) {
    return inlineIsValid(view, field);
  }
};

}  // namespace Framework
}  // namespace Velmar
