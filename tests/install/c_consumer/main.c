#include <stdio.h>
#include <velmar.h>

int main(void) {
  const velmar_layout* layout;
  uint8_t entry[16] = {0};  // as read from the chip
  uint32_t stg;
  uint64_t group;
  if (velmar_find_layout("VlanEntry", "BCM56990_B0", 0, &layout) != VELMAR_OK ||
      velmar_find_field(layout, "stg", &stg) != VELMAR_OK ||
      velmar_write(layout, stg, entry, sizeof entry, 5) != VELMAR_OK ||
      velmar_read(layout, stg, entry, sizeof entry, &group) != VELMAR_OK) {
    fprintf(stderr, "%s\n", velmar_message());
    return 1;
  }
  printf("VLAN 100 is in spanning-tree group %u\n", (unsigned)group);
  return 0;
}
