#include "framework/PlatformAdapter.h"

namespace Velmar {
namespace Framework {

Kiv::TraceHandle traceHandle("AsicUtilsVelmarMetaInfo");

}  // namespace Framework
}  // namespace Velmar
