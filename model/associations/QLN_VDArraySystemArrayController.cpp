#include "QLN_VDArraySystemArrayController.h"

namespace {
char const* const className = "QLN_VDArraySystemArrayController";
}

namespace QLN {

QLN_VDArraySystemArrayController::QLN_VDArraySystemArrayController(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* arraySystem,
    CmpiManagedInstance* arrayController)
    : VeldraAssociation({className, "GroupComponent", "PartComponent", WrittenFirst::FirstEnd},
                        logger, nameSpace, arraySystem, arrayController) {}

} // namespace QLN
