#pragma once

#include "AsicUtils/AsicBase.h"

namespace AsicUtils {

class BcmAsicBase : public AsicBase {
 protected:
  using AsicBase::AsicBase;
};

}  // namespace AsicUtils
