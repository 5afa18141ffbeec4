#include "Velmar/EgrVlan2Entry.h"

#include "framework/Definitions.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"second egress VLAN table, untagged ports per VLAN", egress};

// clang-format off
enum : U8 { c5699x, columns };

constexpr FieldRow<columns> layout[] = {
  //                           5699x
  {FieldId::UT_PORT_BITMAP, {{0, 272}}},
};

constexpr ChipRow chips[] = {
  // chips   column  variants     words  entries base        access
  {bcm5699x, c5699x, variantZero,   11,    4096, 0x04780000,   22},
};
// clang-format on

}  // namespace

VELMAR_DEFINE_TABLE(EgrVlan2Entry, Raw512)

}  // namespace Velmar
