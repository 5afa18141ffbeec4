// How a test of an agent catches misuse of a view: the header makes a failed assertion an exception.
// Include it in the test only.

#include "Velmar/Testing/CatchMisuse.h"

#include <cstdio>

#include "Velmar/Entry.h"
#include "Velmar/VlanEntry.h"

int main() {
  Velmar::Entry<Velmar::VlanEntry> vlan(BCM56990_B0);
  try {
    vlan->stgIs(64);
  } catch (const Velmar::Testing::Misuse& misuse) {
    std::printf("caught %s; the group is still %u\n", misuse.what(), vlan->stg());
    return 0;
  }
  return 1;
}
