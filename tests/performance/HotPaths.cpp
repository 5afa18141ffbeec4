// Each hot path a thousand times, in a function of its own, to be counted by callgrind. The path
// `nothing` is the cost of the loop and of a call into the shared library.

#include <initializer_list>

#include "Velmar/FieldId.h"
#include "Velmar/IngVpVlanMembershipEccEntry.h"
#include "Velmar/PortBitmapProfileEntry.h"
#include "Velmar/VlanEntry.h"
#include "Velmar/VlanMplsEntry.h"
#include "Velmar/VlanStgEntry.h"

namespace {

using namespace Velmar;

U8 entry[64];

/// Makes the compiler assume that a value is used and changed.
template <class T>
void touch(T&& value) {
  asm volatile("" : : "r"(&value) : "memory");
}

U32 addressOf(U32 chipType, U32 tableEntry) {
  U32 address = 0;
  U32 accessType = 0;
  U32 block = 0;
  VlanEntry::getSchanAddress(chipType, 0, address, accessType, block, 0, tableEntry, 0);
  return address + accessType + block;
}

/// A caller that does not know the class, over three of its fields.
U32 walk(const AsicUtils::AsicBase& view) {
  U32 sum = 0;
  for (const U32 id : {FieldId::FID_ID, FieldId::STG, FieldId::BC_IDX}) {
    if (view.isFieldValid(id)) sum += view.fieldWidth(id) + view.fieldOffset(id);
  }
  return sum;
}

}  // namespace

#define HOT_PATH(name, VIEW, chip, bytes, call)    \
  extern "C" [[gnu::noinline]] void hot_##name() { \
    VIEW view(chip, entry, bytes, false, 0);       \
    AsicUtils::AsicBase& base = view;              \
    Oru::PerUnitBitmap ports(272);                 \
    for (U16 i = 0; i < 1000; ++i) {               \
      touch(view);                                 \
      touch(base);                                 \
      touch(ports);                                \
      call;                                        \
    }                                              \
  }

// clang-format off
#define HOT_PATHS(PATH) \
  PATH(nothing,         VlanEntry,                 BCM56990_B0, 16, view.isPrimary()) \
  PATH(getter,          VlanEntry,                 BCM56990_B0, 16, view.fidId()) \
  PATH(setter,          VlanEntry,                 BCM56990_B0, 16, view.fidIdIs(i)) \
  PATH(getterExact,     VlanEntry,                 BCM56960_A0, 48, view.fidId()) \
  PATH(setterExact,     VlanEntry,                 BCM56960_A0, 48, view.fidIdIs(i)) \
  PATH(getterWord,      VlanMplsEntry,             BCM56990_B0,  4, view.l3Iif()) \
  PATH(setterWord,      VlanMplsEntry,             BCM56990_B0,  4, view.l3IifIs(i)) \
  PATH(getterShort,     VlanEntry,                 BCM56990_B0,  3, view.fidId()) \
  PATH(setterShort,     VlanEntry,                 BCM56990_B0,  3, view.fidIdIs(i)) \
  PATH(getterPort,      VlanStgEntry,              BCM56990_B0, 40, view.spTreePort99()) \
  PATH(setterPort,      VlanStgEntry,              BCM56990_B0, 40, view.spTreePort99Is(i & 3)) \
  PATH(offset,          VlanEntry,                 BCM56990_B0, 16, view.fidIdOffset()) \
  PATH(length,          VlanEntry,                 BCM56990_B0, 16, view.fidIdLen()) \
  PATH(validity,        VlanEntry,                 BCM56990_B0, 16, view.isFidIdValid()) \
  PATH(rawGetter,       IngVpVlanMembershipEccEntry, BCM56470_A0, 12, touch(view.eccData())) \
  PATH(bitmapGetter136, VlanEntry,                 BCM56960_A0, 64, touch(view.portBitmap())) \
  PATH(bitmapGetter272, PortBitmapProfileEntry,    BCM56990_B0, 36, touch(view.bitmap())) \
  PATH(bitmapSetter136, VlanEntry,                 BCM56960_A0, 64, view.portBitmapIs(ports)) \
  PATH(bitmapSetter272, PortBitmapProfileEntry,    BCM56990_B0, 36, view.bitmapIs(ports)) \
  PATH(allFields,       VlanEntry,                 BCM56990_B0, 64, touch(view.getAllFields())) \
  PATH(walk,            VlanEntry,                 BCM56990_B0, 16, touch(walk(base))) \
  PATH(offsetById,      VlanEntry,                 BCM56990_B0, 16, base.fieldOffset(FieldId::STG)) \
  PATH(widthById,       VlanEntry,                 BCM56990_B0, 16, base.fieldWidth(FieldId::STG)) \
  PATH(validityById,    VlanEntry,                 BCM56990_B0, 16, base.isFieldValid(FieldId::STG)) \
  PATH(setById,         VlanEntry,                 BCM56990_B0, 16, base.setField64(FieldId::STG, i & 63U)) \
  PATH(address,         VlanEntry,                 BCM56990_B0, 16, touch(addressOf(BCM56960_A0, i))) \
  PATH(construction,    VlanEntry,                 BCM56990_B0, 16, touch(VlanEntry(BCM56960_A0, entry, 64, false, 0)))
// clang-format on

HOT_PATHS(HOT_PATH)

int main() {
#define HOT_CALL(name, VIEW, chip, bytes, call) hot_##name();
  HOT_PATHS(HOT_CALL)
}
