// Acts as the switch agent: programs a set of VLANs through views into a buffer for the whole
// ingress VLAN table of a BCM56990_B0, and saves the buffer as the agent would.

#include "CommandLine.h"
#include "Dump.h"
#include "Velmar/VlanEntry.h"
#include "WriteFile.h"

namespace {

constexpr ChipType_ chip = BCM56990_B0;
constexpr const char usage[] =
    "usage: program-vlans FILE\n"
    "Programs a set of VLANs and writes the VLAN table of a BCM56990_B0 to FILE:\n"
    "all entries in order, raw, little-endian. Entries without a VLAN are zero.\n";

constexpr unsigned snooping = 1;      ///< IGMP and MLD are snooped
constexpr unsigned noLearning = 2;    ///< addresses are not learned
constexpr unsigned virtualPorts = 4;  ///< some of its ports are virtual

/// A range of VLANs with the same setup. Identifiers and indices whose names begin with "first"
/// increase by one from VLAN to VLAN.
struct VlanRange {
  U32 first;
  U32 count;
  U16 firstForwardingId;  ///< VLANs with the same id share their addresses
  U16 treeGroup;
  U8 profile;
  U16 vlanClass;
  U16 firstMembership;  ///< index of the membership profile
  U16 ports;            ///< index of the port bitmap profile
  U16 firstFloodGroup;  ///< three flood groups each: broadcast, multicast, unicast
  U8 counting;          ///< flexible counter action; 0: not counted
  unsigned flags;
};

// clang-format off
constexpr VlanRange vlans[] = {
  // first count   fid  tree profile class member ports flood count flags
  {     1,    1,    1,     0,     0,    0,     0,    0,    0,    0, 0},                     // default VLAN
  {    10,    1,   10,     1,     1,   10,     1,    1,    3,    1, noLearning},            // management
  {    20,    1,   20,     2,     2,   20,     2,    2,    6,    2, snooping},              // voice
  {    30,    1,   30,     2,     3,   20,     3,    3,    9,    2, snooping},              // video, multicast
  {    99,    1,   99,     1,     4,   99,     4,    4,   12,    0, noLearning},            // for unused ports
  {   200,    4,  200,     3,     5,  200,    16,    5,   15,    3, 0},                     // customer A
  {   300,    4,  300,     4,     5,  300,    20,    6,   27,    3, 0},                     // customer B
  {   666,    1,   10,     1,     6,  666,     5,    7,   39,    0, noLearning},            // isolated; shares the addresses of VLAN 10
  {  1000,    2, 1000,     5,     7, 1000,    24,    8,   42,    4, virtualPorts},          // tunnelled sites
  {  4094,    1, 4094,    63,   127, 4095,  4095, 2047,  508,   31, snooping | virtualPorts},  // last VLAN, everything at its limit
  {  5000,    1, 5000,     6,     8, 1000,    26,    8,   48,    4, virtualPorts},          // forwarding domain above the VLAN ids
};
// clang-format on

/// Programs VLAN `step` of a range.
void program(Velmar::VlanEntry entry, const VlanRange& range, U32 step) {
  const auto risen = [step](U32 first, U32 by = 1) { return static_cast<U16>(first + by * step); };
  entry.validIs(1);
  entry.fidIdIs(risen(range.firstForwardingId));
  entry.stgIs(range.treeGroup);
  entry.vlanProfilePtrIs(range.profile);
  entry.vlanClassIdIs(range.vlanClass);
  entry.membershipProfilePtrIs(risen(range.firstMembership));
  entry.portBitmapProfilePtrIs(range.ports);
  entry.bcIdxIs(risen(range.firstFloodGroup, 3));
  entry.umcIdxIs(risen(range.firstFloodGroup + 1U, 3));
  entry.uucIdxIs(risen(range.firstFloodGroup + 2U, 3));
  entry.flexCtrActionIs(range.counting);
  entry.enableIgmpMldSnoopingIs((range.flags & snooping) != 0);
  entry.learnDisableIs((range.flags & noLearning) != 0);
  entry.virtualPortEnIs((range.flags & virtualPorts) != 0);
}

bool programVlans(const std::string& path) {
  Examples::Dump<Velmar::VlanEntry> table(chip, Velmar::VlanEntry::entries(chip, 0));
  for (const VlanRange& range : vlans) {
    for (U32 step = 0; step < range.count; ++step) {
      program(table.entry(range.first + step), range, step);
    }
  }
  return Examples::writeFile("program-vlans", path, table.bytes());
}

}  // namespace

int main(int argc, char** argv) { return Examples::runWithPath(argc, argv, usage, programVlans); }
