#include "framework/ChipSet.h"

#include "framework/ChipChecks.h"

namespace Velmar {
namespace Framework {

const char* chipName(U32 chipType) {
  for (const ChipName& chip : chipNames) {
    if (chip.number == chipType) return chip.name;
  }
  return nullptr;
}

}  // namespace Framework
}  // namespace Velmar
