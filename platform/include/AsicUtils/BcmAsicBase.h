#pragma once

#include "AsicUtils/AsicBase.h"

namespace AsicUtils {

/// Base of the views of BCM chips. Its own members are defaults that fail "0".
class VELMAR_PLATFORM_EXPORT BcmAsicBase : public AsicBase {
 public:
  virtual bool hasMultipleMem() const;
  virtual U32 groupId(U32) const;
  virtual U32 numGroups() const;
  virtual bool groupInfo(U32, U32&, U32&, U8&) const;
  virtual bool memInfo(U32, U32, U32&, U32&, U32&, U32&, U32&) const;

 protected:
  using AsicBase::AsicBase;
};

}  // namespace AsicUtils
