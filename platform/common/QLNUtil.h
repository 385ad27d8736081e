#pragma once
// Process-wide services of the framework: the broker, the host's identity,
// the configuration switches, status posting and version parsing.
#include "CmpiBroker.h"
#include "CmpiContext.h"
#include "CmpiInstance.h"
#include "CmpiObjectPath.h"
#include "Logger.h"
#include "OperationalStatus.h"

#include <string>

namespace QLN {

class QLNUtil {
public:
    // Stored for the process; every class wraps it in a CmpiBroker at the place of use.
    static void setBroker(CmpiCpp::CmpiBroker const& broker);
    static _CMPIBroker const* getBroker();

    // The host name of the moment; VELDRA_HOSTNAME in the framework
    // configuration overrides it (tests, demos on a renamed host).
    static std::string getHostName();

    // Framework switches VELDRA_PERFMON and VELDRA_HEARTBEAT. A malformed
    // configuration throws std::runtime_error naming file and line.
    static bool PerfmonEnabled();
    static bool HeartBeatIndicationsEnabled();

    // The host's own system and chassis in "root/mwq", as another provider
    // serves them. Computer system keys, as CIM_System has them:
    //   CreationClassName = "QLN_ComputerSystem", Name = host name.
    // Chassis keys, as CIM_PhysicalElement has them:
    //   CreationClassName = "QLN_Chassis", Tag = host name.
    static CmpiCpp::CmpiObjectPath getComputerSystemPath();
    static CmpiCpp::CmpiObjectPath getChassisPath();

    // Hands a status instance to the framework. There is no other consumer
    // yet, so posting means one info line with the class and its properties.
    static void postStatus(Logger& logger, CmpiCpp::CmpiContext const& context,
                           CmpiCpp::CmpiInstance const& status);

    // Dotted versions: "5.2.0-1234", "2.10.03", "7.1". Two or three numeric
    // parts, each up to 65535, separated by dots; the last part may carry a
    // build suffix after "-", "_", "+" or a space. Leading and trailing
    // blanks are ignored. The parsers leave `value` alone and return false
    // when the version is invalid or lacks that part.
    static bool validateVersion(std::string const& version);
    static bool stringVersionToMajor(std::string const& version, unsigned short& value);
    static bool stringVersionToMinor(std::string const& version, unsigned short& value);
    static bool stringVersionToRevision(std::string const& version, unsigned short& value);
};

} // namespace QLN
