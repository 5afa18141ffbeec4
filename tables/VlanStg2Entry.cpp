#include "tables/Table.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"second ingress spanning-tree groups, a state per port", ingress};

// clang-format off
#define FIELDS(FIELD) VELMAR_SP_TREE_PORTS_0_TO_159(FIELD)

#define SPANS(SPAN) SPAN(BCM56980_A0)

enum : U8 { c56980, columns };

// field of the first port, that port, bits per port, ports of 56980
constexpr PortRule<columns> states = {FieldId::SP_TREE_PORT0, 0, 2, {160}};
constexpr auto layout = portRows<160>(states);

constexpr ChipRow chips[] = {
  // chips        column  variants    words  entries  base        access
  {{BCM56980_A0}, c56980, anyVariant,    11,      64, 0x1ccc0000,      9},
};
// clang-format on

}  // namespace

VELMAR_TABLE(VlanStg2Entry, Raw512, FIELDS, SPANS, about, layout, chips)

}  // namespace Velmar
