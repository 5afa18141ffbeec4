#include "Agent.h"

#include <algorithm>

#include "Velmar/EgrVlanEntry.h"
#include "Velmar/FieldId.h"
#include "Velmar/Generic.h"
#include "Velmar/PortBitmapProfileEntry.h"
#include "Velmar/Vlan2Entry.h"
#include "Velmar/VlanEntry.h"
#include "Velmar/VlanStgBEntry.h"
#include "Velmar/VlanStgEntry.h"

using namespace Velmar;

namespace {

/// A setter takes a bitmap with all words of its field.
Oru::PerUnitBitmap fit(const Oru::PerUnitBitmap& ports, U16 width) {
  Oru::PerUnitBitmap fits(width);
  for (const U32 port : ports) fits.set(port);
  return fits;
}

}  // namespace

Agent::Agent(ChipType_ chip, Bus& bus) : chip_(chip), bus_(bus) {
  ports_ = lowerPorts_ = states(Entry<VlanStgEntry>(chip)).size();
  if (!VlanStgBEntry::chipTypeVariantValid(chip, 0)) return;
  ports_ += states(Entry<VlanStgBEntry>(chip)).size();
}

template <class View, class Change>
bool Agent::update(U32 index, const Change& change) {
  if (!View::chipTypeVariantValid(chip_, 0)) return true;  // the chip keeps it in other tables
  Entry<View> entry(chip_);
  const auto at = entry.address(index);
  U32 words[64];
  if (!at || !bus_.read(*at, words, entry.words().size())) return false;
  entry.assign(words, entry.words().size());
  change(*entry);
  return bus_.write(*at, entry.words());
}

bool Agent::findProfile(const Oru::PerUnitBitmap& members, U16& profile) {
  if (!PortBitmapProfileEntry::chipTypeVariantValid(chip_, 0)) return true;
  const auto known = std::find(profiles_.begin(), profiles_.end(), members);
  profile = static_cast<U16>(known - profiles_.begin());
  if (known != profiles_.end()) return true;
  const bool isWritten = update<PortBitmapProfileEntry>(
      profile, [&](auto& entry) { entry.bitmapIs(fit(members, entry.bitmapLen())); });
  if (isWritten) profiles_.push_back(members);
  return isWritten;
}

bool Agent::setVlan(U32 vlan, U16 group, const Oru::PerUnitBitmap& members) {
  if (members.nextPort(ports_) != Oru::PerUnitBitmap::noPort) return false;
  if (group >= VlanStgEntry::entries(chip_, 0)) return false;
  U16 profile = 0;
  if (!findProfile(members, profile)) return false;
  const auto program = [&](auto& entry) {
    entry.validIs(1);
    if (entry.isStgValid()) entry.stgIs(group);
  };
  const auto programIngress = [&](auto& entry) {
    program(entry);
    if (entry.isIngPortBitmapValid()) entry.ingPortBitmapIs(fit(members, entry.ingPortBitmapLen()));
    if (entry.isPortBitmapProfilePtrValid()) entry.portBitmapProfilePtrIs(profile);
  };
  const auto setMembers = [&](auto& entry) {
    if (entry.isPortBitmapValid()) entry.portBitmapIs(fit(members, entry.portBitmapLen()));
  };
  const auto programEgress = [&](auto& entry) { program(entry), setMembers(entry); };
  const auto programVlan = [&](auto& entry) {
    programIngress(entry), setMembers(entry);
    entry.fidIdIs(static_cast<U16>(vlan));
  };
  // Egress first: no packet is let in before it may leave.
  return update<EgrVlanEntry>(vlan, programEgress) && update<Vlan2Entry>(vlan, programIngress) &&
         update<VlanEntry>(vlan, programVlan);
}

bool Agent::removeVlan(U32 vlan) {
  const auto clear = [](auto& entry) { entry.validIs(0); };
  return update<VlanEntry>(vlan, clear) && update<Vlan2Entry>(vlan, clear) &&
         update<EgrVlanEntry>(vlan, clear);
}

bool Agent::setPortState(U32 group, U32 port, PortState state) {
  if (port >= ports_) return false;
  const auto set = [&](auto& entry) {
    entry.setField64(FieldId::firstPort + port, static_cast<U64>(state));
  };
  return port < lowerPorts_ ? update<VlanStgEntry>(group, set) : update<VlanStgBEntry>(group, set);
}
