#pragma once

#include <vector>

#include "Bus.h"
#include "Oru/PerUnitBitmap.h"

/// Spanning-tree states, as the tables hold them.
enum class PortState : U8 { disabled, blocking, learning, forwarding };

/// Programs VLANs, their members and the spanning tree on a chip that is known at run time only.
/// Where a chip keeps what is asked of the views, not of a list of chips. Every member returns false
/// if an entry does not exist, a port has no place, or the bus fails.
class Agent {
 public:
  Agent(ChipType_ chip, Bus& bus);

  /// Makes a VLAN with its spanning-tree group and member ports.
  bool setVlan(U32 vlan, U16 group, const Oru::PerUnitBitmap& members);
  bool removeVlan(U32 vlan);
  /// The state of a port in a spanning-tree group.
  bool setPortState(U32 group, U32 port, PortState state);

 private:
  /// Reads an entry, lets `change` change it, and writes it back.
  template <class View, class Change>
  bool update(U32 index, const Change& change);
  /// The index of the profile with these members, on chips with profiles; makes it if there is none.
  bool findProfile(const Oru::PerUnitBitmap& members, U16& profile);

  ChipType_ chip_;
  Bus& bus_;
  U32 ports_;
  U32 lowerPorts_;  ///< those of the first table of states
  std::vector<Oru::PerUnitBitmap> profiles_;
};
