// demo CHIP FOLDER: programs a few VLANs on a memory, prints the accesses as `velmar trace` reads them,
// and saves the tables in FOLDER.

#include <cstdio>

#include "Agent.h"
#include "MemoryBus.h"

int main(int count, char** words) {
  const auto chip = count == 3 ? Velmar::findChip(words[1]) : std::nullopt;
  if (!chip) {
    std::fputs("usage: demo CHIP FOLDER, with a chip such as BCM56990_B0\n", stderr);
    return 2;
  }
  const ChipType_ number{chip->number};
  MemoryBus bus(number);
  Agent agent(number, bus);
  bool isDone = true;
  for (U32 vlan = 10; vlan < 14; ++vlan) {
    Oru::PerUnitBitmap members;
    for (U32 port = 1; port < vlan; ++port) members.set(port);
    isDone = agent.setVlan(vlan, 2, members) && isDone;
  }
  for (U32 port = 1; port < 14; ++port) {
    isDone = agent.setPortState(2, port, PortState::forwarding) && isDone;
  }
  std::fputs(bus.memory.logText().c_str(), stdout);
  bus.memory.save(words[2]);
  return isDone ? 0 : 1;
}
