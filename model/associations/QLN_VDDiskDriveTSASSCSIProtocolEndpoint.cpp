#include "QLN_VDDiskDriveTSASSCSIProtocolEndpoint.h"

namespace {
char const* const className = "QLN_VDDiskDriveTSASSCSIProtocolEndpoint";
}

namespace QLN {

QLN_VDDiskDriveTSASSCSIProtocolEndpoint::QLN_VDDiskDriveTSASSCSIProtocolEndpoint(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* diskDrive,
    CmpiManagedInstance* tsasscsiProtocolEndpoint)
    : VeldraAssociation({className, "ManagedElement", "AvailableSAP", WrittenFirst::SecondEnd},
                        logger, nameSpace, diskDrive, tsasscsiProtocolEndpoint) {}

} // namespace QLN
