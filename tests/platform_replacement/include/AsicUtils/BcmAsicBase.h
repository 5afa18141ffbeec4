#pragma once

#include "AsicUtils/AsicBase.h"

namespace AsicUtils {
struct BcmAsicBase : AsicBase {
 protected:
  using AsicBase::AsicBase;
};
}  // namespace AsicUtils
