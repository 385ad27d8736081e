#include "QLN_VDArraySystemPortController.h"

namespace {
char const* const className = "QLN_VDArraySystemPortController";
}

namespace QLN {

QLN_VDArraySystemPortController::QLN_VDArraySystemPortController(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* arraySystem,
    CmpiManagedInstance* portController)
    : VeldraAssociation({className, "SameElement", "SystemElement", WrittenFirst::FirstEnd}, logger,
                        nameSpace, arraySystem, portController) {}

} // namespace QLN
