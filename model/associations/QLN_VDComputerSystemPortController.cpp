#include "QLN_VDComputerSystemPortController.h"

namespace {
char const* const className = "QLN_VDComputerSystemPortController";
}

namespace QLN {

QLN_VDComputerSystemPortController::QLN_VDComputerSystemPortController(
    Logger& logger, std::string const& nameSpace, CmpiCpp::CmpiObjectPath const& computerSystemPath,
    CmpiManagedInstance* portController)
    : VeldraAssociation({className, "GroupComponent", "PartComponent", WrittenFirst::FirstEnd},
                        logger, nameSpace, computerSystemPath, portController) {}

} // namespace QLN
