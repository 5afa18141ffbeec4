// The agent's tests, on a memory in place of a chip.

#include "Agent.h"

#include <gtest/gtest.h>

#include "MemoryBus.h"
#include "Velmar/EgrVlanEntry.h"
#include "Velmar/PortBitmapProfileEntry.h"
#include "Velmar/Testing/CatchMisuse.h"
#include "Velmar/Vlan2Entry.h"
#include "Velmar/VlanEntry.h"
#include "Velmar/VlanStgBEntry.h"
#include "Velmar/VlanStgEntry.h"

using namespace Velmar;

namespace {

Oru::PerUnitBitmap portsOf(std::initializer_list<U32> ports) {
  Oru::PerUnitBitmap bitmap;
  for (const U32 port : ports) bitmap.set(port);
  return bitmap;
}

class AgentOn : public testing::TestWithParam<ChipType_> {
 protected:
  MemoryBus bus{GetParam()};
  Testing::SchanMemory& memory = bus.memory;
  Agent agent{GetParam(), bus};
};

INSTANTIATE_TEST_SUITE_P(Chips, AgentOn, testing::Values(BCM56960_A0, BCM56980_A0, BCM56990_B0));

TEST_P(AgentOn, vlansHaveTheirGroupAndMembers) {
  ASSERT_TRUE(agent.setVlan(10, 3, portsOf({1})));
  ASSERT_TRUE(agent.setVlan(20, 2, portsOf({1, 2, 9})));
  EXPECT_TRUE(memory.wrote<VlanEntry>(20).with("valid", 1).with("fidId", 20));
  EXPECT_TRUE(memory.wrote<EgrVlanEntry>(20).with("valid", 1).with("stg", 2));
  if (GetParam() == BCM56960_A0) {
    EXPECT_TRUE(memory.wrote<VlanEntry>(20).with("stg", 2).with("portBitmap", "1-2,9"));
    EXPECT_TRUE(memory.wrote<EgrVlanEntry>(20).with("portBitmap", "1-2,9"));
  } else if (GetParam() == BCM56980_A0) {
    EXPECT_TRUE(memory.wrote<Vlan2Entry>(20).with("stg", 2).with("ingPortBitmap", "1-2,9"));
    EXPECT_TRUE(memory.wrote<EgrVlanEntry>(20).with("portBitmap", "1-2,9"));
  } else {
    EXPECT_TRUE(memory.wrote<VlanEntry>(20).with("stg", 2).with("portBitmapProfilePtr", 1));
    EXPECT_TRUE(memory.wrote<PortBitmapProfileEntry>(1).with("bitmap", "1-2,9"));
  }
  ASSERT_TRUE(agent.removeVlan(20));
  EXPECT_TRUE(memory.wrote<VlanEntry>(20).with("valid", 0).with("fidId", 20));
  EXPECT_EQ(memory.entry<VlanEntry>(10)->valid(), 1);
}

TEST_P(AgentOn, aStateIsThatOfOnePort) {
  ASSERT_TRUE(agent.setPortState(2, 5, PortState::forwarding));
  ASSERT_TRUE(agent.setPortState(2, 6, PortState::blocking));
  const PortStates lower = states(memory.entry<VlanStgEntry>(2));
  for (U32 port = 0; port < lower.size(); ++port) {
    EXPECT_EQ(lower[port], port == 5 ? 3 : port == 6 ? 1 : 0) << port;
  }
  EXPECT_EQ(agent.setPortState(2, 271, PortState::learning), GetParam() == BCM56990_B0);
  if (GetParam() == BCM56990_B0) EXPECT_EQ(states(memory.entry<VlanStgBEntry>(2))[271], 2);
}

TEST_P(AgentOn, whatHasNoPlaceIsRefused) {
  EXPECT_FALSE(agent.setVlan(8192, 0, portsOf({1})));
  EXPECT_FALSE(agent.setVlan(20, 512, portsOf({1})));
  EXPECT_FALSE(agent.setVlan(20, 2, portsOf({272})));
  EXPECT_FALSE(agent.setPortState(512, 0, PortState::disabled));
  EXPECT_FALSE(agent.setPortState(0, 272, PortState::disabled));
  EXPECT_FALSE(memory.wrote<VlanEntry>(20));
}

TEST_P(AgentOn, aFailingBusIsReported) {
  memory.failWrites<VlanEntry>(20);
  EXPECT_FALSE(agent.setVlan(20, 2, portsOf({1})));
  EXPECT_TRUE(agent.setVlan(20, 2, portsOf({1})));
  EXPECT_EQ(memory.entry<VlanEntry>(20)->valid(), 1);
}

TEST(Misuse, isAFailedTest) {
  Entry<VlanEntry> vlan(BCM56990_B0);
  EXPECT_THROW(vlan->stgIs(64), Testing::Misuse);
}

}  // namespace
