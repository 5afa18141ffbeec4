#pragma once

// Every class of tables/, in the order of the catalogue: CLASS(name). All other lists of classes
// are made from this one.
// clang-format off
#define VELMAR_CLASSES(CLASS) \
  CLASS(VlanEntry) \
  CLASS(Vlan2Entry) \
  CLASS(VlanAttrs1Entry) \
  CLASS(VlanMplsEntry) \
  CLASS(VlanProfileEntry) \
  CLASS(VlanProfile2Entry) \
  CLASS(EgrVlanEntry) \
  CLASS(EgrVlan2Entry) \
  CLASS(VlanStgEntry) \
  CLASS(VlanStg2Entry) \
  CLASS(VlanStgBEntry) \
  CLASS(EgrVlanStgEntry) \
  CLASS(EgrVlanStgBEntry) \
  CLASS(VfiProfileEntry) \
  CLASS(VfiProfile2Entry) \
  CLASS(IngVlanVfiMembershipEntry) \
  CLASS(EgrVlanVfiMembershipEntry) \
  CLASS(EgrVlanVfiUntagEntry) \
  CLASS(PortBitmapProfileEntry) \
  CLASS(IngVpVlanMembershipEntry) \
  CLASS(EgrVpVlanMembershipEntry) \
  CLASS(IngVpVlanMembershipEccEntry) \
  CLASS(EgrVpVlanMembershipEccEntry) \
  CLASS(IngVpVlanMembershipHashControl) \
  CLASS(EgrVpVlanMembershipHashControl) \
  CLASS(IgmpMldPktControl) \
  CLASS(ProtocolPktControl)

// Pairs of classes that view one memory, so that they share its addresses: PAIR(class, other).
#define VELMAR_SHARED_MEMORIES(PAIR) \
  PAIR(VlanProfile2Entry, VfiProfile2Entry)
// clang-format on
