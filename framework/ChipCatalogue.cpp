#include "framework/ChipCatalogue.h"

namespace Velmar {
namespace Framework {

const char* chipName(U32 chipType) {
  const ChipName* chip = chipNames;
  while (chip->number != chipType) ++chip;
  return chip->name;
}

}  // namespace Framework
}  // namespace Velmar
