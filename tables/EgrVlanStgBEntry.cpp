#include "Velmar/EgrVlanStgBEntry.h"

#include "framework/Definitions.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"egress spanning-tree groups, upper ports, a state per port", egress};

// clang-format off
enum : U8 { c5699x, columns };

//                                    first  bits  ports: 5699x
constexpr PortRule<columns> states = {136,   2,          {136}};
constexpr auto layout = portRows<136>(states);

constexpr ChipRow chips[] = {
  // chips   column  variants     words  entries base        access
  {bcm5699x, c5699x, variantZero,    9,      64, 0x082c0000,   22},
};
// clang-format on

}  // namespace

VELMAR_DEFINE_TABLE(EgrVlanStgBEntry, Raw512)

}  // namespace Velmar
