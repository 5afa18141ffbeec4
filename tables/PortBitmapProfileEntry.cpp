#include "Velmar/PortBitmapProfileEntry.h"

#include "framework/Definitions.h"

namespace Velmar {
namespace {

using namespace Framework;

constexpr ClassRow about = {"port bitmap profiles, a port bitmap", ingress};

// clang-format off
enum : U8 { c56980, c5699x, columns };

constexpr FieldRow<columns> layout[] = {
  //                   56980     5699x
  {FieldId::BITMAP, {{0, 160}, {0, 272}}},
};

constexpr ChipRow chips[] = {
  // chips        column  variants    words  entries base        access
  {{BCM56980_A0}, c56980, anyVariant,    6,    1024, 0x1ca40000,    9},
  {bcm5699x,      c5699x, anyVariant,    9,    2048, 0x20d00000,   17},
};
// clang-format on

}  // namespace

VELMAR_DEFINE_TABLE(PortBitmapProfileEntry, Raw512)

}  // namespace Velmar
