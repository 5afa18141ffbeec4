#include "AsicUtils/AsicBase.h"

#include "FailDefault.h"

namespace AsicUtils {

#define ASICUTILS_FAIL(expression) \
  failDefault(expression, "AsicBase", __LINE__, __PRETTY_FUNCTION__)

U64 AsicBase::stringField(const Morvo::String&, U16) const {
  ASICUTILS_FAIL("false && \"stringField function not implemented\"");
}

void AsicBase::stringFieldIs(const Morvo::String&, const U64&) {
  ASICUTILS_FAIL("false && \"stringFieldIs is invalid for this class\"");
}

U32 AsicBase::entries() const { ASICUTILS_FAIL("false && \"entries invalid for this class\""); }

U32 AsicBase::maxIdentifier() const {
  ASICUTILS_FAIL("false && \"maxIdentifier invalid for this class\"");
}

S32 AsicBase::sdkDefinedId() const { ASICUTILS_FAIL("false"); }
bool AsicBase::hasInstance(U32) const { ASICUTILS_FAIL("false"); }
U32 AsicBase::tableVariantCount() const { ASICUTILS_FAIL("false"); }
EntrySpans AsicBase::entrySpans() const { ASICUTILS_FAIL("false"); }
bool AsicBase::compareTo(const void*, U16) const { ASICUTILS_FAIL("0"); }

#undef ASICUTILS_FAIL

}  // namespace AsicUtils
