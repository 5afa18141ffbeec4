#include "tables/Table.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"egress spanning-tree groups, upper ports, a state per port", egress};

// clang-format off
#define FIELDS(FIELD) VELMAR_SP_TREE_PORTS_136_TO_271(FIELD)

#define SPANS(SPAN) SPAN(BCM56996_A0)

enum : U8 { c56990, columns };

// field of the first port, that port, bits per port, ports of 56990
constexpr PortRule<columns> states = {FieldId::SP_TREE_PORT136, 136, 2, {136}};
constexpr auto layout = portRows<136>(states);

constexpr ChipRow chips[] = {
  // chips                                                            column  variants     words  entries  base        access
  {{BCM56990_B0, BCM56992_B0, BCM56993_B0, BCM56996_A0, BCM56996_B0}, c56990, variantZero,     9,      64, 0x082c0000,     22},
};
// clang-format on

}  // namespace

VELMAR_TABLE(EgrVlanStgBEntry, Raw512, FIELDS, SPANS, about, layout, chips)

}  // namespace Velmar
