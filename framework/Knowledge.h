#pragma once

#include "framework/IdRows.h"
#include "framework/TableData.h"

// What tables/ supplies to the engine besides the definitions of its classes.

namespace Velmar {
namespace Framework {

/// Every view class of the library.
extern const ClassData* const classes[];
extern const U32 classCount;

/// Every field identifier, in ascending order.
extern const IdRow idRows[];
extern const U32 idCount;

}  // namespace Framework
}  // namespace Velmar
