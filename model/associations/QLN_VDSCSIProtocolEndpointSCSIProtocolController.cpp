#include "QLN_VDSCSIProtocolEndpointSCSIProtocolController.h"

namespace {
char const* const className = "QLN_VDSCSIProtocolEndpointSCSIProtocolController";
}

namespace QLN {

QLN_VDSCSIProtocolEndpointSCSIProtocolController::QLN_VDSCSIProtocolEndpointSCSIProtocolController(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* scsiProtocolEndpoint,
    CmpiManagedInstance* scsiProtocolController)
    : VeldraAssociation({className, "AvailableSAP", "ManagedElement", WrittenFirst::FirstEnd},
                        logger, nameSpace, scsiProtocolEndpoint, scsiProtocolController) {}

} // namespace QLN
