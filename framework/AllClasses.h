#pragma once

#include "framework/TableData.h"

namespace Velmar {
namespace Framework {

/// Every view class of the library, given by tables/.
extern const ClassData* const classes[];
extern const U32 classCount;

}  // namespace Framework
}  // namespace Velmar
