#pragma once

#include "AsicUtils/AsicBase.h"
#include "framework/TableData.h"

namespace Velmar {
namespace Framework {

/// A view of any class.
using EntryView = AsicUtils::AsicBase;

/// Reads the protected members of a view. The engine's functions are outside the view's class, and
/// the base class, which belongs to the base libraries, has no public getters for them. A derived
/// class may name the members of its base; this one is never instantiated.
class ViewAccess : public EntryView {
 public:
  static U8* buf(const EntryView& view) { return view.*(&ViewAccess::buf_); }
  static U16 len(const EntryView& view) { return view.*(&ViewAccess::len_); }
  static U8 chipType(const EntryView& view) { return view.*(&ViewAccess::chipType_); }
  static U8 variant(const EntryView& view) { return view.*(&ViewAccess::variant_); }
};

/// The row of a view's chip and variant in TableArrays or ClassData.
template <class Data>
U32 rowOf(const EntryView& view, const Data& data) {
  return rowIn(data, ViewAccess::chipType(view), ViewAccess::variant(view));
}

}  // namespace Framework
}  // namespace Velmar
