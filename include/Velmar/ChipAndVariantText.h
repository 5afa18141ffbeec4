#pragma once

#include "AsicUtils/ChipAndVariant.h"
#include "Velmar/Export.h"

namespace Kiv {
class TraceStream;
}  // namespace Kiv

namespace Velmar {

/// Writes " chipType: <number> variant: <number>".
VELMAR_EXPORT Kiv::TraceStream& operator<<(Kiv::TraceStream& stream,
                                           const AsicUtils::ChipAndVariant& chipAndVariant);

}  // namespace Velmar
