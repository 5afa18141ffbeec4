#pragma once

#include "Velmar/Declarations.h"

// clang-format off
#define VELMAR_FIELDS_ProtocolPktControl(FIELD) \
  FIELD(dhcpPktToCpu,    DhcpPktToCpu,    DHCP_PKT_TO_CPU,    U8, "DHCP packets are copied to the CPU") \
  FIELD(dhcpPktDrop,     DhcpPktDrop,     DHCP_PKT_DROP,      U8, "DHCP packets are dropped") \
  FIELD(ndPktToCpu,      NdPktToCpu,      ND_PKT_TO_CPU,      U8, "IPv6 neighbour discovery packets are copied to the CPU") \
  FIELD(ndPktDrop,       NdPktDrop,       ND_PKT_DROP,        U8, "IPv6 neighbour discovery packets are dropped") \
  FIELD(arpRequestToCpu, ArpRequestToCpu, ARP_REQUEST_TO_CPU, U8, "ARP requests are copied to the CPU") \
  FIELD(arpRequestDrop,  ArpRequestDrop,  ARP_REQUEST_DROP,   U8, "ARP requests are dropped") \
  FIELD(arpReplyToCpu,   ArpReplyToCpu,   ARP_REPLY_TO_CPU,   U8, "ARP replies are copied to the CPU") \
  FIELD(arpReplyDrop,    ArpReplyDrop,    ARP_REPLY_DROP,     U8, "ARP replies are dropped") \
  FIELD(srpPktToCpu,     SrpPktToCpu,     SRP_PKT_TO_CPU,     U8, "SRP packets are copied to the CPU") \
  FIELD(srpFwdAction,    SrpFwdAction,    SRP_FWD_ACTION,     U8, "forward action for SRP packets") \
  FIELD(mmrpPktToCpu,    MmrpPktToCpu,    MMRP_PKT_TO_CPU,    U8, "MMRP packets are copied to the CPU") \
  FIELD(mmrpFwdAction,   MmrpFwdAction,   MMRP_FWD_ACTION,    U8, "forward action for MMRP packets")

#define VELMAR_SPANS_ProtocolPktControl(SPAN)
// clang-format on

namespace Velmar {

/// What happens to ARP, DHCP, ND, MMRP and SRP packets: a register array.
class VELMAR_EXPORT ProtocolPktControl : public AsicUtils::BcmAsicBase {
  VELMAR_DECLARE_REGISTER(ProtocolPktControl, U32)
};

}  // namespace Velmar
