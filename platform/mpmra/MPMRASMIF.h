#pragma once
// Trap pass-through. On a machine with the Tarvo management processor the
// traps go to it and it forwards them; this host has none, so the traps go
// out directly as SNMPv2c notifications, the way the processor would send
// them, to the destinations of the framework configuration:
//   VELDRA_TRAP_DESTINATIONS  comma-separated host[:port] (port 162 by
//                             default; an IPv6 host in brackets: [::1]:162)
//   VELDRA_TRAP_COMMUNITY     community string, "public" by default
// Each notification carries sysUpTime.0, snmpTrapOID.0 (enterprise
// 1.3.6.1.4.1.57913, notification 0.<trap number>), then the variables in
// the order given.
#include "Logger.h"
#include "varbind.h"

#include <vector>

class MPMRASMIF {
public:
    explicit MPMRASMIF(Logger& logger);
    ~MPMRASMIF();
    MPMRASMIF(MPMRASMIF const&) = delete;
    MPMRASMIF& operator=(MPMRASMIF const&) = delete;

    // 0 when the trap went to every destination. Non-zero when none is
    // configured, when a variable is malformed (nothing is sent then), or
    // when a destination could not be reached; each cause is logged.
    int sentSnmpTrapPassThrough(unsigned int const& trapId, std::vector<varbind> const& variables);

private:
    Logger _logger;
};
