#pragma once

#include "framework/FieldAccess.h"

// Fields chosen by identifier. Each operation gives the result of the corresponding field member;
// if it traces, its own line comes first, then the field member's.

namespace Velmar {
namespace Framework {

// The slow paths: trace, checks, result.
[[gnu::cold]] U16 checkedOffsetOfId(const EntryView& view, U32 id, const ClassData& data,
                                    Site site);
[[gnu::cold]] U16 checkedWidthOfId(const EntryView& view, U32 id, const ClassData& data, Site site);
[[gnu::cold]] bool checkedIsIdValid(const EntryView& view, U32 id, const ClassData& data,
                                    Site site);

void setById(const EntryView& view, U32 id, U64 value, const ClassData& data, Site site);

/// The slot of the field that an identifier names; an absent slot for an unknown identifier.
template <class Class>
const FieldSlot& slotOfId(const EntryView& view, U32 id) {
  return slotIn(Class::arrays, Class::data.fieldOfId(id), rowOf(view, Class::arrays));
}

template <class Class>
U16 offsetOfId(const EntryView& view, U32 id, Site site) {
  const FieldSlot& slot = slotOfId<Class>(view, id);
  if (takesSlowPath(slot.width == 0)) return checkedOffsetOfId(view, id, Class::data, site);
  return slot.offset;
}

template <class Class>
U16 widthOfId(const EntryView& view, U32 id, Site site) {
  if (mayTrace()) return checkedWidthOfId(view, id, Class::data, site);
  const U16 width = slotOfId<Class>(view, id).width;
  if (width == 0) return checkedWidthOfId(view, id, Class::data, site);
  return view.isFieldValid(id) ? width : 0;
}

template <class Class>
bool isIdValid(const EntryView& view, U32 id, Site site) {
  const bool isValid = slotOfId<Class>(view, id).width != 0;
  return mayTrace() ? checkedIsIdValid(view, id, Class::data, site) : isValid;
}

}  // namespace Framework
}  // namespace Velmar
