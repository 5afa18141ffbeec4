// Programs a few entries of one table of each kind, through views, and saves each as a small dump.

#include "CommandLine.h"
#include "Dump.h"
#include "Velmar/MetaInfo.h"
#include "WriteFile.h"

namespace {

using Bytes = std::vector<U8>;

constexpr const char usage[] =
    "usage: program-tables DIRECTORY\n"
    "Programs a few entries of a table of each kind and writes each table to a file of its own\n"
    "in DIRECTORY: entries in order, raw, little-endian.\n";

/// Ports `first` to `last`, in a bitmap for `ports` ports.
Oru::PerUnitBitmap portRange(U32 ports, U32 first, U32 last) {
  Oru::PerUnitBitmap bitmap(ports);
  for (U32 port = first; port <= last; ++port) bitmap.set(port);
  return bitmap;
}

/// Bitmaps: the member and untagged ports of the first VLANs.
Bytes programEgressVlans() {
  Examples::Dump<Velmar::EgrVlanEntry> table(BCM56980_A0, 8);
  const U32 ports = table.entry(0).portBitmapLen();
  const U32 uplink = ports - 4;  // ports from here on carry every VLAN, tagged
  for (U32 vlan = 1; vlan < 8; ++vlan) {
    if (vlan == 5) continue;  // not set up
    const U32 firstAccess = 20 * vlan;
    const U32 lastAccess = firstAccess + 2 * vlan;
    Oru::PerUnitBitmap members = portRange(ports, uplink, ports - 1);
    const Oru::PerUnitBitmap access = portRange(ports, firstAccess, lastAccess);
    for (const U32 port : access) members.set(port);

    Velmar::EgrVlanEntry entry = table.entry(vlan);
    entry.validIs(1);
    entry.stgIs(static_cast<U16>(vlan % 4));
    entry.portBitmapIs(members);
    entry.utPortBitmapIs(access);
  }
  return table.bytes();
}

/// Port families: the state of each port in four spanning-tree groups.
Bytes programSpanningTreeGroups() {
  enum State : U8 { disabled, blocking, learning, forwarding };
  Examples::Dump<Velmar::VlanStgEntry> table(BCM56980_A0, 4);
  const U32 ports = table.entry(0).fieldCount();
  for (U32 group = 1; group < 4; ++group) {
    Velmar::VlanStgEntry entry = table.entry(group);
    for (U32 port = 0; port < ports; ++port) {
      // Most ports forward; each group blocks different uplinks, and one port is still learning.
      const bool isBlocked = port >= ports - 4 && port % 4 != group;
      const State state = isBlocked ? blocking : port == 10 * group ? learning : forwarding;
      entry.setField64(Velmar::FieldId::firstPort + port, state);
    }
    entry.spTreePort0Is(disabled);
  }
  return table.bytes();
}

/// A profile: what the VLANs that share it do with layer-2 misses, multicast and learning.
Bytes programVlanProfiles() {
  Examples::Dump<Velmar::VlanProfileEntry> table(BCM56870_A0, 8);
  for (U32 profile = 0; profile < 8; ++profile) {
    Velmar::VlanProfileEntry entry = table.entry(profile);
    entry.protocolPktIndexIs(static_cast<U8>(profile));
    entry.ipmcv4L2EnableIs(profile != 1);
    entry.ipmcv6L2EnableIs(profile != 1);
    entry.l2PfmIs(static_cast<U8>(profile % 3));
    entry.l3Ipv4PfmIs(static_cast<U8>(profile % 3));
    entry.l3Ipv6PfmIs(static_cast<U8>(profile % 4));
  }
  // A closed VLAN: unknown traffic is dropped and copied to the CPU.
  Velmar::VlanProfileEntry closed = table.entry(1);
  closed.l2MissDropIs(1);
  closed.l2MissTocpuIs(1);
  closed.l2NonUcastDropIs(1);
  closed.l2NonUcastTocpuIs(1);
  closed.learnDisableIs(1);
  return table.bytes();
}

/// A hash entry, whose fields overlap: virtual ports in VLANs, and one in a forwarding instance.
Examples::Dump<Velmar::IngVpVlanMembershipEntry> virtualPortMembers() {
  Examples::Dump<Velmar::IngVpVlanMembershipEntry> table(BCM56470_A0, 8);
  for (U32 slot = 0; slot < 8; ++slot) {
    if (slot == 3) continue;  // free
    Velmar::IngVpVlanMembershipEntry entry = table.entry(slot);
    entry.baseValidIs(1);
    entry.vlanIs(static_cast<U16>(100 + slot / 2));
    entry.vpIs(static_cast<U16>(0x1200 + slot));
    entry.spTreeIs(3);
  }
  // A different key type has other fields over the same bits.
  Velmar::IngVpVlanMembershipEntry instance = table.entry(6);
  instance.keyTypeIs(1);
  instance.vfiIs(0x2abc);
  instance.sglpIs(0x1beef);
  // A whole key in one write, as a lookup builds it.
  Velmar::IngVpVlanMembershipEntry whole = table.entry(7);
  whole.keyIs(U64{0x1234} << 16 | U64{2047} << 2 | 2);
  whole.dataIs(1);
  return table;
}
Bytes programVirtualPortMembers() { return virtualPortMembers().bytes(); }

/// ECC raw words: the same members again, two entries in each word.
Bytes programVirtualPortMembersEcc() {
  auto members = virtualPortMembers();
  Examples::Dump<Velmar::IngVpVlanMembershipEccEntry> table(BCM56470_A0, 4);
  for (U32 index = 0; index < 4; ++index) {
    Velmar::IngVpVlanMembershipEccEntry entry = table.entry(index);
    const U32 half = entry.eccDataLen() / 2U;
    Raw128 data = {};
    U32 check = 0;
    U32 ones = 0;
    for (U32 bit = 0; bit < 2 * half; ++bit) {
      const U64 member = members.entry(2 * index + bit / half).getAllFields();
      if ((member >> bit % half & 1) == 0) continue;
      data.words[bit / 32] |= 1U << bit % 32;
      check ^= bit + 1;  // a plain Hamming code; views do not know the code that the chip computes
      ++ones;
    }
    entry.eccDataIs(data);
    entry.eccIs(static_cast<U8>(check));
    entry.parityIs(static_cast<U8>(ones % 2));
  }
  return table.bytes();
}

/// A register array: the actions of the profiles per packet kind. Element n belongs to profile n.
Bytes programPacketControl() {
  enum Action : U8 { forward, drop, flood };
  Examples::Dump<Velmar::IgmpMldPktControl> elements(BCM56870_A0, 8);
  for (U32 element = 0; element < 8; ++element) {
    const bool isSnooped = element >= 2 && element % 2 == 0;
    const Action queries = element == 1 ? drop : flood;
    Velmar::IgmpMldPktControl control = elements.entry(element);
    control.igmpQueryToCpuIs(isSnooped);
    control.igmpQueryFwdActionIs(queries);
    control.igmpRepLeaveToCpuIs(isSnooped);
    control.igmpRepLeaveFwdActionIs(isSnooped ? drop : forward);
    control.mldQueryToCpuIs(isSnooped);
    control.mldQueryFwdActionIs(queries);
    control.mldRepDoneToCpuIs(isSnooped);
    control.mldRepDoneFwdActionIs(isSnooped ? drop : forward);
    control.pfmRuleApplyIs(element != 0);
  }
  return elements.bytes();
}

struct Sample {
  const char* fileName;
  Bytes (*program)();
};

constexpr Sample samples[] = {
    {"egr-vlan-bcm56980.bin", programEgressVlans},
    {"vlan-stg-bcm56980.bin", programSpanningTreeGroups},
    {"vlan-profile-bcm56870.bin", programVlanProfiles},
    {"ing-vp-vlan-membership-bcm56470.bin", programVirtualPortMembers},
    {"ing-vp-vlan-membership-ecc-bcm56470.bin", programVirtualPortMembersEcc},
    {"igmp-mld-pkt-control-bcm56870.bin", programPacketControl},
};

bool programTables(const std::string& directory) {
  for (const Sample& sample : samples) {
    const std::string path = directory + "/" + sample.fileName;
    if (!Examples::writeFile("program-tables", path, sample.program())) return false;
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) { return Examples::runWithPath(argc, argv, usage, programTables); }
