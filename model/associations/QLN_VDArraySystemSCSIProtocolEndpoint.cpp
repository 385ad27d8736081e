#include "QLN_VDArraySystemSCSIProtocolEndpoint.h"

namespace {
char const* const className = "QLN_VDArraySystemSCSIProtocolEndpoint";
}

namespace QLN {

QLN_VDArraySystemSCSIProtocolEndpoint::QLN_VDArraySystemSCSIProtocolEndpoint(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* arraySystem,
    CmpiManagedInstance* scsiProtocolEndpoint)
    : VeldraAssociation({className, "Antecedent", "Dependent", WrittenFirst::FirstEnd}, logger,
                        nameSpace, arraySystem, scsiProtocolEndpoint) {}

} // namespace QLN
