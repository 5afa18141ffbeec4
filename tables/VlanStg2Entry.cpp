#include "Velmar/VlanStg2Entry.h"

#include "framework/Definitions.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"second ingress spanning-tree groups, a state per port", ingress};

// clang-format off
enum : U8 { c56980, columns };

//                                    first  bits  ports: 56980
constexpr PortRule<columns> states = {0,     2,          {160}};
constexpr auto layout = portRows<160>(states);

constexpr ChipRow chips[] = {
  // chips        column  variants    words  entries base        access
  {{BCM56980_A0}, c56980, anyVariant,   11,      64, 0x1ccc0000,    9},
};
// clang-format on

}  // namespace

VELMAR_DEFINE_TABLE(VlanStg2Entry, Raw512)

}  // namespace Velmar
