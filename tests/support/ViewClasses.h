#pragma once

#include "Velmar/MetaInfo.h"
#include "support/ClassProbes.h"

namespace VelmarTest {

/// A class as a value.
template <class View>
struct ViewType {
  using Type = View;
};

/// Calls call(ViewType<View>, probe) for every view class.
template <class Call>
void forEachClass(const Call& call) {
  std::size_t i = 0;
#define VELMAR_CALL_WITH(CLASS) call(ViewType<Velmar::CLASS>(), classProbes()[i++]);
  VELMAR_CLASSES(VELMAR_CALL_WITH)
#undef VELMAR_CALL_WITH
}

}  // namespace VelmarTest
