#include "AsicUtils/BcmAsicBase.h"

#include "FailDefault.h"

namespace AsicUtils {

#define ASICUTILS_FAIL(expression) \
  failDefault(expression, "BcmAsicBase", __LINE__, __PRETTY_FUNCTION__)

bool BcmAsicBase::hasMultipleMem() const { ASICUTILS_FAIL("0"); }
U32 BcmAsicBase::groupId(U32) const { ASICUTILS_FAIL("0"); }
U32 BcmAsicBase::numGroups() const { ASICUTILS_FAIL("0"); }
bool BcmAsicBase::groupInfo(U32, U32&, U32&, U8&) const { ASICUTILS_FAIL("0"); }
bool BcmAsicBase::memInfo(U32, U32, U32&, U32&, U32&, U32&, U32&) const { ASICUTILS_FAIL("0"); }

#undef ASICUTILS_FAIL

}  // namespace AsicUtils
