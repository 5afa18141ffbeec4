// A plugin that is compiled with default visibility, as many are.

#include "Kiv/Trace.h"
#include "Velmar/Generic.h"
#include "Velmar/VlanEntry.h"

namespace {

unsigned lines = 0;

void count(const Kiv::TraceRecord&, void*) { ++lines; }

}  // namespace

/// Traces, if it is to, and returns the number of lines that this plugin has seen.
extern "C" unsigned linesOf(bool traces) {
  if (traces) Kiv::TraceFacility::sinkIs(&count, nullptr);
  if (traces) Kiv::TraceFacility::levelIs("AsicUtilsVelmarMetaInfo", 8, true);
  Velmar::Entry<Velmar::VlanEntry> vlan(BCM56990_B0);
  vlan->stgIs(5);
  std::vector<std::string> losses;
  Velmar::Entry<Velmar::VlanEntry> other(BCM56960_A0);
  if (!Velmar::translate(*vlan, *other, &losses) || Velmar::differences(vlan, vlan).size() != 0 ||
      Velmar::toText(vlan).find("stg=5") == std::string::npos || !vlan.address(1)) {
    return 1000;
  }
  Velmar::states(vlan);
  return lines;
}
