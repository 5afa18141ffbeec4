#include <cstdio>

#include "Velmar/VlanEntry.h"

int main() {
  U8 entry[16] = {};  // as read from the chip
  Velmar::VlanEntry vlan(BCM56990_B0, entry, sizeof(entry), false, 0);
  vlan.stgIs(5);
  std::printf("VLAN 100 is in spanning-tree group %u\n", vlan.stg());
}
