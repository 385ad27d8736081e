#include "QLN_VDArraySystemSCSIProtocolController.h"

namespace {
char const* const className = "QLN_VDArraySystemSCSIProtocolController";
}

namespace QLN {

QLN_VDArraySystemSCSIProtocolController::QLN_VDArraySystemSCSIProtocolController(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* arraySystem,
    CmpiManagedInstance* scsiProtocolController)
    : VeldraAssociation({className, "GroupComponent", "PartComponent", WrittenFirst::FirstEnd},
                        logger, nameSpace, arraySystem, scsiProtocolController) {}

} // namespace QLN
