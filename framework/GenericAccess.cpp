#include "framework/GenericAccess.h"

namespace Velmar {
namespace Framework {
namespace {

/// The slot of the field that an identifier names; an absent slot for an unknown identifier.
const FieldSlot& slotOfId(const EntryView& view, U32 id, const ClassData& data) {
  return data.slot(data.fieldOfId(id), rowOf(view, data));
}

/// The value converted to the setter's parameter: high bits beyond the type are dropped.
U64 narrowed(U64 value, ValueType type) { return value & (~U64{0} >> (64 - bitsOf(type))); }

}  // namespace

U16 checkedOffsetOfId(const EntryView& view, U32 id, const ClassData& data, Site site) {
  traceMember(view, site);
  if (!data.hasId(id)) fail("false", site);
  return checkedOffset(view, slotOfId(view, id, data), data);
}

U16 checkedWidthOfId(const EntryView& view, U32 id, const ClassData& data, Site site) {
  traceMember(view, site);
  if (!view.isFieldValid(id)) return 0;
  if (!data.hasId(id)) fail("false", site);
  return checkedLength(view, slotOfId(view, id, data), data);
}

bool checkedIsIdValid(const EntryView& view, U32 id, const ClassData& data, Site site) {
  traceMember(view, site);
  return data.hasId(id) && checkedIsValid(view, slotOfId(view, id, data), data);
}

void setById(const EntryView& view, U32 id, U64 value, const ClassData& data, Site site) {
  if (mayTrace()) traceMember(view, site);
  const U32 field = data.fieldOfId(id);
  if (field == data.fields || !isScalar(data.fieldFacts[field].type)) fail("false", site);
  checkedSet<U64>(view, narrowed(value, data.fieldFacts[field].type),
                  data.slot(field, rowOf(view, data)), data);
}

}  // namespace Framework
}  // namespace Velmar
